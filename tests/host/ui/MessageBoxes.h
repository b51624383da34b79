// Answers the message boxes of this thread as they open, and remembers what they said.
#pragma once

#include <afxwin.h>

#include <string>
#include <vector>

class MessageBoxes {
public:
    explicit MessageBoxes(int answer = IDOK);
    ~MessageBoxes();
    MessageBoxes(const MessageBoxes&) = delete;
    MessageBoxes& operator=(const MessageBoxes&) = delete;

    [[nodiscard]] const std::vector<std::wstring>& Texts() const noexcept { return m_texts; }

private:
    static LRESULT CALLBACK Hook(int code, WPARAM wParam, LPARAM lParam);

    int m_answer;
    HHOOK m_hook;
    std::vector<std::wstring> m_texts;
};
