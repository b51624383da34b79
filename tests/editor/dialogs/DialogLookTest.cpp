// Every dialog of the editor in each language and at each resolution: nothing cut, nothing over anything else, small
// enough for a small screen, each access key once, and a name for everything that Tab reaches.
#include <commctrl.h>

#include "DialogFixture.h"
#include "DialogLayout.h"
#include "ParameterNames.h"
#include "PlatformNames.h"
#include "SampleDialogs.h"
#include "ShownParts.h"
#include "WorkArea.h"
#include "resources/EditorIds.h"
#include "text/EditorText.h"

namespace {

class DialogLook : public editor_tests::DialogTest,
                   public testing::WithParamInterface<std::tuple<editor_tests::SampleDialog, KZLanguage>> {
protected:
    DialogLook() { KZQuorvelantaSetup::Get()->SetLanguage(std::get<1>(GetParam())); }

    void Look(const std::function<void(HWND)>& look)
    {
        const std::unique_ptr<CDialog> dialog = std::get<0>(GetParam()).make();
        Run(*dialog, look);
    }
};

bool HasStyle(HWND window, DWORD style)
{
    return (static_cast<DWORD>(::GetWindowLongPtrW(window, GWL_STYLE)) & style) == style;
}

CSize SizeOf(HWND window)
{
    CRect place;
    ::GetWindowRect(window, &place);
    return place.Size();
}

}  // namespace

TEST_P(DialogLook, IsTidy)
{
    Look([](HWND dialog) { kztest::ExpectNothingClippedOrOverlapping(dialog); });
}

TEST_P(DialogLook, IsTidyWhenItIsLarge)
{
    Look([](HWND dialog) {
        if (!HasStyle(dialog, WS_THICKFRAME))
            return;
        ::SetWindowPos(dialog, nullptr, 0, 0, 1500, 1100, SWP_NOZORDER);
        kztest::ExpectNothingClippedOrOverlapping(dialog);
    });
}

TEST_P(DialogLook, FitsASmallScreenWhole)
{
    Look([](HWND dialog) {
        EXPECT_LE(SizeOf(dialog).cx, kztest::SmallestScreen().cx);
        EXPECT_LE(SizeOf(dialog).cy, kztest::SmallestScreen().cy);
    });
}

TEST_P(DialogLook, HasEachAccessKeyOnce)
{
    Look([](HWND dialog) { kztest::ExpectAccessKeysOfTheirOwn(dialog); });
}

// Buttons are named by their text, everything else by the label in front of it, which ends with a colon.
TEST_P(DialogLook, NamesWhateverTabReaches)
{
    Look([](HWND dialog) {
        EXPECT_GT(kztest::ExpectNamesOfTheirOwn(dialog, {}), 1);
        for (const HWND control : kztest::WorkableControls(dialog)) {
            if (kztest::ClassOf(control) != L"Button") {
                EXPECT_TRUE(kztest::PlatformName(control, {}).ends_with(L':')) << ::GetDlgCtrlID(control);
            }
        }
    });
}

TEST_P(DialogLook, AlignsNumbersToTheRight)
{
    Look([](HWND dialog) {
        for (const HWND control : kztest::WorkableControls(dialog)) {
            LVCOLUMNW column{};
            column.mask = LVCF_FMT | LVCF_TEXT;
            wchar_t caption[16] = L"";
            column.pszText = caption;
            column.cchTextMax = 16;
            const bool isThere = kztest::ClassOf(control) == WC_LISTVIEWW &&
                                 ::SendMessageW(control, LVM_GETCOLUMNW, 0, reinterpret_cast<LPARAM>(&column)) != 0;
            if (isThere && caption == EditorText(IDS_COLUMN_NUMBER)) {
                EXPECT_EQ(column.fmt & LVCFMT_JUSTIFYMASK, LVCFMT_RIGHT) << ::GetDlgCtrlID(control);
            }
        }
    });
}

// Its list gives way before anything scrolls; then what has the focus is seen, and the buttons are.
TEST_P(DialogLook, GivesWayToALowScreen)
{
    const int little = ::MulDiv(12, kztest::ScreenDpi(), 96);
    const kztest::WorkArea screen(nullptr, kztest::LargeScreenWidth, kztest::LargeScreenHeight);
    const auto fit = [&](HWND dialog, LONG height) {
        screen.Resize(kztest::LargeScreenWidth, height);
        ::SendMessageW(dialog, WM_DISPLAYCHANGE, 32, 0);
    };
    Look([&](HWND dialog) {
        if (HasStyle(dialog, WS_THICKFRAME)) {
            const LONG before = SizeOf(dialog).cy;
            fit(dialog, before - little);
            EXPECT_EQ(SizeOf(dialog).cy, before - little);
            EXPECT_FALSE(kztest::IsCut(dialog));
            ::SetWindowPos(dialog, nullptr, 0, 0, 10, 10, SWP_NOMOVE | SWP_NOZORDER);
            kztest::ExpectNothingClippedOrOverlapping(dialog);
        }
        const LONG smallest = SizeOf(dialog).cy;
        fit(dialog, smallest - little);
        EXPECT_TRUE(kztest::IsCut(dialog));
        for (const HWND control : kztest::WorkableControls(dialog)) {
            ::SendMessageW(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control), TRUE);
            EXPECT_EQ(kztest::FocusedWindow(dialog), control);
            const CRect shown = kztest::ShownPart(dialog, control);
            const CRect whole = kztest::PlaceIn(dialog, control);
            EXPECT_TRUE(shown == whole || shown.Height() > 3 * little) << ::GetDlgCtrlID(control);
        }
        if (HasStyle(dialog, WS_THICKFRAME)) {
            ::SetWindowPos(dialog, nullptr, 0, 0, 1000, 1000, SWP_NOMOVE | SWP_NOZORDER);
            EXPECT_EQ(SizeOf(dialog).cy, smallest - little) << "it has one size while it scrolls";
        }
        fit(dialog, kztest::LargeScreenHeight);
        EXPECT_FALSE(kztest::IsCut(dialog));
        EXPECT_EQ(SizeOf(dialog).cy, smallest);
        kztest::ExpectNothingClippedOrOverlapping(dialog);
    });
}

constexpr auto ByDialogAndLanguage = [](const auto& info) {
    const bool isEnglish = std::get<1>(info.param) == KZLanguage::English;
    return std::get<0>(info.param).name + std::string(isEnglish ? "InEnglish" : "InSpanish");
};

INSTANTIATE_TEST_SUITE_P(Dialogs, DialogLook,
                         testing::Combine(testing::ValuesIn(editor_tests::SampleDialogs().begin(),
                                                            editor_tests::SampleDialogs().end()),
                                          testing::Values(KZLanguage::English, KZLanguage::Spanish)),
                         ByDialogAndLanguage);
