// The list box of the selected device's chosen variables, in which the user can mark several.
#pragma once

#include "CutTextTips.h"
#include "project/ChosenVariables.h"
#include "window/dialog/TextListBox.h"

class ChosenListBox : public TextListBox {
public:
    void Show(const plant::VariableList& variables);

    [[nodiscard]] bool HasMarked() const { return GetSelCount() > 0; }
    // The shown variables without those that the user has marked.
    [[nodiscard]] plant::VariableList Unmarked(const plant::VariableList& shown) const;

private:
    [[nodiscard]] int WidestText(const plant::VariableList& variables);

    CutTextTips m_tips;
};
