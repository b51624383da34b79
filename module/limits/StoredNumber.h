// A number as the limits' records hold it.
#pragma once

#include <array>

namespace zep {

// Six decimals and a point, as "%f" writes in the "C" locale. It needs neither that locale nor memory, so that nothing
// can fail between the values of a record.
class StoredNumber {
public:
    explicit StoredNumber(double value) noexcept;

    [[nodiscard]] const wchar_t* Text() const noexcept { return m_text.data(); }
    // The number that reading the text gives.
    [[nodiscard]] double Value() const noexcept { return m_value; }

private:
    std::array<wchar_t, 320> m_text{};  // the largest double has 309 digits in front of the point
    double m_value;
};

}  // namespace zep
