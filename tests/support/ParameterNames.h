// Names for the cases of parameterised tests, as a person can type them.
#pragma once

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <type_traits>

namespace kztest {

// A value and what a test case with it is called: letters, digits and underscores.
template <class Value>
struct Named {
    const char* name;
    Value value;

    friend void PrintTo(const Named& named, std::ostream* out) { *out << named.name; }
};

// For INSTANTIATE_TEST_SUITE_P over anything that has a name.
inline constexpr auto ByName = [](const auto& info) { return std::string(info.param.name); };

inline constexpr auto ByLanguage = [](const auto& info) {
    using Language = std::remove_cvref_t<decltype(info.param)>;
    return std::string(info.param == Language::English ? "English" : "Spanish");
};

}  // namespace kztest
