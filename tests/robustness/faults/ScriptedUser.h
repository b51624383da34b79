// A user who works every dialog of the module in one fixed way: changes something and presses OK. A dialog that stays
// open is confirmed once more and then cancelled; messages are answered with Yes or OK.
#pragma once

#include <afxwin.h>

#include <array>
#include <string>
#include <vector>

#include "StepLoop.h"

class ScriptedUser {
public:
    // section: the section of the options hub that the user opens; -1 for none.
    // confirms: whether a dialog that is still open after its OK is confirmed again, or cancelled at once.
    explicit ScriptedUser(int section = -1, bool confirms = true);

    // What the message boxes said.
    [[nodiscard]] const std::vector<std::wstring>& Messages() const noexcept { return m_messages; }

private:
    enum Kind { Hub, Device, Units, Limits, Selection, Unknown, KindCount };

    void Step();
    [[nodiscard]] static Kind KindOf(HWND dialog);
    void Work(HWND dialog, Kind kind);
    static void Change(HWND dialog, Kind kind);

    int m_section;
    bool m_confirms;
    std::vector<std::wstring> m_messages;
    std::array<int, KindCount> m_visits{};
    StepLoop m_loop;
};
