// File names for driver ids, which may hold any character.
#pragma once

#include "KZBasicString.h"

// The file name that a driver id stands for, without folder. Letters, digits, "-", "_", "." and blanks stand for
// themselves; every other character becomes "%XX" for each byte of its UTF-8 form, and so does the first character of a
// name that Windows reserves for a device ("CON"): no two ids share a name, case aside, which Windows' file names do
// not tell apart either.
[[nodiscard]] KZ_API KZBasicString KZDocumentFileName(const KZBasicString& driverId);

// Whether Windows reserves a file name for a device, such as "CON", whatever extension it has.
[[nodiscard]] KZ_API bool KZIsReservedFileName(std::wstring_view name);
