// Whole files, read and replaced.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

// An empty reason is success; otherwise it says in a few words why not.
struct FileOutcome {
    std::wstring reason;

    explicit operator bool() const noexcept { return reason.empty(); }
};

// Reads a file whole. On failure bytes is unspecified.
[[nodiscard]] FileOutcome ReadWholeFile(const std::filesystem::path& file, std::string& bytes);

// Writes the bytes beside the file, flushes them to the disk and moves them over the file in one step, so that the file
// holds the old bytes or the new ones whatever happens. On failure the old file stands and nothing is left beside it.
[[nodiscard]] FileOutcome ReplaceFileSafely(const std::filesystem::path& file, std::string_view bytes);

inline constexpr const wchar_t* NoSuchFile = L"the file does not exist";
inline constexpr const wchar_t* FileIsAFolder = L"this is a folder, not a file";
inline constexpr const wchar_t* FileIsReadOnly = L"the file is read-only";
