// Answers the message boxes of this thread as they open, and remembers what they said and offered. One may be alive at
// a time.
#pragma once

#include <afxwin.h>

#include <string>
#include <vector>

namespace kztest {

struct SeenMessage {
    std::wstring text;
    bool asksYesNo = false;

    friend bool operator==(const SeenMessage&, const SeenMessage&) = default;
};

class MessageBoxes {
public:
    // answer is the button that is pressed in every box that has it; in the others it is OK.
    explicit MessageBoxes(int answer = IDOK);
    ~MessageBoxes();
    MessageBoxes(const MessageBoxes&) = delete;
    MessageBoxes& operator=(const MessageBoxes&) = delete;

    // What was said since the last Take.
    [[nodiscard]] std::vector<SeenMessage> Take();
    [[nodiscard]] std::vector<std::wstring> Texts() const;

private:
    static LRESULT CALLBACK Hook(int code, WPARAM wParam, LPARAM lParam);
    void Answer(HWND box);
    void Remember(HWND box);

    int m_answer;
    HHOOK m_hook;
    std::vector<SeenMessage> m_seen;
    HWND m_answered = nullptr;
};

}  // namespace kztest
