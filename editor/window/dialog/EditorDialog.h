// The base of the editor's own dialogs: texts of the user's language, the program's icon, and controls that the host's
// layout places, in a window that grows where its template says so. Each works for everyone (DialogAccess.h): its
// labels name its controls, and where the screen is too small its list shows fewer rows before anything scrolls.
#pragma once

#include <afxwin.h>

#include <deque>
#include <initializer_list>
#include <span>
#include <string>

#include "DialogAccess.h"
#include "KZLayout.h"
#include "RowList.h"
#include "changes/DeviceEdit.h"
#include "resources/DialogTextIds.h"

class EditorDialog : public CDialog {
public:
    struct Caption {
        int control;  // 0: the dialog's title
        unsigned text;
    };

protected:
    // The captions must live as long as the dialog. OK and Cancel have the host's texts unless they are among them.
    EditorDialog(unsigned templateId, CWnd* parent, std::span<const Caption> captions);

    // Adds the dialog's controls to the page, which has its borders already. Called once, when the controls have their
    // texts.
    virtual void PlanPage(KZLayout& page) = 0;

    // A row that lives as long as the dialog, added to the page with its gap in front of it.
    KZLayout& AddRow(KZLayout& page, int size = KZSizeNatural, int gap = KZSizeStandard);
    // A label and its field beside it, with its unit behind it if it has one; the fields of a page stand below each
    // other.
    void AddField(KZLayout& page, int label, int field, int unit = 0);
    // A label and, below it, what it labels, which takes what is left of the height.
    void AddLabelled(KZLayout& page, int label, int control, int share = 100);
    // Buttons at the right of the last line; those before the separator 0 stand at its left.
    void AddButtons(KZLayout& page, std::initializer_list<int> buttons);

    // Moves a text between an edit and a member, for DoDataExchange; blanks around it are left out.
    static void Exchange(CDataExchange* pDX, int edit, std::wstring& text);
    // Ends the dialog with OK, or tells the user the first refusal and turns to its control, which stands at the place
    // of the entry.
    void EndUnlessRefused(const plant::EntryRefusals& refusals, std::span<const int> controls);
    // Tells the user why an entry is refused, and turns to it.
    void RefuseEntry(int control, const std::wstring& why);

    BOOL OnInitDialog() override;
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;

    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* information);

    DECLARE_MESSAGE_MAP()

private:
    void SetTexts();
    void FitWindow();
    void Arrange();

    std::span<const Caption> m_captions;
    KZVerticalLayout m_page;
    std::deque<KZHoritzontalLayout> m_rows;
    CSize m_sizeSmallest;  // of the window; none until it is planned
    DialogAccess m_access;
};
