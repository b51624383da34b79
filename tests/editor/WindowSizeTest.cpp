// What the editor's windows do with more room, and with less.
#include <vector>

#include "EditorWindowFixture.h"
#include "KZDlgOptions.h"

namespace {

class MainWindowSize : public editor_tests::OpenMainWindow {
protected:
    static constexpr int GrowthX = 800;
    static constexpr int GrowthY = 300;

    void Grow()
    {
        CRect window;
        m_window.GetWindowRect(&window);
        m_window.MoveWindow(0, 0, window.Width() + GrowthX, window.Height() + GrowthY);
    }
};

int WidthOfColumns(HWND list)
{
    int width = 0;
    for (int column = 0; column < Header_GetItemCount(ListView_GetHeader(list)); ++column)
        width += ListView_GetColumnWidth(list, column);
    return width;
}

}  // namespace

TEST_F(MainWindowSize, GivesListAndPagesTheirSharesOfNewWidthAndAllNewHeight)
{
    const CRect list = PlaceOf(Control(IDC_DEVICES));
    const CRect tabs = PlaceOf(Control(IDC_PAGES));
    const CRect find = PlaceOf(Control(IDC_FIND));
    Grow();
    const CRect grownList = PlaceOf(Control(IDC_DEVICES));
    const CRect grownTabs = PlaceOf(Control(IDC_PAGES));
    EXPECT_EQ(grownList.TopLeft(), list.TopLeft());
    EXPECT_EQ(grownList.Height() - list.Height(), GrowthY);
    EXPECT_EQ(grownTabs.Height() - tabs.Height(), GrowthY);
    EXPECT_NEAR(grownList.Width() - list.Width(), GrowthX * 44 / 100, 2);
    EXPECT_EQ(grownList.Width() + grownTabs.Width() - list.Width() - tabs.Width(), GrowthX);
    EXPECT_EQ(PlaceOf(Control(IDC_FIND)).Height(), find.Height());
    EXPECT_EQ(PlaceOf(Control(IDC_FIND)).top, find.top);
}

TEST_F(MainWindowSize, MovesTheBarBetweenListAndPagesByMouseAndByKeys)
{
    const HWND bar = Control(IDC_LIST_BAR);
    const CRect before = PlaceOf(bar);
    const auto mouse = [bar](UINT message, int x) { ::SendMessageW(bar, message, MK_LBUTTON, MAKELPARAM(x, 50)); };
    mouse(WM_LBUTTONDOWN, 2);
    mouse(WM_MOUSEMOVE, 62);
    mouse(WM_LBUTTONUP, 2);
    mouse(WM_MOUSEMOVE, 90);
    EXPECT_NEAR(PlaceOf(bar).left, before.left + 60, 2);
    EXPECT_EQ(PlaceOf(Control(IDC_DEVICES)).right, PlaceOf(bar).left);
    EXPECT_EQ(PlaceOf(Control(IDC_PAGES)).left, PlaceOf(bar).right);
    ::SendMessageW(bar, WM_KEYDOWN, VK_LEFT, 0);
    EXPECT_NEAR(PlaceOf(bar).left, before.left + 44, 3);
    ::SendMessageW(bar, WM_KEYDOWN, VK_DOWN, 0);
    EXPECT_NEAR(PlaceOf(bar).left, before.left + 44, 3) << "it goes sideways only";
    for (int press = 0; press < 100; ++press)
        ::SendMessageW(bar, WM_KEYDOWN, VK_LEFT, 0);
    EXPECT_GT(PlaceOf(Control(IDC_DEVICES)).Width(), 100) << "the list stays usable";
    for (int press = 0; press < 100; ++press)
        ::SendMessageW(bar, WM_KEYDOWN, VK_RIGHT, 0);
    EXPECT_GT(PlaceOf(Control(IDC_PAGES)).Width(), 100) << "the pages stay usable";
}

TEST_F(MainWindowSize, FitsIntoAScreenOf800By600)
{
    CRect window;
    m_window.MoveWindow(0, 0, 10, 10);
    m_window.GetWindowRect(&window);
    const int dpi = ::GetDeviceCaps(::GetDC(nullptr), LOGPIXELSX);
    EXPECT_LE(window.Width(), 800 * dpi / 96);
    EXPECT_LE(window.Height(), 512 * dpi / 96);
}

TEST_F(MainWindowSize, KeepsTheTabOrderWhenItsControlsMove)
{
    const std::vector<int> before = kztest::ChildIds(m_window.m_hWnd);
    Grow();
    EXPECT_EQ(kztest::ChildIds(m_window.m_hWnd), before);
}

TEST_F(MainWindowSize, LaysTheEmbeddedDialogOutAnew)
{
    m_window.ShowPage(PageName::Options);
    const HWND embedded = EmbeddedIn(Control(IDC_PANE));
    const CRect before = PlaceOf(::GetDlgItem(embedded, KZSectionButtonBase));
    Grow();
    EXPECT_EQ(PlaceOf(embedded), ClientOf(Control(IDC_PANE)));
    EXPECT_NE(PlaceOf(::GetDlgItem(embedded, KZSectionButtonBase)), before);
}

TEST_F(MainWindowSize, GivesThePanesTextAllOfThePane)
{
    const HWND pane = Control(IDC_PANE);
    const HWND text = ::GetDlgItem(pane, IDC_PANE_TEXT);
    Grow();
    CRect margin(7, 7, 0, 0);
    ::MapDialogRect(pane, &margin);
    CRect expected = ClientOf(pane);
    expected.DeflateRect(margin.left, margin.top);
    EXPECT_EQ(PlaceOf(text), expected);
}

TEST_F(MainWindowSize, FillsItsListsWithTheirColumns)
{
    Grow();
    for (const int id : {IDC_DEVICES, IDC_VALUES})
        EXPECT_EQ(WidthOfColumns(Control(id)), ClientOf(Control(id)).right) << id;
}

TEST_F(MainWindowSize, CanBeLargerThanTheScreen)
{
    m_window.MoveWindow(0, 0, 5000, 4000);
    CRect window;
    m_window.GetWindowRect(&window);
    EXPECT_EQ(window.Size(), CSize(5000, 4000));
}
