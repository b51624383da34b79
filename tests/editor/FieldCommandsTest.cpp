// The commands that read fields, run as a script runs them.
#include "FieldCommandsFixture.h"

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

namespace {

using FieldCommands = editor_tests::FieldCommandsTest;

}  // namespace

TEST_F(FieldCommands, FieldsListsEveryKeyInTheOrderOfTheTable)
{
    const Lines lines = Run({"fields"});
    ASSERT_THAT(lines, SizeIs(106));
    EXPECT_EQ(lines[0], "device.version\ttext\t-\t-\tr\tFirmware version");
    EXPECT_THAT(lines[3], StartsWith("device.mode\tset\t-\tharmonics|reactive|balance|neutral\trw\t"));
    EXPECT_EQ(lines[6], "device.minCurrent\twhole number\tA\t0..200\trw\tMinimum current");
    EXPECT_THAT(lines[10], StartsWith("units.AP-VA.scale\tchoice\t-\tkilo|plain\trw\tActive and apparent power, "));
    EXPECT_THAT(lines[11], StartsWith("units.AP-VA.decimals\twhole number\t-\t0..3\trw\t"));
    EXPECT_THAT(lines[14], StartsWith("limits.PF.nominal\tdecimal\t-\t0|1\trw\tPower factor, "));
    EXPECT_THAT(lines[105], StartsWith("limits.ARM25AL.maxD\tdecimal\t%\t>0..100\trw\tHarmonic 25, Load, "));
    EXPECT_EQ(Run({"fields", "--type", "ZEP"}), lines);
}

TEST_F(FieldCommands, FieldsNeedsNoProjectAndSpeaksTheLanguage)
{
    const auto run = [this](const char* language) {
        auto& editor = StartBare({"--project", ProjectPath() + "-gone", "--language", language, "fields"});
        EXPECT_EQ(editor.Wait(), 0) << editor.Errors();
        return editor.Output();
    };
    EXPECT_THAT(run("en"), HasSubstr("\tMinimum current\n"));
    EXPECT_THAT(run("es"), HasSubstr("\tCorriente mínima\n"));
}

TEST_F(FieldCommands, FieldsRefusesATypeWithoutATable)
{
    ExpectError(Start({"fields", "--type", "XYZ"}), {"--type", "\"XYZ\"", "ZEP"});
}

TEST_F(FieldCommands, GetPrintsEveryFieldOfEveryDeviceWithATable)
{
    const Lines lines = Run({"get"});
    ASSERT_THAT(lines, SizeIs(2 * 106));
    EXPECT_EQ(lines[0], "GRÚA.1\tdevice.version\t2.4.1");
    EXPECT_EQ(lines[3], "GRÚA.1\tdevice.mode\tharmonics+neutral");
    EXPECT_EQ(lines[6], "GRÚA.1\tdevice.minCurrent\t7");
    EXPECT_EQ(lines[106], "NODIALOG\tdevice.version\t?");
    EXPECT_EQ(lines[106 + 3], "NODIALOG\tdevice.mode\tnone");
    EXPECT_EQ(lines[106 + 6], "NODIALOG\tdevice.minCurrent\t") << "where the dialog shows nothing";
    EXPECT_THAT(lines, Not(Contains(StartsWith("OTHER"))));
}

TEST_F(FieldCommands, GetPrintsTheNamedFieldsOfTheNamedDevicesInTheOrderNamed)
{
    EXPECT_THAT(Run({"get", "zep-2", "GRÚA.1", "NODIALOG", "--field", "units.RP.scale", "--field", "limits.PF.maxW",
                     "--field", "units.RP.scale"}),
                ElementsAre("NODIALOG\tunits.RP.scale\tplain", "NODIALOG\tlimits.PF.maxW\t1",
                            "GRÚA.1\tunits.RP.scale\tkilo", "GRÚA.1\tlimits.PF.maxW\t0.95"));
}

TEST_F(FieldCommands, GetPrintsOnlyWhatTheDocumentsHoldWhenAskedForWhatIsStored)
{
    EXPECT_THAT(Run({"get", "NODIALOG", "--stored"}), IsEmpty());
    EXPECT_THAT(Run({"get", "--stored", "--field", "device.minCurrent", "--field", "device.gamma", "--field",
                     "units.AP-VA.decimals", "--field", "limits.PF.maxD", "--field", "limits.PF.maxW"}),
                ElementsAre("GRÚA.1\tdevice.minCurrent\t7", "GRÚA.1\tlimits.PF.maxW\t0.95"));
}

TEST_F(FieldCommands, GetPrintsTabsLineEndsAndBackslashesByTheirLetters)
{
    m_folder.Write("plant/devices/zep-2.xml",
                   "<device><information><version>a&#9;b&#10;c&#13;d\\e</version></information></device>");
    EXPECT_THAT(Run({"get", "NODIALOG", "--field", "device.version"}),
                ElementsAre("NODIALOG\tdevice.version\ta\\tb\\nc\\rd\\\\e"));
}

TEST_F(FieldCommands, GetRefusesUnknownDevicesTypesAndKeys)
{
    ExpectError(Start({"get", "GRÚA.1", "GRUA"}), {"\"GRUA\"", "GRÚA.1, NODIALOG, OTHER"});
    ExpectError(Start({"get", "GRÚA.1", "xyz-1"}), {"OTHER", "\"XYZ\""});
    ExpectError(Start({"get", "--field", "device.colour"}), {"\"device.colour\"", "fields"});
}

TEST_F(FieldCommands, GetPrintsNothingWhenADocumentIsBroken)
{
    m_folder.Write("plant/devices/zep-2.xml", "<device>\n<information>");
    ExpectError(Start({"get"}), {"zep-2.xml", "2"});
    EXPECT_THAT(Run({"get", "GRÚA.1"}), SizeIs(106));
    m_folder.Write("plant/main.xml", "<configuration>");
    ExpectError(Start({"get"}), {"main.xml"});
}

TEST_F(FieldCommands, DiffOfEqualProjectsPrintsNothing)
{
    CopyPlant("other");
    EXPECT_THAT(Diff(0), IsEmpty());
}

TEST_F(FieldCommands, DiffPrintsWhatDiffersHereAndThereByName)
{
    CopyPlant("other");
    m_folder.Write("other/main.xml", editor_tests::MainXml(editor_tests::DeviceXml("new-id", "NODIALOG") +
                                                           editor_tests::DeviceXml("zep-9", "ADDED") +
                                                           editor_tests::DeviceXml("xyz-9", "SPECIAL", "0x0", "XYZ") +
                                                           editor_tests::DeviceXml("zep-1", "CHANGED", "0x0", "XYZ")));
    m_folder.Write("other/devices/new-id.xml",
                   "<device><information><minCurrent>05</minCurrent><version>?</version></information></device>");
    m_folder.Write("plant/main.xml", editor_tests::MainXml(editor_tests::DeviceXml("zep-1", "GRÚA.1") +
                                                           editor_tests::DeviceXml("zep-2", "NODIALOG") +
                                                           editor_tests::DeviceXml("zep-3", "CHANGED") +
                                                           editor_tests::DeviceXml("xyz-1", "OTHER", "0x0", "XYZ")));
    const auto before = ProjectFiles();
    const auto theirs = ProjectFiles("other");
    EXPECT_THAT(Diff(1), ElementsAre("GRÚA.1\t-\tpresent\tabsent", "NODIALOG\tdevice.minCurrent\t\t5",
                                     "CHANGED\t-\tZEP\tXYZ", "ADDED\t-\tabsent\tpresent"));
    EXPECT_EQ(ProjectFiles(), before);
    EXPECT_EQ(ProjectFiles("other"), theirs);
}

TEST_F(FieldCommands, DiffComparesValuesNotTexts)
{
    CopyPlant("other");
    m_folder.Write("other/devices/zep-2.xml", "<device><information><mode>0</mode></information></device>");
    std::string main = m_folder.Read("other/main.xml");
    main.replace(main.find("0.950000"), 8, "0.95");
    m_folder.Write("other/main.xml", main);
    EXPECT_THAT(Diff(0), IsEmpty());
    main.replace(main.find("0.95"), 4, "0.96");
    m_folder.Write("other/main.xml", main);
    EXPECT_THAT(Diff(1), ElementsAre("GRÚA.1\tlimits.PF.maxW\t0.95\t0.96"));
}

TEST_F(FieldCommands, DiffRefusesAnotherProjectThatIsMissingOrBroken)
{
    const std::string other = ToUtf8((m_folder.Path() / "other").wstring());
    ExpectError(Start({"diff", other}), {"other"});
    CopyPlant("other");
    m_folder.Write("other/devices/zep-2.xml", "<device>");
    ExpectError(Start({"diff", other}), {"other", "zep-2.xml"});
    m_folder.Write("other/main.xml", "<configuration><devices><device/></devices></configuration>");
    ExpectError(Start({"diff", other}), {"other", "main.xml", "driverId"});
    std::filesystem::remove(m_folder.Path() / "other" / "main.xml");
    ExpectError(Start({"diff", other}), {"other", "main.xml"});
}
