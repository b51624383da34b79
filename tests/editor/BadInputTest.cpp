// What the editor does with bad projects, arguments and modules: one line on standard error, status 2, files untouched.
#include <gtest/gtest.h>

#include <cstdint>
#include <fstream>

#include "EditorFixture.h"

namespace {

using editor_tests::EditorProcess;
using editor_tests::EditorTest;

class BadInput : public EditorTest {
protected:
    // The same, and no file of the project may have changed.
    void ExpectRefusal(EditorProcess& editor, const std::vector<std::string>& parts,
                       const std::map<std::string, std::string>& before)
    {
        ExpectError(editor, parts);
        EXPECT_EQ(ProjectFiles(), before);
    }
};

}  // namespace

TEST_F(BadInput, AMissingProjectFolderIsNamed)
{
    ExpectError(StartBare({"--project", ProjectPath() + "-gone", "devices"}), {"plant-gone", "--project"});
}

TEST_F(BadInput, AMissingProjectFolderIsNamedInsteadOfAWindow)
{
    ExpectError(StartBare({"--project", ProjectPath() + "-gone"}), {"plant-gone", "--project"});
}

TEST_F(BadInput, AMissingMainXmlIsNamed)
{
    std::filesystem::remove(m_folder.Path() / "plant" / "main.xml");
    ExpectError(Start({"devices"}), {"main.xml", "--project"});
}

TEST_F(BadInput, ABrokenMainXmlIsNamedWithThePlaceAndStaysAsItIs)
{
    m_program.AddModule("ready");
    m_folder.Write("plant/main.xml", "<configuration>\n  <devices>\n</configuration>\n");
    const auto before = ProjectFiles();
    ExpectRefusal(Start({"options", "GRÚA.1"}), {"main.xml", "3"}, before);
}

TEST_F(BadInput, AMainXmlWithAnotherRootIsRefused)
{
    m_folder.Write("plant/main.xml", "<something/>");
    const auto before = ProjectFiles();
    ExpectRefusal(Start({"devices"}), {"main.xml", "configuration"}, before);
}

TEST_F(BadInput, AnUnknownDeviceIsNamedTogetherWithTheKnownOnes)
{
    m_program.AddModule("ready");
    const auto before = ProjectFiles();
    ExpectRefusal(Start({"options", "GRUA"}), {"\"GRUA\"", "GRÚA.1, NODIALOG, OTHER"}, before);
}

TEST_F(BadInput, AMissingDeviceDocumentIsNamed)
{
    m_program.AddModule("ready");
    std::filesystem::remove(m_folder.Path() / "plant" / "devices" / "zep-1.xml");
    for (const char* command : {"options", "child"}) {
        const auto before = ProjectFiles();
        ExpectRefusal(Start({command, "GRÚA.1"}), {"zep-1.xml", "restore"}, before);
    }
}

TEST_F(BadInput, ABrokenDeviceDocumentIsNamedWithThePlaceAndStaysAsItIs)
{
    m_program.AddModule("ready");
    m_folder.Write("plant/devices/zep-1.xml", "<device>\n<information>\n</device>\n");
    for (const char* command : {"options", "child"}) {
        const auto before = ProjectFiles();
        ExpectRefusal(Start({command, "GRÚA.1"}), {"zep-1.xml", "3"}, before);
    }
}

TEST_F(BadInput, AMissingPictureIsNamed)
{
    m_program.AddModule("ready");
    std::filesystem::remove(m_program.Path() / "images" / "ZEP-50.png");
    for (const char* command : {"options", "select", "child"}) {
        const auto before = ProjectFiles();
        ExpectRefusal(Start({command, "GRÚA.1"}), {"ZEP-50.png", "images"}, before);
    }
}

TEST_F(BadInput, BadArgumentsAreRefusedBeforeAnyDocumentIsRead)
{
    const std::string gone = ProjectPath() + "-gone";
    ExpectError(StartBare({"--project", gone, "select", "A", "--groups", "0xZZ"}), {"--groups", "0xZZ"});
    ExpectError(StartBare({"--project", gone, "select", "A", "--max", "-3"}), {"--max", "-3"});
    ExpectError(StartBare({"--project", gone, "--language", "fr"}), {"--language", "fr", "en or es"});
    ExpectError(StartBare({"--project", gone, "string", "65536"}), {"65536"});
    ExpectError(StartBare({"--project", gone, "explode"}), {"explode", "--help"});
}

TEST_F(BadInput, ATextIdThatTheHostDoesNotHaveIsNamed)
{
    ExpectError(StartBare({"--language", "en", "string", "65000"}), {"65000"});
}

TEST_F(BadInput, ErrorsOfTheProjectComeInTheChosenLanguage)
{
    ExpectError(StartBare({"--project", ProjectPath() + "-gone", "--language", "es", "devices"}), {"no existe"});
}

TEST_F(BadInput, AMissingModuleIsNamed)
{
    const auto before = ProjectFiles();
    ExpectRefusal(Start({"options", "GRÚA.1"}), {"KZUsrZEP.dll", "Copy"}, before);
}

TEST_F(BadInput, ADeviceTypeWithoutModuleIsNamed)
{
    m_program.AddModule("ready");
    const auto before = ProjectFiles();
    ExpectRefusal(Start({"select", "OTHER"}), {"\"XYZ\""}, before);
}

TEST_F(BadInput, AModuleThatIsNoLibraryIsNamed)
{
    m_folder.Write("program/KZUsrZEP.dll", "no library");
    ExpectError(Start({"third", "GRÚA.1"}), {"KZUsrZEP.dll", "cannot be loaded"});
}

TEST_F(BadInput, AModuleOfAnotherArchitectureIsNamedWithBoth)
{
    m_program.AddModule("ready");
    const std::filesystem::path file = m_program.Path() / "KZUsrZEP.dll";
    {
        std::fstream stream(file, std::ios::binary | std::ios::in | std::ios::out);
        std::uint32_t header = 0;
        stream.seekg(0x3C).read(reinterpret_cast<char*>(&header), sizeof header);
        stream.seekp(header + 4).write("\x4C\x01", 2);
    }
    ExpectError(Start({"child", "GRÚA.1"}), {"KZUsrZEP.dll", "x86", "x64"});
}

TEST_F(BadInput, AModuleWithoutItsEntryIsNamedWithTheEntry)
{
    m_program.AddModule("noentry");
    ExpectError(Start({"third", "GRÚA.1"}), {"KZUsrZEP.dll", "InitializeUsrDriver_ZEP"});
}

TEST_F(BadInput, AModuleWhoseEntryAnswersFalseIsNamed)
{
    m_program.AddModule("refusing");
    ExpectError(Start({"third", "GRÚA.1"}), {"KZUsrZEP.dll", "false"});
}

TEST_F(BadInput, ABadModuleOfAnotherModelDoesNotStopTheGoodOne)
{
    m_program.AddModule("ready");
    m_program.AddModule("noentry", "AAA");
    m_folder.Write("program/KZUsrBBB.dll", "no library");
    EditorProcess& editor = Start({"third", "GRÚA.1"});
    EXPECT_EQ(editor.Wait(), 1);
    EXPECT_EQ(editor.Output(), "third: false\n");
    EXPECT_EQ(editor.Errors(), "");
}
