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

// In percent of the growth: how far a control moves, and how much it grows.
TEST_F(MainWindowSize, GivesTheListAThirdOfNewHeightAndThePanesTheRest)
{
    const struct {
        int id, moveX, moveY, growX, growY;
    } expected[] = {
        {IDC_DEVICES_LABEL, 0, 0, 0, 0},   {IDC_DEVICES, 0, 0, 100, 33},    {IDC_SELECT, 0, 33, 0, 0},
        {IDC_OPTIONS, 0, 33, 0, 0},        {IDC_SAVE, 100, 33, 0, 0},       {IDC_CHOSEN_LABEL, 0, 33, 0, 0},
        {IDC_CHOSEN, 0, 33, 20, 67},       {IDC_REMOVE, 0, 100, 0, 0},      {IDC_SUMMARY_LABEL, 20, 33, 40, 0},
        {IDC_SUMMARY, 20, 33, 40, 67},     {IDC_PANE_LABEL, 60, 33, 40, 0}, {IDC_PANE, 60, 33, 40, 67},
        {IDC_MODULES_LABEL, 0, 100, 0, 0}, {IDC_MODULES, 0, 100, 100, 0},
    };
    std::vector<CRect> before;
    for (const auto& row : expected)
        before.push_back(PlaceOf(Control(row.id)));
    Grow();
    std::size_t index = 0;
    for (const auto& row : expected) {
        const CRect& was = before[index++];
        const CRect now = PlaceOf(Control(row.id));
        EXPECT_EQ(now.left - was.left, GrowthX * row.moveX / 100) << row.id;
        EXPECT_EQ(now.top - was.top, GrowthY * row.moveY / 100) << row.id;
        EXPECT_EQ(now.Width() - was.Width(), GrowthX * row.growX / 100) << row.id;
        EXPECT_EQ(now.Height() - was.Height(), GrowthY * row.growY / 100) << row.id;
    }
}

TEST_F(MainWindowSize, KeepsTheTabOrderWhenItsControlsMove)
{
    const std::vector<int> before = kztest::ChildIds(m_window.m_hWnd);
    Grow();
    EXPECT_EQ(kztest::ChildIds(m_window.m_hWnd), before);
}

TEST_F(MainWindowSize, LaysTheEmbeddedDialogOutAnew)
{
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
    for (const int id : {IDC_DEVICES, IDC_SUMMARY})
        EXPECT_GE(WidthOfColumns(Control(id)), ClientOf(Control(id)).right) << id;
    Grow();
    for (const int id : {IDC_DEVICES, IDC_SUMMARY})
        EXPECT_EQ(WidthOfColumns(Control(id)), ClientOf(Control(id)).right) << id;
}

TEST_F(MainWindowSize, CanBeLargerThanTheScreenAndNoSmallerThanItsDrawing)
{
    CRect smallest;
    m_window.GetWindowRect(&smallest);
    const std::vector<int> ids = kztest::ChildIds(m_window.m_hWnd);
    m_window.MoveWindow(0, 0, 5000, 4000);
    CRect window;
    m_window.GetWindowRect(&window);
    EXPECT_EQ(window.Size(), CSize(5000, 4000));
    m_window.MoveWindow(0, 0, 10, 10);
    m_window.GetWindowRect(&window);
    EXPECT_EQ(window.Size(), smallest.Size());
}
