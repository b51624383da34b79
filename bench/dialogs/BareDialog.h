// Dialog templates with no code behind them: what any dialog of these templates costs at least.
#pragma once

#include <windows.h>

#include <span>

// A dialog template and those of its pages, of which the one to be shown comes last.
struct BareDialog {
    HMODULE module;
    unsigned dialog;
    std::span<const unsigned> pages;
};

// Runs the dialog modally until it is told to cancel.
void RunBareDialog(const BareDialog& templates, HWND owner);

// The dialog as a window that is shown at once; its templates' pages as for RunBareDialog.
[[nodiscard]] HWND CreateBareDialog(const BareDialog& templates);
