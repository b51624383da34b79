// What stands in a folder of Windows.
#pragma once

#include <windows.h>

#include "KZSystemFile.h"

// The tag counts for a reparse point, such as a link. Those of a cloud's folders and of disks that keep equal blocks
// once are files and folders like any other: only one that stands for another name is a link.
[[nodiscard]] inline KZFileEntry::Kind KindOf(DWORD attributes, DWORD reparseTag) noexcept
{
    if ((attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 && IsReparseTagNameSurrogate(reparseTag))
        return KZFileEntry::Kind::Other;
    return (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0 ? KZFileEntry::Kind::Folder : KZFileEntry::Kind::File;
}
