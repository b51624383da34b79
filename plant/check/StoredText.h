// Whether a text of a document is the number that it is taken for. Reading takes the leading number of any text, so
// that a broken one still shows something.
#pragma once

namespace plant {

// One sign, digits, blanks around them, within an int's range.
[[nodiscard]] bool IsWholeNumber(const wchar_t* text);

// The number, or NaN for a text that is not wholly one or beyond a double's range.
[[nodiscard]] double StoredDecimal(const wchar_t* text);

}  // namespace plant
