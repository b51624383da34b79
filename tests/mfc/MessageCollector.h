// Answers the message boxes of this thread as they open and keeps their texts. One may be alive at a time.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

class MessageCollector {
public:
    explicit MessageCollector(int answer = IDOK);
    ~MessageCollector();
    MessageCollector(const MessageCollector&) = delete;
    MessageCollector& operator=(const MessageCollector&) = delete;

    [[nodiscard]] const std::vector<std::wstring>& Texts() const noexcept { return m_texts; }

private:
    static LRESULT CALLBACK Hook(int code, WPARAM wParam, LPARAM lParam);

    int m_answer;
    HHOOK m_hook;
    HWND m_answered = nullptr;
    std::vector<std::wstring> m_texts;
};
