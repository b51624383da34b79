// Texts, places and tabs of the limits dialog, in both languages.
#include "DialogLayout.h"
#include "GuiResources.h"
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
        EXPECT_EQ(ControlText(*m_dialog), KZBasicString::Format(Text(32903).c_str(), Plant::Model().c_str()));
        EXPECT_EQ(Tab().SendMessage(TCM_GETITEMCOUNT), 3);
        EXPECT_EQ(TabText(0), Text(24534));
        EXPECT_EQ(TabText(1), Text(809) + L" " + Text(35652));
        EXPECT_EQ(TabText(2), Text(809) + L" " + Text(35651));
        for (int tab = 0; tab < 3; ++tab)
            EXPECT_EQ(TabImage(tab), tab);
        EXPECT_EQ(ControlText(*m_dialog->GetDlgItem(IDOK)), KZLoadString(311));
        EXPECT_EQ(ControlText(*m_dialog->GetDlgItem(IDCANCEL)), KZLoadString(312));
    });
}

TEST_P(LimitsDialogLanguages, LabelsThePowerPage)
{
    Run([&] {
        for (const int id : {5356, 5357, 5358, 5359})
            EXPECT_EQ(TextOf(Power, id), Text(334)) << id;
        for (const int id : {5316, 5317, 5318, 5319, 5312})
            EXPECT_EQ(TextOf(Power, id), Text(335)) << id;
        for (const int id : {5332, 5333, 5334, 5335, 5328})
            EXPECT_EQ(TextOf(Power, id), Text(336)) << id;
        for (const int id : {5417, 5418, 5419})
            EXPECT_EQ(TextOf(Power, id), Text(803)) << id;
        EXPECT_EQ(TextOf(Power, 5416), Text(917));
        EXPECT_EQ(TextOf(Power, 5352), Text(916));
        EXPECT_EQ(TextOf(Power, 5300), Text(133));
        EXPECT_EQ(TextOf(Power, 5302), Text(24535));
        EXPECT_EQ(TextOf(Power, 5303), Text(933));
        EXPECT_EQ(TextOf(Power, 5304), Text(241));
        EXPECT_EQ(TextOf(Power, 5380), L"");
        EXPECT_EQ(TextOf(Power, 5384), L"(Kw)");
        EXPECT_EQ(TextOf(Power, 5385), L"(Kvar)");
        EXPECT_EQ(TextOf(Power, 5386), L"(Kva)");
    });
}

TEST_P(LimitsDialogLanguages, LabelsTheHarmonicPages)
{
    Run([&] {
        for (const Page page : {Net, Load}) {
            for (int block = 0; block < 3; ++block) {
                EXPECT_EQ(TextOf(page, 5458 + block), Text(334));
                EXPECT_EQ(TextOf(page, 5496 + block), Text(335));
                EXPECT_EQ(TextOf(page, 5531 + block), Text(336));
                EXPECT_EQ(TextOf(page, 5566 + block), Text(803));
            }
            EXPECT_EQ(TextOf(page, 5426), Text(816));
            for (int row = 1; row < 13; ++row)
                EXPECT_EQ(TextOf(page, 5426 + row), KZBasicString::Format(Text(564).c_str(), 2 * row + 1).c_str());
            EXPECT_EQ(TextOf(page, 5495), L"(A)");
            EXPECT_EQ(TextOf(page, 5493), L"(%)");
            EXPECT_EQ(TextOf(page, 5494), L"(%)");
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
