#include "table/Import.h"

#include <map>

#include "TableFixture.h"

namespace plant {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

const std::wstring File = L"plant.csv";

class ImportTest : public kztest::TableFixture {
protected:
    // What was found in the table; then m_edit has the rest.
    std::vector<Finding> Import(std::string_view text)
    {
        m_edit.emplace(*m_project, FieldEdit::Unsettable::MayStay);
        return ImportTable(*m_project, *m_edit, text, File);
    }
    // The changes of a table without findings, as text.
    Row Changes(std::string_view text)
    {
        EXPECT_THAT(Import(text), IsEmpty());
        EXPECT_THAT(m_edit->Findings(), IsEmpty());
        Row changes;
        for (const FieldChange& change : m_edit->Changes())
            changes.push_back(std::to_string(change.device) + " " + change.field->key + " " + change.before + " " +
                              change.after);
        return changes;
    }
    static Finding At(const wchar_t* row, const wchar_t* column, unsigned text, const wchar_t* value)
    {
        return {{}, {}, {text, {File, row, column, value}, {}}};
    }

    std::optional<FieldEdit> m_edit;
};

}  // namespace

TEST_F(ImportTest, ChangesWhatDiffersInAnyOrderOfColumnsAndRows)
{
    EXPECT_THAT(Changes("units.RP.scale,device,device.minCurrent\r\n"
                        "kilo,Gr\xC3\xBA"
                        "a,20\r\n"
                        "plain,\"Hall 1, \"\"A\"\"\",13\r\n"),
                ElementsAre("1 units.RP.scale plain kilo", "1 device.minCurrent  20", "0 device.minCurrent 12 13"));
}

TEST_F(ImportTest, LeavesTheValuesOfEmptyCells)
{
    EXPECT_THAT(Changes("device,device.minCurrent,units.AP-VA.decimals\n\"Hall 1, \"\"A\"\"\",,3\n"),
                ElementsAre("0 units.AP-VA.decimals 2 3"));
}

TEST_F(ImportTest, ChangesNothingInWhatWasExported)
{
    EXPECT_THAT(Changes(Export(AllKeys())), IsEmpty());
}

TEST_F(ImportTest, TakesValuesThatAreWrittenInAnotherWay)
{
    EXPECT_THAT(Changes("device,device.mode,limits.PF.nominal\n\"Hall 1, \"\"A\"\"\",neutral+harmonics,00.000\n"),
                IsEmpty());
}

TEST_F(ImportTest, FindsDevicesByNameBeforeDriverId)
{
    EXPECT_THAT(Changes("device,units.RP.decimals\nzep-01,2\nzep-02,3\n"),
                ElementsAre("3 units.RP.decimals 1 2", "1 units.RP.decimals 1 3"));
}

TEST_F(ImportTest, TellsWhatTheProjectDoesNotHave)
{
    EXPECT_THAT(Import("device.none,device,,units.RP.scale\n1,Nobody,,x\n,Meter,,\n"),
                ElementsAre(At(L"1", L"1", IDS_PLANT_TABLE_NO_FIELD, L"device.none"),
                            At(L"1", L"3", IDS_PLANT_TABLE_NO_FIELD, L""),
                            At(L"2", L"2", IDS_PLANT_TABLE_NO_DEVICE, L"Nobody"),
                            At(L"3", L"2", IDS_PLANT_TABLE_NO_TYPE, L"Meter")));
}

TEST_F(ImportTest, TellsWhatIsThereTwice)
{
    EXPECT_THAT(Import("device,units.RP.scale,device,units.RP.scale\nzep-02,plain,1,1\nGr\xC3\xBA"
                       "a,plain,2,2\n"),
                ElementsAre(At(L"1", L"3", IDS_PLANT_TABLE_SAME_COLUMN, L"device"),
                            At(L"1", L"4", IDS_PLANT_TABLE_SAME_COLUMN, L"units.RP.scale"),
                            At(L"3", L"1", IDS_PLANT_TABLE_SAME_DEVICE,
                               L"Gr\u00FA"
                               L"a")));
}

TEST_F(ImportTest, TellsThatNoColumnHasTheDevices)
{
    EXPECT_THAT(Import("Device,units.RP.scale\nzep-02,x\n"),
                ElementsAre(At(L"1", L"1", IDS_PLANT_TABLE_NO_FIELD, L"Device"),
                            At(L"1", L"1", IDS_PLANT_TABLE_NO_DEVICES, L"Device")));
}

TEST_F(ImportTest, TellsEveryValueThatIsRefusedByItsDeviceAndKey)
{
    EXPECT_THAT(Import("device,device.minCurrent,device.version,units.RP.decimals\n"
                       "zep-02,201,,4\n"
                       "zep-01,10,2.5,1\n"),
                IsEmpty());
    Row places;
    for (const Finding& finding : m_edit->Findings())
        places.push_back(finding.device + ": " + finding.place);
    EXPECT_THAT(places, ElementsAre("Gr\xC3\xBA"
                                    "a: device.minCurrent",
                                    "Gr\xC3\xBA"
                                    "a: units.RP.decimals",
                                    "zep-01: device.version"));
}

TEST_F(ImportTest, GoesOnBehindADocumentThatIsBroken)
{
    m_folder.Write("devices/zep-02.xml", "<device>");
    const auto findings = Import("device,device.minCurrent\nzep-02,3\nzep-01,201\n");
    ASSERT_THAT(findings, SizeIs(1));
    EXPECT_EQ(findings[0].device, "Gr\xC3\xBA"
                                  "a");
    EXPECT_EQ(findings[0].place, "devices/zep-02.xml");
    EXPECT_EQ(findings[0].reason.text, static_cast<unsigned>(IDS_PLANT_BROKEN_DOCUMENT));
    EXPECT_THAT(m_edit->Findings(), SizeIs(1));
}

TEST_F(ImportTest, TellsWhatItHasFoundBeforeTheTextIsNoTableAnyMore)
{
    const auto findings = Import("device,units.RP.scale\nNobody,kilo\nzep-02,\"kilo\n");
    ASSERT_THAT(findings, SizeIs(2));
    EXPECT_EQ(findings[0], At(L"2", L"1", IDS_PLANT_TABLE_NO_DEVICE, L"Nobody"));
    EXPECT_EQ(findings[1], At(L"3", L"2", IDS_PLANT_TABLE_OPEN_QUOTE, L""));
    EXPECT_THAT(Import(""), ElementsAre(Finding{{}, {}, {IDS_PLANT_TABLE_EMPTY, {File}, {}}}));
}

TEST_F(ImportTest, IsSavedAsOneCommitAndReadBackAsIt)
{
    const std::string table = "device,device.minCurrent,units.RP.scale,limits.PF.maxW\r\n"
                              "\"Hall 1, \"\"A\"\"\",13,kilo,1\r\n"
                              "Gr\xC3\xBA"
                              "a,0,kilo,1\r\n"
                              "zep-01,200,plain,1\r\n";
    ASSERT_THAT(Changes(table), SizeIs(5));
    const auto before = Documents();
    EXPECT_EQ(m_edit->Save("import"), Outcome::Done);
    EXPECT_NE(Documents(), before);
    EXPECT_EQ(CountEntries(), 1u);
    Open();
    EXPECT_EQ(Export({"device.minCurrent", "units.RP.scale", "limits.PF.maxW"}), table);
    m_project->Restore(1, false);
    EXPECT_EQ(Documents(), before);
}

}  // namespace plant
