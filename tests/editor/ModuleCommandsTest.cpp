// The command that lists the driver modules, run as a script runs it.
#include <gmock/gmock.h>

#include "EditorFixture.h"

namespace {

using editor_tests::EditorTest;
using testing::HasSubstr;
using testing::StartsWith;

class ModuleCommands : public EditorTest {
protected:
    // What the command prints, without a project.
    std::string List(const std::string& language = "en")
    {
        auto& editor = StartBare({"--project", ProjectPath() + "-gone", "--language", language, "modules"});
        EXPECT_EQ(editor.Wait(), 0);
        EXPECT_EQ(editor.Errors(), "");
        return editor.Output();
    }
};

}  // namespace

TEST_F(ModuleCommands, ModulesPrintsFileModelVersionStateAndReason)
{
    m_program.AddRealModule();
    EXPECT_EQ(List(), "KZUsrZEP.dll\tZEP\t" KZ_VERSION ".0\tready\t-\n");
}

TEST_F(ModuleCommands, ModulesPrintsADashForAVersionThatAFileLacks)
{
    m_program.AddModule("ready");
    EXPECT_EQ(List(), "KZUsrZEP.dll\tZEP\t-\tready\t-\n");
}

TEST_F(ModuleCommands, ModulesPrintsTheModuleThatIsMissing)
{
    const std::string line = List();
    EXPECT_THAT(line, StartsWith("KZUsrZEP.dll\tZEP\t-\tmissing\tThe module KZUsrZEP.dll is not in "));
    EXPECT_THAT(line, HasSubstr("\\\\program."));  // the folder's backslashes are doubled
    EXPECT_THAT(List("es"), StartsWith("KZUsrZEP.dll\tZEP\t-\tmissing\tEl módulo KZUsrZEP.dll no está en "));
}

TEST_F(ModuleCommands, ModulesPrintsEveryFileWithWhatIsWrongWithIt)
{
    m_program.AddModule("noentry", "AAA");
    m_folder.Write("program/KZUsrBBB.dll", "no library");
    m_program.AddModule("refusing");
    const std::string lines = List();
    EXPECT_THAT(lines, StartsWith("KZUsrAAA.dll\tAAA\t-\tno-entry\t"));
    EXPECT_THAT(lines, HasSubstr("\nKZUsrBBB.dll\tBBB\t-\tcannot-load\t"));
    EXPECT_THAT(lines, HasSubstr("\nKZUsrZEP.dll\tZEP\t-\trefused\tThe entry of "));
    EXPECT_EQ(std::count(lines.begin(), lines.end(), '\n'), 3);
}
