// Windows that code makes and moves about: no dialog, no message map.
#include <gtest/gtest.h>

#include "Controls.h"
#include "ModalScript.h"
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

    // Makes a control by its own Create and finds it in the dialog, of the window class that it should have.
    template <class Control, class... Text>
    void ExpectMade(const wchar_t* windowClass, Text... text)
    {
        constexpr UINT Id = 4001;
        Control control;
        ASSERT_TRUE(control.Create(text..., WS_CHILD, CRect(5, 6, 25, 36), &dialog, Id));
        EXPECT_EQ(::GetDlgItem(dialog.m_hWnd, Id), control.m_hWnd);
        wchar_t name[64];
        ::GetClassNameW(control, name, static_cast<int>(std::size(name)));
        EXPECT_EQ(::_wcsicmp(name, windowClass), 0) << name;
        EXPECT_EQ(PlaceOf(control).Width(), 20);
        EXPECT_EQ(CWnd::FromHandlePermanent(control), &control);
        EXPECT_TRUE(control.DestroyWindow());
        EXPECT_EQ(control.m_hWnd, nullptr);
    }

    TestDialog dialog;
};

TEST_F(Windows, AreMadeOfEveryKindOfControl)
{
    ExpectMade<CStatic>(L"Static", L"text");
    ExpectMade<CButton>(L"Button", L"text");
    ExpectMade<CEdit>(L"Edit");
    ExpectMade<CComboBox>(L"ComboBox");
    ExpectMade<CListBox>(L"ListBox");
    ExpectMade<CTabCtrl>(WC_TABCONTROLW);
    ExpectMade<CListCtrl>(WC_LISTVIEWW);
}

TEST_F(Windows, KeepTheirIcons)
{
    const HICON icon = ::LoadIconW(nullptr, reinterpret_cast<LPCWSTR>(IDI_WARNING));
    dialog.SetIcon(icon, TRUE);
    EXPECT_EQ(dialog.GetIcon(TRUE), icon);
    EXPECT_EQ(dialog.SetIcon(nullptr, TRUE), icon);
    EXPECT_EQ(dialog.GetIcon(TRUE), nullptr);
}

TEST_F(Windows, FindTheirParentsAndTheirNeighbours)
{
    CWnd* const edit = dialog.GetDlgItem(IDC_EDIT);
    EXPECT_EQ(edit->GetTopLevelParent(), &dialog);
    EXPECT_EQ(edit->GetParent(), &dialog);
    EXPECT_TRUE(dialog.IsChild(edit));
    EXPECT_EQ(dialog.GetTopWindow(), edit);
    EXPECT_EQ(dialog.GetNextDlgTabItem(edit)->GetDlgCtrlID(), IDC_CHECK);
    EXPECT_EQ(dialog.GetNextDlgTabItem(nullptr)->GetDlgCtrlID(), IDC_EDIT);
    CWnd* const first = dialog.GetDlgItem(IDC_RADIO_FIRST);
    EXPECT_EQ(dialog.GetNextDlgGroupItem(first)->GetDlgCtrlID(), IDC_RADIO_SECOND);
    EXPECT_EQ(dialog.GetNextDlgGroupItem(first, TRUE)->GetDlgCtrlID(), IDC_RADIO_THIRD);
}

TEST_F(Windows, ChangeTheirParent)
{
    TestDialog other;
    other.Open();
    CWnd* const edit = dialog.GetDlgItem(IDC_EDIT);
    EXPECT_EQ(edit->SetParent(&other), &dialog);
    EXPECT_EQ(edit->GetParent(), &other);
    EXPECT_EQ(edit->SetDlgCtrlID(77), IDC_EDIT);
    EXPECT_EQ(edit->GetDlgCtrlID(), 77);
}

TEST_F(Windows, ChangeTheirExtendedStyle)
{
    EXPECT_TRUE(dialog.ModifyStyleEx(0, WS_EX_TOPMOST | WS_EX_CONTEXTHELP, SWP_FRAMECHANGED));
    EXPECT_NE(dialog.GetExStyle() & WS_EX_CONTEXTHELP, 0U);
    EXPECT_FALSE(dialog.ModifyStyleEx(0, WS_EX_CONTEXTHELP)) << "nothing changes any more";
}

TEST_F(Windows, AreCentredInTheirParent)
{
    CStatic child;
    ASSERT_TRUE(child.Create(L"", WS_CHILD, CRect(0, 0, 10, 10), &dialog, 4002));
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

TEST_F(Windows, AskInAMessageBoxOfTheirOwn)
{
    const kztest::ModalScript script([this] {
        const HWND box = kztest::WaitForDialog({dialog.m_hWnd});
        EXPECT_EQ(kztest::TextOf(box), L"Caption");
        EXPECT_EQ(::GetWindow(box, GW_OWNER), dialog.m_hWnd);
        kztest::PostClick(box, IDCANCEL);
    });
    EXPECT_EQ(dialog.MessageBox(L"Text", L"Caption", MB_OKCANCEL), IDCANCEL);
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

TEST(Window, CanBeADialogWhoseTemplateIsInMemory)
{
    struct Template {
        DLGTEMPLATE head;
        WORD menu;
        WORD windowClass;
        wchar_t title[6];
    };
    static const Template made{{WS_POPUP | WS_CAPTION, 0, 0, 0, 0, 60, 30}, 0, 0, L"Title"};
    class FromMemory : public CDialog {
    public:
        BOOL OnInitDialog() override
        {
            CDialog::OnInitDialog();
            CString title;
            GetWindowText(title);
            EXPECT_EQ(title, L"Title");
            EndDialog(8);
            return TRUE;
        }
    } dialog;
    ASSERT_TRUE(dialog.InitModalIndirect(&made.head));
    EXPECT_EQ(dialog.DoModal(), 8);
    EXPECT_FALSE(FromMemory().InitModalIndirect(nullptr));
}

}  // namespace
