// The bracket around every exchange between edit boxes and numbers.
#pragma once

#include <clocale>

namespace zep {

// While it lives, the C library's numbers follow the user's conventions; afterwards they are back in the "C" locale, in
// which the documents are written, whatever way the scope is left.
class NumericLocale {
public:
    NumericLocale() noexcept { std::setlocale(LC_NUMERIC, ""); }
    ~NumericLocale() { std::setlocale(LC_NUMERIC, "C"); }
    NumericLocale(const NumericLocale&) = delete;
    NumericLocale& operator=(const NumericLocale&) = delete;
};

}  // namespace zep
