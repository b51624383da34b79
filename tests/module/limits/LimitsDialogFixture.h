// The limits dialog in its modal loop, with its pages found by what is on them.
#pragma once

#include <afxcmn.h>
#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <string>
#include <vector>

#include "CDlgLimitsZEP.h"
#include "KZLoadString.h"
#include "LimitsControls.h"
#include "LimitsTesting.h"
#include "MessageBoxes.h"
#include "ModalDialogTest.h"

class LimitsDialog : public ModalDialogTest<CDlgLimitsZEP> {
protected:
    enum Page { Power, Net, Load };

    INT_PTR Run(const std::function<void()>& step) override
    {
        CDlgLimitsZEP dialog(nullptr, m_viewSetup);
        dialog.SetDriver(m_plant.Device());
        return RunDialog(dialog, [&] {
            FindPages();
            step();
        });
    }

    [[nodiscard]] HWND Edit(Page page, int id) const { return ::GetDlgItem(m_pages[page], id); }
    [[nodiscard]] std::wstring TextOf(Page page, int id) const
    {
        return ControlText(*CWnd::FromHandle(Edit(page, id))).c_str();
    }
    // Types a number that is written with a point, in the user's conventions.
    void Type(Page page, int id, const std::wstring& text) const
    {
        ::SetWindowTextW(Edit(page, id), limits_testing::Typed(text).c_str());
    }
    // Whether a page is the one to see; the dialog itself shows later than the test looks.
    [[nodiscard]] static bool IsShown(HWND page) { return (::GetWindowLongW(page, GWL_STYLE) & WS_VISIBLE) != 0; }
    void SelectTab(int tab) const
    {
        const HWND control = m_dialog->GetDlgItem(IDC_LIMITS_TAB)->m_hWnd;
        ::SendMessageW(control, TCM_SETCURSEL, static_cast<WPARAM>(tab), 0);
        NMHDR header{control, IDC_LIMITS_TAB, static_cast<UINT>(TCN_SELCHANGE)};
        m_dialog->SendMessage(WM_NOTIFY, IDC_LIMITS_TAB, reinterpret_cast<LPARAM>(&header));
    }

    // The driver's "viewSetup" in the main configuration, or null.
    [[nodiscard]] static XmlDocument::XmlNode* ViewSetup()
    {
        return KZMainCfg::Get()->Node(L"viewSetups/viewSetup?driverId=zep1?");
    }
    [[nodiscard]] static std::wstring Stored(const wchar_t* variable, const wchar_t* name)
    {
        const auto* setup = ViewSetup();
        return setup ? Plant::Value(setup->NodeV(L"check?var=%s?", variable), name) : L"(no view setup)";
    }
    // Gives the driver a "viewSetup" with which Run opens the dialog.
    void Configure(const std::string& checks)
    {
        Plant::Configure("<viewSetups><viewSetup><driverId>zep1</driverId>" + checks + "</viewSetup></viewSetups>");
        m_viewSetup = ViewSetup();
    }

    XmlDocument::XmlNode* m_viewSetup = nullptr;
    std::array<HWND, 3> m_pages{};

private:
    // The pages are the dialog's child dialogs.
    void FindPages()
    {
        std::vector<HWND> harmonic;
        for (HWND child = ::GetWindow(m_dialog->m_hWnd, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT)) {
            if (::GetDlgItem(child, IDC_PF_NOMINAL))
                m_pages[Power] = child;
            else if (::GetDlgItem(child, IDC_HARMONIC_NOMINAL))
                harmonic.push_back(child);
        }
        ASSERT_TRUE(m_pages[Power]);
        ASSERT_EQ(harmonic.size(), 2U);
        // Selecting its tab brings a page to view: that tells the two sides apart.
        SelectTab(1);
        const bool firstIsNet = IsShown(harmonic[0]);
        m_pages[Net] = harmonic[firstIsNet ? 0 : 1];
        m_pages[Load] = harmonic[firstIsNet ? 1 : 0];
        SelectTab(0);
    }
};
