// A folder of its own for one test, under the system's temporary folder; removed when the test ends.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace editor_tests {

class TestFolder {
public:
    TestFolder();
    ~TestFolder();
    TestFolder(const TestFolder&) = delete;
    TestFolder& operator=(const TestFolder&) = delete;

    [[nodiscard]] const std::filesystem::path& Path() const noexcept { return m_path; }

    // Creates the file, and the folders to it.
    void Write(const std::filesystem::path& relative, std::string_view content) const;
    [[nodiscard]] std::string Read(const std::filesystem::path& relative) const;

private:
    std::filesystem::path m_path;
};

// A main configuration with these <device> elements.
[[nodiscard]] std::string MainXml(std::string_view devices);

// One <device> element with the values that a valid one has.
[[nodiscard]] std::string DeviceXml(std::string_view driverId, std::string_view name, std::string_view groups = "0x74",
                                    std::string_view type = "ZEP", std::string_view number = "1");

}  // namespace editor_tests
