// A folder of its own for a test, gone when the test is over.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

class ScratchFolder {
public:
    ScratchFolder();
    ~ScratchFolder();
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    [[nodiscard]] const std::filesystem::path& Path() const noexcept { return m_path; }
    [[nodiscard]] std::filesystem::path File(std::string_view name) const { return m_path / name; }

    // The number of files and folders in it.
    [[nodiscard]] std::size_t Count() const;

private:
    std::filesystem::path m_path;
};

void WriteBytes(const std::filesystem::path& file, std::string_view bytes);
[[nodiscard]] std::string ReadBytes(const std::filesystem::path& file);
