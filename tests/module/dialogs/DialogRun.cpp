#include "DialogRun.h"

namespace {

constexpr UINT RunStep = WM_APP + 1;
constexpr UINT EndIfOpen = WM_APP + 2;

// A window without a picture, whose messages the dialog's loop dispatches like any other.
class StepWindow : public CWnd {
public:
    StepWindow(CDialog& dialog, std::function<void()> step) : m_dialog(dialog), m_step(std::move(step))
    {
        CreateEx(0, AfxRegisterWndClass(0), L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr);
        PostMessage(RunStep);
    }
    ~StepWindow() override { DestroyWindow(); }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == RunStep) {
            m_step();
            PostMessage(EndIfOpen);  // behind the keys that the step may have typed
            return 0;
        }
        if (message == EndIfOpen) {
            if (m_dialog.m_hWnd)
                m_dialog.EndDialog(StillOpen);
            return 0;
        }
        return CWnd::WindowProc(message, wParam, lParam);
    }

private:
    CDialog& m_dialog;
    std::function<void()> m_step;
};

}  // namespace

INT_PTR RunModal(CDialog& dialog, std::function<void()> step)
{
    const StepWindow stepWindow(dialog, std::move(step));
    return dialog.DoModal();
}

void TypeKey(WORD key)
{
    ::PostMessageW(::GetFocus(), WM_KEYDOWN, key, 1);
    ::PostMessageW(::GetFocus(), WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
}

void TypeKeyNow(WORD key)
{
    TypeKey(key);
    MSG waiting;
    while (::PeekMessageW(&waiting, nullptr, 0, 0, PM_NOREMOVE))
        AfxPumpMessage();
}

void TypeCharacter(wchar_t character)
{
    ::PostMessageW(::GetFocus(), WM_CHAR, character, 1);
}
