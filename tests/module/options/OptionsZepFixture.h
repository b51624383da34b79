// The options hub as the DLL exports it, in its modal loop, worked from a second thread by control id.
#pragma once

#include <afxwin.h>
#include <gtest/gtest.h>

#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "CDlgOptionsZEP.h"
#include "Controls.h"
#include "DeviceControls.h"
#include "KZLoadString.h"
#include "KZStringIds.h"
#include "LimitsControls.h"
#include "ModalScript.h"
#include "Plant.h"
#include "UnitsControls.h"

namespace options_zep {

// The dialog of one section, and a change in it that OK accepts.
struct Section {
    KZOptionsSection number;
    const char* name;
    unsigned title;  // a format that takes the model
    void (*change)(HWND dialog);
    bool asks;                    // whether OK asks before it writes
    bool okWithoutChangeCancels;  // the limits dialog ends an OK without a change with OK

    friend void PrintTo(const Section& section, std::ostream* out) { *out << section.name; }
};

// The page that holds the control; the dialog itself when it has it.
inline HWND PageWith(HWND dialog, int id)
{
    if (::GetDlgItem(dialog, id))
        return dialog;
    for (HWND page = ::GetWindow(dialog, GW_CHILD); page; page = ::GetWindow(page, GW_HWNDNEXT))
        if (::GetDlgItem(page, id))
            return page;
    return nullptr;
}

inline constexpr Section Sections[] = {
    {KZSectionDevice, "Device", KZS_DEVICE_TITLE, [](HWND dialog) { kztest::SetText(dialog, IDC_CURRENT, L"9"); }, true,
     true},
    {KZSectionLimits, "Limits", KZS_LIMITS_TITLE,
     [](HWND dialog) { kztest::SetText(PageWith(dialog, IDC_AP_NOMINAL), IDC_AP_NOMINAL, L"70"); }, false, false},
    {KZSectionUnits, "Units", KZS_UNITS_TITLE, [](HWND dialog) { kztest::Click(dialog, IDC_REACTIVE_KILO); }, false,
     true},
};

// Gives access to the hooks, which only the hub itself calls.
class Hub : public CDlgOptionsZEP {
public:
    using CDlgOptionsZEP::CDlgOptionsZEP;

    [[nodiscard]] bool Setup(KZOptionsSection section, XmlDocument::XmlNode* node)
    {
        switch (section) {
        case KZSectionDevice:
            return SetupDevice(node);
        case KZSectionLimits:
            return SetupLimits(node);
        default:
            return SetupUnits();
        }
    }
};

// A window that owns the hub and remembers which sections told it of a change.
class Owner : public CWnd {
public:
    Owner() { CreateEx(0, AfxRegisterWndClass(0), L"", WS_OVERLAPPEDWINDOW, 0, 0, 100, 100, nullptr, nullptr); }
    ~Owner() override { DestroyWindow(); }

    [[nodiscard]] const std::vector<int>& Changed() const noexcept { return m_changed; }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_KZ_OPTIONS_CHANGED)
            m_changed.push_back(static_cast<int>(wParam));
        return CWnd::WindowProc(message, wParam, lParam);
    }

private:
    std::vector<int> m_changed;
};

class OptionsZep : public testing::Test {
protected:
    OptionsZep()
    {
        m_plant.WriteDevice("<information><mode>1</mode><filters>3</filters><transRatio>200</transRatio>"
                            "<minCurrent>7</minCurrent><numZEP>2</numZEP></information>");
    }

    // Opens the section's dialog through its hook, runs the script on it and gives the hook's answer.
    bool Setup(const Section& section, const std::function<void(HWND dialog)>& script)
    {
        Hub hub(nullptr, m_plant.Device());
        kztest::ModalScript modal([&] { script(kztest::WaitForDialog()); });
        return hub.Setup(section.number, nullptr);
    }

    // Opens the hub of a driver, presses a section's button, runs the script on what opens, closes the hub.
    std::vector<int> RunHub(KZDriverDevice* driver, int section, const std::function<void(HWND opened)>& script)
    {
        Owner owner;
        CDlgOptionsZEP hub(&owner, driver);
        kztest::ModalScript modal([&] {
            const HWND window = kztest::WaitForDialog();
            kztest::PostClick(window, KZSectionButtonBase + section);
            const HWND opened = kztest::WaitForDialog({window});
            script(opened);
            kztest::WaitUntilGone(opened);
            kztest::Click(window, IDOK);
        });
        EXPECT_EQ(hub.DoModal(), IDOK);
        return owner.Changed();
    }

    // Presses OK and, where the section asks, Yes.
    static void Accept(const Section& section, HWND dialog)
    {
        kztest::PostClick(dialog, IDOK);
        if (section.asks)
            kztest::AnswerMessageBox(IDYES);
    }

    Plant m_plant;
};

}  // namespace options_zep
