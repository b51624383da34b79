#include "ScratchFolder.h"

#include <fstream>
#include <iterator>
#include <random>

ScratchFolder::ScratchFolder()
    : m_path(std::filesystem::temp_directory_path() / ("host-test-" + std::to_string(std::random_device{}())))
{
    std::filesystem::create_directories(m_path);
}

ScratchFolder::~ScratchFolder()
{
    std::error_code ignored;
    for (const auto& entry : std::filesystem::directory_iterator(m_path, ignored))
        std::filesystem::permissions(entry, std::filesystem::perms::owner_write, std::filesystem::perm_options::add,
                                     ignored);
    std::filesystem::remove_all(m_path, ignored);
}

std::size_t ScratchFolder::Count() const
{
    return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(m_path), {}));
}

void WriteBytes(const std::filesystem::path& file, std::string_view bytes)
{
    std::ofstream(file, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

std::string ReadBytes(const std::filesystem::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}
