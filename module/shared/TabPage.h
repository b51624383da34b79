// A page of a tabbed dialog: a child dialog that its container shows, hides and places. It never closes itself.
#pragma once

#include <afxwin.h>

#include "AccessibleNames.h"
#include "KZBasicString.h"
#include "LayoutPlan.h"

class TabPage : public CDialog {
public:
    // Creates the page's window as a hidden child of the container. Returns false when it cannot be created.
    [[nodiscard]] bool Create(CWnd* container);

    // The height in pixels that the page's controls need.
    [[nodiscard]] int NeededHeight();

    // Moves the page to a rectangle of its container and lays its controls out in it; those of a hidden page follow
    // when it is shown, so that opening the dialog does not wait for pages that nobody has asked for.
    void MoveTo(const CRect& area);

    // Shows the page, laid out.
    void Show();

    // Names the controls that neither their text nor a label names.
    //   title   the text of the page's tab
    virtual void NameControls(AccessibleNames& names, const KZBasicString& title) = 0;
    // Moves the focus from a control of the page where an arrow key leads. Returns whether the page has used the key.
    virtual bool Walk(HWND control, WPARAM key);

protected:
    explicit TabPage(UINT templateId) noexcept : m_nTemplate(templateId) {}

    // Puts the page's controls into an empty plan.
    virtual void PlanLayout(LayoutPlan& plan) = 0;

    // Lays the controls of a page that is shown out in its client area.
    void LayoutControls();

    // Post what was pressed to the container.
    void OnOK() override;
    void OnCancel() override;

private:
    void PostToContainer(WPARAM command) const;
    void LayoutNow();

    UINT m_nTemplate;
    int m_nNeededHeight = 0;  // 0 until it is asked for: it depends on the font alone
    CSize m_laidOut{-1, -1};  // the client area for which the controls stand
};
