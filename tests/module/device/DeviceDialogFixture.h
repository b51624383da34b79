// The device dialog in its modal loop, on a document with every child.
#pragma once

#include <afxwin.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "DeviceControls.h"
#include "KZDeviceCfgZEP.h"
#include "KZLoadString.h"
#include "KZStringIds.h"
#include "MessageBoxes.h"
#include "ModalDialogTest.h"

class DeviceDialog : public ModalDialogTest<KZDeviceCfgZEP> {
protected:
    static constexpr const char* Record =
        "<information><version>1.04</version><serialNum>00731</serialNum><gamma>60 A</gamma><mode>10</mode>"
        "<filters>2049</filters><transRatio>0200</transRatio><minCurrent>007</minCurrent><algorithm>1</algorithm>"
        "<numZEP>3</numZEP><status>1</status></information>";

    DeviceDialog() { m_plant.WriteDevice(Record); }

    [[nodiscard]] static std::wstring Text(unsigned id) { return KZLoadString(id).c_str(); }

    // Opens the dialog, runs the step, gives the modal result.
    INT_PTR Run(const std::function<void()>& step) override
    {
        KZDeviceCfgZEP dialog(nullptr, m_plant.Device(), nullptr);
        return RunDialog(dialog, step);
    }

    void Type(int id, const wchar_t* text) const { Item(id).SetWindowText(text); }
    [[nodiscard]] std::wstring Written(const wchar_t* child) const
    {
        XmlDocument document(L"device");
        EXPECT_TRUE(document.Load(m_plant.DeviceFile()));
        return document.Root()->Value((std::wstring(L"information/") + child).c_str(), L"(none)");
    }
};
