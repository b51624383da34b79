// The commands "export" and "import", run as a script runs them.
#include "FieldCommandsFixture.h"

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

namespace fs = std::filesystem;

namespace {

class TableCommands : public editor_tests::FieldCommandsTest {
protected:
    [[nodiscard]] std::string Table() const { return ToUtf8((m_folder.Path() / "plant.csv").wstring()); }
    void WriteTable(const std::string& text) const { m_folder.Write("plant.csv", text); }
    Lines Import(const std::string& text, int status = 0)
    {
        WriteTable(text);
        return Run({"import", Table()}, status);
    }
    // The lines on standard error of an import that is refused and changes nothing.
    Lines Refused(const std::string& text)
    {
        WriteTable(text);
        const auto before = ProjectFiles();
        auto& editor = Start({"import", Table()});
        EXPECT_EQ(editor.Wait(), 2);
        EXPECT_EQ(editor.Output(), "");
        EXPECT_EQ(ProjectFiles(), before);
        return LinesOf(editor.Errors());
    }
};

}  // namespace

TEST_F(TableCommands, ExportPrintsATableOfTheNamedFields)
{
    auto& editor =
        Start({"export", "--field", "units.RP.scale", "--field", "device.minCurrent", "--field", "units.RP.scale"});
    EXPECT_EQ(editor.Wait(), 0) << editor.Errors();
    EXPECT_EQ(editor.Output(), "device,units.RP.scale,device.minCurrent\r\nGRÚA.1,kilo,7\r\nNODIALOG,plain,\r\n");
    EXPECT_EQ(editor.Errors(), "");
}

TEST_F(TableCommands, ExportHasEveryFieldWithoutOption)
{
    const Lines lines = Run({"export"});
    ASSERT_THAT(lines, SizeIs(3));
    EXPECT_EQ(std::count(lines[0].begin(), lines[0].end(), ','), 106);
    EXPECT_THAT(lines[1], StartsWith("GRÚA.1,2.4.1,"));
}

TEST_F(TableCommands, ExportReplacesTheFileThatIsNamed)
{
    WriteTable("old");
    const std::size_t before = m_folder.Count();
    EXPECT_THAT(Run({"export", "--field", "units.RP.scale", "--output", Table()}), IsEmpty());
    EXPECT_EQ(m_folder.Read("plant.csv"), "device,units.RP.scale\r\nGRÚA.1,kilo\r\nNODIALOG,plain\r\n");
    EXPECT_EQ(m_folder.Count(), before) << "nothing is left beside it";
}

TEST_F(TableCommands, ExportIsRefusedWithNothingPrintedOrWritten)
{
    ExpectError(Start({"export", "--field", "device.colour"}), {"\"device.colour\"", "fields"});
    ExpectError(Start({"export", "--output", ProjectPath()}), {"is a folder"});
    WriteTable("old");
    m_folder.Write("plant/devices/zep-2.xml", "<device>\n<information>");
    ExpectError(Start({"export"}), {"zep-2.xml", "2"});
    ExpectError(Start({"export", "--output", Table()}), {"zep-2.xml", "2"});
    EXPECT_EQ(m_folder.Read("plant.csv"), "old");
}

TEST_F(TableCommands, ImportTakesWhatDiffersInOneSave)
{
    EXPECT_THAT(Import("units.RP.decimals,device,device.minCurrent\r\n3,zep-2,20\r\n,GRÚA.1,8\r\n"),
                ElementsAre("NODIALOG\tunits.RP.decimals\t1\t3", "NODIALOG\tdevice.minCurrent\t\t20",
                            "GRÚA.1\tdevice.minCurrent\t7\t8", "import: 3 changes"));
    EXPECT_THAT(Run({"get", "--field", "device.minCurrent"}),
                ElementsAre("GRÚA.1\tdevice.minCurrent\t8", "NODIALOG\tdevice.minCurrent\t20"));
    EXPECT_THAT(Run({"history"}), ElementsAre(AllOf(StartsWith("1\t"), HasSubstr("\timport\t"),
                                                    HasSubstr("\tdevices/zep-1.xml,devices/zep-2.xml,main.xml"))));
}

TEST_F(TableCommands, ImportOfWhatWasExportedChangesNothing)
{
    Run({"export", "--output", Table()});
    const auto before = ProjectFiles();
    EXPECT_THAT(Run({"import", Table()}, 1), ElementsAre("import: 0 changes"));
    EXPECT_EQ(ProjectFiles(), before);
}

TEST_F(TableCommands, ImportOnlySaysWhatItWouldDoOnADryRun)
{
    WriteTable("device,device.minCurrent\nGRÚA.1,8\n");
    const auto before = ProjectFiles();
    EXPECT_THAT(Run({"import", Table(), "--dry-run"}),
                ElementsAre("GRÚA.1\tdevice.minCurrent\t7\t8", "import: 1 changes"));
    EXPECT_EQ(ProjectFiles(), before);
    WriteTable("device,device.minCurrent\nGRÚA.1,7\n");
    EXPECT_THAT(Run({"import", Table(), "--dry-run"}, 1), ElementsAre("import: 0 changes"));
}

TEST_F(TableCommands, ImportSaysEverythingThatIsWrongAndWritesNothing)
{
    EXPECT_THAT(Refused("device,device.colour,device.minCurrent,device.version\n"
                        "GRÚA.1,,201,2.4.1\n"
                        "Nobody,,1,\n"
                        "NODIALOG,,20,3.0\n"),
                ElementsAre(AllOf(HasSubstr("plant.csv, row 1, column 2:"), HasSubstr("\"device.colour\"")),
                            AllOf(HasSubstr("plant.csv, row 3, column 1:"), HasSubstr("\"Nobody\"")),
                            StartsWith("GRÚA.1: device.minCurrent: "), StartsWith("NODIALOG: device.version: ")));
    EXPECT_THAT(Refused("device,device.minCurrent\nGRÚA.1,201\n"),
                ElementsAre(StartsWith("GRÚA.1: device.minCurrent: ")));
    m_folder.Write("plant/devices/zep-2.xml", "<device>");
    EXPECT_THAT(Refused("device,device.minCurrent\nNODIALOG,1\n"),
                ElementsAre(StartsWith("NODIALOG: devices/zep-2.xml: ")));
}

TEST_F(TableCommands, ImportRefusesWhatIsNoTableByRowAndColumn)
{
    EXPECT_THAT(Refused("device,units.RP.scale\nGRÚA.1,\"kilo\n"),
                ElementsAre(AllOf(HasSubstr("plant.csv, row 2, column 2:"), HasSubstr("closing quotation mark"))));
    EXPECT_THAT(Refused(""), ElementsAre(HasSubstr("is empty")));
}

TEST_F(TableCommands, ImportRefusesATableThatIsNotThere)
{
    ExpectError(Start({"import", Table()}), {"plant.csv", "does not exist"});
}
