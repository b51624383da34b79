// What debug builds say when an assumption does not hold.
#include <gtest/gtest.h>

#include <afxwin.h>

#include "Controls.h"
#include "ModalScript.h"

namespace {

TEST(Assertion, NamesExpressionFileAndLineInAMessage)
{
    const kztest::ModalScript script([] {
        const HWND box = kztest::WaitForDialog();
        EXPECT_EQ(kztest::TextOf(box), L"Assertion failed");
        EXPECT_EQ(kztest::TextOf(box, 0xFFFF), L"Module.cpp(42): assertion failed: count > 0\n");
        kztest::PostClick(box, IDIGNORE);
    });
    AfxAssertFailed("count > 0", "Module.cpp", 42);
}

}  // namespace
