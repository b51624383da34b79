// Windows that code makes and moves about: no dialog, no message map.
#include <gtest/gtest.h>

#include "TestDialog.h"

namespace {

CRect PlaceOf(const CWnd& window)
{
    CRect place;
    window.GetWindowRect(&place);
    return place;
}

class Windows : public testing::Test {
protected:
    Windows() { dialog.Open(); }

    TestDialog dialog;
};

TEST_F(Windows, KeepTheirIcons)
{
    const HICON icon = ::LoadIconW(nullptr, reinterpret_cast<LPCWSTR>(IDI_WARNING));
    dialog.SetIcon(icon, TRUE);
    EXPECT_EQ(dialog.SetIcon(nullptr, TRUE), icon);
    EXPECT_EQ(dialog.SetIcon(nullptr, TRUE), nullptr);
}

TEST_F(Windows, FindTheirParentsAndTheirNeighbours)
{
    CWnd* const edit = dialog.GetDlgItem(IDC_EDIT);
    EXPECT_EQ(edit->GetParent(), &dialog);
    EXPECT_EQ(dialog.GetNextDlgTabItem(edit)->GetDlgCtrlID(), IDC_CHECK);
    EXPECT_EQ(dialog.GetNextDlgTabItem(nullptr)->GetDlgCtrlID(), IDC_EDIT);
}

TEST_F(Windows, ChangeTheirId)
{
    CWnd* const edit = dialog.GetDlgItem(IDC_EDIT);
    EXPECT_EQ(edit->SetDlgCtrlID(77), IDC_EDIT);
    EXPECT_EQ(edit->GetDlgCtrlID(), 77);
}

TEST_F(Windows, AreCentredInTheirParent)
{
    CStatic child;
    ASSERT_TRUE(child.Create(L"STATIC", L"", WS_CHILD, CRect(0, 0, 10, 10), &dialog, 4002));
    child.CenterWindow();
    CRect parent;
    dialog.GetClientRect(&parent);
    CRect place = PlaceOf(child);
    dialog.ScreenToClient(&place);
    EXPECT_EQ(place.CenterPoint().x, parent.CenterPoint().x);
    EXPECT_EQ(place.CenterPoint().y, parent.CenterPoint().y);
}

TEST_F(Windows, ArePaintedAtOnceWhenAsked)
{
    dialog.ShowWindow(SW_SHOW);
    dialog.Invalidate();
    EXPECT_TRUE(::GetUpdateRect(dialog, nullptr, FALSE));
    EXPECT_TRUE(dialog.RedrawWindow());
    EXPECT_FALSE(::GetUpdateRect(dialog, nullptr, FALSE));
}

TEST_F(Windows, AreDestroyedThroughATemporaryObjectToo)
{
    const HWND edit = dialog.Item(IDC_EDIT);
    CWnd* const temporary = CWnd::FromHandle(edit);
    EXPECT_TRUE(temporary->DestroyWindow());
    EXPECT_FALSE(::IsWindow(edit));
    EXPECT_FALSE(temporary->DestroyWindow()) << "it has none any more";
}

class Reluctant : public CWnd {
public:
    bool gone = false;

protected:
    BOOL PreCreateWindow(CREATESTRUCTW& structure) override
    {
        EXPECT_TRUE(CWnd::PreCreateWindow(structure));
        EXPECT_NE(structure.lpszClass, nullptr) << "a window without a class gets one";
        return FALSE;
    }
    void PostNcDestroy() override { gone = true; }
};

TEST(Window, IsNotMadeWhenItsObjectRefuses)
{
    Reluctant window;
    EXPECT_FALSE(window.CreateEx(0, nullptr, L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr));
    EXPECT_EQ(window.m_hWnd, nullptr);
    EXPECT_TRUE(window.gone);
}

}  // namespace
