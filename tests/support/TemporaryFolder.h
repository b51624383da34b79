// A folder of a test's own, gone with its files when the test is over.
#pragma once

#include <cstddef>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>

namespace kztest {

// Every byte of a file; of one that does not exist none.
[[nodiscard]] inline std::string BytesOf(const std::filesystem::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

class TemporaryFolder {
public:
    // Makes it where the environment variable KZ_TEST_FOLDER says, otherwise among the system's temporary files. Throws
    // std::filesystem::filesystem_error when there is no place for it.
    TemporaryFolder()
    {
        const char* const chosen = std::getenv("KZ_TEST_FOLDER");
        const std::filesystem::path parent = chosen ? chosen : std::filesystem::temp_directory_path();
        std::random_device random;
        do
            m_path = parent / ("kz-" + std::to_string(random()));
        while (!std::filesystem::create_directory(m_path));
    }
    ~TemporaryFolder()
    {
        std::error_code ignored;
        // Windows keeps read-only files.
        for (const auto& entry : std::filesystem::directory_iterator(m_path, ignored))
            std::filesystem::permissions(entry, std::filesystem::perms::owner_write, std::filesystem::perm_options::add,
                                         ignored);
        std::filesystem::remove_all(m_path, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    [[nodiscard]] const std::filesystem::path& Path() const noexcept { return m_path; }

    // Writes a file, after the folders to it, and gives its path. Throws std::ios_base::failure when it cannot.
    std::filesystem::path Write(const std::filesystem::path& name, std::string_view bytes) const
    {
        const std::filesystem::path file = m_path / name;
        std::filesystem::create_directories(file.parent_path());
        std::ofstream stream;
        stream.exceptions(std::ios::failbit | std::ios::badbit);
        stream.open(file, std::ios::binary);
        stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        stream.close();
        return file;
    }
    [[nodiscard]] std::string Read(const std::filesystem::path& name) const { return BytesOf(m_path / name); }

    // The number of files and folders directly in it.
    [[nodiscard]] std::size_t Count() const
    {
        return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(m_path), {}));
    }

private:
    std::filesystem::path m_path;
};

}  // namespace kztest
