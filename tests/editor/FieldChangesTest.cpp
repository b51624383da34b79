// The commands that change fields, run as a script runs them: what they print, write and refuse.
#include "FieldCommandsFixture.h"

#include <regex>

using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

namespace {

using FieldChanges = editor_tests::FieldCommandsTest;

}  // namespace

TEST_F(FieldChanges, SetWritesWhatIsNamedAndPrintsWhatChanged)
{
    EXPECT_THAT(Run({"set", "GRÚA.1", "NODIALOG", "device.minCurrent=7", "limits.AP.maxD=50"}),
                ElementsAre("GRÚA.1\tlimits.AP.maxD\t1\t50", "NODIALOG\tdevice.minCurrent\t\t7",
                            "NODIALOG\tlimits.AP.maxD\t1\t50"));
    EXPECT_EQ(m_folder.Read("plant/devices/zep-1.xml"), editor_tests::FirstDevice) << "it had that current already";
    EXPECT_THAT(m_folder.Read("plant/devices/zep-2.xml"), HasSubstr("<minCurrent>7</minCurrent>"));
    EXPECT_THAT(Run({"get", "--field", "limits.AP.maxD"}),
                ElementsAre("GRÚA.1\tlimits.AP.maxD\t50", "NODIALOG\tlimits.AP.maxD\t50"));
    EXPECT_THAT(Run({"history"}),
                ElementsAre(AllOf(StartsWith("1\t"), HasSubstr("\tset\t"), HasSubstr("\tdevices/zep-2.xml,main.xml"))));
}

TEST_F(FieldChanges, SetAnswersThatNothingDifferedAndSavesNothing)
{
    const auto before = ProjectFiles();
    EXPECT_THAT(Run({"set", "GRÚA.1", "device.minCurrent=7", "device.mode=harmonics+neutral"}, 1), IsEmpty());
    EXPECT_EQ(ProjectFiles(), before);
}

TEST_F(FieldChanges, SetOnlySaysWhatWouldChangeOnADryRun)
{
    const auto before = ProjectFiles();
    EXPECT_THAT(Run({"set", "zep-1", "device.minCurrent=200", "--dry-run"}),
                ElementsAre("GRÚA.1\tdevice.minCurrent\t7\t200"));
    EXPECT_EQ(ProjectFiles(), before);
}

TEST_F(FieldChanges, SetWritesNothingAndSaysEveryFindingWhenOneIsRefused)
{
    const auto before = ProjectFiles();
    auto& editor = Start({"set", "GRÚA.1", "NODIALOG", "device.minCurrent=201", "device.gamma=x", "device.mode=none",
                          "limits.PF.minW=0.97", "units.RP.decimals="});
    EXPECT_EQ(editor.Wait(), 2);
    EXPECT_EQ(editor.Output(), "");
    const Lines errors = LinesOf(editor.Errors());
    ASSERT_THAT(errors, SizeIs(8)) << editor.Errors();
    EXPECT_THAT(errors, Contains(AllOf(StartsWith("GRÚA.1: device.minCurrent: "), HasSubstr("0"), HasSubstr("200"))));
    EXPECT_THAT(errors, Contains(StartsWith("GRÚA.1: device.gamma: ")));
    EXPECT_THAT(errors, Contains(StartsWith("GRÚA.1: units.RP.decimals: ")));
    EXPECT_THAT(errors, Contains(StartsWith("GRÚA.1: limits.PF.minW: ")));
    EXPECT_THAT(errors, Contains(StartsWith("NODIALOG: device.minCurrent: ")));
    EXPECT_EQ(ProjectFiles(), before);
}

TEST_F(FieldChanges, SetRefusesUnknownDevicesTypesAndKeys)
{
    const auto before = ProjectFiles();
    ExpectError(Start({"set", "GRUA", "device.minCurrent=1"}), {"\"GRUA\""});
    ExpectError(Start({"set", "GRÚA.1", "OTHER", "device.minCurrent=1"}), {"OTHER", "\"XYZ\""});
    ExpectError(Start({"set", "GRÚA.1", "device.minCurrent=1", "device.colour=1"}), {"\"device.colour\""});
    EXPECT_EQ(ProjectFiles(), before);
}

TEST_F(FieldChanges, SetKeepsEveryByteThatIsNotNamed)
{
    std::string device = editor_tests::FirstDevice;
    device.replace(device.find("007"), 3, "8");
    std::string main = m_folder.Read("plant/main.xml");
    main.replace(main.find("0.950000"), 8, "0.960000");
    main.replace(main.find("<factor>3</factor>"), 18, "<factor>0</factor>");
    Run({"set", "GRÚA.1", "device.minCurrent=8", "limits.PF.maxW=0.96", "units.RP.scale=plain"});
    EXPECT_EQ(m_folder.Read("plant/devices/zep-1.xml"), device);
    EXPECT_EQ(m_folder.Read("plant/main.xml"), main);
}

TEST_F(FieldChanges, SetWritesNewRecordsWholeAsTheDialogsDo)
{
    Run({"set", "NODIALOG", "units.RP.decimals=3", "limits.AP.maxD=90"});
    const std::string main = std::regex_replace(m_folder.Read("plant/main.xml"), std::regex("\\s+"), "");
    EXPECT_THAT(main, HasSubstr("<unitSetup><driverId>zep-2</driverId>"
                                "<unit><name>AP-VA</name><decimals>1</decimals><factor>0</factor></unit>"
                                "<unit><name>RP</name><decimals>3</decimals><factor>0</factor></unit></unitSetup>"));
    EXPECT_THAT(main, HasSubstr("<viewSetup><driverId>zep-2</driverId><check><var>AP</var><nominal>0.000000</nominal>"
                                "<maxW>1.000000</maxW><maxD>90.000000</maxD></check></viewSetup>"));
}

TEST_F(FieldChanges, SetTakesValuesWhole)
{
    for (const char* value : {"+5", " 5", "5 ", "5e1", "5,0", "0x5", "5.", "", "1.2.3", "--5", "inf"}) {
        auto& editor = Start({"set", "GRÚA.1", std::string("limits.AP.nominal=") + value, "--dry-run"});
        const bool isNumber = std::string(value) == "5.";
        EXPECT_EQ(editor.Wait(), isNumber ? 0 : 2) << value;
        if (!isNumber) {
            EXPECT_THAT(editor.Errors(), StartsWith("GRÚA.1: limits.AP.nominal: ")) << value;
        }
    }
    EXPECT_THAT(Run({"set", "GRÚA.1", "limits.AP.nominal=-0.50", "--dry-run"}),
                ElementsAre("GRÚA.1\tlimits.AP.nominal\t0\t-0.5"));
    ExpectError(Start({"set", "GRÚA.1", "device.minCurrent=-1"}), {"GRÚA.1: device.minCurrent: ", "0", "200"});
}

TEST_F(FieldChanges, SetLeavesAloneWhatWasWrongBefore)
{
    m_folder.Write("plant/devices/zep-1.xml",
                   "<device><information><minCurrent>999</minCurrent></information></device>");
    EXPECT_THAT(Run({"set", "GRÚA.1", "device.minCurrent=999"}, 1), IsEmpty()) << "it reads so already";
    EXPECT_THAT(Run({"set", "GRÚA.1", "device.numZEP=3"}), SizeIs(1));
    EXPECT_THAT(m_folder.Read("plant/devices/zep-1.xml"), HasSubstr("<minCurrent>999</minCurrent>"));
}

TEST_F(FieldChanges, SetSaysWhyInTheChosenLanguage)
{
    auto& editor = StartBare(
        {"--project", ProjectPath(), "--language", "es", "set", "GRÚA.1", "device.minCurrent=201", "device.gamma=x"});
    EXPECT_EQ(editor.Wait(), 2);
    EXPECT_THAT(LinesOf(editor.Errors()),
                ElementsAre(StartsWith("GRÚA.1: device.minCurrent: Introduzca un valor entre 0 y 200"),
                            AllOf(StartsWith("GRÚA.1: device.gamma: "), HasSubstr("leer"))));
}

TEST_F(FieldChanges, SetThatCannotBeSavedPrintsTheReasonAlone)
{
    m_folder.Write("plant/history", "in the way");
    const auto before = Documents();
    ExpectError(Start({"set", "GRÚA.1", "device.minCurrent=8"}), {"history", "move it"});
    EXPECT_EQ(Documents(), before);
}

TEST_F(FieldChanges, CopyTakesEverythingThatCanBeSet)
{
    const Lines lines = Run({"copy", "GRÚA.1", "zep-2"});
    EXPECT_THAT(lines,
                ElementsAre("NODIALOG\tdevice.mode\tnone\tharmonics+neutral", "NODIALOG\tdevice.filters\tnone\t3+5",
                            "NODIALOG\tdevice.minCurrent\t\t7", "NODIALOG\tdevice.numZEP\t\t2",
                            "NODIALOG\tunits.RP.scale\tplain\tkilo", "NODIALOG\tunits.RP.decimals\t1\t2",
                            "NODIALOG\tlimits.PF.nominal\t0\t1", "NODIALOG\tlimits.PF.maxW\t1\t0.95",
                            "NODIALOG\tlimits.PF.minW\t1\t0.9", "NODIALOG\tlimits.PF.minD\t1\t0.8"));
    EXPECT_THAT(m_folder.Read("plant/devices/zep-2.xml"), Not(HasSubstr("<version>")));
    EXPECT_THAT(Run({"copy", "GRÚA.1", "zep-2", "GRÚA.1"}, 1), IsEmpty());
    EXPECT_THAT(Run({"history"}), ElementsAre(HasSubstr("\tcopy\tdevices/zep-2.xml,main.xml")));
}

TEST_F(FieldChanges, CopyTakesTheNamedSectionsOrFields)
{
    const auto before = ProjectFiles();
    EXPECT_THAT(Run({"copy", "GRÚA.1", "NODIALOG", "--section", "limits", "--section", "device", "--dry-run"}),
                SizeIs(8));
    EXPECT_THAT(Run({"copy", "GRÚA.1", "NODIALOG", "--section", "units", "--dry-run"}),
                ElementsAre("NODIALOG\tunits.RP.scale\tplain\tkilo", "NODIALOG\tunits.RP.decimals\t1\t2"));
    EXPECT_THAT(
        Run({"copy", "GRÚA.1", "NODIALOG", "--field", "limits.PF.nominal", "--field", "device.mode", "--dry-run"}),
        ElementsAre("NODIALOG\tlimits.PF.nominal\t0\t1", "NODIALOG\tdevice.mode\tnone\tharmonics+neutral"));
    EXPECT_EQ(ProjectFiles(), before);
}

TEST_F(FieldChanges, CopyRefusesWhatCannotBeSet)
{
    const auto before = ProjectFiles();
    ExpectError(Start({"copy", "GRÚA.1", "NODIALOG", "--field", "device.gamma"}), {"NODIALOG: device.gamma: "});
    ExpectError(Start({"copy", "NODIALOG", "GRÚA.1", "--field", "device.minCurrent"}), {"GRÚA.1: device.minCurrent: "});
    ExpectError(Start({"copy", "GRÚA.1", "NODIALOG", "--field", "device.colour"}), {"\"device.colour\""});
    ExpectError(Start({"copy", "GRÚA.1", "OTHER"}), {"OTHER", "\"XYZ\""});
    ExpectError(Start({"copy", "OTHER", "GRÚA.1"}), {"OTHER", "\"XYZ\""});
    ExpectError(Start({"copy", "GRUA", "GRÚA.1"}), {"\"GRUA\""});
    m_folder.Write("plant/devices/zep-1.xml",
                   "<device><information><minCurrent>201</minCurrent></information></device>");
    ExpectError(Start({"copy", "GRÚA.1", "NODIALOG", "--field", "device.minCurrent"}), {"NODIALOG: device.minCurrent"});
    m_folder.Write("plant/devices/zep-1.xml", editor_tests::FirstDevice);
    EXPECT_EQ(ProjectFiles(), before);
}

TEST_F(FieldChanges, CopyLeavesEmptyWhatBothHaveNoValueOf)
{
    m_folder.Write("plant/devices/zep-1.xml", "<device><information><mode>1</mode></information></device>");
    EXPECT_THAT(Run({"copy", "GRÚA.1", "NODIALOG", "--section", "device"}),
                ElementsAre("NODIALOG\tdevice.mode\tnone\tharmonics"));
}
