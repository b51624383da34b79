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

// All kinds of changes, with one before them that is for good.
TEST_F(ScarceMemory, TakesBackAWholeEditThatFails)
{
    constexpr char text[] = "<r>\n  <a>o&#110;e<!-- c -->two</a>\n  <b><![CDATA[three]]> four</b>\n  <c> </c>\n</r>\n";
    XmlDocument document(L"r");
    ASSERT_TRUE(document.Parse(text));
    document.Root()->SetValue(L"c", L"kept");
    document.SetDirty(true);
    const std::string before = document.Serialize();
    const auto edit = [&] {
        XmlDocument::XmlNode& root = *document.Root();
        root.SetValue(L"a", L"");
        root.SetValue(L"b", L"changed");
        root.SetValue(L"b", L"changed once more");
        root.SetValue(L"c", L"changed");
        XmlDocument::XmlNode& child = *root.NewChild(L"d", root.FirstChild(L"b"));
        child.SetValue(L"e", std::wstring(20000, L'e').c_str());
        child.SetValue(L"e", std::wstring(30000, L'e').c_str());
        child.SetValue(L"f", 1234567);
        child.SetValue(L"\u00F1", L"1");
        root.RemoveChild(root.FirstChild(L"c"));
    };
    WithScarceMemory(edit, [&] {
        EXPECT_EQ(document.Serialize(), before);
        EXPECT_STREQ(document.Root()->Value(L"a", L""), L"one");
        EXPECT_STREQ(document.Root()->Value(L"b", L""), L"three");
        EXPECT_EQ(document.Node(L"d"), nullptr);
    });
    const std::string after = document.Serialize();
    XmlDocument undisturbed(L"r");
    ASSERT_TRUE(undisturbed.Parse(after));
    EXPECT_STREQ(undisturbed.Root()->Value(L"b", L""), L"changed once more");
    EXPECT_STREQ(undisturbed.Root()->Value(L"d/f", L""), L"1234567");
    document.SetDirty(true);
    EXPECT_EQ(document.Serialize(), after);
}

// Of what is recorded, the part before the edit that fails stays recorded.
TEST_F(ScarceMemory, TakesBackAndMakesAgainWhatWasRecordedBeforeAnEditThatFails)
{
    XmlDocument document(L"r");
    ASSERT_TRUE(document.Parse(Text));
    const std::wstring longText(50000, L'x');
    const std::string kept = "<r>\n  <a>\n    <v>old</v>\n  </a>\n  <w>kept</w>\n</r>\n";
    const auto edit = [&] {
        document.StartRecording();
        document.Root()->SetValue(L"w", L"kept");
        document.SetDirty(true);
        document.Root()->RemoveChild(document.Node(L"a"));
        document.Root()->SetValue(L"w", longText.c_str());
    };
    int keptOnes = 0;
    for (long failing = 1;; ++failing) {
        ASSERT_TRUE(document.Parse(Text));
        FailAllocationsFrom(failing);
        bool failed = false;
        try {
            edit();
        } catch (const std::bad_alloc&) {
            failed = true;
        }
        const auto change = document.StopRecording();
        FailAllocation(0);
        if (!failed)
            break;
        EXPECT_EQ(document.Serialize(), change ? kept : Text);
        if (change) {
            EXPECT_TRUE(document.TakeBack(*change));
            EXPECT_EQ(document.Serialize(), Text);
            EXPECT_TRUE(document.MakeAgain(*change));
            EXPECT_EQ(document.Serialize(), kept);
            ++keptOnes;
        }
    }
    EXPECT_GT(keptOnes, 0);
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
    // Some of so many long names begin a page of the tree's memory, which makes each kind of allocation a real one.
    const std::wstring name(1000, L'n');
    for (int child = 0; child < 40; ++child) {
        document.SetDirty(true);
        const std::string before = document.Serialize();
        WithScarceMemory([&] { static_cast<void>(document.Node(L"a/v")->NewChild(name.c_str(), nullptr)); },
                         [&] { EXPECT_EQ(document.Serialize(), before); });
        EXPECT_NE(document.Serialize(), before);
    }
}

}  // namespace
