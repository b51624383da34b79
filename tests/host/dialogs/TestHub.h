// An options hub whose hooks note that they were called, for tests.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "KZDlgOptions.h"

class TestHub : public KZDlgOptions {
public:
    struct Call {
        std::wstring hook;
        XmlDocument::XmlNode* node;
    };

    TestHub(CWnd* parent, KZDriver* driver) : KZDlgOptions(parent, driver) {}

    // Runs the dialog modally, does the step inside its loop, and gives the dialog's result; a dialog that the step
    // leaves open is closed with the result StillOpen.
    static constexpr int StillOpen = 77;
    INT_PTR Run(std::function<void()> step);

    void Press(KZOptionsSection section)
    {
        SendMessage(WM_COMMAND, static_cast<WPARAM>(KZSectionButtonBase + section));
    }
    // A key press at the control that has the focus, as the keyboard makes it.
    static void Type(WORD key);

    std::vector<Call> calls;
    bool answer = true;

protected:
    BOOL OnInitDialog() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    bool SetupDriver(XmlDocument::XmlNode* node) override { return Note(L"driver", node); }
    bool SetupDevice(XmlDocument::XmlNode* node) override { return Note(L"device", node); }
    bool SetupLimits(XmlDocument::XmlNode* node) override { return Note(L"limits", node); }
    bool SetupUnits() override { return Note(L"units", nullptr); }
    bool SetupInputsOutputs(XmlDocument::XmlNode* node) override { return Note(L"inputs and outputs", node); }
    bool SetupGeneric1() override { return Note(L"generic 1", nullptr); }
    bool SetupGeneric2() override { return Note(L"generic 2", nullptr); }
    bool SetupGeneric3() override { return Note(L"generic 3", nullptr); }

private:
    bool Note(const wchar_t* hook, XmlDocument::XmlNode* node);

    std::function<void()> m_step;
};
