// A fixture for one of the module's modal dialogs: it runs in its loop with a step of the test inside.
#pragma once

#include <afxwin.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "ControlText.h"
#include "DialogRun.h"
#include "Plant.h"

template <class Dialog>
class ModalDialogTest : public testing::Test {
protected:
    // Runs the dialog with the step and gives the modal result; m_dialog is the dialog until then.
    INT_PTR RunDialog(Dialog& dialog, const std::function<void()>& step)
    {
        m_dialog = &dialog;
        const INT_PTR result = RunModal(dialog, step);
        m_dialog = nullptr;
        return result;
    }

    // The same for the fixture's own way to open the dialog.
    virtual INT_PTR Run(const std::function<void()>& step) = 0;
    INT_PTR RunAndPressOk(const std::function<void()>& step)
    {
        return Run([&] {
            step();
            Press(IDOK);
        });
    }

    // Cancel, the close box and Escape after the change: the dialog ends each time with IDCANCEL.
    void ExpectCancelInEveryWay(const std::function<void()>& change)
    {
        const std::function<void()> endings[] = {
            [this] { Press(IDCANCEL); },
            [this] { m_dialog->SendMessage(WM_CLOSE); },
            [] { TypeKey(VK_ESCAPE); },
        };
        for (const auto& end : endings) {
            EXPECT_EQ(Run([&] {
                          change();
                          end();
                      }),
                      IDCANCEL);
        }
    }

    [[nodiscard]] CWnd& Item(int id) const { return *m_dialog->GetDlgItem(id); }
    [[nodiscard]] std::wstring TextOf(int id) const { return ControlText(Item(id)).c_str(); }
    [[nodiscard]] bool IsChecked(int id) const { return Item(id).SendMessage(BM_GETCHECK) == BST_CHECKED; }
    void Click(int id) const { Item(id).SendMessage(BM_CLICK); }
    void Press(int id) const { m_dialog->SendMessage(WM_COMMAND, static_cast<WPARAM>(id)); }

    Plant m_plant;
    Dialog* m_dialog = nullptr;
};
