#include "EdgeGuard.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

#include "MessageBoxes.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class EdgeGuard : public testing::Test {
protected:
    // What the guard gives for an operation that throws; its failure value is -1.
    template <typename Operation>
    static int Guarded(Operation operation)
    {
        return zep::AtEdge(
            [&] {
                operation();
                return 1;
            },
            -1);
    }

    kztest::MessageBoxes m_boxes;
};

TEST_F(EdgeGuard, HandsOnWhatAnOperationGives)
{
    EXPECT_EQ(Guarded([] {}), 1);
    EXPECT_THAT(m_boxes.Texts(), IsEmpty());
}

TEST_F(EdgeGuard, TellsTheReasonOfAStandardException)
{
    EXPECT_EQ(Guarded([] { throw std::runtime_error("the reason"); }), -1);
    EXPECT_THAT(m_boxes.Texts(), ElementsAre(L"KZUsrZEP: the reason"));
}

TEST_F(EdgeGuard, LetsAnMfcExceptionTellItsReasonItself)
{
    EXPECT_EQ(Guarded([] { AfxThrowResourceException(); }), -1);
    EXPECT_THAT(m_boxes.Texts(), SizeIs(1));
}

TEST_F(EdgeGuard, ReportsWhateverElseIsThrown)
{
    EXPECT_EQ(Guarded([] { throw 7; }), -1);
    EXPECT_THAT(m_boxes.Texts(), ElementsAre(L"KZUsrZEP: unknown exception"));
}

}  // namespace
