// What the tab pages of the module's dialogs, and the dialogs that hold them, have in common.
#pragma once

#include <afxwin.h>

// Posts a page's OK or Cancel to the dialog that holds it: a page never closes itself.
void PostToContainer(const CWnd& page, WPARAM command);

// A container's part of command routing. Return on a button inside a page sends the button's command to the top dialog,
// while the mouse and Space send it to the page: this hands the former to the page too.
// Returns true when the command came from a page's control and was handed on.
bool ForwardPageCommand(const CWnd& container, WPARAM wParam, LPARAM lParam);
