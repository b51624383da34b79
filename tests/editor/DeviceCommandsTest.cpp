// Adding, duplicating, renaming and removing devices from the main window on, and reviewing what is unsaved.
#include "Controls.h"
#include "EditorWindowFixture.h"
#include "HeldKeys.h"
#include "ListCells.h"
#include "ModalScript.h"
#include "OpenMenu.h"
#include "project/ChosenVariables.h"
#include "resources/DialogTextIds.h"
#include "window/add/AddDeviceControls.h"
#include "window/duplicate/DuplicateDeviceControls.h"
#include "window/open/ProjectFolderControls.h"
#include "window/remove/RemoveDevicesControls.h"
#include "window/rename/RenameDeviceControls.h"
#include "window/review/ReviewControls.h"

namespace {

class DeviceCommandsTest : public editor_tests::OpenMainWindow {
protected:
    // Runs a command and works the dialog that it opens.
    void Run(int command, const std::function<void(HWND dialog)>& script)
    {
        kztest::ModalScript modal([&] {
            const HWND dialog = kztest::WaitForDialog({m_window.m_hWnd});
            ::SendMessageW(dialog, WM_NULL, 0, 0);
            script(dialog);
            kztest::WaitUntilGone(dialog);
        });
        m_window.SendMessage(WM_COMMAND, static_cast<WPARAM>(command));
    }
    void Send(int command) { m_window.SendMessage(WM_COMMAND, static_cast<WPARAM>(command)); }

    [[nodiscard]] std::vector<std::wstring> Names() const
    {
        std::vector<std::wstring> names;
        for (const KZDeviceIdentity& device : m_project.Devices())
            names.emplace_back(device.name.View());
        return names;
    }
    [[nodiscard]] std::size_t VariablesOf(std::size_t place) const
    {
        return plant::ChosenVariables(*KZMainCfg::Get(), m_project.Devices()[place].driverId).size();
    }

    void TypeIntoTheMenu(wchar_t key) const { editor_tests::TypeIntoTheMenu(m_window.m_hWnd, key); }
    void ClickRight(int row) const
    {
        RECT place{};
        ListView_GetItemRect(Control(IDC_DEVICES), row, &place, LVIR_LABEL);
        const LPARAM point = MAKELPARAM((place.left + place.right) / 2, (place.top + place.bottom) / 2);
        ::PostMessageW(Control(IDC_DEVICES), WM_RBUTTONUP, 0, point);
        ::SendMessageW(Control(IDC_DEVICES), WM_RBUTTONDOWN, MK_RBUTTON, point);
    }

    // Undoes and redoes what a command has done, which is what the names say.
    void ExpectUndoable(const std::vector<std::wstring>& before)
    {
        const std::vector<std::wstring> after = Names();
        EXPECT_NE(after, before);
        Send(IDC_UNDO);
        EXPECT_EQ(Names(), before);
        EXPECT_FALSE(m_project.IsDirty());
        Send(IDC_REDO);
        EXPECT_EQ(Names(), after);
        EXPECT_TRUE(m_project.IsDirty());
    }

    const std::vector<std::wstring> m_before = Names();
};

}  // namespace

TEST_F(DeviceCommandsTest, AddAppendsADeviceThatIsUndone)
{
    Run(IDC_ADD_DEVICE, [](HWND dialog) {
        EXPECT_FALSE(kztest::TextOf(dialog, IDC_ADD_NUMBER).empty());
        kztest::SetText(dialog, IDC_ADD_NAME, L"NUEVO");
        kztest::SetText(dialog, IDC_ADD_RATIO, L"500");
        kztest::Click(dialog, IDOK);
    });
    ASSERT_EQ(m_project.Devices().size(), m_before.size() + 1);
    EXPECT_EQ(m_project.Devices().back().name, L"NUEVO");
    ExpectUndoable(m_before);
}

TEST_F(DeviceCommandsTest, AddRefusesANameThatIsUsed)
{
    Run(IDC_ADD_DEVICE, [this](HWND dialog) {
        kztest::SetText(dialog, IDC_ADD_NAME, m_before.front());
        kztest::SetText(dialog, IDC_ADD_RATIO, L"500");
        kztest::PostClick(dialog, IDOK);
        EXPECT_NE(kztest::AnswerMessageBox(IDOK).find(m_before.front()), std::wstring::npos);
        kztest::PostClick(dialog, IDCANCEL);
    });
    EXPECT_EQ(Names(), m_before);
    EXPECT_FALSE(m_project.IsDirty());
}

TEST_F(DeviceCommandsTest, DuplicateMakesSeveralWithTheVariablesOfTheMarkedOne)
{
    ChooseDevice(0);
    Run(IDC_DUPLICATE_DEVICE, [](HWND dialog) {
        EXPECT_EQ(kztest::TextOf(dialog, IDC_DUPLICATE_PATTERN), L"TREN#");
        kztest::SetText(dialog, IDC_DUPLICATE_FIRST, L"71");
        kztest::SetText(dialog, IDC_DUPLICATE_COUNT, L"3");
        kztest::Click(dialog, IDOK);
    });
    const std::vector<std::wstring> names = Names();
    ASSERT_EQ(names.size(), m_before.size() + 3);
    EXPECT_EQ(names.back(), L"TREN73");
    EXPECT_GT(VariablesOf(0), 0U);
    EXPECT_EQ(VariablesOf(names.size() - 1), VariablesOf(0));
    ExpectUndoable(m_before);
}

TEST_F(DeviceCommandsTest, RenameChangesTheMarkedDevice)
{
    ChooseDevice(0);
    Run(IDC_RENAME_DEVICE, [](HWND dialog) {
        EXPECT_EQ(kztest::TextOf(dialog, IDC_RENAME_NAME), L"TREN1");
        kztest::SetText(dialog, IDC_RENAME_NAME, L"TREN99");
        kztest::Click(dialog, IDOK);
    });
    EXPECT_EQ(Names().front(), L"TREN99");
    ExpectUndoable(m_before);
}

TEST_F(DeviceCommandsTest, ARightClickOpensTheMenuOfTheDeviceUnderTheMouse)
{
    ChooseDevice(0);
    ListView_SetItemState(Control(IDC_DEVICES), 1, LVIS_SELECTED, LVIS_SELECTED);
    {
        kztest::ModalScript script([this] {
            EXPECT_EQ(editor_tests::OfferedByTheMenu(),
                      (std::vector<int>{IDC_SELECT, IDC_OPTIONS, IDC_ADD_DEVICE, IDC_DUPLICATE_DEVICE,
                                        IDC_RENAME_DEVICE, IDC_REMOVE_DEVICE}));
            TypeIntoTheMenu(L'n');
            const HWND dialog = kztest::WaitForDialog({m_window.m_hWnd});
            EXPECT_EQ(kztest::TextOf(dialog, IDC_RENAME_NAME), m_before[2]);
            kztest::PostClick(dialog, IDCANCEL);
            kztest::WaitUntilGone(dialog);
        });
        ClickRight(2);
    }
    EXPECT_EQ(Names(), m_before);
}

TEST_F(DeviceCommandsTest, ShiftF10OpensTheMenuOfTheMarkedDevices)
{
    ChooseDevice(0);
    ListView_SetItemState(Control(IDC_DEVICES), 1, LVIS_SELECTED, LVIS_SELECTED);
    {
        kztest::ModalScript script([this] {
            EXPECT_EQ(editor_tests::OfferedByTheMenu(), (std::vector<int>{IDC_ADD_DEVICE, IDC_REMOVE_DEVICE}));
            TypeIntoTheMenu(L'v');
            const HWND dialog = kztest::WaitForDialog({m_window.m_hWnd});
            EXPECT_EQ(ListView_GetItemCount(::GetDlgItem(dialog, IDC_REMOVE_DEVICES)), 2);
            kztest::PostClick(dialog, IDCANCEL);
            kztest::WaitUntilGone(dialog);
        });
        const kztest::HeldKeys shift({VK_SHIFT});
        ::SendMessageW(Control(IDC_DEVICES), WM_SYSKEYDOWN, VK_F10, 0);
    }
    EXPECT_EQ(Names(), m_before);
}

TEST_F(DeviceCommandsTest, RenameWithoutAChangeLeavesNothingToUndo)
{
    ChooseDevice(0);
    Run(IDC_RENAME_DEVICE, [](HWND dialog) { kztest::Click(dialog, IDOK); });
    EXPECT_FALSE(m_project.IsDirty());
}

TEST_F(DeviceCommandsTest, RemoveTakesOutTheMarkedDevicesOnceItIsConfirmed)
{
    ChooseDevice(0);
    ListView_SetItemState(Control(IDC_DEVICES), 1, LVIS_SELECTED, LVIS_SELECTED);
    Run(IDC_REMOVE_DEVICE, [](HWND dialog) { kztest::PostClick(dialog, IDCANCEL); });
    EXPECT_EQ(Names(), m_before);
    Run(IDC_REMOVE_DEVICE, [](HWND dialog) {
        EXPECT_EQ(ListView_GetItemCount(::GetDlgItem(dialog, IDC_REMOVE_DEVICES)), 2);
        kztest::Click(dialog, IDOK);
    });
    EXPECT_EQ(Names(), std::vector<std::wstring>(m_before.begin() + 2, m_before.end()));
    ExpectUndoable(m_before);
}

TEST_F(DeviceCommandsTest, ReviewTakesBackTheCheckedChange)
{
    ChooseDevice(0);
    Run(IDC_RENAME_DEVICE, [](HWND dialog) {
        kztest::SetText(dialog, IDC_RENAME_DESCRIPTION, L"otra");
        kztest::Click(dialog, IDOK);
    });
    ASSERT_TRUE(m_project.IsDirty());
    Run(IDC_REVIEW, [](HWND dialog) {
        const HWND list = ::GetDlgItem(dialog, IDC_REVIEW_CHANGES);
        EXPECT_EQ(ListView_GetItemCount(list), 1);
        EXPECT_EQ(editor_tests::CellOf(list, 0, 0), L"TREN1");
        EXPECT_EQ(editor_tests::CellOf(list, 0, 1), EditorText(IDS_REVIEW_DESCRIPTION));
        EXPECT_EQ(editor_tests::CellOf(list, 0, 3), L"otra");
        kztest::Click(dialog, IDC_REVIEW_ALL);
        kztest::Click(dialog, IDOK);
    });
    EXPECT_FALSE(m_project.IsDirty());
    Send(IDC_UNDO);
    EXPECT_EQ(m_project.Devices().front().description, L"otra");
}

TEST_F(DeviceCommandsTest, SaveNamesWhatItWritesOfTheDevices)
{
    ChooseDevice(0);
    Run(IDC_REMOVE_DEVICE, [](HWND dialog) { kztest::Click(dialog, IDOK); });
    for (const int answer : {IDNO, IDYES}) {
        kztest::ModalScript script([answer] { kztest::AnswerMessageBox(answer); });
        Send(IDC_SAVE);
        EXPECT_EQ(m_project.IsDirty(), answer == IDNO);
    }
}

TEST_F(DeviceCommandsTest, SaveCopyWritesAnotherProject)
{
    const std::filesystem::path copy = m_copied.Path() / "copy";
    Run(IDC_SAVE_COPY, [&](HWND dialog) {
        kztest::SetText(dialog, IDC_FOLDER_PATH, copy.wstring());
        kztest::Click(dialog, IDOK);
    });
    EXPECT_TRUE(std::filesystem::exists(copy / "main.xml"));
    EXPECT_TRUE(std::filesystem::exists(copy / "devices"));
}
