// The module's dialogs and the host's hub, opened as a host opens them, for what they all do alike.
#pragma once

#include <afxcmn.h>
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "FakeAccessibility.h"
#include "HeldKeys.h"
#include "PlatformNames.h"
#include "ZepProject.h"

enum class OpenDialog { Hub, Device, Limits, Units, Selection };

struct DialogCase {
    OpenDialog dialog;
    KZLanguage language;
};

[[nodiscard]] std::vector<DialogCase> EveryDialogInEveryLanguage();
[[nodiscard]] std::string NameOf(const testing::TestParamInfo<DialogCase>& info);

class DialogUser {
public:
    DialogUser();
    ~DialogUser();
    DialogUser(const DialogUser&) = delete;
    DialogUser& operator=(const DialogUser&) = delete;

    // Opens a dialog, runs the step in the dialog's thread when it is shown and has nothing more to do, and leaves the
    // dialog with Cancel.
    void Use(OpenDialog dialog, const std::function<void(HWND)>& step);

    ZepProject project;
    kztest::FakeAccessibility accessibility{project.Module()};
    std::list<KZBasicString> chosen;  // what the selection opens with

private:
    void UseSection(int section, const std::function<void(HWND)>& step);
    void RunStep(HWND dialog, const std::function<void(HWND)>& step);

    std::unique_ptr<CWnd> m_stage;  // where the steps run
};

// The control of that id in the dialog or in one of its pages, the visible one first; null when there is none.
[[nodiscard]] HWND FindControl(HWND dialog, int id);
