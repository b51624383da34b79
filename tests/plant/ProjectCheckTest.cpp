// What a check of a project finds: each kind of fault once, told where it is, and nothing in a project without any.
#include "check/ProjectCheck.h"

#include "KZStringIds.h"
#include "ProjectFiles.h"
#include "RefusalOf.h"
#include "TemporaryFolder.h"

#include <gtest/gtest.h>

namespace {

using plant::Finding;

// "device|place|text" of each finding.
using Lines = std::vector<std::string>;

std::string Line(const std::string& device, const std::string& place, unsigned text)
{
    return device + "|" + place + "|" + std::to_string(text);
}

class ProjectChecks : public testing::Test {
protected:
    ProjectChecks()
    {
        m_folder.Write("devices/a.xml", "<device/>");
        m_folder.Write("devices/b.xml", "");
    }
    static std::string Device(const std::string& driverId, const std::string& name, const std::string& more = "")
    {
        return "<device><driverId>" + driverId + "</driverId><name>" + name + "</name><type>ZEP</type>" + more +
               "</device>";
    }
    void Main(const std::string& sections, const std::string& devices = Device("a", "CPD") + Device("b", "TREN"))
    {
        m_folder.Write("main.xml", "<configuration><devices>" + devices + "</devices>" + sections + "</configuration>");
    }
    void Information(const std::string& values)
    {
        m_folder.Write("devices/a.xml", "<device><information>" + values + "</information></device>");
    }
    [[nodiscard]] Lines Found(const std::vector<std::wstring>& devices = {}) const
    {
        Lines lines;
        for (const Finding& finding : plant::CheckProject(plant::StoredProject(m_folder.Path()), devices))
            lines.push_back(Line(finding.device, finding.place, finding.reason.text));
        return lines;
    }
    // Of a project whose only fault is in the information of CPD.
    [[nodiscard]] Lines FoundIn(const std::string& values)
    {
        Main("");
        Information(values);
        return Found();
    }
    // Of one whose only fault is in a limit of CPD.
    [[nodiscard]] Lines FoundInCheck(const std::string& check)
    {
        Main("<viewSetups><viewSetup><driverId>a</driverId><check>" + check + "</check></viewSetup></viewSetups>");
        return Found();
    }

    kztest::TemporaryFolder m_folder;
};

TEST_F(ProjectChecks, FindNothingInAProjectThatNobodyHasSetUp)
{
    Main("");
    EXPECT_EQ(Found(), Lines());
}

TEST_F(ProjectChecks, FindNothingInValuesOnTheirBounds)
{
    for (const char* values : {"<minCurrent>0</minCurrent><numZEP>1</numZEP><mode>0</mode><filters>4095</filters>",
                               "<minCurrent>200</minCurrent><numZEP>8</numZEP><mode>15</mode><algorithm>2</algorithm>",
                               "<minCurrent> 007 </minCurrent><status>1</status><transRatio>5000</transRatio>"})
        EXPECT_EQ(FoundIn(values), Lines()) << values;
}

TEST_F(ProjectChecks, FindValuesBeyondTheirBounds)
{
    for (const char* value : {"-1", "201"})
        EXPECT_EQ(FoundIn("<minCurrent>" + std::string(value) + "</minCurrent>"),
                  (Lines{Line("CPD", "device.minCurrent", KZS_OUT_OF_RANGE)}));
    for (const char* value : {"0", "9"})
        EXPECT_EQ(FoundIn("<numZEP>" + std::string(value) + "</numZEP>"),
                  (Lines{Line("CPD", "device.numZEP", KZS_OUT_OF_RANGE)}));
}

TEST_F(ProjectChecks, FindNumbersThatAreNone)
{
    for (const char* name : {"mode", "filters", "transRatio", "minCurrent", "algorithm", "status", "numZEP"}) {
        const std::string key = std::string("device.") + name;
        for (const char* text : {"x", "5x", "1.5", "99999999999", "+-1"})
            EXPECT_EQ(FoundIn("<" + std::string(name) + ">" + text + "</" + name + ">"),
                      (Lines{Line("CPD", key, IDS_PLANT_CHECK_NO_WHOLE_NUMBER)}))
                << text;
        EXPECT_EQ(FoundIn("<" + std::string(name) + "/>"), (Lines{Line("CPD", key, KZS_FIELD_EMPTY)}));
    }
}

TEST_F(ProjectChecks, FindChoicesThatNoDialogShows)
{
    EXPECT_EQ(FoundIn("<algorithm>3</algorithm><status>2</status>"),
              (Lines{Line("CPD", "device.algorithm", IDS_PLANT_CHECK_NO_CHOICE),
                     Line("CPD", "device.status", IDS_PLANT_CHECK_NO_CHOICE)}));
    EXPECT_EQ(FoundIn("<algorithm>-1</algorithm>"),
              (Lines{Line("CPD", "device.algorithm", IDS_PLANT_CHECK_NO_CHOICE)}));
}

TEST_F(ProjectChecks, PutUpWithBitsThatEveryReaderLeavesOut)
{
    EXPECT_EQ(FoundIn("<mode>255</mode><filters>4096</filters>"), Lines());
}

TEST_F(ProjectChecks, FindDecimalsThatHaveNoRadio)
{
    Main("<unitSetups><unitSetup><driverId>a</driverId><unit><name>RP</name><decimals>4</decimals></unit>"
         "<unit><name>AP-VA</name><decimals>3</decimals><factor>x</factor></unit></unitSetup></unitSetups>");
    EXPECT_EQ(Found(), (Lines{Line("CPD", "units.AP-VA.scale", IDS_PLANT_CHECK_NO_WHOLE_NUMBER),
                              Line("CPD", "units.RP.decimals", KZS_OUT_OF_RANGE)}));
}

TEST_F(ProjectChecks, FindEveryRuleOfLimitsThatIsBroken)
{
    EXPECT_EQ(FoundInCheck("<var>AP</var><maxW>0</maxW><maxD>100</maxD>"),
              (Lines{Line("CPD", "limits.AP.maxW", KZS_LIMIT_RANGE), Line("CPD", "limits.AP.maxD", KZS_LIMIT_RANGE)}));
    EXPECT_EQ(FoundInCheck("<var>AP</var><maxW>2</maxW>"), (Lines{Line("CPD", "limits.AP.maxW", KZS_LIMITS_ORDER)}));
    EXPECT_EQ(FoundInCheck("<var>ARM3AL</var><nominal>100</nominal>"),
              (Lines{Line("CPD", "limits.ARM3AL.nominal", KZS_PERCENTAGE_RANGE)}));
    EXPECT_EQ(FoundInCheck("<var>PF</var><maxD>0.5</maxD><maxW>0.4</maxW>"),
              (Lines{Line("CPD", "limits.PF.minW", KZS_POWER_FACTOR_BANDS)}));
    EXPECT_EQ(FoundInCheck("<var>ARM3AL</var><nominal>99.9</nominal><maxW>100</maxW><maxD>100</maxD>"), Lines());
}

TEST_F(ProjectChecks, FindLimitsThatAreNoNumbers)
{
    for (const char* text : {"", "x", "5 %", "1,5", "inf", "nan"})
        EXPECT_EQ(FoundInCheck("<var>AP</var><nominal>" + std::string(text) + "</nominal>"),
                  (Lines{Line("CPD", "limits.AP.nominal", KZS_NOT_A_NUMBER)}))
            << text;
    EXPECT_EQ(FoundInCheck("<var>AP</var><nominal> +1e3 </nominal>"), Lines());
}

TEST_F(ProjectChecks, FindDocumentsThatAreMissingBrokenOrOfNoDevice)
{
    Main("", Device("a", "CPD") + Device("c", "GRUA"));
    m_folder.Write("devices/a.xml", "<device>");
    EXPECT_EQ(Found(), (Lines{Line("CPD", "devices/a.xml", IDS_PLANT_BROKEN_DOCUMENT),
                              Line("GRUA", "devices/c.xml", IDS_PLANT_CHECK_NO_DOCUMENT),
                              Line("", "devices/b.xml", IDS_PLANT_CHECK_STRAY_DOCUMENT)}));
}

TEST_F(ProjectChecks, FindWhatIsWrongInTheListOfDevices)
{
    Main("", Device("a", "CPD") + Device("A", "TREN") + Device("", "GRUA") + Device("b", "CPD", "<number>x</number>"));
    EXPECT_EQ(Found(), (Lines{Line("GRUA", "main.xml", IDS_PLANT_DEVICE_VALUE_MISSING),
                              Line("CPD", "main.xml", IDS_PLANT_DEVICE_BAD_NUMBER),
                              Line("CPD", "main.xml", IDS_PLANT_DEVICE_DOUBLE_NAME),
                              Line("TREN", "main.xml", IDS_PLANT_DEVICE_DOUBLE_DRIVER_ID)}));
}

TEST_F(ProjectChecks, FindTypesThatNobodyKnows)
{
    Main("", "<device><driverId>a</driverId><name>X</name><type>X99</type></device>" + Device("b", "TREN"));
    Information("<numZEP>99</numZEP>");
    EXPECT_EQ(Found(), (Lines{Line("X", "main.xml", IDS_PLANT_CHECK_UNKNOWN_TYPE)}));
}

TEST_F(ProjectChecks, FindSetupsThatAreDoubledOrOfNoDevice)
{
    const std::string own = "<driverId>a</driverId>";
    Main("<unitSetups><unitSetup>" + own + "</unitSetup><unitSetup>" + own + "</unitSetup></unitSetups>" +
         "<viewSetups><viewSetup><driverId>z</driverId></viewSetup><viewSetup/></viewSetups>" +
         "<selections><selection><driverId>A</driverId></selection></selections>");
    EXPECT_EQ(
        Found(),
        (Lines{Line("CPD", "main.xml", IDS_PLANT_CHECK_DOUBLE_SETUP), Line("", "main.xml", IDS_PLANT_CHECK_STRAY_SETUP),
               Line("", "main.xml", IDS_PLANT_CHECK_STRAY_SETUP), Line("", "main.xml", IDS_PLANT_CHECK_STRAY_SETUP)}));
}

TEST_F(ProjectChecks, FindChosenVariablesThatTheDeviceDoesNotHave)
{
    Main("<selections><selection><driverId>a</driverId><variables>CPD.VI1N\nCPD.VI1N\nTREN.VI2N\nVI2N\nCPD.VI1L\n"
         "CPD.VI01N\nCPD.VI2Nx\nCPD.ARM3A1L</variables></selection></selections>",
         Device("a", "CPD", "<groups>0x74</groups>") + Device("b", "TREN"));
    EXPECT_EQ(Found(), (Lines{Line("CPD", "main.xml", IDS_PLANT_CHECK_DOUBLE_VARIABLE),
                              Line("CPD", "main.xml", IDS_PLANT_CHECK_OTHER_DEVICE),
                              Line("CPD", "main.xml", IDS_PLANT_CHECK_NO_VARIABLE),
                              Line("CPD", "main.xml", IDS_PLANT_CHECK_NO_VARIABLE),
                              Line("CPD", "main.xml", IDS_PLANT_CHECK_NO_VARIABLE),
                              Line("CPD", "main.xml", IDS_PLANT_CHECK_NO_VARIABLE)}));
}

TEST_F(ProjectChecks, FindChosenVariablesOfADeviceWithoutMeasuredGroups)
{
    const std::string selection = "<selections><selection><driverId>a</driverId><variables>CPD.VI1N</variables>"
                                  "</selection></selections>";
    for (const char* groups : {"0x4", "0x10", "0x20", "0x40"}) {
        Main(selection, Device("a", "CPD", "<groups>" + std::string(groups) + "</groups>") + Device("b", "TREN"));
        EXPECT_EQ(Found(), Lines()) << groups;
    }
    Main(selection, Device("a", "CPD", "<groups>0x8B</groups>") + Device("b", "TREN"));
    EXPECT_EQ(Found(), (Lines{Line("CPD", "main.xml", IDS_PLANT_CHECK_NO_GROUPS)}));
}

TEST_F(ProjectChecks, GoOnWhenTheMainDocumentIsBrokenOrMissing)
{
    m_folder.Write("main.xml", "<configuration>");
    m_folder.Write("devices/b.xml", "<device>");
    const Lines documents{Line("", "main.xml", IDS_PLANT_BROKEN_DOCUMENT),
                          Line("", "devices/b.xml", IDS_PLANT_BROKEN_DOCUMENT)};
    EXPECT_EQ(Found(), documents);
    plant::RealDisk().Remove(m_folder.Path() / "main.xml");
    EXPECT_EQ(Found().front(), Line("", "main.xml", IDS_PLANT_NO_MAIN));
}

TEST_F(ProjectChecks, OfSomeDevicesLeaveOutTheOthers)
{
    Main("<unitSetups><unitSetup/></unitSetups>", Device("a", "CPD") + Device("b", "TREN") + Device("c", "GRUA"));
    Information("<numZEP>0</numZEP>");
    m_folder.Write("devices/b.xml", "<device>");
    EXPECT_EQ(Found({L"CPD"}), (Lines{Line("CPD", "device.numZEP", KZS_OUT_OF_RANGE)}));
    EXPECT_EQ(Found({L"b", L"CPD"}), (Lines{Line("TREN", "devices/b.xml", IDS_PLANT_BROKEN_DOCUMENT),
                                            Line("CPD", "device.numZEP", KZS_OUT_OF_RANGE)}));
    EXPECT_EQ(kztest::Refused([&] { return Found({L"nobody"}); }), IDS_PLANT_NO_DEVICE);
}

}  // namespace
