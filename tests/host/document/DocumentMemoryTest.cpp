// Every operation at every point where memory may run out: no leak, and the document as it was.
#include <gtest/gtest.h>

#include <cstdlib>
#include <functional>
#include <new>
#include <pugixml.hpp>

#include "FailingMemory.h"
#include "KZXmlDocument.h"

namespace {

// Runs an operation with memory for 0, 1, 2 … allocations until it succeeds.
void WithScarceMemory(const std::function<void()>& operation, const std::function<void()>& check)
{
    for (long failing = 1;; ++failing) {
        ASSERT_LT(failing, 1000);
        bool failed = false;
        FailAllocationsFrom(failing);
        try {
            operation();
        } catch (const std::bad_alloc&) {
            failed = true;
        }
        FailAllocation(0);
        if (!failed)
            return;
        check();
    }
}

class ScarceMemory : public testing::Test {
protected:
    ScarceMemory() { pugi::set_memory_management_functions(&FailingMalloc, &std::free); }
    ~ScarceMemory() override { pugi::set_memory_management_functions(&std::malloc, &std::free); }

    static constexpr char Text[] = "<r>\n  <a>\n    <v>old</v>\n  </a>\n</r>\n";
};

TEST_F(ScarceMemory, LeavesTheOldContentWhenParsingFails)
{
    XmlDocument document(L"r");
    document.Root()->SetValue(L"before", L"1");
    const std::string before = document.Serialize();
    WithScarceMemory([&] { static_cast<void>(document.Parse(Text)); },
                     [&] { EXPECT_EQ(document.Serialize(), before); });
    EXPECT_EQ(document.Serialize(), Text);
}

TEST_F(ScarceMemory, LeavesTheOldTextWhenAValueCannotBeSet)
{
    XmlDocument document(L"r");
    ASSERT_TRUE(document.Parse(Text));
    const std::wstring longText(50000, L'x');
    WithScarceMemory([&] { document.Node(L"a")->SetValue(L"v", longText.c_str()); },
                     [&] {
                         EXPECT_STREQ(document.Root()->Value(L"a/v", L""), L"old");
                         EXPECT_EQ(document.Serialize(), Text);
                     });
    EXPECT_EQ(document.Root()->Value(L"a/v", L""), longText);
}

TEST_F(ScarceMemory, LeavesEveryPieceOfATextThatCannotBeEmptied)
{
    constexpr char divided[] = "<r><v>one<!-- c -->two<w/>three</v></r>";
    XmlDocument document(L"r");
    ASSERT_TRUE(document.Parse(divided));
    WithScarceMemory([&] { document.Root()->SetValue(L"v", L""); }, [&] { EXPECT_EQ(document.Serialize(), divided); });
    EXPECT_EQ(document.Serialize(), "<r><v><!-- c --><w/></v></r>");
}

TEST_F(ScarceMemory, LeavesNoHalfMadeValue)
{
    XmlDocument document(L"r");
    ASSERT_TRUE(document.Parse(Text));
    const std::wstring longText(50000, L'x');
    WithScarceMemory([&] { document.Node(L"a")->SetValue(L"w", longText.c_str()); },
                     [&] { EXPECT_EQ(document.Serialize(), Text); });
    EXPECT_EQ(document.Root()->Value(L"a/w", L""), longText);
}

TEST_F(ScarceMemory, LeavesNoHalfMadeChild)
{
    XmlDocument document(L"r");
    ASSERT_TRUE(document.Parse(Text));
    // A name that fills pages makes every allocation a real one.
    const std::wstring name(20000, L'n');
    WithScarceMemory([&] { static_cast<void>(document.Node(L"a/v")->NewChild(name.c_str(), nullptr)); },
                     [&] { EXPECT_EQ(document.Serialize(), Text); });
    EXPECT_NE(document.Node((L"a/v/" + name).c_str()), nullptr);
}

}  // namespace
