// Taking elements out, and changes that are recorded, taken back and made again.
#include <gtest/gtest.h>

#include "KZXmlDocument.h"
#include "ParameterNames.h"
#include "Random.h"

namespace {

using Change = std::unique_ptr<XmlDocument::Change>;

struct Removal {
    const char* name;
    const char* before;
    const char* after;
};

class Removed : public testing::TestWithParam<Removal> {};

TEST_P(Removed, LeavesTheRestByteForByte)
{
    XmlDocument document(L"r");
    ASSERT_TRUE(document.Parse(GetParam().before));
    EXPECT_TRUE(document.Root()->RemoveChild(document.Root()->FirstChild(L"x")));
    EXPECT_EQ(document.Root()->FirstChild(L"x"), nullptr);
    EXPECT_EQ(document.Serialize(), GetParam().after);
}

INSTANTIATE_TEST_SUITE_P(
    Documents, Removed,
    testing::Values(Removal{"Alone", "<r><x/></r>", "<r></r>"},
                    Removal{"First", "<r>\n  <x/>\n  <b/>\n</r>", "<r>\n  <b/>\n</r>"},
                    Removal{"Last", "<r>\r\n  <b/>\r\n  <x a='>'/>\r\n</r>", "<r>\r\n  <b/>\r\n</r>"},
                    Removal{"OneLine", "<r><a/><x>1</x><b/></r>", "<r><a/><b/></r>"},
                    Removal{"Nested", "<r> <x><x><!--</x>--></x><![CDATA[</x>]]><?p </x>?></x>\n</r>", "<r>\n</r>"},
                    Removal{"BehindAComment", "<r>\n <!--c-->\n <x>&#65;</x >\n</r >", "<r>\n <!--c-->\n</r >"},
                    Removal{"BehindText", "<r>a<x/>b</r>", "<r>ab</r>"}),
    kztest::ByName);

TEST(RemoveChild, RefusesWhatIsNoChild)
{
    XmlDocument document(L"r");
    ASSERT_TRUE(document.Parse("<r><a><b/></a></r>"));
    EXPECT_FALSE(document.Root()->RemoveChild(document.Node(L"a/b")));
    EXPECT_FALSE(document.Root()->RemoveChild(nullptr));
    EXPECT_FALSE(document.Root()->RemoveChild(document.Root()));
    EXPECT_EQ(document.Serialize(), "<r><a><b/></a></r>");
}

TEST(RemoveChild, TakesOutWhatIsNewAndWhatIsChanged)
{
    XmlDocument document(L"r");
    ASSERT_TRUE(document.Parse("<r>\n  <x><v>1</v></x>\n</r>\n"));
    document.Node(L"x")->SetValue(L"v", L"2");
    XmlDocument::XmlNode* const fresh = document.Root()->NewChild(L"n", nullptr);
    fresh->NewChild(L"o", nullptr)->SetValue(L"p", L"3");
    EXPECT_TRUE(fresh->RemoveChild(fresh->FirstChild(L"o")));
    EXPECT_TRUE(document.Root()->RemoveChild(document.Node(L"x")));
    EXPECT_EQ(document.Serialize(), "<r>\n  <n>\n  </n>\n</r>\n");
    EXPECT_TRUE(document.Root()->RemoveChild(fresh));
    EXPECT_EQ(document.Serialize(), "<r>\n</r>\n");
    document.Root()->NewChild(L"n", nullptr);
    EXPECT_EQ(document.Serialize(), "<r>\n  <n/>\n</r>\n");
}

TEST(RemoveChild, IsSeenByLookingUpAmongMany)
{
    XmlDocument document(L"r");
    for (int number = 0; number < 200; ++number)
        document.Root()->NewChild(L"x", nullptr)->SetValue(L"id", number);
    ASSERT_TRUE(document.Node(L"x?id=150?"));
    EXPECT_TRUE(document.Root()->RemoveChild(document.Node(L"x?id=150?")));
    EXPECT_EQ(document.Node(L"x?id=150?"), nullptr);
    EXPECT_TRUE(document.Node(L"x?id=151?"));
}

constexpr char Text[] = "<r>\n  <a>o&#110;e</a>\n  <b/>\n  <c>\n    <d>1</d>\n  </c>\n</r>\n";

class Recording : public testing::Test {
protected:
    Recording() { EXPECT_TRUE(m_document.Parse(Text)); }

    template <class Edit>
    Change Recorded(Edit edit)
    {
        m_document.StartRecording();
        edit(*m_document.Root());
        return m_document.StopRecording();
    }

    XmlDocument m_document{L"r"};
};

TEST_F(Recording, GivesNothingWhereNothingWasChanged)
{
    EXPECT_EQ(Recorded([](XmlDocument::XmlNode& root) { root.SetValue(L"a", L"one"); }), nullptr);
    EXPECT_EQ(m_document.StopRecording(), nullptr);
}

TEST_F(Recording, IsTakenBackAndMadeAgainToTheSameBytes)
{
    const Change change = Recorded([&](XmlDocument::XmlNode& root) {
        root.SetValue(L"a", L"two");
        root.SetValue(L"a", L"three");
        root.RemoveChild(root.FirstChild(L"b"));
        m_document.SetDirty(true);
        root.FirstChild(L"c")->NewChild(L"e", root.FirstChild(L"c")->FirstChild(L"d"))->SetValue(L"f", 2);
        root.RemoveChild(root.FirstChild(L"c"));
        root.NewChild(L"n", nullptr)->SetValue(L"v", 3);
    });
    ASSERT_TRUE(change);
    EXPECT_GT(change->Size(), 500u);
    m_document.SetDirty(true);
    const std::string after = m_document.Serialize();
    for (int turn = 0; turn < 3; ++turn) {
        EXPECT_FALSE(m_document.MakeAgain(*change));
        EXPECT_TRUE(m_document.TakeBack(*change));
        EXPECT_EQ(m_document.Serialize(), Text);
        EXPECT_STREQ(m_document.Root()->Value(L"a", L""), L"one");
        EXPECT_FALSE(m_document.TakeBack(*change));
        EXPECT_TRUE(m_document.MakeAgain(*change));
        EXPECT_EQ(m_document.Serialize(), after);
        EXPECT_STREQ(m_document.Root()->Value(L"n/v", L""), L"3");
    }
}

TEST_F(Recording, KnowsWhatWasSaved)
{
    const auto set = [](const wchar_t* text) { return [=](XmlDocument::XmlNode& root) { root.SetValue(L"a", text); }; };
    const Change first = Recorded(set(L"2"));
    m_document.SetDirty(true);
    m_document.SetDirty(false);
    const Change second = Recorded(set(L"3"));
    EXPECT_TRUE(m_document.TakeBack(*second));
    EXPECT_FALSE(m_document.IsDirty());
    EXPECT_TRUE(m_document.TakeBack(*first));
    EXPECT_TRUE(m_document.IsDirty());
    EXPECT_TRUE(m_document.MakeAgain(*first));
    EXPECT_FALSE(m_document.IsDirty());
    EXPECT_TRUE(m_document.MakeAgain(*second));
    EXPECT_TRUE(m_document.IsDirty());
}

TEST_F(Recording, DoesNotTakeForSavedWhatSomebodyCalledDirty)
{
    m_document.SetDirty(true);
    const Change change = Recorded([](XmlDocument::XmlNode& root) { root.SetValue(L"a", L"2"); });
    EXPECT_TRUE(m_document.TakeBack(*change));
    EXPECT_TRUE(m_document.IsDirty());
}

TEST_F(Recording, IsRefusedWhereTheDocumentIsAnotherByNow)
{
    const Change change = Recorded([](XmlDocument::XmlNode& root) { root.SetValue(L"a", L"2"); });
    m_document.Root()->SetValue(L"d", L"4");
    const std::string other = m_document.Serialize();
    EXPECT_FALSE(m_document.TakeBack(*change));
    EXPECT_EQ(m_document.Serialize(), other);
    ASSERT_TRUE(m_document.Parse(Text));
    EXPECT_FALSE(m_document.TakeBack(*change));
    EXPECT_EQ(m_document.Serialize(), Text);
    EXPECT_EQ(change->Size(), change->Size()) << "it has outlived what it was made of";
}

TEST(Fingerprint, IsOfNamesAttributesAndTexts)
{
    const auto of = [](const char* text) {
        XmlDocument document(L"r");
        EXPECT_TRUE(document.Parse(text)) << text;
        return document.Root()->Fingerprint();
    };
    EXPECT_EQ(of("<r><a>1</a></r>"), of("<r>\n  <a>&#49;</a><!-- c -->\n</r>"));
    for (const char* other : {"<r><a>2</a></r>", "<r><b>1</b></r>", "<r><a b='1'>1</a></r>", "<r><a>1</a><a/></r>",
                              "<r><a><a>1</a></a></r>", "<r><a>1</a>1</r>", "<r><a></a>1</r>"})
        EXPECT_NE(of("<r><a>1</a></r>"), of(other)) << other;
}

// Any changes, some of them unwanted, walked back and forth beside the bytes that each has left.
class RandomRecordings : public testing::TestWithParam<unsigned> {
protected:
    XmlDocument::XmlNode& Somewhere()
    {
        XmlDocument::XmlNode* node = m_document.Root();
        while (!m_random.OneIn(3)) {
            XmlDocument::XmlNode* const child = node->FirstChild(m_random.OneIn(2) ? L"x" : L"y");
            if (!child)
                break;
            node = child->NextSibling(L"x") && m_random.OneIn(2) ? child->NextSibling(L"x") : child;
        }
        return *node;
    }
    void ChangeSomething()
    {
        XmlDocument::XmlNode& node = Somewhere();
        XmlDocument::XmlNode* const child = node.FirstChild(m_random.OneIn(2) ? L"x" : L"y");
        switch (m_random.Below(5)) {
        case 0:
            node.NewChild(m_random.OneIn(2) ? L"x" : L"y", m_random.OneIn(2) ? child : nullptr);
            break;
        case 1:
            node.RemoveChild(child);
            break;
        case 2:
            m_document.SetDirty(true);
            break;
        default:
            node.SetValue(m_random.OneIn(2) ? L"v" : L"x", static_cast<int>(m_random.Below(4)));
        }
    }
    void CheckBytes(const std::string& expected)
    {
        ASSERT_EQ(m_document.Serialize(), expected);
        XmlDocument again(L"r");
        ASSERT_TRUE(again.Parse(expected)) << expected;
    }

    Random m_random{GetParam()};
    XmlDocument m_document{L"r"};
};

TEST_P(RandomRecordings, WalkBackAndForthOverTheSameBytes)
{
    ASSERT_TRUE(m_document.Parse("<r>\r\n  <x a='&lt;'>\r\n    <v>1</v><!-- x -->\r\n    <x/>\r\n  </x>\r\n"
                                 "  <y><![CDATA[c]]> d<x>e</x></y>\r\n  <x><y><v/></y></x>\r\n</r>\r\n"));
    std::vector<Change> changes;
    std::vector<std::string> bytes{m_document.Serialize()};
    std::size_t at = 0;
    for (int step = 0; step < 3000; ++step) {
        if (m_random.OneIn(2)) {
            changes.resize(at);
            bytes.resize(at + 1);
            m_document.StartRecording();
            for (std::size_t count = m_random.Below(8); count > 0; --count)
                ChangeSomething();
            if (Change change = m_document.StopRecording()) {
                changes.push_back(std::move(change));
                bytes.push_back(m_document.Serialize());
                ++at;
            }
        } else if (m_random.OneIn(2) && at > 0) {
            ASSERT_TRUE(m_document.TakeBack(*changes[--at]));
        } else if (at < changes.size()) {
            ASSERT_TRUE(m_document.MakeAgain(*changes[at++]));
        }
        // The oldest steps are forgotten.
        if (at > 30) {
            changes.erase(changes.begin(), changes.begin() + 10);
            bytes.erase(bytes.begin(), bytes.begin() + 10);
            at -= 10;
        }
        ASSERT_NO_FATAL_FAILURE(CheckBytes(bytes[at])) << "step " << step;
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomRecordings, testing::Range(1u, 6u),
                         [](const auto& seed) { return "Seed" + std::to_string(seed.param); });

}  // namespace
