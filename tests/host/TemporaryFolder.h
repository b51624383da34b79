// A folder of a test's own, gone with the test.
#pragma once

#include <windows.h>

#include <filesystem>
#include <fstream>
#include <string>

class TemporaryFolder {
public:
    TemporaryFolder()
    {
        static int count = 0;
        m_path = std::filesystem::temp_directory_path() /
                 (L"kz-" + std::to_wstring(::GetCurrentProcessId()) + L"-" + std::to_wstring(++count));
        std::filesystem::create_directories(m_path);
    }
    ~TemporaryFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    [[nodiscard]] const std::filesystem::path& Path() const noexcept { return m_path; }

    // Writes a file, its folders included, and gives its path.
    std::filesystem::path Write(const std::filesystem::path& name, const std::string& bytes) const
    {
        const std::filesystem::path file = m_path / name;
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file, std::ios::binary) << bytes;
        return file;
    }

private:
    std::filesystem::path m_path;
};

inline std::string BytesOf(const std::filesystem::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}
