#include "TestFolder.h"

#include <windows.h>

#include <fstream>
#include <iterator>
#include <stdexcept>

namespace fs = std::filesystem;

namespace editor_tests {

TestFolder::TestFolder()
{
    static int count = 0;
    const std::wstring name = L"kzeditor-" + std::to_wstring(::GetCurrentProcessId()) + L"-" + std::to_wstring(++count);
    m_path = fs::temp_directory_path() / name;
    fs::remove_all(m_path);
    fs::create_directories(m_path);
}

TestFolder::~TestFolder()
{
    std::error_code ignored;  // a folder that is left over does no harm
    fs::remove_all(m_path, ignored);
}

void TestFolder::Write(const fs::path& relative, std::string_view content) const
{
    fs::create_directories((m_path / relative).parent_path());
    std::ofstream file(m_path / relative, std::ios::binary);
    file.write(content.data(), static_cast<std::streamsize>(content.size()));
    if (!file.flush())
        throw std::runtime_error("cannot write " + relative.string());
}

std::string TestFolder::Read(const fs::path& relative) const
{
    std::ifstream file(m_path / relative, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

std::string MainXml(std::string_view devices)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<configuration>\n  <devices>" + std::string(devices) +
           "</devices>\n</configuration>\n";
}

std::string DeviceXml(std::string_view driverId, std::string_view name, std::string_view groups, std::string_view type,
                      std::string_view number)
{
    const auto value = [](const char* element, std::string_view text) {
        return std::string("<") + element + ">" + std::string(text) + "</" + element + ">";
    };
    return "<device>" + value("driverId", driverId) + value("name", name) + value("number", number) +
           value("type", type) + value("description", "Filtro de prueba, línea ñ") + value("groups", groups) +
           "</device>";
}

}  // namespace editor_tests
