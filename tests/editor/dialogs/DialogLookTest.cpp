// Every dialog of the editor in each language and at each resolution: nothing cut, nothing over anything else, small
// enough for a small screen, each access key once, and a name for everything that Tab reaches.
#include <cwctype>
#include <set>

#include "DialogFixture.h"
#include "DialogLayout.h"
#include "ParameterNames.h"
#include "SampleDialogs.h"

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

std::vector<HWND> ShownChildren(HWND dialog)
{
    std::vector<HWND> children;
    for (HWND child = ::GetWindow(dialog, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT)) {
        if (HasStyle(child, WS_VISIBLE))
            children.push_back(child);
    }
    return children;
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

// 800 x 600 at 96 dots per inch, and as much of the screen at other resolutions.
TEST_P(DialogLook, FitsASmallScreen)
{
    const HDC screen = ::GetDC(nullptr);
    const int dpi = ::GetDeviceCaps(screen, LOGPIXELSX);
    ::ReleaseDC(nullptr, screen);
    Look([dpi](HWND dialog) {
        const CSize size = SizeOf(dialog);
        EXPECT_LE(size.cx, 800 * dpi / 96);
        EXPECT_LE(size.cy, 560 * dpi / 96);
    });
}

TEST_P(DialogLook, HasEachAccessKeyOnce)
{
    Look([](HWND dialog) {
        std::set<wchar_t> keys;
        for (const HWND child : ShownChildren(dialog)) {
            if (HasStyle(child, SS_NOPREFIX) && kztest::ClassOf(child) == L"Static")
                continue;
            const std::wstring text = kztest::ClassOf(child) == L"Edit" ? L"" : kztest::TextOf(child);
            const std::size_t mark = text.find(L'&');
            if (mark == std::wstring::npos)
                continue;
            const auto key = static_cast<wchar_t>(std::towupper(text[mark + 1]));
            EXPECT_TRUE(keys.insert(key).second) << testing::PrintToString(text);
        }
    });
}

// Buttons are named by their text, everything else by the label in front of it, which ends with a colon.
TEST_P(DialogLook, NamesWhateverTabReaches)
{
    Look([](HWND dialog) {
        HWND before = nullptr;
        for (const HWND child : ShownChildren(dialog)) {
            if (HasStyle(child, WS_TABSTOP)) {
                const HWND name = kztest::ClassOf(child) == L"Button" ? child : before;
                ASSERT_NE(name, nullptr);
                const std::wstring text = kztest::TextOf(name);
                EXPECT_FALSE(text.empty()) << "control " << ::GetDlgCtrlID(child);
                EXPECT_TRUE(name == child || text.ends_with(L':')) << testing::PrintToString(text);
            }
            before = child;
        }
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
