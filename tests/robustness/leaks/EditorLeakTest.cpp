// The editor's dialogs, opened and closed again and again, leave nothing behind.
#include <gtest/gtest.h>

#include "Controls.h"
#include "ParameterNames.h"
#include "Repetition.h"
#include "editor/dialogs/SampleDialogs.h"

namespace {

// Cancels each dialog of this thread as it opens.
class CancellingUser {
public:
    CancellingUser() : m_timer(::SetTimer(nullptr, 0, USER_TIMER_MINIMUM, Cancel)) {}
    ~CancellingUser() { ::KillTimer(nullptr, m_timer); }
    CancellingUser(const CancellingUser&) = delete;
    CancellingUser& operator=(const CancellingUser&) = delete;

private:
    static void CALLBACK Cancel(HWND, UINT, UINT_PTR, DWORD)
    {
        if (const HWND dialog = kztest::TopDialog())
            ::PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
    }
    UINT_PTR m_timer;
};

class RepeatedEditorDialog : public testing::TestWithParam<editor_tests::SampleDialog> {
protected:
    Repetition m_repetition;
};

}  // namespace

TEST_P(RepeatedEditorDialog, LeavesNothing)
{
    const CancellingUser user;
    const auto openAndClose = [] {
        GetParam().make()->DoModal();
        AfxGetApp()->OnIdle(0);
        return 0L;
    };
    m_repetition.Repeat(openAndClose, 10);
}

INSTANTIATE_TEST_SUITE_P(Dialogs, RepeatedEditorDialog,
                         testing::ValuesIn(editor_tests::SampleDialogs().begin(), editor_tests::SampleDialogs().end()),
                         kztest::ByName);
