// The list of unsaved changes, the list of findings, and the question before a save.
#include "window/review/ReviewDialog.h"

#include "DialogFixture.h"
#include "ListCells.h"
#include "MessageBoxes.h"
#include "fields/Field.h"
#include "text/EditorText.h"
#include "text/FieldText.h"
#include "text/PlantMessage.h"
#include "window/findings/FindingsList.h"
#include "window/review/ReviewControls.h"
#include "window/save/SaveQuestion.h"

namespace {

using editor_tests::BoxOf;
using editor_tests::CellOf;

class ReviewDialogTest : public editor_tests::DialogTest {
protected:
    static bool WaitForBox(HWND list, int row, UINT box)
    {
        return kztest::WaitUntil([=] { return BoxOf(list, row) == box; });
    }

    ReviewDialog m_dialog{nullptr,
                          {{L"TREN1", L"Minimum current", L"20", L"25"},
                           {L"CPD", L"Algorithm", L"Standard", L"Fast"},
                           {L"", L"Other", L"", L"", false}},
                          2};
};

// The list in a window of its own, which answers it as the frame does.
class FindingsWindow : public CWnd {
public:
    FindingsWindow()
    {
        CreateEx(0, AfxRegisterWndClass(0), L"", WS_OVERLAPPEDWINDOW, 0, 0, 600, 300, nullptr, nullptr);
        const HWND list = ::CreateWindowExW(0, WC_LISTVIEWW, L"", WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_OWNERDATA, 0,
                                            0, 600, 200, m_hWnd, nullptr, nullptr, nullptr);
        m_lstFindings.SubclassWindow(list);
        m_lstFindings.SetUp();
    }
    ~FindingsWindow() override { DestroyWindow(); }

    FindingsList m_lstFindings;

protected:
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override
    {
        return m_lstFindings.Answer(*reinterpret_cast<const NMHDR*>(lParam), *result) ||
               CWnd::OnNotify(wParam, lParam, result);
    }
};

const plant::Findings Two{
    {"CPD", "device.minCurrent", {IDS_PLANT_CHECK_NO_WHOLE_NUMBER, {L"x"}}},
    {"", "devices/stray.xml", {IDS_PLANT_CHECK_STRAY_DOCUMENT, {}}},
};

}  // namespace

TEST_F(ReviewDialogTest, ShowsEachChangeWithABoxWhereItCanBeTakenBack)
{
    Run(m_dialog, [](HWND window) {
        const HWND list = ::GetDlgItem(window, IDC_REVIEW_CHANGES);
        EXPECT_EQ(kztest::TextOf(window, IDC_REVIEW_LABEL_CHANGES), FormatEditorText(IDS_REVIEW_CHANGES, 3, 2));
        EXPECT_EQ(CellOf(list, 1, 0), L"CPD");
        EXPECT_EQ(CellOf(list, 1, 3), L"Fast");
        EXPECT_EQ(BoxOf(list, 0), 1U);
        EXPECT_EQ(BoxOf(list, 2), 0U);
        EXPECT_FALSE(kztest::IsEnabled(window, IDOK));
    });
}

TEST_F(ReviewDialogTest, GivesTheLinesThatSpaceHasChecked)
{
    EXPECT_EQ(Run(m_dialog,
                  [](HWND window) {
                      const HWND list = ::GetDlgItem(window, IDC_REVIEW_CHANGES);
                      kztest::PressKey(window, VK_DOWN);
                      kztest::PressKey(window, VK_SPACE);
                      EXPECT_TRUE(WaitForBox(list, 1, 2));
                      EXPECT_EQ(BoxOf(list, 0), 1U);
                      kztest::Click(window, IDOK);
                  }),
              IDOK);
    EXPECT_EQ(m_dialog.Checked(), std::vector<std::size_t>{1});
}

TEST_F(ReviewDialogTest, ChecksAllMarkedLinesAlikeAndNoneThatCannotBe)
{
    Run(m_dialog, [](HWND window) {
        const HWND list = ::GetDlgItem(window, IDC_REVIEW_CHANGES);
        ListView_SetItemState(list, -1, LVIS_SELECTED, LVIS_SELECTED);
        kztest::PressKey(window, VK_SPACE);
        EXPECT_TRUE(WaitForBox(list, 1, 2));
        EXPECT_EQ(BoxOf(list, 0), 2U);
        EXPECT_EQ(BoxOf(list, 2), 0U);
        kztest::PressKey(window, VK_SPACE);
        EXPECT_TRUE(WaitForBox(list, 1, 1));
        EXPECT_FALSE(kztest::IsEnabled(window, IDOK));
    });
}

TEST_F(ReviewDialogTest, ChecksByAClickOnTheBoxAlone)
{
    Run(m_dialog, [](HWND window) {
        const HWND list = ::GetDlgItem(window, IDC_REVIEW_CHANGES);
        RECT row{};
        ListView_GetItemRect(list, 1, &row, LVIR_LABEL);
        const int middle = (row.top + row.bottom) / 2;
        ::SendMessageW(list, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(row.left - 6, middle));
        EXPECT_EQ(BoxOf(list, 1), 2U);
        EXPECT_TRUE(kztest::IsEnabled(window, IDOK));
        ::SendMessageW(list, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(row.left - 6, middle));
        EXPECT_EQ(BoxOf(list, 1), 1U);
    });
}

TEST_F(ReviewDialogTest, ChecksAllAndNoneByTheButtons)
{
    EXPECT_EQ(Run(m_dialog,
                  [](HWND window) {
                      kztest::Click(window, IDC_REVIEW_NONE);
                      EXPECT_FALSE(kztest::IsEnabled(window, IDOK));
                      kztest::Click(window, IDC_REVIEW_ALL);
                      EXPECT_TRUE(kztest::IsEnabled(window, IDOK));
                      kztest::Click(window, IDOK);
                  }),
              IDOK);
    EXPECT_EQ(m_dialog.Checked(), (std::vector<std::size_t>{0, 1}));
}

TEST(FindingsListTest, ShowsDeviceSettingAndMessage)
{
    FindingsWindow window;
    window.m_lstFindings.Show(Two);
    const plant::Field& field = *plant::FindField(*plant::FieldsOfType(L"ZEP"), "device.minCurrent");
    EXPECT_EQ(CellOf(window.m_lstFindings, 0, 0), L"CPD");
    EXPECT_EQ(CellOf(window.m_lstFindings, 0, 1), FieldCaption(field));
    EXPECT_EQ(CellOf(window.m_lstFindings, 0, 2), PlantMessage(Two[0].reason));
    EXPECT_EQ(CellOf(window.m_lstFindings, 1, 1), L"devices/stray.xml");
}

TEST(FindingsListTest, WalksAroundInBothDirections)
{
    FindingsWindow window;
    FindingsList& list = window.m_lstFindings;
    EXPECT_EQ(list.GoToNext(), nullptr);
    EXPECT_EQ(list.GoToPrevious(), nullptr);
    list.Show(Two);
    EXPECT_EQ(list.Current(), nullptr);
    EXPECT_EQ(*list.GoToNext(), Two[0]);
    EXPECT_EQ(*list.GoToNext(), Two[1]);
    EXPECT_EQ(*list.GoToNext(), Two[0]);
    EXPECT_EQ(*list.GoToPrevious(), Two[1]);
    EXPECT_EQ(*list.Current(), Two[1]);
}

TEST(FindingsListTest, KeepsTheMarkAtTheFindingWhileItIsThere)
{
    FindingsWindow window;
    FindingsList& list = window.m_lstFindings;
    list.Show(Two);
    list.MarkOnly(1);
    list.Show({Two[1]});
    EXPECT_EQ(*list.Current(), Two[1]);
    list.Show({Two[0]});
    EXPECT_EQ(list.Current(), nullptr);
    list.Show({});
    EXPECT_EQ(list.GetItemCount(), 0);
}

TEST(SaveQuestion, NamesHowMuchIsSaved)
{
    for (const int answer : {IDYES, IDNO}) {
        kztest::MessageBoxes boxes(answer);
        EXPECT_EQ(AskToSave({34, 11}), answer == IDYES);
        ASSERT_EQ(boxes.Texts().size(), 1U);
        EXPECT_EQ(boxes.Texts()[0], FormatEditorText(IDS_ASK_TO_SAVE, 34, 11));
    }
}
