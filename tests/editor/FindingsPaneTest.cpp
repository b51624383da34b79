// The findings below list and pages: what the check of the open project tells, and the way to the values.
#include <gmock/gmock.h>

#include <fstream>

#include "Controls.h"
#include "EditorWindowFixture.h"
#include "HeldKeys.h"
#include "ListCells.h"
#include "ModalScript.h"
#include "ProjectXml.h"
#include "changes/DeviceEdit.h"
#include "fields/Field.h"
#include "text/FieldText.h"

namespace {

using editor_tests::CellOf;

class FindingsPane : public editor_tests::OpenMainWindow, public testing::WithParamInterface<KZLanguage> {
protected:
    static constexpr const char* Broken = "devices/zep-02.xml";

    void SetUp() override
    {
        OpenMainWindow::SetUp();
        m_window.Speak(GetParam());
        Replace("devices/zep-06.xml", "<algorithm>3", "<algorithm>1");  // what is wrong in the example
    }
    ~FindingsPane() override { KZMainCfg::Get()->SetDirty(false); }

    [[nodiscard]] static bool IsSpanish() { return GetParam() == KZLanguage::Spanish; }
    void Run(int command) const { m_window.SendMessage(WM_COMMAND, static_cast<WPARAM>(command)); }
    [[nodiscard]] bool IsShown() const { return ::IsWindowVisible(Control(IDC_FINDINGS)) != FALSE; }
    [[nodiscard]] int Count() const { return ListView_GetItemCount(Control(IDC_FINDINGS)); }
    [[nodiscard]] int Marked(int list) const { return ListView_GetNextItem(Control(list), -1, LVNI_SELECTED); }
    [[nodiscard]] bool IsOffered(int command) const
    {
        return (::GetMenuState(::GetMenu(m_window.m_hWnd), static_cast<UINT>(command), MF_BYCOMMAND) & MF_GRAYED) == 0;
    }
    [[nodiscard]] std::wstring Status() const
    {
        std::array<wchar_t, 64> part{};
        ::SendMessageW(Control(IDC_STATUS_BAR), SB_GETTEXTW, 3, reinterpret_cast<LPARAM>(part.data()));
        return part.data();
    }

    // Gives a document of the project, by its name, another text on disk.
    void Replace(const char* document, const std::string& before, const std::string& after) const
    {
        const std::filesystem::path file = m_copied.Path() / "plant" / document;
        std::ifstream in(file, std::ios::binary);
        std::string text{std::istreambuf_iterator<char>(in), {}};
        in.close();
        const std::size_t at = text.find(before);
        ASSERT_NE(at, std::string::npos);
        std::ofstream(file, std::ios::binary) << text.replace(at, before.size(), after);
    }
    void BreakMinCurrent() const { Replace(Broken, "<minCurrent>", "<minCurrent>x"); }
    void MendMinCurrent() const { Replace(Broken, "<minCurrent>x", "<minCurrent>"); }

    void WaitForCheck() const
    {
        const wchar_t* const counted = IsSpanish() ? L"hallazgo" : L"finding";
        ASSERT_TRUE(DispatchUntil([=, this] { return Status().find(counted) != std::wstring::npos; }));
    }
    void PressAltEnter(int control)
    {
        const kztest::HeldKeys held({VK_MENU});
        const MSG enter{Control(control), WM_SYSKEYDOWN, VK_RETURN, 1, 0, {}};
        EXPECT_TRUE(m_window.TranslateKey(enter));
    }
    // The window is in this thread, and so is its check.
    [[nodiscard]] static bool DispatchUntil(const std::function<bool()>& condition)
    {
        return kztest::WaitUntil([&] {
            kztest::DispatchPending();
            return condition();
        });
    }
    void CheckAll() const
    {
        Run(IDC_CHECK);
        WaitForCheck();
    }

    const plant::Field& m_field = *plant::FindField(*plant::FieldsOfType(L"ZEP"), "device.minCurrent");
};

}  // namespace

TEST_P(FindingsPane, IsHiddenUntilSomebodyChecks)
{
    EXPECT_FALSE(IsShown());
    EXPECT_FALSE(IsOffered(IDC_NEXT_FINDING));
    EXPECT_EQ(Status(), L"");
    CheckAll();
    EXPECT_TRUE(IsShown());
    EXPECT_EQ(Count(), 0);
    EXPECT_EQ(Status(), IsSpanish() ? L"0 hallazgos" : L"0 findings");
    EXPECT_EQ(kztest::TextOf(Control(IDC_FINDINGS_LABEL)), IsSpanish() ? L"Hallazgos (0)" : L"Findings (0)");
    EXPECT_FALSE(IsOffered(IDC_NEXT_FINDING));
    Run(IDC_FINDINGS_CLOSE);
    EXPECT_FALSE(IsShown());
}

TEST_P(FindingsPane, ListsSignsAndCountsWhatTheCheckFinds)
{
    BreakMinCurrent();
    CheckAll();
    ASSERT_EQ(Count(), 1);
    const HWND list = Control(IDC_FINDINGS);
    EXPECT_EQ(CellOf(list, 0, 0), m_project.Devices()[1].name.c_str());
    EXPECT_EQ(CellOf(list, 0, 1), FieldCaption(m_field));
    EXPECT_NE(CellOf(list, 0, 2), L"");
    EXPECT_EQ(Status(), IsSpanish() ? L"1 hallazgo" : L"1 finding");
    EXPECT_EQ(CellOf(Control(IDC_DEVICES), 0, 0), IsSpanish() ? L"marcado" : L"marked");
    EXPECT_EQ(CellOf(Control(IDC_DEVICES), 1, 0), IsSpanish() ? L"con avisos" : L"with findings");
    MendMinCurrent();
    CheckAll();
    ASSERT_TRUE(DispatchUntil([this] { return Count() == 0; }));
    EXPECT_EQ(CellOf(Control(IDC_DEVICES), 1, 0), L"");
    EXPECT_FALSE(IsOffered(IDC_NEXT_FINDING));
}

TEST_P(FindingsPane, ComesUpWithTheFirstFindingOfAChange)
{
    BreakMinCurrent();
    const std::vector<KZBasicString> driverIds{m_project.Devices()[0].driverId};
    plant::DeviceNaming naming = plant::NamingOf(m_project.Devices()[0]);
    naming.description = L"otra";
    EXPECT_TRUE(m_window.Change({IDS_PLANT_STEP_RENAME, {L"TREN1"}}, driverIds,
                                [&] { plant::RenameDevice(m_project, 0, naming); }));
    WaitForCheck();
    EXPECT_TRUE(IsShown());
    EXPECT_EQ(Count(), 1);
    Run(IDC_FINDINGS_CLOSE);
    Replace("devices/zep-01.xml", "<minCurrent>", "<minCurrent>y");
    Run(IDC_UNDO);
    EXPECT_TRUE(DispatchUntil([this] { return Count() == 2; }));
    EXPECT_FALSE(IsShown()) << "who has closed it, wants it no more";
}

TEST_P(FindingsPane, LeadsToTheValueOnItsPage)
{
    BreakMinCurrent();
    CheckAll();
    Run(IDC_SHOW_VARIABLES);
    ::SetWindowTextW(Control(IDC_FIND), m_project.Devices()[0].name.c_str());
    Run(IDC_SHOW_FINDINGS);
    EXPECT_EQ(::GetFocus(), Control(IDC_FINDINGS));
    Run(IDC_NEXT_FINDING);
    EXPECT_EQ(Marked(IDC_FINDINGS), 0);
    EXPECT_EQ(kztest::TextOf(Control(IDC_FIND)), L"") << "the device would be hidden";
    EXPECT_EQ(Marked(IDC_DEVICES), 1);
    EXPECT_EQ(m_window.ShownPage(), PageName::Values);
    EXPECT_EQ(CellOf(Control(IDC_VALUES), Marked(IDC_VALUES), 0), L"    " + FieldCaption(m_field));
    EXPECT_EQ(::GetFocus(), Control(IDC_FINDINGS));
    ListView_SetItemState(Control(IDC_DEVICES), -1, 0, LVIS_SELECTED);
    MSG enter{Control(IDC_FINDINGS), WM_KEYDOWN, VK_RETURN, 1, 0, {}};
    EXPECT_TRUE(m_window.TranslateKey(enter));
    EXPECT_EQ(Marked(IDC_DEVICES), 1);
    EXPECT_EQ(::GetFocus(), Control(IDC_VALUES));
}

TEST_P(FindingsPane, LeadsToTheSectionOfTheOptions)
{
    BreakMinCurrent();
    CheckAll();
    Run(IDC_SHOW_FINDINGS);
    Run(IDC_NEXT_FINDING);
    std::wstring title;
    kztest::ModalScript script([&] {
        const HWND dialog = kztest::WaitForDialog({m_window.m_hWnd});
        title = kztest::TextOf(dialog);
        kztest::PostClick(dialog, IDCANCEL);
        kztest::WaitUntilGone(dialog);
    });
    PressAltEnter(IDC_FINDINGS);
    EXPECT_TRUE(DispatchUntil([&] { return !title.empty() && m_window.IsWindowEnabled(); }));
    EXPECT_TRUE(title.starts_with(IsSpanish() ? L"Configuración del equipo" : L"Device settings"));
    EXPECT_EQ(Marked(IDC_DEVICES), 1);
    EXPECT_EQ(m_window.ShownPage(), PageName::Options);
}

TEST_P(FindingsPane, IsWalkedByNextAndPrevious)
{
    BreakMinCurrent();
    Replace("devices/zep-04.xml", "<minCurrent>", "<minCurrent>y");
    CheckAll();
    ASSERT_EQ(Count(), 2);
    Run(IDC_FINDINGS_CLOSE);
    for (const int device : {1, 3, 1}) {
        Run(IDC_NEXT_FINDING);
        EXPECT_EQ(Marked(IDC_DEVICES), device);
    }
    EXPECT_TRUE(IsShown());
    Run(IDC_PREVIOUS_FINDING);
    EXPECT_EQ(Marked(IDC_DEVICES), 3);
}

TEST_P(FindingsPane, LetsItsWordsBeFound)
{
    BreakMinCurrent();
    CheckAll();
    ::SetWindowTextW(Control(IDC_FIND), CellOf(Control(IDC_FINDINGS), 0, 2).c_str());
    ASSERT_EQ(ListView_GetItemCount(Control(IDC_DEVICES)), 1);
    EXPECT_EQ(CellOf(Control(IDC_DEVICES), 0, 2), m_project.Devices()[1].name.c_str());
    MendMinCurrent();
    Run(IDC_CHECK);
    EXPECT_TRUE(DispatchUntil([this] { return ListView_GetItemCount(Control(IDC_DEVICES)) == 0; }));
}

TEST_P(FindingsPane, StandsBelowTheOtherPanesBehindABarThatMoves)
{
    const CRect before = PlaceOf(Control(IDC_DEVICES));
    Run(IDC_SHOW_FINDINGS);
    const CRect list = PlaceOf(Control(IDC_FINDINGS));
    EXPECT_LT(PlaceOf(Control(IDC_DEVICES)).bottom, PlaceOf(Control(IDC_FINDINGS_BAR)).top + 1);
    EXPECT_LE(PlaceOf(Control(IDC_FINDINGS_BAR)).bottom, PlaceOf(Control(IDC_FINDINGS_LABEL)).top);
    EXPECT_LE(PlaceOf(Control(IDC_FINDINGS_CLOSE)).bottom, list.top);
    EXPECT_EQ(list.bottom, before.bottom);
    ::SendMessageW(Control(IDC_FINDINGS_BAR), WM_KEYDOWN, VK_UP, 0);
    EXPECT_NEAR(PlaceOf(Control(IDC_FINDINGS)).top, list.top - 16, 2);
    for (int press = 0; press < 100; ++press)
        ::SendMessageW(Control(IDC_FINDINGS_BAR), WM_KEYDOWN, VK_DOWN, 0);
    EXPECT_GT(PlaceOf(Control(IDC_FINDINGS)).Height(), 30);
    for (const int pane : {IDC_FIND, IDC_DEVICES, IDC_LIST_BAR, IDC_VALUES, IDC_FINDINGS_BAR, IDC_FINDINGS}) {
        Run(IDC_NEXT_PANE);
        EXPECT_EQ(::GetFocus(), Control(pane)) << pane;
    }
    Run(IDC_FINDINGS_CLOSE);
    EXPECT_EQ(::GetFocus(), Control(IDC_DEVICES));
    EXPECT_EQ(PlaceOf(Control(IDC_DEVICES)), before);
}

INSTANTIATE_TEST_SUITE_P(Languages, FindingsPane, testing::Values(KZLanguage::English, KZLanguage::Spanish),
                         [](const auto& language) {
                             return std::string(language.param == KZLanguage::Spanish ? "Spanish" : "English");
                         });
