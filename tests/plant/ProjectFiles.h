// All files of a folder, as a value that tests compare.
#pragma once

#include <filesystem>
#include <map>
#include <string>

#include "TemporaryFolder.h"

namespace kztest {

using Files = std::map<std::string, std::string>;

// Every file below a folder with its content, by its path from there with "/".
[[nodiscard]] inline Files FilesIn(const std::filesystem::path& folder)
{
    Files files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
        if (!entry.is_regular_file())
            continue;
        const std::u8string name = entry.path().lexically_relative(folder).generic_u8string();
        files.emplace(std::string(name.begin(), name.end()), BytesOf(entry.path()));
    }
    return files;
}

}  // namespace kztest
