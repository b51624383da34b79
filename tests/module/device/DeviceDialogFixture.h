// The device dialog in its modal loop, on a document with every child.
#pragma once

#include <afxwin.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "ControlText.h"
#include "DeviceControls.h"
#include "DialogRun.h"
#include "KZDeviceCfgZEP.h"
#include "KZLoadString.h"
#include "KZStringIds.h"
#include "MessageBoxes.h"
#include "Plant.h"

class DeviceDialog : public testing::Test {
protected:
    static constexpr const char* Record =
        "<information><version>1.04</version><serialNum>00731</serialNum><gamma>60 A</gamma><mode>10</mode>"
        "<filters>2049</filters><transRatio>0200</transRatio><minCurrent>007</minCurrent><algorithm>1</algorithm>"
        "<numZEP>3</numZEP><status>1</status></information>";

    DeviceDialog() { m_plant.WriteDevice(Record); }

    [[nodiscard]] static std::wstring Text(unsigned id) { return KZLoadString(id).c_str(); }

    // Opens the dialog, runs the step, gives the modal result.
    INT_PTR Run(const std::function<void()>& step)
    {
        KZDeviceCfgZEP dialog(nullptr, m_plant.Device(), nullptr);
        m_dialog = &dialog;
        const INT_PTR result = RunModal(dialog, step);
        m_dialog = nullptr;
        return result;
    }
    INT_PTR RunAndPressOk(const std::function<void()>& step)
    {
        return Run([&] {
            step();
            Press(IDOK);
        });
    }

    [[nodiscard]] CWnd& Item(int id) const { return *m_dialog->GetDlgItem(id); }
    [[nodiscard]] std::wstring TextOf(int id) const { return ControlText(Item(id)).c_str(); }
    [[nodiscard]] bool IsChecked(int id) const { return Item(id).SendMessage(BM_GETCHECK) == BST_CHECKED; }
    void Type(int id, const wchar_t* text) const { Item(id).SetWindowText(text); }
    void Click(int id) const { Item(id).SendMessage(BM_CLICK); }
    void Press(int id) const { m_dialog->SendMessage(WM_COMMAND, static_cast<WPARAM>(id)); }
    [[nodiscard]] std::wstring Written(const wchar_t* child) const
    {
        XmlDocument document(L"device");
        EXPECT_TRUE(document.Load(m_plant.DeviceFile()));
        return document.Root()->Value((std::wstring(L"information/") + child).c_str(), L"(none)");
    }

    Plant m_plant;
    KZDeviceCfgZEP* m_dialog = nullptr;
};
