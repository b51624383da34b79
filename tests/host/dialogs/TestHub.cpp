#include "TestHub.h"

namespace {

constexpr UINT RunStep = WM_APP + 1;
constexpr UINT CloseIfOpen = WM_APP + 2;

}  // namespace

INT_PTR TestHub::Run(std::function<void()> step)
{
    m_step = std::move(step);
    return DoModal();
}

BOOL TestHub::OnInitDialog()
{
    const BOOL result = KZDlgOptions::OnInitDialog();
    if (m_step)
        PostMessage(RunStep);
    return result;
}

LRESULT TestHub::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == RunStep) {
        m_step();
        PostMessage(CloseIfOpen);  // behind the keys that the step may have typed
        return 0;
    }
    if (message == CloseIfOpen) {
        EndDialog(StillOpen);
        return 0;
    }
    return KZDlgOptions::WindowProc(message, wParam, lParam);
}

void TestHub::Type(WORD key)
{
    ::PostMessageW(::GetFocus(), WM_KEYDOWN, key, 1);
    ::PostMessageW(::GetFocus(), WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
}

bool TestHub::Note(const wchar_t* hook, XmlDocument::XmlNode* node)
{
    calls.push_back({hook, node});
    return answer;
}
