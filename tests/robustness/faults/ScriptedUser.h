// A user who works every dialog of the module in one fixed way: changes something and presses OK. A dialog that stays
// open is confirmed once more and then cancelled; messages are answered with Yes or OK.
#pragma once

#include <afxwin.h>

#include <array>
#include <string>
#include <vector>

#include "DialogKind.h"
#include "StepLoop.h"

class ScriptedUser {
public:
    // section: the section of the options hub that the user opens, if any.
    // confirms: whether a dialog that is still open after its OK is confirmed again, or cancelled at once.
    explicit ScriptedUser(OptionalSection section = {}, bool confirms = true);

    // What the message boxes said.
    [[nodiscard]] const std::vector<std::wstring>& Messages() const noexcept { return m_messages; }

private:
    void Step();
    void Work(HWND dialog, DialogKind kind);
    static void Change(HWND dialog, DialogKind kind);

    OptionalSection m_section;
    bool m_confirms;
    std::vector<std::wstring> m_messages;
    std::array<int, DialogKindCount> m_visits{};
    StepLoop m_loop;
};
