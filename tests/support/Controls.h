// Finding and working dialogs and controls by control id, from any thread of the process.
//
// What waits for something throws std::runtime_error when it does not come: inside a ModalScript that fails the test.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace kztest {

// The topmost visible, enabled dialog (message boxes included) of this process that is not in the list; null when there
// is none.
[[nodiscard]] HWND TopDialog(const std::vector<HWND>& ignored = {});
// The same, waited for.
HWND WaitForDialog(const std::vector<HWND>& ignored = {});
// Waits until the window is gone.
void WaitUntilGone(HWND window);

[[nodiscard]] std::wstring TextOf(HWND window);
[[nodiscard]] std::wstring TextOf(HWND dialog, int id);
[[nodiscard]] std::wstring ClassOf(HWND window);
void SetText(HWND dialog, int id, const std::wstring& text);
// Clicks a button. Returns when the click has been handled, a modal loop that it opens included.
void Click(HWND dialog, int id);
// The same without waiting, for buttons that open something.
void PostClick(HWND dialog, int id);
[[nodiscard]] bool IsChecked(HWND dialog, int id);
[[nodiscard]] bool IsEnabled(HWND dialog, int id);
// The control of the id in the window or in what it embeds; null when there is none.
[[nodiscard]] HWND ControlIn(HWND window, int id);
// The ids of the direct children in their order, -1 for statics without a number of their own.
[[nodiscard]] std::vector<int> ChildIds(HWND dialog);

// The window of the dialog's thread that has the focus, and its id (0: none).
[[nodiscard]] HWND FocusedWindow(HWND dialog);
[[nodiscard]] int FocusedId(HWND dialog);
// Types a key or a text into the focused window through the message queue, so that the dialog's loop sees it.
void PressKey(HWND dialog, WORD key);
void TypeText(HWND dialog, const std::wstring& text);

// Waits for a message box, presses the button and waits until the box is gone. Returns the text it showed.
std::wstring AnswerMessageBox(int button);
// The same; fails the test when the text is another one.
void AnswerMessageBox(const std::wstring& expectedText, int button);

// The text of a tab of a tab control in this process.
[[nodiscard]] std::wstring TabText(HWND tab, int index);

}  // namespace kztest
