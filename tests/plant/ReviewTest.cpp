// What is unsaved, line by line, and taking it back.
#include "changes/Review.h"

#include <gmock/gmock.h>

#include <algorithm>

#include "KZMainCfg.h"
#include "KZUtf8.h"
#include "PlantOfFilters.h"
#include "RefusalOf.h"
#include "changes/DeviceEdit.h"
#include "changes/FieldEdit.h"
#include "changes/UndoList.h"
#include "fields/FieldQuery.h"
#include "project/ChosenVariables.h"

namespace plant {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using What = ReviewLine::What;

class ReviewTest : public kztest::PlantOfFilters {
protected:
    ReviewTest()
    {
        WriteDevices({{"zep-1", "Feeder 1"}, {"xyz-2", "Meter 2", "XYZ"}, {"zep-3", "Feeder 3"}},
                     "<unitSetups><unitSetup><driverId>zep-1</driverId><unit><name>RP</name><decimals>3</decimals>"
                     "</unit></unitSetup></unitSetups><selections><selection><driverId>zep-1</driverId>"
                     "<variables>Feeder 1.AP</variables></selection></selections>");
        WriteInformation(m_folder, "zep-1", "<minCurrent>7</minCurrent>");
        Opened();
        m_undo.emplace(*m_project);
    }
    void Do(const std::function<void()>& change)
    {
        const std::vector<KZBasicString> all{L"zep-1", L"xyz-2", L"zep-3"};
        EXPECT_TRUE(m_undo->Do({IDS_PLANT_STEP_TAKE_BACK, {}}, all, change));
    }
    // As the module's dialogs and pages do, without a save.
    void Set(std::size_t device, const std::string& key, const std::string& value)
    {
        Do([&] {
            FieldEdit edit(*m_project);
            const std::vector<Assignment> values{{&FieldNamed(*FieldsOfType(L"ZEP"), key), value}};
            edit.Add(device, values);
            ASSERT_TRUE(edit.Findings().empty()) << edit.Findings()[0].reason.text;
            edit.Keep();
        });
    }
    // "device what key: before -> after"
    std::vector<std::string> Lines()
    {
        constexpr const char* names[] = {"value",       "added",     "removed",  "name",     "number",
                                         "description", "variables", "document", "settings", "other"};
        std::vector<std::string> lines;
        for (const ReviewLine& line : Review(*m_project))
            lines.push_back(line.device + " " + names[static_cast<int>(line.what)] +
                            (line.field ? " " + line.field->key : "") + ": " + line.before + " -> " + line.after);
        return lines;
    }
    // Those lines of the review for which this holds.
    void TakeBackWhere(const std::function<bool(const ReviewLine&)>& isMeant)
    {
        std::vector<ReviewLine> lines = Review(*m_project);
        std::erase_if(lines, [&](const ReviewLine& line) { return !isMeant(line); });
        ASSERT_FALSE(lines.empty());
        Do([&] { TakeBack(*m_project, lines); });
    }
    void TakeAllBack()
    {
        const std::string before = KZMainCfg::Get()->Serialize();
        TakeBackWhere([](const ReviewLine&) { return true; });
        EXPECT_THAT(Lines(), IsEmpty());
        EXPECT_THAT(m_project->ChangedDevices(), IsEmpty());
        EXPECT_TRUE(m_undo->Undo());
        EXPECT_EQ(KZMainCfg::Get()->Serialize(), before);
        EXPECT_TRUE(m_undo->Redo());
        EXPECT_THAT(Lines(), IsEmpty());
    }

    std::optional<UndoList> m_undo;
};

TEST_F(ReviewTest, HasNoLineWhereNothingIsUnsaved)
{
    EXPECT_THAT(Lines(), IsEmpty());
}

TEST_F(ReviewTest, ListsValuesByDeviceAndTakesThemBack)
{
    Set(0, "device.minCurrent", "9");
    Set(0, "limits.RP.nominal", "9");
    Set(0, "limits.AP.nominal", "7");
    Set(2, "units.AP-VA.decimals", "2");
    EXPECT_THAT(Lines(),
                ElementsAre("Feeder 1 value device.minCurrent: 7 -> 9", testing::HasSubstr("limits.AP.nominal"),
                            testing::HasSubstr("limits.RP.nominal"), "Feeder 3 value units.AP-VA.decimals: 1 -> 2"));
    const ReviewCount count = CountOf(Review(*m_project));
    EXPECT_EQ(count.lines, 4u);
    EXPECT_EQ(count.devices, 2u);
    EXPECT_EQ(m_project->ChangedDevices(), (DriverIds{L"zep-1", L"zep-3"}));
    TakeBackWhere([](const ReviewLine& line) { return line.field->key == "limits.RP.nominal"; });
    EXPECT_EQ(Lines().size(), 3u);
    TakeBackWhere([](const ReviewLine& line) { return line.field->key == "device.minCurrent"; });
    EXPECT_FALSE(m_project->IsUnsaved("devices/zep-1.xml")) << "it is what its file holds";
    TakeAllBack();
    EXPECT_FALSE(m_project->IsDirty()) << "all is as saved";
}

TEST_F(ReviewTest, ListsWhatDevicesAreCalledAndWhatIsChosen)
{
    Do([&] { RenameDevice(*m_project, 0, {L"TREN1", L"4", L"cell"}); });
    EXPECT_THAT(Lines(), ElementsAre("TREN1 name: Feeder 1 -> TREN1", "TREN1 number:  -> 4",
                                     "TREN1 description:  -> cell", "TREN1 variables: Feeder 1.AP -> TREN1.AP"));
    TakeBackWhere([](const ReviewLine& line) { return line.what == What::Name; });
    EXPECT_THAT(Lines(), ElementsAre("Feeder 1 number:  -> 4", "Feeder 1 description:  -> cell"));
    TakeAllBack();
    Do([&] { StoreChosenVariables(*KZMainCfg::Get(), L"xyz-2", {KZBasicString(L"Meter 2.X")}); });
    EXPECT_THAT(Lines(), ElementsAre("Meter 2 variables:  -> Meter 2.X"));
    TakeAllBack();
}

TEST_F(ReviewTest, ListsDevicesThatCameAndWent)
{
    const std::vector<DeviceNaming> names{{L"Copy", L"", L""}};
    const std::vector<std::size_t> first{0};
    Do([&] { DuplicateDevice(*m_project, 0, names); });
    Do([&] { RemoveDevices(*m_project, first); });
    EXPECT_THAT(Lines(), ElementsAre("Copy added:  -> ", "Feeder 1 removed:  -> "));
    TakeAllBack();
    EXPECT_EQ(m_project->Devices()[0].name, KZBasicString(L"Feeder 1")) << "it stands where it stood";
    EXPECT_FALSE(m_project->IsUnsaved("devices/zep-1.xml"));
}

TEST_F(ReviewTest, RefusesADeviceWhoseNameIsUsedByNow)
{
    const std::vector<std::size_t> first{0};
    Do([&] { RemoveDevices(*m_project, first); });
    Do([&] { RenameDevice(*m_project, 0, {L"Feeder 1", L"", L""}); });
    const std::vector<ReviewLine> lines = Review(*m_project);
    const std::string before = KZMainCfg::Get()->Serialize();
    const std::vector<ReviewLine> removed{lines.back()};
    EXPECT_EQ(kztest::Refused([&] { return m_undo->Do({}, {}, [&] { TakeBack(*m_project, removed); }); }),
              IDS_PLANT_CANNOT_COME_BACK);
    EXPECT_EQ(KZMainCfg::Get()->Serialize(), before);
}

TEST_F(ReviewTest, TellsOfWhatNoFieldShows)
{
    Do([&] { m_project->KeepUnsaved({{"devices/zep-3.xml", "<device><note/></device>"}}, false); });
    Do([&] {
        zep::FindSetup(*KZMainCfg::Get(), {L"devices", L"device"}, L"xyz-2")->SetValue(L"colour", L"red");
        KZMainCfg::Get()->Root()->SetValue(L"note", L"1");
        KZMainCfg::Get()->SetDirty(true);
    });
    EXPECT_THAT(Lines(), ElementsAre("Meter 2 settings:  -> ", "Feeder 3 document:  -> ", " other:  -> "));
    TakeBackWhere([](const ReviewLine& line) { return line.what != What::Other; });
    EXPECT_THAT(Lines(), ElementsAre(" other:  -> "));
}

}  // namespace

}  // namespace plant
