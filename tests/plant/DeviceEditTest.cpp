// Adding, duplicating, renaming and removing devices.
#include "changes/DeviceEdit.h"

#include <gmock/gmock.h>

#include "FaultyDisk.h"
#include "InformationRecord.h"
#include "KZStringIds.h"
#include "KZUtf8.h"
#include "PlantOfFilters.h"
#include "ProjectFiles.h"
#include "RefusalOf.h"
#include "changes/UndoList.h"
#include "project/ChosenVariables.h"
#include "project/DocumentName.h"

namespace plant {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::pair<DeviceEntry, unsigned>> Faults(const EntryRefusals& refusals)
{
    std::vector<std::pair<DeviceEntry, unsigned>> faults;
    for (const EntryRefusal& refusal : refusals)
        faults.emplace_back(refusal.entry, refusal.reason.text);
    return faults;
}

constexpr const char* Behind =
    "<unitSetups><unitSetup><driverId>zep-1</driverId><unit><name>RP</name><decimals>3</decimals></unit></unitSetup>"
    "</unitSetups><viewSetups><viewSetup><driverId>zep-3</driverId></viewSetup><viewSetup><driverId>zep-1</driverId>"
    "<check><var>PF</var><maxW>0.9</maxW></check><check><var>AP</var><maxA>7</maxA></check></viewSetup></viewSetups>"
    "<selections><selection><driverId>zep-1</driverId><variables>Feeder 1.AP1\nMeter 2.X</variables></selection>"
    "<selection><driverId>gone</driverId></selection></selections>";

class DeviceEditTest : public kztest::PlantOfFilters {
protected:
    DeviceEditTest()
    {
        WriteDevices({{"zep-1", "Feeder 1"}, {"xyz-2", "Meter 2", "XYZ"}, {"zep-3", "Feeder 3"}}, Behind);
        WriteInformation(m_folder, "zep-1",
                         "<version>1</version><serialNum>2</serialNum><gamma>3</gamma><mode>10</mode>"
                         "<filters>5</filters><transRatio>0200</transRatio><minCurrent>7</minCurrent>"
                         "<algorithm>1</algorithm><numZEP>3</numZEP><status>1</status>");
        m_folder.Write("devices/stray.xml", "<device/>");
        Reopen();
    }
    void Reopen()
    {
        m_undo.reset();
        Opened();
        m_undo.emplace(*m_project);
    }
    void Do(const std::function<void()>& change)
    {
        std::vector<KZBasicString> all;
        for (const KZDeviceIdentity& device : m_project->Devices())
            all.push_back(device.driverId);
        EXPECT_TRUE(m_undo->Do({IDS_PLANT_STEP_ADD, {}}, all, change));
    }
    // Undone and redone the project is the same; saved, it can be opened.
    void CheckThereAndBack(const std::string& before, const DeviceList& devicesBefore)
    {
        const std::string after = Main();
        const std::size_t devices = m_project->Devices().size();
        EXPECT_TRUE(m_undo->Undo());
        EXPECT_EQ(Main(), before);
        EXPECT_EQ(m_project->Devices().size(), devicesBefore.size());
        EXPECT_FALSE(m_project->IsDirty());
        EXPECT_TRUE(m_undo->Redo());
        EXPECT_EQ(Main(), after);
        EXPECT_EQ(m_project->Devices().size(), devices);
        m_project->Save("window");
        Reopen();
        EXPECT_EQ(Main(), after);
        EXPECT_EQ(m_project->Devices().size(), devices);
    }
    std::vector<std::wstring> Names()
    {
        std::vector<std::wstring> names;
        for (const KZDeviceIdentity& device : m_project->Devices())
            names.emplace_back(device.name.View());
        return names;
    }
    static std::string Main() { return KZMainCfg::Get()->Serialize(); }
    static NewDevice Wanted(const std::wstring& name)
    {
        NewDevice device;
        device.name = name;
        device.number = L"9";
        device.description = L"Cell 9";
        device.typeName = L"ZEP";
        device.transformerRatio = L"200";
        return device;
    }

    std::optional<UndoList> m_undo;
};

TEST_F(DeviceEditTest, AddsADeviceWithADocument)
{
    const std::string before = Main();
    const DeviceList devices = m_project->Devices();
    const NewDevice wanted = Wanted(L"Celda Ñ-9");
    EXPECT_THAT(JudgeAdd(*m_project, wanted), IsEmpty());
    KZBasicString driverId;
    Do([&] { driverId = AddDevice(*m_project, wanted); });
    EXPECT_EQ(driverId, KZBasicString(L"celda-n-9"));
    const KZDeviceIdentity& device = m_project->Devices().back();
    EXPECT_EQ(device.name, KZBasicString(L"Celda Ñ-9"));
    EXPECT_EQ(device.number, 9);
    EXPECT_EQ(device.description, KZBasicString(L"Cell 9"));
    EXPECT_EQ(device.groups, KZVariableGroups(0x74));
    EXPECT_FALSE(std::filesystem::exists(m_folder.Path() / "devices/celda-n-9.xml")) << "it waits for a save";
    CheckThereAndBack(before, devices);
    EXPECT_THAT(m_folder.Read("devices/celda-n-9.xml"), testing::HasSubstr("<transRatio>200</transRatio>"));
}

TEST_F(DeviceEditTest, AddsTheFirstDeviceOfAProject)
{
    m_folder.Write("main.xml", "<configuration/>\n");
    Reopen();
    Do([&] { AddDevice(*m_project, Wanted(L"First")); });
    EXPECT_THAT(Names(), ElementsAre(L"First"));
    EXPECT_TRUE(m_undo->Undo());
    EXPECT_EQ(Main(), "<configuration/>\n");
}

TEST_F(DeviceEditTest, RefusesWhatCannotBeADevice)
{
    NewDevice wanted;
    wanted.number = L"-1";
    wanted.groups = L"0x400000000";
    wanted.description = L"a\nb";
    wanted.transformerRatio = L"0";
    EXPECT_THAT(Faults(JudgeAdd(*m_project, wanted)),
                ElementsAre(std::pair(DeviceEntry::Name, unsigned{KZS_FIELD_EMPTY}),
                            std::pair(DeviceEntry::Number, unsigned{IDS_PLANT_NUMBER_UNFIT}),
                            std::pair(DeviceEntry::Description, unsigned{IDS_PLANT_TEXT_UNFIT}),
                            std::pair(DeviceEntry::Type, unsigned{KZS_FIELD_EMPTY}),
                            std::pair(DeviceEntry::Groups, unsigned{IDS_PLANT_GROUPS_UNFIT}),
                            std::pair(DeviceEntry::TransformerRatio, unsigned{IDS_PLANT_RATIO_UNFIT})));
    EXPECT_THAT(Faults(JudgeAdd(*m_project, Wanted(L"Meter 2"))),
                ElementsAre(std::pair(DeviceEntry::Name, unsigned{IDS_PLANT_NAME_USED})));
    for (const wchar_t* name : {L" a", L"a ", L"a\tb", L"a\u0001", L"\uFFFE"})
        EXPECT_THAT(Faults(JudgeAdd(*m_project, Wanted(name))),
                    ElementsAre(std::pair(DeviceEntry::Name, unsigned{IDS_PLANT_NAME_UNFIT})));
}

TEST_F(DeviceEditTest, TakesIdsThatNothingElseHas)
{
    FreeDriverIds free(*m_project);
    EXPECT_EQ(free.Take(L"ZEP-1"), KZBasicString(L"zep-1-2"));
    EXPECT_EQ(free.Take(L"ZEP 1"), KZBasicString(L"zep-1-3"));
    EXPECT_EQ(free.Take(L"Stray"), KZBasicString(L"stray-2")) << "there is such a document";
    EXPECT_EQ(free.Take(L"gone"), KZBasicString(L"gone-2")) << "there is such a setup";
    EXPECT_EQ(free.Take(L"con"), KZBasicString(L"device"));
    EXPECT_EQ(free.Take(L"??"), KZBasicString(L"device-2"));
    EXPECT_EQ(free.Take(std::wstring(100, L'x')).Length(), 40u);
}

TEST_F(DeviceEditTest, DuplicatesWhatADeviceIsSetToAndNothingElse)
{
    const std::string before = Main();
    const DeviceList devices = m_project->Devices();
    const std::vector<DeviceNaming> names = NamesFromPattern(*m_project, L"T##", L"9", 2, L"copy");
    EXPECT_THAT(names, ElementsAre(DeviceNaming{L"T09", L"9", L"copy"}, DeviceNaming{L"T10", L"10", L"copy"}));
    EXPECT_THAT(JudgeDuplicates(*m_project, names), IsEmpty());
    std::vector<KZBasicString> driverIds;
    Do([&] { driverIds = DuplicateDevice(*m_project, 0, names); });
    EXPECT_THAT(driverIds, ElementsAre(KZBasicString(L"t09"), KZBasicString(L"t10")));
    for (const KZBasicString& driverId : driverIds) {
        const XmlDocument& main = *KZMainCfg::Get();
        const auto* units = zep::FindSetup(main, {L"unitSetups", L"unitSetup"}, driverId);
        ASSERT_TRUE(units);
        EXPECT_STREQ(units->Node(L"unit?name=RP?")->Value(L"decimals", L""), L"3");
        const auto* view = zep::FindSetup(main, {L"viewSetups", L"viewSetup"}, driverId);
        EXPECT_STREQ(view->Node(L"check?var=PF?")->Value(L"maxW", L""), L"0.9");
        EXPECT_STREQ(view->Node(L"check?var=AP?")->Value(L"maxA", L""), L"7");
    }
    EXPECT_THAT(ChosenVariables(*KZMainCfg::Get(), L"t10"),
                ElementsAre(KZBasicString(L"T10.AP1"), KZBasicString(L"Meter 2.X")));
    CheckThereAndBack(before, devices);
    XmlDocument document(L"device");
    ASSERT_TRUE(document.Parse(m_folder.Read("devices/t10.xml")));
    const auto* information = document.Node(L"information");
    const auto copied = {L"mode", L"filters", L"transRatio", L"minCurrent", L"numZEP"};
    for (const zep::InformationFieldInfo& info : zep::InformationFields) {
        const bool isCopied = std::find(copied.begin(), copied.end(), std::wstring_view(info.name)) != copied.end();
        EXPECT_EQ(information->Value(info.name, nullptr) != nullptr, isCopied) << ToUtf8(info.name);
    }
    EXPECT_STREQ(information->Value(L"transRatio", L""), L"0200");
}

TEST_F(DeviceEditTest, DuplicatesADeviceThatNobodyHasSetUp)
{
    const std::vector<DeviceNaming> names{{L"Copy", L"", L""}};
    Do([&] { DuplicateDevice(*m_project, 2, names); });
    EXPECT_THAT(Names(), ElementsAre(L"Feeder 1", L"Meter 2", L"Feeder 3", L"Copy"));
    EXPECT_TRUE(m_project->Content("devices/copy.xml"));
}

TEST_F(DeviceEditTest, MakesNamesFromAPattern)
{
    const auto names = [this](const wchar_t* pattern, const wchar_t* first, std::size_t count) {
        std::vector<std::wstring> made;
        for (const DeviceNaming& naming : NamesFromPattern(*m_project, pattern, first, count, L""))
            made.push_back(naming.name + L"/" + naming.number);
        return made;
    };
    EXPECT_THAT(names(L"A#B#", L"7", 1), ElementsAre(L"A7B#/7"));
    EXPECT_THAT(names(L"A", L"7", 2), ElementsAre(L"A7/7", L"A8/8"));
    EXPECT_THAT(names(L"A", L"", 1), ElementsAre(L"A/1"));
    EXPECT_THAT(names(L"Feeder #", L"", 1), ElementsAre(L"Feeder 2/2"));
    EXPECT_THAT(names(L"Feeder #", L"", 2), ElementsAre(L"Feeder 4/4", L"Feeder 5/5"));
    EXPECT_THAT(names(L"A#", L"x", 1), ElementsAre(L"Ax/x"));
    EXPECT_THAT(names(L"Meter 2", L"", 1), ElementsAre(L"Meter 2/1")) << "whoever judges it says that it is taken";
}

TEST_F(DeviceEditTest, RefusesNamesThatComeTwice)
{
    const std::vector<DeviceNaming> names{{L"A", L"7", L""}, {L"A", L"7", L""}, {L"B", L"x", L""}};
    const EntryRefusals refusals = JudgeDuplicates(*m_project, names);
    ASSERT_EQ(refusals.size(), 3u);
    EXPECT_EQ(refusals[0], (EntryRefusal{1, DeviceEntry::Name, {IDS_PLANT_NAME_USED, {L"A"}}}));
    EXPECT_EQ(refusals[1], (EntryRefusal{1, DeviceEntry::Number, {IDS_PLANT_NUMBER_USED, {L"A", L"7"}}}));
    EXPECT_EQ(refusals[2], (EntryRefusal{2, DeviceEntry::Number, {IDS_PLANT_NUMBER_UNFIT, {}}}));
}

TEST_F(DeviceEditTest, RenamesADeviceWithItsVariables)
{
    const std::string before = Main();
    const DeviceList devices = m_project->Devices();
    const DeviceNaming naming{L"TREN.1", L"4", L"new"};
    EXPECT_THAT(JudgeRename(*m_project, 0, naming), IsEmpty());
    Do([&] { RenameDevice(*m_project, 0, naming); });
    EXPECT_EQ(NamingOf(m_project->Devices()[0]), naming);
    EXPECT_EQ(m_project->Devices()[0].driverId, KZBasicString(L"zep-1"));
    EXPECT_THAT(ChosenVariables(*KZMainCfg::Get(), L"zep-1"),
                ElementsAre(KZBasicString(L"TREN.1.AP1"), KZBasicString(L"Meter 2.X")));
    CheckThereAndBack(before, devices);
    EXPECT_THAT(Faults(JudgeRename(*m_project, 1, {L"TREN.1", L"4", L""})),
                ElementsAre(std::pair(DeviceEntry::Name, unsigned{IDS_PLANT_NAME_USED}),
                            std::pair(DeviceEntry::Number, unsigned{IDS_PLANT_NUMBER_USED})));
    EXPECT_THAT(JudgeRename(*m_project, 0, naming), IsEmpty()) << "its own name is no other device's";
    EXPECT_FALSE(m_undo->Do({}, {}, [&] { RenameDevice(*m_project, 0, naming); })) << "nothing is different";
}

TEST_F(DeviceEditTest, RemovesDevicesWithAllThatIsTheirs)
{
    const std::string before = Main();
    const DeviceList devices = m_project->Devices();
    const std::vector<std::size_t> places{0, 2};
    Do([&] { RemoveDevices(*m_project, places); });
    EXPECT_THAT(Names(), ElementsAre(L"Meter 2"));
    EXPECT_EQ(Main().find("zep-"), std::string::npos);
    EXPECT_NE(Main().find("gone"), std::string::npos);
    EXPECT_EQ(m_project->ChangedDevices(), (DriverIds{L"zep-1", L"zep-3"}));
    CheckThereAndBack(before, devices);
    EXPECT_FALSE(std::filesystem::exists(m_folder.Path() / "devices/zep-1.xml"));
    m_project->Restore(1, false);
    EXPECT_TRUE(std::filesystem::exists(m_folder.Path() / "devices/zep-1.xml"));
    EXPECT_EQ(Main(), before);
}

// The whole document goes into the recovery file each time.
TEST_F(DeviceEditTest, ProtectsAsOftenForManyDuplicatesAsForOne)
{
    kztest::FaultyDisk disk(RealDisk());
    m_undo.reset();
    m_project.reset();
    m_project.emplace(m_folder.Path(), disk);
    int number = 10;
    const auto operationsFor = [&](std::size_t count) {
        std::vector<DeviceNaming> names;
        for (std::size_t name = 0; name < count; ++name)
            names.push_back({L"D" + std::to_wstring(number++), L"", L""});
        disk.FailAt(0);
        DuplicateDevice(*m_project, 0, names);
        return disk.Count();
    };
    operationsFor(1);  // makes the recovery file
    const long one = operationsFor(1);
    EXPECT_EQ(operationsFor(20), one);
    m_project->Discard();
}

}  // namespace

}  // namespace plant
