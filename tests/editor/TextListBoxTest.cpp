// A list box that copies its marked rows and marks all, by keys and by its context menu.
#include "window/dialog/TextListBox.h"

#include <gtest/gtest.h>

#include "ClipboardText.h"
#include "HeldKeys.h"
#include "ModalScript.h"
#include "OpenMenu.h"
#include "window/dialog/Clipboard.h"

namespace {

constexpr int ListId = 5;
constexpr wchar_t Leave = VK_ESCAPE;
constexpr wchar_t Untouched[] = L"untouched";

class ListOwner : public CWnd {
public:
    ListOwner() { CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP | WS_VISIBLE, 0, 0, 300, 300, nullptr, nullptr); }
    ~ListOwner() override { DestroyWindow(); }
    int changes = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        changes += message == WM_COMMAND && wParam == MAKEWPARAM(ListId, LBN_SELCHANGE) ? 1 : 0;
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

class TextListBoxTest : public testing::Test {
protected:
    explicit TextListBoxTest(DWORD style = LBS_EXTENDEDSEL)
    {
        m_list.CreateEx(0, L"ListBox", L"", WS_CHILD | WS_VISIBLE | LBS_NOTIFY | style, 0, 0, 200, 200, m_owner.m_hWnd,
                        reinterpret_cast<HMENU>(static_cast<INT_PTR>(ListId)));
        for (const wchar_t* const text : {L"one", L"two", L"three"})
            m_list.AddString(text);
        CopyText(m_owner, Untouched);
    }

    void Press(WPARAM key, std::initializer_list<int> held = {VK_CONTROL})
    {
        const kztest::HeldKeys keys(held);
        m_list.SendMessage(WM_KEYDOWN, key, 1);
    }
    void Mark(int row) { m_list.SendMessage(LB_SETSEL, TRUE, row); }
    [[nodiscard]] std::wstring Marks() const
    {
        std::wstring marks;
        for (int row = 0; row < 3; ++row)
            marks += m_list.GetSel(row) > 0 ? L'x' : L'-';
        return marks;
    }

    // The place of a row on the screen, as WM_CONTEXTMENU tells it.
    [[nodiscard]] LPARAM PlaceOf(int row) const
    {
        CRect place;
        m_list.SendMessage(LB_GETITEMRECT, static_cast<WPARAM>(row),
                           reinterpret_cast<LPARAM>(static_cast<RECT*>(&place)));
        CPoint middle = place.CenterPoint();
        m_list.ClientToScreen(&middle);
        return MAKELPARAM(middle.x, middle.y);
    }
    // Opens the context menu and types a key into it. Returns how many items could be taken.
    std::size_t TakeFromMenu(LPARAM place, wchar_t key)
    {
        std::size_t offered = 0;
        kztest::ModalScript script([&] {
            offered = editor_tests::OfferedByTheMenu().size();
            editor_tests::TypeIntoTheMenu(m_list.m_hWnd, key);
        });
        m_list.SendMessage(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(m_list.m_hWnd), place);
        return offered;
    }

    ListOwner m_owner;
    TextListBox m_list;
};

class SingleTextListBoxTest : public TextListBoxTest {
protected:
    SingleTextListBoxTest() : TextListBoxTest(0) {}
};

constexpr LPARAM ByKeyboard = -1;

}  // namespace

TEST_F(TextListBoxTest, CopiesTheMarkedRowsALineEach)
{
    Mark(0);
    Mark(2);
    Press('C');
    EXPECT_EQ(editor_tests::ClipboardText(), L"one\r\nthree\r\n");
}

TEST_F(TextListBoxTest, LeavesTheClipboardAloneWhenNothingIsMarked)
{
    Press('C');
    EXPECT_EQ(editor_tests::ClipboardText(), Untouched);
}

TEST_F(TextListBoxTest, LeavesOtherKeysToTheSystem)
{
    Mark(1);
    Press('C', {});
    Press('C', {VK_CONTROL, VK_SHIFT});
    Press('C', {VK_CONTROL, VK_MENU});
    Press('A', {});
    EXPECT_EQ(editor_tests::ClipboardText(), Untouched);
    EXPECT_EQ(Marks(), L"-x-");
}

TEST_F(TextListBoxTest, MarksAllAndTellsItsParent)
{
    Press('A');
    EXPECT_EQ(Marks(), L"xxx");
    EXPECT_EQ(m_owner.changes, 1);
}

TEST_F(TextListBoxTest, OffersBothByTheMenuKey)
{
    Mark(1);
    EXPECT_EQ(TakeFromMenu(ByKeyboard, L'c'), 2U);
    EXPECT_EQ(editor_tests::ClipboardText(), L"two\r\n");
    TakeFromMenu(ByKeyboard, L'a');
    EXPECT_EQ(Marks(), L"xxx");
}

TEST_F(TextListBoxTest, OffersNoCopyWhenNothingIsMarked)
{
    EXPECT_EQ(TakeFromMenu(ByKeyboard, Leave), 1U);
    EXPECT_EQ(m_owner.changes, 0);
}

TEST_F(TextListBoxTest, MarksTheRowUnderTheRightButtonAlone)
{
    Mark(0);
    TakeFromMenu(PlaceOf(1), L'c');
    EXPECT_EQ(Marks(), L"-x-");
    EXPECT_EQ(m_owner.changes, 1);
    EXPECT_EQ(editor_tests::ClipboardText(), L"two\r\n");
}

TEST_F(TextListBoxTest, KeepsTheMarksWhenTheRowUnderTheRightButtonIsOneOfThem)
{
    Mark(0);
    Mark(2);
    TakeFromMenu(PlaceOf(2), L'c');
    EXPECT_EQ(m_owner.changes, 0);
    EXPECT_EQ(editor_tests::ClipboardText(), L"one\r\nthree\r\n");
}

TEST_F(TextListBoxTest, KeepsTheMarksBelowTheLastRow)
{
    Mark(0);
    CRect window;
    m_list.GetWindowRect(&window);
    TakeFromMenu(MAKELPARAM(window.left + 10, window.bottom - 5), Leave);
    EXPECT_EQ(Marks(), L"x--");
}

TEST_F(SingleTextListBoxTest, CopiesItsRowAndMarksNoOther)
{
    m_list.SendMessage(LB_SETCURSEL, 1);
    Press('A');
    Press('C');
    EXPECT_EQ(editor_tests::ClipboardText(), L"two\r\n");
    EXPECT_EQ(TakeFromMenu(PlaceOf(2), L'c'), 1U);
    EXPECT_EQ(Marks(), L"--x");
    EXPECT_EQ(editor_tests::ClipboardText(), L"three\r\n");
}
