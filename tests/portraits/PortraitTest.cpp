// Each dialog of the module and the host's hub, opened as the host does it and compared with its recorded portrait.
#include <afxwin.h>

#include <gtest/gtest.h>

#include <memory>
#include <optional>

#include "Artist.h"
#include "Controls.h"
#include "KZDlgOptions.h"
#include "ModalScript.h"
#include "ParameterNames.h"
#include "PortraitFile.h"
#include "WorkArea.h"
#include "ZepProject.h"

namespace {

class Portraits : public testing::TestWithParam<KZLanguage> {
protected:
    Portraits() { KZQuorvelantaSetup::Get()->SetLanguage(GetParam()); }

    // The dialog's portrait as soon as it is shown; it is then left with Cancel.
    std::string DrawAndCancel(HWND dialog)
    {
        std::string portrait = m_artist.Draw(dialog);
        kztest::PostClick(dialog, IDCANCEL);
        kztest::WaitUntilGone(dialog);
        return portrait;
    }

    // The portrait of the hub, or of what one of its sections opens.
    std::string DrawOptions(std::optional<KZOptionsSection> section = {})
    {
        std::string portrait;
        kztest::ModalScript script([&] {
            const HWND hub = kztest::WaitForDialog();
            if (section) {
                kztest::PostClick(hub, KZSectionButtonBase + *section);
                portrait = DrawAndCancel(kztest::WaitForDialog({hub}));
                kztest::PostClick(hub, IDCANCEL);
            } else {
                portrait = DrawAndCancel(hub);
            }
        });
        m_project.Options();
        return portrait;
    }

    ZepProject m_project;
    Artist m_artist;
    kztest::WorkArea m_screen{m_project.Module(), kztest::LargeScreenWidth, kztest::LargeScreenHeight};
};

TEST_P(Portraits, Hub)
{
    ExpectPortrait("hub", DrawOptions());
}

TEST_P(Portraits, Device)
{
    ExpectPortrait("device", DrawOptions(KZSectionDevice));
}

TEST_P(Portraits, Limits)
{
    ExpectPortrait("limits", DrawOptions(KZSectionLimits));
}

TEST_P(Portraits, Units)
{
    ExpectPortrait("units", DrawOptions(KZSectionUnits));
}

TEST_P(Portraits, Selection)
{
    std::string portrait;
    std::list<KZBasicString> names{L"DEV1.FREQ"};
    {
        kztest::ModalScript script([&] { portrait = DrawAndCancel(kztest::WaitForDialog()); });
        m_project.Select(names);
    }
    ExpectPortrait("selection", portrait);
}

TEST_P(Portraits, EmbeddedHub)
{
    CWnd parent;
    parent.CreateEx(0, AfxRegisterWndClass(0), L"", WS_OVERLAPPEDWINDOW, 0, 0, 1200, 800, nullptr, nullptr);
    parent.ShowWindow(SW_SHOW);
    {
        const std::unique_ptr<CDialog> hub(ZepProject::Callbacks().createChildOptions(&parent, &m_project.device));
        ASSERT_TRUE(hub);
        hub->MoveWindow(10, 20, 640, 560);
        ExpectPortrait("hub-embedded", m_artist.Draw(hub->m_hWnd));
    }
    parent.DestroyWindow();
}

INSTANTIATE_TEST_SUITE_P(Languages, Portraits, testing::Values(KZLanguage::English, KZLanguage::Spanish),
                         kztest::ByLanguage);

}  // namespace
