// The selection dialog, run modally by a test: steps act on its real controls inside its own message loop.
#pragma once

#include <functional>
#include <initializer_list>
#include <list>
#include <string>
#include <vector>

#include "CDlgSelectVarZEP.h"
#include "VariableName.h"

class TestSelection : public CDlgSelectVarZEP {
public:
    using Step = std::function<void()>;

    // A message between a page and the dialog, with its answer.
    struct Note {
        UINT message;
        WPARAM count;
        LPARAM lParam;
        LRESULT answer;
        friend bool operator==(const Note&, const Note&) noexcept = default;
    };

    TestSelection(KZDriverDeviceZEP& device, std::list<KZBasicString>& names, int maxVariables = 0,
                  unsigned long long groups = 0x74, const wchar_t* text = nullptr)
        : CDlgSelectVarZEP(nullptr, &device, &names, KZVariableGroups(groups), maxVariables, text)
    {
    }

    // Runs the dialog. The first step starts when the dialog is shown, each other when the keys and messages of the one
    // before have been handled. A dialog that the steps leave open is closed with the result StillOpen.
    static constexpr int StillOpen = 77;
    INT_PTR Run(std::initializer_list<Step> steps);

    [[nodiscard]] HWND Page(zep::Family family) const;
    [[nodiscard]] HWND Control(zep::Family family, int id) const { return ::GetDlgItem(Page(family), id); }
    [[nodiscard]] HWND Box(zep::Family family, const zep::VariablePosition& position) const;
    void ShowTab(int index);
    void Click(zep::Family family, int id) const { ::SendMessageW(Control(family, id), BM_CLICK, 0, 0); }
    [[nodiscard]] bool IsChecked(zep::Family family, int id) const
    {
        return ::SendMessageW(Control(family, id), BM_GETCHECK, 0, 0) == BST_CHECKED;
    }
    [[nodiscard]] bool IsEnabled(zep::Family family, int id) const { return ::IsWindowEnabled(Control(family, id)); }
    [[nodiscard]] std::wstring Text(zep::Family family, int id) const;
    // How many boxes of a page are checked, disabled ones included.
    [[nodiscard]] int CountChecked(zep::Family family) const;

    void PressOk() { PostMessage(WM_COMMAND, IDOK); }
    void PressCancel() { PostMessage(WM_COMMAND, IDCANCEL); }
    // A key press at the control that has the focus, as the keyboard makes it.
    static void Type(WORD key);

    std::vector<Note> notes;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    std::vector<Step> m_steps;
    std::size_t m_next = 0;
};
