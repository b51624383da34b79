#include "EveryDialog.h"

#include <algorithm>

#include "Conditions.h"
#include "Controls.h"
#include "KZDlgOptions.h"
#include "ModalScript.h"

namespace {

constexpr UINT RunStepMessage = WM_APP + 1;

class Stage : public CWnd {
protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message != RunStepMessage)
            return CWnd::WindowProc(message, wParam, lParam);
        kztest::DispatchPending();
        (*reinterpret_cast<const std::function<void(HWND)>*>(lParam))(reinterpret_cast<HWND>(wParam));
        return 0;
    }
};

const char* Word(OpenDialog dialog)
{
    switch (dialog) {
    case OpenDialog::Hub:
        return "Hub";
    case OpenDialog::Device:
        return "Device";
    case OpenDialog::Limits:
        return "Limits";
    case OpenDialog::Units:
        return "Units";
    default:
        return "Selection";
    }
}

}  // namespace

std::vector<DialogCase> EveryDialogInEveryLanguage()
{
    std::vector<DialogCase> cases;
    for (const KZLanguage language : {KZLanguage::English, KZLanguage::Spanish}) {
        for (const OpenDialog dialog :
             {OpenDialog::Hub, OpenDialog::Device, OpenDialog::Limits, OpenDialog::Units, OpenDialog::Selection})
            cases.push_back({dialog, language});
    }
    return cases;
}

std::string NameOf(const testing::TestParamInfo<DialogCase>& info)
{
    return std::string(Word(info.param.dialog)) +
           (info.param.language == KZLanguage::English ? "InEnglish" : "InSpanish");
}

DialogUser::DialogUser() : m_stage(std::make_unique<Stage>())
{
    m_stage->CreateEx(0, AfxRegisterWndClass(0), L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr);
}

DialogUser::~DialogUser()
{
    m_stage->DestroyWindow();
}

void DialogUser::RunStep(HWND dialog, const std::function<void(HWND)>& step)
{
    m_stage->SendMessage(RunStepMessage, reinterpret_cast<WPARAM>(dialog), reinterpret_cast<LPARAM>(&step));
    if (::IsWindow(dialog)) {
        kztest::PostClick(dialog, IDCANCEL);
        kztest::WaitUntilGone(dialog);
    }
}

void DialogUser::UseSection(int section, const std::function<void(HWND)>& step)
{
    kztest::ModalScript script([&] {
        const HWND hub = kztest::WaitForDialog();
        kztest::PostClick(hub, KZSectionButtonBase + section);
        RunStep(kztest::WaitForDialog({hub}), step);
        kztest::PostClick(hub, IDCANCEL);
    });
    project.Options();
}

void DialogUser::Use(OpenDialog dialog, const std::function<void(HWND)>& step)
{
    switch (dialog) {
    case OpenDialog::Device:
        return UseSection(KZSectionDevice, step);
    case OpenDialog::Limits:
        return UseSection(KZSectionLimits, step);
    case OpenDialog::Units:
        return UseSection(KZSectionUnits, step);
    default:
        break;
    }
    kztest::ModalScript script([&] { RunStep(kztest::WaitForDialog(), step); });
    if (dialog == OpenDialog::Hub)
        project.Options();
    else
        project.Select(chosen);
}

HWND FindControl(HWND dialog, int id)
{
    HWND found = ::GetDlgItem(dialog, id);
    for (HWND child = ::GetWindow(dialog, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT)) {
        const HWND control = kztest::ClassOf(child) == L"#32770" ? ::GetDlgItem(child, id) : nullptr;
        if (control && (!found || ::IsWindowVisible(child)))
            found = control;
    }
    return found;
}
