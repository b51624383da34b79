// What the editor shows of a device's documents without opening its dialogs.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "KZMainCfg.h"
#include "KZQuorvelantaSetup.h"
#include "KZUtf8.h"
#include "TemporaryFolder.h"
#include "summary/DeviceSummary.h"

namespace {

using kztest::TemporaryFolder;
using testing::ElementsAre;
using testing::HasSubstr;

// "name: value" of each row of a section.
std::vector<std::string> Lines(const SummaryRows& rows, const wchar_t* section)
{
    std::vector<std::string> lines;
    for (const SummaryRow& row : rows)
        if (row.section == section)
            lines.push_back(ToUtf8(row.name + L": " + row.value));
    return lines;
}

class SummaryTest : public testing::Test {
protected:
    ~SummaryTest() override { KZQuorvelantaSetup::Get()->SetLanguage(KZLanguage::English); }

    void Information(const std::string& children)
    {
        m_folder.Write("devices/zep-1.xml", "<device><information>" + children + "</information></device>");
    }

    void Configure(const std::string& sections)
    {
        ASSERT_TRUE(KZMainCfg::Get()->Parse("<configuration>" + sections + "</configuration>").ok);
    }

    void Units(const std::string& units)
    {
        Configure("<unitSetups><unitSetup><driverId>zep-1</driverId>" + units + "</unitSetup></unitSetups>");
    }

    void Checks(const std::string& checks)
    {
        Configure("<viewSetups><viewSetup><driverId>zep-1</driverId>" + checks + "</viewSetup></viewSetups>");
    }

    [[nodiscard]] std::vector<std::string> Section(const wchar_t* section)
    {
        return Lines(DeviceSummary(m_project, L"zep-1"), section);
    }

    [[nodiscard]] static const std::filesystem::path& Empty(const TemporaryFolder& folder)
    {
        folder.Write("main.xml", "<configuration/>");
        return folder.Path();
    }

    TemporaryFolder m_folder;
    plant::Project m_project{Empty(m_folder)};
};

}  // namespace

TEST_F(SummaryTest, ShowsTheSettingsInWords)
{
    Information("<version>2.4.1</version><serialNum>S 17</serialNum><gamma>ZEP 300 A</gamma><mode>9</mode>"
                "<filters>2049</filters><transRatio>1000</transRatio><minCurrent>25</minCurrent>"
                "<algorithm>1</algorithm><numZEP>4</numZEP><status>1</status>");
    EXPECT_THAT(Section(L"Device"), ElementsAre("Firmware version: 2.4.1", "Serial number: S 17", "Range: ZEP 300 A",
                                                "Working mode: Harmonic filtering", ": Neutral current compensation",
                                                "Filtered harmonics: 3, 25", "Current transformer ratio: 1000 / 5 A",
                                                "Minimum current: 25 A", "Algorithm: Selective",
                                                "Number of ZEP units: 4", "Status: Running"));
}

TEST_F(SummaryTest, SpeaksTheHostsLanguage)
{
    Information("<status>0</status>");
    KZQuorvelantaSetup::Get()->SetLanguage(KZLanguage::Spanish);
    EXPECT_THAT(Section(L"Equipo").back(), "Estado: Parado");
}

TEST_F(SummaryTest, ShowsADashForWhatIsNotSet)
{
    const std::vector<std::string> lines = Section(L"Device");
    ASSERT_EQ(lines.size(), 10u);
    for (const std::string& line : lines)
        EXPECT_THAT(line, HasSubstr(": –"));
}

TEST_F(SummaryTest, ShowsTheNumberOfAChoiceThatThereIsNot)
{
    Information("<algorithm>3</algorithm><status>-1</status>");
    EXPECT_THAT(Section(L"Device")[7], "Algorithm: 3");
    EXPECT_THAT(Section(L"Device")[9], "Status: -1");
}

TEST_F(SummaryTest, SaysWhyADocumentCannotBeRead)
{
    m_folder.Write("devices/zep-1.xml", "<device><information>");
    const std::vector<std::string> lines = Section(L"Device");
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_THAT(lines[0], HasSubstr("Cannot be read: "));
    EXPECT_THAT(lines[0], HasSubstr("zep-1.xml"));
}

TEST_F(SummaryTest, ShowsPlainUnitsAndOneDecimalUntilTheyAreSet)
{
    EXPECT_THAT(Section(L"Units"),
                ElementsAre("Active and apparent power: W / VA, 1 decimal", "Reactive power: VAR, 1 decimal"));
}

TEST_F(SummaryTest, ShowsStoredUnitsAsTheirDialogReadsThem)
{
    Units("<unit><name>AP-VA</name><decimals>3</decimals></unit>"
          "<unit><name>RP</name><decimals>0</decimals><factor>0</factor></unit>");
    EXPECT_THAT(Section(L"Units"),
                ElementsAre("Active and apparent power: kW / kVA, 3 decimals", "Reactive power: VAR, No decimals"));
    Units("<unit><name>RP</name><decimals>-1</decimals><factor>1</factor></unit>");
    EXPECT_THAT(Section(L"Units")[1], "Reactive power: kVAR, –");
}

TEST_F(SummaryTest, ShowsNoOtherDriversUnitsAndLimits)
{
    Configure("<unitSetups><unitSetup><driverId>zep-2</driverId><unit><name>RP</name></unit></unitSetup></unitSetups>"
              "<viewSetups><viewSetup><driverId>zep-2</driverId><check><var>PF</var></check></viewSetup></viewSetups>");
    EXPECT_THAT(Section(L"Units")[1], "Reactive power: VAR, 1 decimal");
    EXPECT_THAT(Section(L"Limits"), ElementsAre("–: no limits set"));
}

TEST_F(SummaryTest, ShowsStoredLimitsInTheOrderOfTheirPages)
{
    Checks("<check><var>ARM5AL</var><nominal>1.800000</nominal><maxW>5.000000</maxW><maxD>8.250000</maxD></check>"
           "<check><var>ARM1AN</var><nominal>1250.000000</nominal><maxW>80.000000</maxW></check>"
           "<check><var>VA</var><nominal>910.000000</nominal><maxW>80.000000</maxW><maxD>95.000000</maxD></check>"
           "<check><var>PF</var><nominal>1.000000</nominal><maxW>-0.950000</maxW><minD>0.800000</minD></check>"
           "<check><var>HZ</var><nominal>50.000000</nominal></check>");
    EXPECT_THAT(Section(L"Limits"),
                ElementsAre("Variable: nominal, warning / alarm", "Power factor: 1, max. -0.95 / 1, min. 1 / 0.8",
                            "Apparent power: 910 kVA, 80 % / 95 %", "Fundamental, Network: 1250 A, 80 % / 1 %",
                            "Harmonic 5, Load: 1.8 %, 5 % / 8.25 %"));
}

TEST_F(SummaryTest, ShowsADashForALimitThatIsNoNumber)
{
    Checks("<check><var>AP</var><nominal>nan</nominal><maxW>inf</maxW></check>");
    EXPECT_THAT(Section(L"Limits").back(), "Active power: – kW, – % / 1 %");
}
