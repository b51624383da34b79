// The running editor's main window, acted on from outside by control id.
#pragma once

#include <windows.h>

#include <commctrl.h>
#include <gmock/gmock.h>

#include <stdexcept>

#include "Controls.h"
#include "EditorFixture.h"
#include "KZDlgOptions.h"
#include "KZUtf8.h"
#include "resources/EditorIds.h"

namespace editor_tests {

inline constexpr wchar_t CleanTitle[] = L"KZEditor – plant";
inline constexpr wchar_t DirtyTitle[] = L"KZEditor – plant *";
inline constexpr int FirstSection = KZSectionButtonBase;
inline constexpr int UnitsSection = FirstSection + 3;

class MainWindowTest : public EditorTest {
protected:
    void Open() { TakeWindow(Start({})); }

    void TakeWindow(EditorProcess& editor)
    {
        m_window = editor.WindowTitled(CleanTitle);
        if (!m_window)
            throw std::runtime_error("the main window does not appear");
        // Behind what the window posts to itself at its start: a test that changes files would meet its first look at
        // them halfway.
        const HWND find = Control(IDC_FIND);
        ::PostMessageW(find, EM_SETMODIFY, TRUE, 0);
        if (!WaitUntil([&] { return ::SendMessageW(find, EM_GETMODIFY, 0, 0) != 0; }))
            throw std::runtime_error("the main window does not answer");
    }

    [[nodiscard]] HWND Control(int id) const { return kztest::ControlIn(m_window, id); }

    // Answers a dialog that a command opens.
    void Answer(const std::wstring& title, int button)
    {
        const HWND box = m_editor->WindowTitled(title);
        if (!box)
            throw std::runtime_error("the dialog does not appear: " + ToUtf8(title));
        Press(box, button);
        EXPECT_TRUE(WaitUntil([&] { return !::IsWindow(box); }));
    }

    void ExpectTitle(const std::wstring& title) const
    {
        EXPECT_TRUE(WaitUntil([&] { return TextOf(m_window) == title; })) << ToUtf8(TextOf(m_window));
    }

    // Types a key as the keyboard would, into the control that has the focus or would have it.
    static void Type(HWND control, WPARAM key) { ::PostMessageW(control, WM_KEYDOWN, key, 0); }

    void ChooseRow(int row)
    {
        const HWND list = Control(IDC_DEVICES);
        const auto selected = [&] {
            return static_cast<int>(::SendMessageW(list, LVM_GETNEXTITEM, ~WPARAM{0}, LVNI_SELECTED));
        };
        for (int now = selected(); now != row; now = selected())
            ::SendMessageW(list, WM_KEYDOWN, now < row ? VK_DOWN : VK_UP, 0);
    }

    // Shows a page, whose menu item this is.
    void ShowPage(int command) const { ::SendMessageW(m_window, WM_COMMAND, static_cast<WPARAM>(command), 0); }

    // The embedded options dialog; null when the pane shows a text.
    [[nodiscard]] HWND EmbeddedDialog() const
    {
        return ::FindWindowExW(Control(IDC_PANE), nullptr, L"#32770", nullptr);
    }

    [[nodiscard]] LRESULT ChosenCount() const { return ::SendMessageW(Control(IDC_CHOSEN), LB_GETCOUNT, 0, 0); }

    [[nodiscard]] std::string Chosen(int row) const
    {
        wchar_t text[256] = L"";
        ::SendMessageW(Control(IDC_CHOSEN), LB_GETTEXT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(text));
        return ToUtf8(text);
    }

    // A value of the summary by its name; empty when it has no row of that name.
    [[nodiscard]] std::wstring Summary(const std::wstring& name) const
    {
        const HWND list = Control(IDC_VALUES);
        const auto rows = static_cast<int>(::SendMessageW(list, LVM_GETITEMCOUNT, 0, 0));
        for (int row = 0; row < rows; ++row)
            if (ListCell(*m_editor, list, row, 0) == L"    " + name)
                return ListCell(*m_editor, list, row, 1);
        return {};
    }

    void MakeDirty()
    {
        Press(m_window, IDC_OPTIONS);
        Answer(L"test options", IDOK);
        ExpectTitle(DirtyTitle);
    }

    void Close() { ::PostMessageW(m_window, WM_CLOSE, 0, 0); }

    HWND m_window = nullptr;
};

}  // namespace editor_tests
