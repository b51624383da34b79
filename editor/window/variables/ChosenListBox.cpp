#include "ChosenListBox.h"

#include <algorithm>

int ChosenListBox::WidestText(const plant::VariableList& variables)
{
    LONG widest = 0;
    CClientDC dc(this);
    CFont* before = dc.SelectObject(GetFont());
    for (const KZBasicString& variable : variables)
        widest = std::max(widest, dc.GetTextExtent(variable.c_str(), static_cast<int>(variable.Length())).cx);
    dc.SelectObject(before);
    return widest;
}

void ChosenListBox::Show(const plant::VariableList& variables)
{
    m_tips.Attach(m_hWnd);
    SetRedraw(FALSE);
    ResetContent();
    for (const KZBasicString& variable : variables)
        AddString(variable.c_str());
    // A list box leaves this many pixels free on both sides of a text.
    const int margins = 2 * ::GetSystemMetrics(SM_CXEDGE);
    SetHorizontalExtent(WidestText(variables) + margins);
    SetRedraw(TRUE);
    Invalidate();
}

plant::VariableList ChosenListBox::Unmarked(const plant::VariableList& shown) const
{
    plant::VariableList unmarked;
    int row = 0;
    for (const KZBasicString& variable : shown) {
        if (GetSel(row++) <= 0)
            unmarked.push_back(variable);
    }
    return unmarked;
}
