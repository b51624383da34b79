#include "StoredNumber.h"

#include <algorithm>
#include <charconv>

namespace zep {

StoredNumber::StoredNumber(double value) noexcept : m_value(value)
{
    constexpr int decimals = 6;
    std::array<char, std::tuple_size_v<decltype(m_text)>> text;
    const char* const start = text.data();
    const char* const end =
        std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed, decimals).ptr;
    std::copy(start, end, m_text.begin());
    std::from_chars(start, end, m_value);
}

}  // namespace zep
