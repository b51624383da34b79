// What the editor shows of a device's documents without opening its dialogs.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "KZMainCfg.h"
#include "KZQuorvelantaSetup.h"
#include "KZUtf8.h"
#include "TemporaryFolder.h"
#include "UserNumber.h"
#include "text/FieldText.h"
#include "window/values/DeviceSummary.h"

namespace {

using editor_tests::UserNumber;
using kztest::TemporaryFolder;
using testing::AllOf;
using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::SizeIs;

// "name: value unit" of each row of a section.
std::vector<std::string> Lines(const SummaryRows& rows, const wchar_t* section)
{
    std::vector<std::string> lines;
    for (const SummaryRow& row : rows)
        if (row.section == section)
            lines.push_back(ToUtf8(row.name + L": " + row.value + (row.unit.empty() ? L"" : L" ") + row.unit));
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

    [[nodiscard]] std::vector<std::string> Section(const wchar_t* section) { return Lines(Rows(), section); }

    [[nodiscard]] SummaryRows Rows(const wchar_t* type = L"ZEP")
    {
        return DeviceSummary(m_project, {L"zep-1", L"TREN1", 1, type, {}, {}});
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

TEST_F(SummaryTest, HasARowForEachField)
{
    const plant::FieldTable& fields = *plant::FieldsOfType(L"ZEP");
    const SummaryRows rows = Rows();
    ASSERT_EQ(rows.size(), 106U);
    for (const plant::Field& field : fields) {
        EXPECT_EQ(rows[field.row].name, FieldCaption(field)) << field.key;
        EXPECT_EQ(ToUtf8(rows[field.row].unit), field.unit) << field.key;
    }
    EXPECT_EQ(Section(L"Device").size(), 10U);
    EXPECT_EQ(Section(L"Units").size(), 4U);
    EXPECT_EQ(Section(L"Limits").size(), 92U);
}

TEST_F(SummaryTest, ShowsTheSettingsInWords)
{
    Information("<version>2.4.1</version><serialNum>S 17</serialNum><gamma>ZEP 300 A</gamma><mode>9</mode>"
                "<filters>2049</filters><transRatio>1000</transRatio><minCurrent>025</minCurrent>"
                "<algorithm>1</algorithm><numZEP>4</numZEP><status>1</status>");
    EXPECT_THAT(Section(L"Device"),
                ElementsAre("Firmware version: 2.4.1", "Serial number: S 17", "Range: ZEP 300 A",
                            "Working mode: Harmonic filtering, Neutral current compensation",
                            "Filtered harmonics: 3, 25", "Current transformer ratio: 1000 A", "Minimum current: 25 A",
                            "Algorithm: Selective", "Status: Running", "Number of ZEP units: 4"));
}

TEST_F(SummaryTest, SpeaksTheHostsLanguage)
{
    Information("<status>0</status>");
    KZQuorvelantaSetup::Get()->SetLanguage(KZLanguage::Spanish);
    EXPECT_THAT(Section(L"Equipo"), Contains("Estado: Parado"));
    EXPECT_THAT(Section(L"Unidades"), Contains("Potencia reactiva, Precisión: 1"));
    EXPECT_THAT(Section(L"Límites"), Contains("Armónico 5, Carga, Máximo, aviso: 1 %"));
}

TEST_F(SummaryTest, ShowsWhatStandsForAnIdentityThatIsNotThere)
{
    EXPECT_THAT(Section(L"Device"), Contains(EndsWith(": ?")).Times(3));
}

TEST_F(SummaryTest, ShowsADashForWhatIsEmpty)
{
    Information("<version/><serialNum/><gamma/>");
    EXPECT_THAT(Section(L"Device"), AllOf(SizeIs(10), Each(HasSubstr(": –"))));
}

TEST_F(SummaryTest, ShowsTheNumberOfAChoiceThatThereIsNot)
{
    Information("<algorithm>3</algorithm><status>-1</status>");
    EXPECT_THAT(Section(L"Device"), Contains("Algorithm: 3"));
    EXPECT_THAT(Section(L"Device"), Contains("Status: -1"));
}

TEST_F(SummaryTest, SaysWhyADocumentCannotBeRead)
{
    m_folder.Write("devices/zep-1.xml", "<device><information>");
    const std::vector<std::string> lines = Section(L"Device");
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_THAT(lines[0], HasSubstr("Cannot be read: "));
    EXPECT_THAT(lines[0], HasSubstr("zep-1.xml"));
    EXPECT_EQ(Section(L"Units").size(), 4U);
    EXPECT_EQ(Section(L"Limits").size(), 92U);
}

TEST_F(SummaryTest, SaysThatATypeHasNoFields)
{
    const SummaryRows rows = Rows(L"XYZ");
    EXPECT_THAT(Lines(rows, L"Device"),
                ElementsAre("Model: The editor knows no settings of devices of the type \"XYZ\"."));
    EXPECT_EQ(rows.size(), 1U);
}

TEST_F(SummaryTest, ShowsPlainUnitsAndOneDecimalUntilTheyAreSet)
{
    EXPECT_THAT(Section(L"Units"),
                ElementsAre("Active and apparent power, Unit: W / VA", "Active and apparent power, Precision: 1",
                            "Reactive power, Unit: VAR", "Reactive power, Precision: 1"));
}

TEST_F(SummaryTest, ShowsStoredUnitsAsTheirDialogReadsThem)
{
    Units("<unit><name>AP-VA</name><decimals>3</decimals></unit>"
          "<unit><name>RP</name><decimals>-1</decimals><factor>0</factor></unit>");
    EXPECT_THAT(Section(L"Units"),
                ElementsAre("Active and apparent power, Unit: kW / kVA", "Active and apparent power, Precision: 3",
                            "Reactive power, Unit: VAR", "Reactive power, Precision: -1"));
}

TEST_F(SummaryTest, ShowsNoOtherDriversUnitsAndLimits)
{
    Configure("<unitSetups><unitSetup><driverId>zep-2</driverId><unit><name>RP</name></unit></unitSetup></unitSetups>"
              "<viewSetups><viewSetup><driverId>zep-2</driverId><check><var>PF</var><nominal>1</nominal></check>"
              "</viewSetup></viewSetups>");
    EXPECT_THAT(Section(L"Units"), Contains("Reactive power, Unit: VAR"));
    EXPECT_THAT(Section(L"Limits"), Contains("Power factor, Nominal value: 0"));
}

TEST_F(SummaryTest, ShowsStoredLimitsInTheUsersFormat)
{
    Checks("<check><var>ARM5AL</var><nominal>1.800000</nominal><maxW>5.000000</maxW><maxD>8.250000</maxD></check>"
           "<check><var>ARM1AN</var><nominal>1250.000000</nominal><maxW>80.000000</maxW></check>"
           "<check><var>PF</var><nominal>1.000000</nominal><maxW>-0.950000</maxW><minD>0.800000</minD></check>");
    const std::vector<std::string> lines = Section(L"Limits");
    for (const std::string& line :
         {std::string("Power factor, Nominal value: 1"), UserNumber("Power factor, Maximum, warning: -0.95"),
          UserNumber("Power factor, Minimum, alarm: 0.8"), std::string("Fundamental, Network, Nominal value: 1250 A"),
          std::string("Fundamental, Network, Maximum, warning: 80 %"),
          UserNumber("Harmonic 5, Load, Nominal value: 1.8 %"), UserNumber("Harmonic 5, Load, Maximum, alarm: 8.25 %")})
        EXPECT_THAT(lines, Contains(line));
}

TEST_F(SummaryTest, ShowsADashForALimitThatIsNoNumber)
{
    Checks("<check><var>AP</var><nominal>nan</nominal><maxW>inf</maxW><maxD>-inf</maxD></check>");
    const std::vector<std::string> lines = Section(L"Limits");
    EXPECT_THAT(std::vector<std::string>(lines.begin() + 5, lines.begin() + 8), Each(HasSubstr(": –")));
}
