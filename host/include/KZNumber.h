// Numbers in text boxes: written and read in the user's conventions (Windows' regional settings), whatever numeric
// locale the C library has at that moment.
#pragma once

#include "KZBasicString.h"

// Writes a number for display, without group separators.
//   text      receives the text; its storage is reused. Infinities and NaN give the empty text.
//   decimals  0 or more: exactly that many; below 0: at most -decimals, trailing zeros dropped. At most 99 count.
//   exact     true: as many more decimals as it takes for the text to give the very value back
KZ_API void FormatNumber(KZBasicString& text, double value, int decimals, bool exact);

// Turns displayed text into one that wcstod understands in the C library's current numeric locale: group separators and
// blanks are taken out, the user's decimal separator becomes the locale's.
//   text  the displayed text; what is not a number passes through as it is
//   out   receives the plain text; may be the same string
KZ_API void UnformatNumber(const KZBasicString& text, KZBasicString& out);

// Whether a displayed text is a number: an optional sign, digits with or without group separators in their places, an
// optional decimal separator and decimals; blanks around it do not count.
//   decimals  the most decimals that may follow the separator; below 0: any number of them
// Returns false for the empty text, for trailing letters, exponents, and for what is beyond the range of a double.
[[nodiscard]] KZ_API bool IsValidNumber(const KZBasicString& text, int decimals);
