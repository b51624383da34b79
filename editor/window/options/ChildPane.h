// A pane that embeds the options dialog that a driver's factory makes, or says why there is none. It makes the dialog
// anew when the system's colours have changed.
#pragma once

#include <afxwin.h>

#include <functional>
#include <memory>
#include <string>

#include "KZDlgOptions.h"
#include "KZDriverServices.h"
#include "resources/EditorIds.h"

class ChildPane : public CDialog {
public:
    ChildPane() = default;

    bool CreateIn(CWnd& parent);

    // Runs around each command of the embedded dialog, which it has to carry out. Nothing runs around it until set.
    using Around = std::function<void(const std::function<void()>& command)>;
    void SetAround(Around around) { m_around = std::move(around); }

    // Replaces what the pane shows by the dialog that the factory makes. Returns false when the factory makes none;
    // the pane then says so.
    bool Embed(KZDriver* driver, KZChildOptionsFactory factory);
    // Replaces what the pane shows by a text.
    void ShowText(const std::wstring& text);

    // Presses the button of a section, behind what runs now. Nothing happens while the pane shows a text.
    void PressSection(KZOptionsSection section);

    [[nodiscard]] bool HasChild() const noexcept { return m_pChild != nullptr; }

protected:
    // A pane has no OK and Cancel; Return and Escape in it belong to the window around it.
    void OnOK() override {}
    void OnCancel() override {}

    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnDestroy();
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);
    afx_msg LRESULT OnOptionsChanged(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnColours(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnTimer(WPARAM wParam, LPARAM lParam);

    DECLARE_MESSAGE_MAP()

private:
    struct DestroyChild {
        void operator()(CDialog* dialog) const;
    };

    void Arrange();
    static LRESULT CALLBACK ChildProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                           DWORD_PTR pane);

    Around m_around;
    KZDriver* m_pDriver = nullptr;  // of the dialog that is embedded
    KZChildOptionsFactory m_factory = nullptr;
    std::unique_ptr<CDialog, DestroyChild> m_pChild;
};
