// A user who does one random thing after the other with the dialog that is on top. All input is posted, as the system
// posts it, and takes effect after the step that makes it.
#pragma once

#include <afxwin.h>

#include "EventLog.h"
#include "Random.h"

class DialogUser {
public:
    // closing: one in so many actions presses OK, Cancel, Enter or Escape, or closes the dialog.
    DialogUser(Random& random, EventLog& log, std::size_t closing) : m_random(random), m_log(log), m_closing(closing) {}

    // Does something with the dialog. Returns the button that it clicks, null for anything else.
    HWND Act(HWND dialog);
    // Presses one of the box's buttons.
    void Answer(HWND messageBox);

private:
    void Close(HWND dialog);
    void PressKey(HWND dialog);
    HWND UseControl(HWND control);
    void ClickTab(HWND tab);
    void TypeInto(HWND edit);
    void Type(HWND window, WORD key);

    Random& m_random;
    EventLog& m_log;
    std::size_t m_closing;
};
