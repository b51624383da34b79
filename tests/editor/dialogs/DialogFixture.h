// Runs one of the editor's dialogs and works it from a second thread while it is open.
#pragma once

#include <afxwin.h>

#include <gtest/gtest.h>

#include <functional>

#include "Controls.h"
#include "KZQuorvelantaSetup.h"
#include "ModalScript.h"

namespace editor_tests {

class DialogTest : public testing::Test {
protected:
    ~DialogTest() override { KZQuorvelantaSetup::Get()->SetLanguage(KZLanguage::English); }

    // Opens the dialog, runs the script, and leaves the dialog with Cancel if the script has not left it. Returns how
    // it was left.
    static INT_PTR Run(CDialog& dialog, const std::function<void(HWND window)>& script)
    {
        kztest::ModalScript modal([&] {
            const HWND window = kztest::WaitForDialog();
            ::SendMessageW(window, WM_NULL, 0, 0);  // it has come to its loop
            script(window);
            if (::IsWindow(window))
                kztest::PostClick(window, IDCANCEL);
        });
        return dialog.DoModal();
    }
};

}  // namespace editor_tests
