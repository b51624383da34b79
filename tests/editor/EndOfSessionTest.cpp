// Windows ends while something is not saved.
#include "ProjectWindowFixture.h"

#include <future>

using editor_tests::DirtyTitle;
using editor_tests::Press;
using editor_tests::WaitUntil;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

namespace {

class EndOfSession : public editor_tests::ProjectWindowTest {
protected:
    EndOfSession()
    {
        m_program.AddModule("ready");
        Open();
    }

    // Windows' question whether the session may end; the answer comes with the future.
    [[nodiscard]] std::future<LRESULT> Query() const
    {
        return std::async(std::launch::async,
                          [window = m_window] { return ::SendMessageW(window, WM_QUERYENDSESSION, 0, 0); });
    }
    void End(bool ends) const { ::SendMessageW(m_window, WM_ENDSESSION, ends, 0); }
};

}  // namespace

TEST_F(EndOfSession, AsksNothingWhenNothingIsUnsaved)
{
    EXPECT_NE(Query().get(), 0);
    EXPECT_FALSE(HasBox());
    End(true);
    EXPECT_EQ(m_editor->Wait(), 0);
}

TEST_F(EndOfSession, YesSaves)
{
    MakeDirty();
    auto answer = Query();
    EXPECT_THAT(AnswerBox(IDYES), HasSubstr("Save the changes"));
    EXPECT_NE(answer.get(), 0);
    EXPECT_THAT(Main(), HasSubstr("<changedBy>"));
    End(true);
    EXPECT_EQ(m_editor->Wait(), 0);
    EXPECT_THAT(Leftovers(), IsEmpty());
}

TEST_F(EndOfSession, NoThrowsTheChangesAwayWhenTheSessionEnds)
{
    MakeDirty();
    auto answer = Query();
    AnswerBox(IDNO);
    EXPECT_NE(answer.get(), 0);
    EXPECT_THAT(Leftovers(), SizeIs(1));
    End(true);
    EXPECT_EQ(m_editor->Wait(), 0);
    EXPECT_THAT(Leftovers(), IsEmpty());
    EXPECT_THAT(Main(), Not(HasSubstr("<changedBy>")));
}

TEST_F(EndOfSession, NoThrowsNothingAwayWhenTheSessionGoesOn)
{
    MakeDirty();
    auto answer = Query();
    AnswerBox(IDNO);
    EXPECT_NE(answer.get(), 0);
    End(false);
    ExpectTitle(DirtyTitle);
    EXPECT_THAT(Leftovers(), SizeIs(1));
    // That answer was for that time: ended without another one, everything is still wanted.
    End(true);
    EXPECT_EQ(m_editor->Wait(), 0);
    EXPECT_THAT(Leftovers(), SizeIs(1));
}

TEST_F(EndOfSession, CancelKeepsTheSession)
{
    MakeDirty();
    auto answer = Query();
    AnswerBox(IDCANCEL);
    EXPECT_EQ(answer.get(), 0);
    End(false);
    ExpectTitle(DirtyTitle);
    ExpectNothingAsked();
}

TEST_F(EndOfSession, LosesNothingWithoutAnAnswer)
{
    MakeDirty();
    auto answer = Query();
    EXPECT_TRUE(WaitUntil([&] { return HasBox(); }));
    End(true);
    m_editor->Kill();
    EXPECT_THAT(Leftovers(), SizeIs(1));
    Open();
    AnswerBox(IDYES);
    ExpectTitle(DirtyTitle);
}

TEST_F(EndOfSession, LosesNothingWhileTheOfferToRecoverIsOpen)
{
    MakeDirty();
    m_editor->Kill();
    Open();
    EXPECT_TRUE(WaitUntil([&] { return HasBox(); }));
    EXPECT_EQ(Query().get(), 0);
    End(true);
    m_editor->Kill();
    EXPECT_THAT(Leftovers(), SizeIs(1));
}

TEST_F(EndOfSession, WaitsForTheDialogInFrontOfTheWindow)
{
    Press(m_window, IDC_OPTIONS);
    ASSERT_NE(m_editor->WindowTitled(L"test options"), nullptr);
    EXPECT_EQ(Query().get(), 0);
    Answer(L"test options", IDOK);
    ExpectTitle(DirtyTitle);
}

TEST_F(EndOfSession, SavingThatFailsKeepsTheSession)
{
    MakeDirty();
    m_folder.Write("plant/history", "in the way");
    auto answer = Query();
    AnswerBox(IDYES);
    EXPECT_THAT(AnswerBox(IDOK), HasSubstr("Nothing was saved"));
    EXPECT_EQ(answer.get(), 0);
    ExpectTitle(DirtyTitle);
}
