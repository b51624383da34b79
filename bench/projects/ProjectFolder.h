// A large project on disk.
#pragma once

#include "PlantText.h"
#include "TemporaryFolder.h"

namespace kzbench {

class ProjectFolder {
public:
    ProjectFolder(int devices, Settings settings)
        : m_main(m_folder.Write("main.xml", ProjectText(devices, settings))), m_size(std::filesystem::file_size(m_main))
    {
    }

    [[nodiscard]] const std::filesystem::path& Path() const noexcept { return m_folder.Path(); }
    [[nodiscard]] std::string MainText() const { return kztest::BytesOf(m_main); }
    [[nodiscard]] std::uintmax_t Size() const noexcept { return m_size; }

private:
    kztest::TemporaryFolder m_folder;
    std::filesystem::path m_main;
    std::uintmax_t m_size;
};

}  // namespace kzbench
