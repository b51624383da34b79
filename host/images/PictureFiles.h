// The picture files that have been read, so that dialogs opened again and again read each of them once.
#pragma once

#include <windows.h>

#include <map>
#include <memory>

#include "KZBasicString.h"
#include "PixelImage.h"

// Plain memory without handles, so the one of the process may live as long as the library. Used on the user-interface
// thread alone.
class PictureFiles {
public:
    [[nodiscard]] static PictureFiles& Shared();

    struct Answer {
        std::shared_ptr<const PixelImage> image;
        ULONGLONG checkedAt;  // when the file was last looked at, in GetTickCount64's milliseconds
    };

    // The pixels of a file, or null when it is missing or no picture. Both answers are remembered until the file
    // changes, which is noticed within a second.
    [[nodiscard]] Answer Get(const KZBasicString& path);

    // Whether a file looked at then need not be looked at again yet.
    [[nodiscard]] static bool IsTrusted(ULONGLONG checkedAt) noexcept;

private:
    // What tells one content of a file from the next; all 0 when there is no file.
    struct FileStamp {
        ULONGLONG written = 0;
        ULONGLONG size = 0;
        bool operator==(const FileStamp&) const = default;
    };
    struct Entry : Answer {
        FileStamp stamp{};
    };

    [[nodiscard]] static FileStamp StampOf(const KZBasicString& path) noexcept;

    std::map<KZBasicString, Entry> m_entries;
};
