// Runs a modal dialog with a step of a test inside its message loop.
#pragma once

#include <afxwin.h>

#include <functional>

// What DoModal gives when the step left the dialog open: it is then ended by force.
inline constexpr INT_PTR StillOpen = 7777;

// Shows the dialog, runs the step once its window stands, and gives what DoModal gives.
INT_PTR RunModal(CDialog& dialog, std::function<void()> step);

// Presses and releases a key in the window that has the focus; it takes effect after the step.
void TypeKey(WORD key);

// The same, and the dialog has handled it when this returns.
void TypeKeyNow(WORD key);

// The same with a character, for edit boxes.
void TypeCharacter(wchar_t character);
