// Texts, places and tabs of the limits dialog, in both languages.
#include "DialogLayout.h"
#include "GuiResources.h"
#include "KZStringIds.h"
#include "LimitsDialogFixture.h"
#include "ParameterNames.h"
#include "PlaceOf.h"

namespace {

std::wstring Text(unsigned id)
{
    return KZLoadString(id).c_str();
}

class LimitsDialogLanguages : public LimitsDialog, public testing::WithParamInterface<KZLanguage> {
protected:
    LimitsDialogLanguages() { KZQuorvelantaSetup::Get()->SetLanguage(GetParam()); }

    [[nodiscard]] std::wstring TabText(int tab) const
    {
        wchar_t text[128]{};
        TCITEMW item{};
        item.mask = TCIF_TEXT;
        item.pszText = text;
        item.cchTextMax = static_cast<int>(std::size(text));
        Tab().SendMessage(TCM_GETITEMW, static_cast<WPARAM>(tab), reinterpret_cast<LPARAM>(&item));
        return text;
    }
    [[nodiscard]] int TabImage(int tab) const
    {
        TCITEMW item{};
        item.mask = TCIF_IMAGE;
        Tab().SendMessage(TCM_GETITEMW, static_cast<WPARAM>(tab), reinterpret_cast<LPARAM>(&item));
        return item.iImage;
    }
    [[nodiscard]] CWnd& Tab() const { return *m_dialog->GetDlgItem(IDC_LIMITS_TAB); }
    [[nodiscard]] CRect Place(Page page, int id) const { return PlaceOf(Edit(page, id)); }
};

INSTANTIATE_TEST_SUITE_P(Languages, LimitsDialogLanguages, testing::Values(KZLanguage::English, KZLanguage::Spanish),
                         kztest::ByLanguage);

TEST_P(LimitsDialogLanguages, NamesItselfItsTabsAndItsButtons)
{
    Run([&] {
        EXPECT_EQ(ControlText(*m_dialog),
                  KZBasicString::Format(Text(KZS_LIMITS_TITLE).c_str(), Plant::Model().c_str()));
        EXPECT_EQ(Tab().SendMessage(TCM_GETITEMCOUNT), 3);
        EXPECT_EQ(TabText(0), Text(KZS_POWERS));
        EXPECT_EQ(TabText(1), Text(KZS_HARMONIC_CURRENTS) + L" " + Text(KZS_NET_SIDE));
        EXPECT_EQ(TabText(2), Text(KZS_HARMONIC_CURRENTS) + L" " + Text(KZS_LOAD_SIDE));
        for (int tab = 0; tab < 3; ++tab)
            EXPECT_EQ(TabImage(tab), tab);
        EXPECT_EQ(ControlText(*m_dialog->GetDlgItem(IDOK)), KZLoadString(311));
        EXPECT_EQ(ControlText(*m_dialog->GetDlgItem(IDCANCEL)), KZLoadString(312));
    });
}

TEST_P(LimitsDialogLanguages, LabelsThePowerPage)
{
    Run([&] {
        for (const int id : {IDC_POWER_NOMINAL_HEAD, IDC_POWER_NOMINAL_HEAD + 1, IDC_POWER_NOMINAL_HEAD + 2,
                             IDC_POWER_NOMINAL_HEAD + 3})
            EXPECT_EQ(TextOf(Power, id), Text(KZS_NOMINAL)) << id;
        for (const int id : {IDC_POWER_MAXW_HEAD, IDC_POWER_MAXW_HEAD + 1, IDC_POWER_MAXW_HEAD + 2,
                             IDC_POWER_MAXW_HEAD + 3, IDC_POWER_MINW_HEAD})
            EXPECT_EQ(TextOf(Power, id), Text(KZS_WARNING_LIMIT)) << id;
        for (const int id : {IDC_POWER_MAXD_HEAD, IDC_POWER_MAXD_HEAD + 1, IDC_POWER_MAXD_HEAD + 2,
                             IDC_POWER_MAXD_HEAD + 3, IDC_POWER_MIND_HEAD})
            EXPECT_EQ(TextOf(Power, id), Text(KZS_ALARM_LIMIT)) << id;
        for (const int id : {IDC_POWER_MAX_CAPTION + 1, IDC_POWER_MAX_CAPTION + 2, IDC_POWER_MAX_CAPTION + 3})
            EXPECT_EQ(TextOf(Power, id), Text(KZS_MAXIMUM)) << id;
        EXPECT_EQ(TextOf(Power, IDC_POWER_MAX_CAPTION), Text(KZS_POWER_FACTOR_MAXIMUM));
        EXPECT_EQ(TextOf(Power, IDC_POWER_MIN_CAPTION), Text(KZS_POWER_FACTOR_MINIMUM));
        EXPECT_EQ(TextOf(Power, IDC_PF_GROUP), Text(KZS_POWER_FACTOR));
        EXPECT_EQ(TextOf(Power, IDC_AP_GROUP), Text(KZS_ACTIVE_POWER));
        EXPECT_EQ(TextOf(Power, IDC_RP_GROUP), Text(KZS_REACTIVE_POWER));
        EXPECT_EQ(TextOf(Power, IDC_VA_GROUP), Text(KZS_APPARENT_POWER));
        EXPECT_EQ(TextOf(Power, IDC_PF_UNIT), L"");
        EXPECT_EQ(TextOf(Power, IDC_AP_UNIT), L"(Kw)");
        EXPECT_EQ(TextOf(Power, IDC_RP_UNIT), L"(Kvar)");
        EXPECT_EQ(TextOf(Power, IDC_VA_UNIT), L"(Kva)");
    });
}

TEST_P(LimitsDialogLanguages, LabelsTheHarmonicPages)
{
    Run([&] {
        for (const Page page : {Net, Load}) {
            for (int block = 0; block < 3; ++block) {
                EXPECT_EQ(TextOf(page, IDC_HARMONIC_NOMINAL_HEAD + block), Text(KZS_NOMINAL));
                EXPECT_EQ(TextOf(page, IDC_HARMONIC_MAXW_HEAD + block), Text(KZS_WARNING_LIMIT));
                EXPECT_EQ(TextOf(page, IDC_HARMONIC_MAXD_HEAD + block), Text(KZS_ALARM_LIMIT));
                EXPECT_EQ(TextOf(page, IDC_HARMONIC_MAX_CAPTION + block), Text(KZS_MAXIMUM));
            }
            EXPECT_EQ(TextOf(page, IDC_HARMONIC_ROW), Text(KZS_FUNDAMENTAL));
            for (int row = 1; row < 13; ++row)
                EXPECT_EQ(TextOf(page, IDC_HARMONIC_ROW + row),
                          KZBasicString::Format(Text(KZS_HARMONIC_ORDER).c_str(), 2 * row + 1).c_str());
            EXPECT_EQ(TextOf(page, IDC_FUNDAMENTAL_UNIT), L"(A)");
            EXPECT_EQ(TextOf(page, IDC_HARMONIC_UNIT_LEFT), L"(%)");
            EXPECT_EQ(TextOf(page, IDC_HARMONIC_UNIT_RIGHT), L"(%)");
        }
    });
}

TEST_P(LimitsDialogLanguages, IsTidyOnEveryTab)
{
    Run([&] {
        kztest::ExpectNothingClippedOrOverlapping(m_dialog->m_hWnd);
        for (const Page page : {Power, Net, Load}) {
            SelectTab(page);
            kztest::ExpectNothingClippedOrOverlapping(m_dialog->m_hWnd);
        }
    });
}

TEST_P(LimitsDialogLanguages, LaysItsPagesOverTheTabsDisplayArea)
{
    Run([&] {
        CRect item;
        Tab().SendMessage(TCM_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&item));
        CRect expected = PlaceOf(Tab().m_hWnd);
        expected.left += ::GetSystemMetrics(SM_CXEDGE);
        expected.right -= ::GetSystemMetrics(SM_CXEDGE);
        expected.top += item.Height() + 2 * ::GetSystemMetrics(SM_CYEDGE);
        expected.bottom -= ::GetSystemMetrics(SM_CYEDGE);
        for (const HWND page : m_pages)
            EXPECT_TRUE(PlaceOf(page) == expected);
    });
}

TEST_P(LimitsDialogLanguages, StandsTheHarmonicRowsInTwoBlocksUnderTheFundamental)
{
    Run([&] {
        for (const int first : {IDC_HARMONIC_NOMINAL, IDC_HARMONIC_MAXW, IDC_HARMONIC_MAXD}) {
            for (int row = 1; row <= 6; ++row) {
                EXPECT_LT(Place(Net, first + row - 1).bottom, Place(Net, first + row).top);
                EXPECT_EQ(Place(Net, first + row).left, Place(Net, first).left);
                EXPECT_EQ(Place(Net, first + row).top, Place(Net, first + 6 + row).top);
                EXPECT_EQ(Place(Net, first + 6 + row).left, Place(Net, first + 7).left);
            }
            EXPECT_LT(Place(Net, first).right, Place(Net, first + 7).left);
        }
        for (int row = 0; row < 13; ++row) {
            EXPECT_LT(Place(Net, IDC_HARMONIC_ROW + row).left, Place(Net, IDC_HARMONIC_NOMINAL + row).left);
            EXPECT_LT(Place(Net, IDC_HARMONIC_NOMINAL + row).right, Place(Net, IDC_HARMONIC_MAXW + row).left);
            EXPECT_LT(Place(Net, IDC_HARMONIC_MAXW + row).right, Place(Net, IDC_HARMONIC_MAXD + row).left);
        }
    });
}

TEST_P(LimitsDialogLanguages, KeepsItsPagesWithinANewSize)
{
    Run([&] {
        CRect window;
        m_dialog->GetWindowRect(&window);
        const int height = window.Height();
        m_dialog->MoveWindow(window.left, window.top, window.Width() + 120, height + 60);
        m_dialog->GetWindowRect(&window);
        EXPECT_EQ(window.Height(), height) << "the height follows the pages";
        for (const Page page : {Power, Net, Load}) {
            SelectTab(page);
            kztest::ExpectNothingClippedOrOverlapping(m_dialog->m_hWnd);
        }
    });
}

TEST_F(LimitsDialog, LeavesNoWindowMenuOrGdiObjectBehind)
{
    Run([] {});
    const auto before = kztest::CountGuiResources();
    Run([] {});
    EXPECT_EQ(kztest::CountGuiResources(), before);
}

}  // namespace
