// One run of the selection dialog with a random user, watched by the model.
#pragma once

#include <afxwin.h>

#include <array>
#include <list>
#include <string>
#include <utility>
#include <vector>

#include "DialogUser.h"
#include "SelectionModel.h"
#include "StepLoop.h"
#include "ZepProject.h"

class SelectionSession {
public:
    // actions: how many things the user does at most before the dialog is cancelled.
    SelectionSession(ZepProject& project, Random& random, EventLog& log, long actions);
    ~SelectionSession();
    SelectionSession(const SelectionSession&) = delete;
    SelectionSession& operator=(const SelectionSession&) = delete;

    // Opens the dialog and compares what it does with the model. Returns what differed first; empty when nothing did.
    std::string Run();
    [[nodiscard]] int Refusals() const noexcept { return m_refusals; }

private:
    static constexpr int PageCount = 3;
    struct Page {
        HWND window = nullptr;
        WNDPROC procedure = nullptr;
    };

    void Step();
    void MeetDialog(HWND dialog);
    void MeetMessage(HWND box);
    void FindPages(HWND dialog);
    // Lets the model do what the pages have been told to do since the last time. Returns false after a refusal.
    bool FollowPresses();
    void CompareBoxes();
    void ComparePages(HWND dialog);
    void Fail(const std::string& difference);
    static LRESULT CALLBACK PageProcedure(HWND page, UINT message, WPARAM wParam, LPARAM lParam);

    static inline SelectionSession* s_current = nullptr;
    ZepProject& m_project;
    Random& m_random;
    EventLog& m_log;
    long m_actions;
    int m_maximum;
    std::list<KZBasicString> m_names;
    std::vector<std::wstring> m_chosenBefore;
    SelectionModel m_model;
    DialogUser m_user;
    StepLoop m_loop;
    std::array<Page, PageCount> m_pages{};
    std::vector<HWND> m_boxes;                   // as the model numbers them
    std::vector<std::pair<int, int>> m_presses;  // page and id
    HWND m_clicked = nullptr;
    int m_refusals = 0;
    std::string m_difference;
};
