#include "EditorFixture.h"

#include <gmock/gmock.h>

#include <algorithm>

#include "KZUtf8.h"

namespace fs = std::filesystem;

namespace editor_tests {

EditorTest::EditorTest() : m_program(m_folder.Path() / "program")
{
    // What the editor remembers is this test's own.
    ::SetEnvironmentVariableW(L"KZ_SETTINGS", (m_folder.Path() / "settings.xml").c_str());
    m_folder.Write("plant/main.xml",
                   MainXml(DeviceXml("zep-1", "GRÚA.1", "0x74") + DeviceXml("zep-2", "NODIALOG", "0x8B") +
                           DeviceXml("xyz-1", "OTHER", "0x0", "XYZ")));
    m_folder.Write("plant/devices/zep-1.xml", "<device/>");
    m_folder.Write("plant/devices/zep-2.xml", "");
}

std::string EditorTest::ProjectPath() const
{
    return ToUtf8((m_folder.Path() / "plant").wstring());
}

EditorProcess& EditorTest::StartBare(const std::vector<std::string>& arguments)
{
    m_editor.reset();
    m_editor = std::make_unique<EditorProcess>(m_program, arguments);
    return *m_editor;
}

EditorProcess& EditorTest::Start(const std::vector<std::string>& arguments)
{
    std::vector<std::string> all{"--project", ProjectPath(), "--language", "en"};
    all.insert(all.end(), arguments.begin(), arguments.end());
    return StartBare(all);
}

std::map<std::string, std::string> EditorTest::ProjectFiles(const char* folder) const
{
    std::map<std::string, std::string> files;
    for (const auto& entry : fs::recursive_directory_iterator(m_folder.Path() / folder)) {
        const fs::path relative = fs::relative(entry.path(), m_folder.Path());
        if (entry.is_regular_file())
            files[relative.string()] = m_folder.Read(relative);
    }
    return files;
}

void EditorTest::ExpectError(EditorProcess& editor, const std::vector<std::string>& parts)
{
    EXPECT_EQ(editor.Wait(), 2);
    EXPECT_EQ(editor.Output(), "");
    const std::string& errors = editor.Errors();
    EXPECT_EQ(std::count(errors.begin(), errors.end(), '\n'), 1) << errors;
    EXPECT_TRUE(errors.ends_with('\n'));
    for (const std::string& part : parts)
        EXPECT_THAT(errors, testing::HasSubstr(part));
}

}  // namespace editor_tests
