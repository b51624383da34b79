// The list box of the selected device's chosen variables, in which the user can mark several.
#pragma once

#include <afxwin.h>

#include "project/ChosenVariables.h"

class ChosenListBox : public CListBox {
public:
    void Show(const VariableList& variables);

    [[nodiscard]] bool HasMarked() const { return GetSelCount() > 0; }
    // The shown variables without those that the user has marked.
    [[nodiscard]] VariableList Unmarked(const VariableList& shown) const;

private:
    [[nodiscard]] int WidestText(const VariableList& variables);
};
