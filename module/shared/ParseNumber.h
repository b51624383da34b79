// Texts as numbers.
#pragma once

namespace zep {

// What std::wcstod gives for a text in the C library's current numeric locale: its leading number, 0 without one.
// Throws std::bad_alloc when memory runs out.
[[nodiscard]] double ParseNumber(const wchar_t* text);

}  // namespace zep
