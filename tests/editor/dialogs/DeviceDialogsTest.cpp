// The dialogs that add, rename, duplicate and remove devices, each with a judge of the test's own.
#include <commctrl.h>

#include "DialogFixture.h"
#include "ListCells.h"
#include "text/EditorText.h"
#include "text/PlantMessage.h"
#include "window/add/AddDeviceControls.h"
#include "window/add/AddDeviceDialog.h"
#include "window/duplicate/DuplicateDeviceControls.h"
#include "window/duplicate/DuplicateDeviceDialog.h"
#include "window/remove/RemoveDevicesControls.h"
#include "window/remove/RemoveDevicesDialog.h"
#include "window/rename/RenameDeviceControls.h"
#include "window/rename/RenameDeviceDialog.h"

namespace {

using editor_tests::DialogTest;
using plant::DeviceEntry;

const plant::Message NameUsed{IDS_PLANT_NAME_USED, {L"CPD"}};

plant::EntryRefusals RefuseWhen(bool isRefused, DeviceEntry entry)
{
    return isRefused ? plant::EntryRefusals{{0, entry, NameUsed}} : plant::EntryRefusals();
}

class AddDeviceDialogTest : public DialogTest {
protected:
    static plant::NewDevice Proposed()
    {
        plant::NewDevice device;
        device.number = L"7";
        device.typeName = L"ZEP";
        return device;
    }
};

class DuplicateDeviceDialogTest : public DialogTest {
protected:
    DuplicateDeviceDialog m_dialog{nullptr,
                                   {L"1", L"TREN#", L"7", L""},
                                   [](const DuplicateEntries& entries, std::size_t count) {
                                       std::vector<plant::DeviceNaming> names(count);
                                       for (plant::DeviceNaming& name : names)
                                           name = {entries.pattern, entries.firstNumber, entries.description};
                                       return names;
                                   },
                                   [](std::span<const plant::DeviceNaming> names) {
                                       return RefuseWhen(!names.empty() && names[0].name == L"CPD", DeviceEntry::Name);
                                   }};
};

}  // namespace

TEST_F(AddDeviceDialogTest, BeginsWithWhatIsProposedAndTheNameToType)
{
    AddDeviceDialog dialog(nullptr, Proposed(), [](const auto&) { return plant::EntryRefusals(); });
    Run(dialog, [](HWND window) {
        EXPECT_EQ(kztest::TextOf(window, IDC_ADD_NUMBER), L"7");
        EXPECT_EQ(kztest::TextOf(window, IDC_ADD_GROUPS), L"0x74");
        EXPECT_EQ(::SendDlgItemMessageW(window, IDC_ADD_MODEL, CB_GETCURSEL, 0, 0), 0);
        EXPECT_EQ(kztest::FocusedId(window), IDC_ADD_NAME);
    });
}

TEST_F(AddDeviceDialogTest, GivesWhatIsTypedWithoutBlanksAroundIt)
{
    AddDeviceDialog dialog(nullptr, Proposed(), [](const auto&) { return plant::EntryRefusals(); });
    EXPECT_EQ(Run(dialog,
                  [](HWND window) {
                      kztest::SetText(window, IDC_ADD_NAME, L"  TREN 7\t");
                      kztest::SetText(window, IDC_ADD_NUMBER, L"17");
                      kztest::SetText(window, IDC_ADD_DESCRIPTION, L"   ");
                      kztest::SetText(window, IDC_ADD_GROUPS, L"0x34");
                      kztest::SetText(window, IDC_ADD_RATIO, L"1000");
                      kztest::Click(window, IDOK);
                  }),
              IDOK);
    EXPECT_EQ(dialog.Device().name, L"TREN 7");
    EXPECT_EQ(dialog.Device().number, L"17");
    EXPECT_EQ(dialog.Device().description, L"");
    EXPECT_EQ(dialog.Device().groups, L"0x34");
    EXPECT_EQ(dialog.Device().transformerRatio, L"1000");
    EXPECT_EQ(dialog.Device().typeName, L"ZEP");
}

TEST_F(AddDeviceDialogTest, SaysWhatIsRefusedAndTurnsToIt)
{
    const struct {
        DeviceEntry entry;
        int control;
    } entries[] = {
        {DeviceEntry::Name, IDC_ADD_NAME},     {DeviceEntry::Number, IDC_ADD_NUMBER},
        {DeviceEntry::Groups, IDC_ADD_GROUPS}, {DeviceEntry::TransformerRatio, IDC_ADD_RATIO},
        {DeviceEntry::Type, IDC_ADD_MODEL},    {DeviceEntry::Description, IDC_ADD_DESCRIPTION},
    };
    for (const auto& [entry, control] : entries) {
        AddDeviceDialog dialog(nullptr, Proposed(), [refused = entry](const plant::NewDevice& device) {
            return RefuseWhen(device.name == L"CPD", refused);
        });
        EXPECT_EQ(Run(dialog,
                      [id = control](HWND window) {
                          kztest::SetText(window, IDC_ADD_NAME, L"CPD");
                          kztest::PostClick(window, IDOK);
                          kztest::AnswerMessageBox(PlantMessage(NameUsed), IDOK);
                          EXPECT_TRUE(kztest::WaitUntil([&] { return kztest::FocusedId(window) == id; }));
                          kztest::SetText(window, IDC_ADD_NAME, L"CPD2");
                          kztest::Click(window, IDOK);
                      }),
                  IDOK);
    }
}

TEST_F(DialogTest, RenameGivesTheNewNameAndRefusesAnother)
{
    RenameDeviceDialog dialog(nullptr, {L"TREN1", L"1", L"Tren"}, [](const plant::DeviceNaming& naming) {
        return RefuseWhen(naming.name == L"CPD", DeviceEntry::Name);
    });
    EXPECT_EQ(Run(dialog,
                  [](HWND window) {
                      EXPECT_EQ(kztest::TextOf(window, IDC_RENAME_NAME), L"TREN1");
                      EXPECT_EQ(kztest::FocusedId(window), IDC_RENAME_NAME);
                      kztest::SetText(window, IDC_RENAME_NAME, L"CPD");
                      kztest::PostClick(window, IDOK);
                      kztest::AnswerMessageBox(PlantMessage(NameUsed), IDOK);
                      kztest::SetText(window, IDC_RENAME_NAME, L"TREN9");
                      kztest::SetText(window, IDC_RENAME_NUMBER, L"9");
                      kztest::Click(window, IDOK);
                  }),
              IDOK);
    EXPECT_EQ(dialog.Naming(), (plant::DeviceNaming{L"TREN9", L"9", L"Tren"}));
}

TEST_F(DuplicateDeviceDialogTest, ShowsTheDevicesAsTheyAreTyped)
{
    EXPECT_EQ(Run(m_dialog,
                  [](HWND window) {
                      const HWND list = ::GetDlgItem(window, IDC_DUPLICATE_DEVICES);
                      EXPECT_EQ(ListView_GetItemCount(list), 1);
                      kztest::SetText(window, IDC_DUPLICATE_COUNT, L"12");
                      kztest::SetText(window, IDC_DUPLICATE_PATTERN, L"ABC");
                      EXPECT_EQ(ListView_GetItemCount(list), 12);
                      EXPECT_EQ(editor_tests::CellOf(list, 11, 0), L"7");
                      EXPECT_EQ(editor_tests::CellOf(list, 11, 1), L"ABC");
                      kztest::Click(window, IDOK);
                  }),
              IDOK);
    EXPECT_EQ(m_dialog.Names(), std::vector(12, plant::DeviceNaming{L"ABC", L"7", L""}));
}

TEST_F(DuplicateDeviceDialogTest, IsGreyWhileSomethingIsRefusedOrNothingToMake)
{
    Run(m_dialog, [](HWND window) {
        const HWND list = ::GetDlgItem(window, IDC_DUPLICATE_DEVICES);
        EXPECT_TRUE(kztest::IsEnabled(window, IDOK));
        kztest::SetText(window, IDC_DUPLICATE_PATTERN, L"CPD");
        EXPECT_FALSE(kztest::IsEnabled(window, IDOK));
        EXPECT_EQ(editor_tests::CellOf(list, 0, 2), PlantMessage(NameUsed));
        kztest::SetText(window, IDC_DUPLICATE_PATTERN, L"CPD1");
        EXPECT_TRUE(kztest::IsEnabled(window, IDOK));
        EXPECT_EQ(editor_tests::CellOf(list, 0, 2), L"");
        kztest::SetText(window, IDC_DUPLICATE_COUNT, L"0");
        EXPECT_FALSE(kztest::IsEnabled(window, IDOK));
        kztest::SetText(window, IDC_DUPLICATE_COUNT, L"");
        EXPECT_FALSE(kztest::IsEnabled(window, IDOK));
    });
}

TEST_F(DialogTest, RemoveShowsTheDevicesAndGoesOnByOk)
{
    RemoveDevicesDialog dialog(nullptr, {{L"1", L"TREN1", L"Tren", 118}, {L"2", L"CPD", L"UPS", 0}});
    EXPECT_EQ(Run(dialog,
                  [](HWND window) {
                      const HWND list = ::GetDlgItem(window, IDC_REMOVE_DEVICES);
                      ASSERT_EQ(ListView_GetItemCount(list), 2);
                      EXPECT_EQ(editor_tests::CellOf(list, 0, 1), L"TREN1");
                      EXPECT_EQ(editor_tests::CellOf(list, 0, 3), L"118");
                      EXPECT_EQ(editor_tests::CellOf(list, 1, 2), L"UPS");
                      kztest::Click(window, IDOK);
                  }),
              IDOK);
}
