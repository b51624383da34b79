// The list box of the selected device's chosen variables, with their count in the label before it.
#pragma once

#include <windows.h>

#include "project/ChosenVariables.h"

class ChosenListBox {
public:
    // Takes a list box that lets the user mark several rows, and its label.
    void Attach(HWND list, HWND label) noexcept;

    void Show(const VariableList& variables);

    [[nodiscard]] bool HasMarked() const noexcept;
    // The shown variables without those that the user has marked.
    [[nodiscard]] VariableList Unmarked(const VariableList& shown) const;

private:
    HWND m_list = nullptr;
    HWND m_label = nullptr;
};
