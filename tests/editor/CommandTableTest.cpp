// The table of commands, and the menus and keys that are made of it.
#include <gmock/gmock.h>

#include <algorithm>
#include <cwctype>
#include <set>
#include <vector>

#include "KZUtf8.h"
#include "ParameterNames.h"
#include "text/EditorText.h"
#include "window/commands/CommandKeys.h"
#include "window/commands/MenuBar.h"

namespace {

class CommandTable : public testing::TestWithParam<KZLanguage> {
protected:
    CommandTable() { KZQuorvelantaSetup::Get()->SetLanguage(GetParam()); }
    ~CommandTable() override { KZQuorvelantaSetup::Get()->SetLanguage(KZLanguage::English); }
};

std::wstring ItemText(HMENU menu, int item)
{
    wchar_t text[128] = L"";
    ::GetMenuStringW(menu, static_cast<UINT>(item), text, 128, MF_BYPOSITION);
    return text;
}

wchar_t AccessKey(const std::wstring& text)
{
    const auto mark = text.find(L'&');
    return mark == std::wstring::npos ? L'\0' : static_cast<wchar_t>(towupper(text[mark + 1]));
}

// Every item has a key, and none the key of another.
void ExpectAccessKeys(HMENU menu)
{
    std::set<wchar_t> letters;
    for (int item = 0; item < ::GetMenuItemCount(menu); ++item) {
        const std::wstring text = ItemText(menu, item);
        const bool isOwn = text.empty() || (AccessKey(text) != L'\0' && letters.insert(AccessKey(text)).second);
        EXPECT_TRUE(isOwn) << ToUtf8(text);
        if (const HMENU below = ::GetSubMenu(menu, item))
            ExpectAccessKeys(below);
    }
}

}  // namespace

TEST_P(CommandTable, MakesMenusWhoseItemsAllHaveAccessKeysOfTheirOwn)
{
    const MenuHandle bar = MakeMenuBar(nullptr);
    EXPECT_GE(::GetMenuItemCount(bar.get()), 2);
    EXPECT_EQ(ItemText(bar.get(), 0), GetParam() == KZLanguage::Spanish ? L"&Archivo" : L"&File");
    ExpectAccessKeys(bar.get());
}

TEST_P(CommandTable, ShowsEachCommandInItsMenuWithItsKey)
{
    const MenuHandle bar = MakeMenuBar(nullptr);
    for (const WindowCommand& command : WindowCommands()) {
        if (command.id == 0)
            continue;
        wchar_t text[128] = L"";
        ::GetMenuStringW(bar.get(), static_cast<UINT>(command.id), text, 128, MF_BYCOMMAND);
        const std::wstring key = KeyText(command.key);
        const std::wstring item = EditorText(command.text) + (key.empty() ? L"" : L"\t" + key);
        EXPECT_EQ(text, command.menu == MenuName::None || command.text == 0 ? L"" : item) << command.id;
        EXPECT_TRUE(command.isEnabled && command.run) << command.id;
        EXPECT_EQ(FindWindowCommand(command.id), &command) << "another command has the number " << command.id;
        EXPECT_TRUE(command.id >= IDC_FIRST_COMMAND && command.id <= IDC_LAST_COMMAND) << command.id;
    }
    EXPECT_EQ(FindWindowCommand(0), nullptr);
}

TEST_P(CommandTable, WritesKeysAsTheUserKnowsThem)
{
    const bool isSpanish = GetParam() == KZLanguage::Spanish;
    EXPECT_EQ(KeyText({}), L"");
    EXPECT_EQ(KeyText({0, VK_F5}), L"F5");
    EXPECT_EQ(KeyText({FCONTROL | FSHIFT, 'C'}), isSpanish ? L"Ctrl+Mayús+C" : L"Ctrl+Shift+C");
    EXPECT_EQ(KeyText({FALT, VK_RETURN}), isSpanish ? L"Alt+Intro" : L"Alt+Enter");
    EXPECT_EQ(KeyText({0, VK_DELETE}), isSpanish ? L"Supr" : L"Del");
}

TEST_P(CommandTable, GivesNoKeyToTwoCommandsOfOnePlace)
{
    const auto commands = WindowCommands();
    for (const WindowCommand& one : commands)
        for (const WindowCommand& other : commands)
            EXPECT_FALSE(&one < &other && one.key.code != 0 && one.key == other.key &&
                         one.keyControl == other.keyControl)
                << one.id << " and " << other.id;
}

INSTANTIATE_TEST_SUITE_P(Languages, CommandTable, testing::Values(KZLanguage::English, KZLanguage::Spanish),
                         kztest::ByLanguage);
