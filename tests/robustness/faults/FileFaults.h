// Counts the calls that KZHost.dll makes of one file function, and lets a chosen one fail.
#pragma once

#include <windows.h>

#include "ImportPatch.h"

// The file functions that a document's load and save consist of, in the order of their first use there.
enum class FileCall { Create, Read, Write, Flush, Close, Move };
inline constexpr int FileCallCount = 6;
[[nodiscard]] const char* NameOf(FileCall call) noexcept;

class FileFaults {
public:
    // The failing-th call, from 1, fails; 0: none.
    FileFaults(FileCall call, int failing);
    FileFaults(const FileFaults&) = delete;
    FileFaults& operator=(const FileFaults&) = delete;

    [[nodiscard]] static int Count() noexcept { return s_count; }

    // For the replacements.
    static bool Fails() noexcept { return ++s_count == s_failing; }

private:
    static inline int s_count = 0;
    static inline int s_failing = 0;
    kztest::ImportPatch m_patch;
};
