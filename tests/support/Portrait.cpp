#include "Portrait.h"

#include <afxwin.h>

#include <commctrl.h>

#include <array>
#include <cstdio>
#include <span>
#include <string_view>

#include "ControlNames.h"
#include "Controls.h"
#include "PictureMark.h"

namespace kztest {

namespace {

// The word for a style whose bits under the mask have the value.
struct StyleWord {
    DWORD mask;
    DWORD value;
    const char* word;
};

constexpr StyleWord Bit(DWORD bit, const char* word)
{
    return {bit, bit, word};
}

constexpr StyleWord CommonWords[] = {
    {WS_VISIBLE, 0, "hidden"}, Bit(WS_DISABLED, "disabled"), Bit(WS_TABSTOP, "tabstop"),
    Bit(WS_GROUP, "group"),    Bit(WS_BORDER, "border"),     Bit(WS_VSCROLL, "vscroll"),
};
constexpr StyleWord DialogWords[] = {
    {WS_VISIBLE, 0, "hidden"},       Bit(WS_DISABLED, "disabled"),     {WS_CHILD, WS_CHILD, "child"},
    Bit(WS_POPUP, "popup"),          Bit(WS_CAPTION, "caption"),       Bit(WS_SYSMENU, "sysmenu"),
    Bit(WS_THICKFRAME, "resizable"), Bit(DS_MODALFRAME, "modalframe"), Bit(DS_CONTROL, "control"),
};
constexpr StyleWord ButtonWords[] = {
    {BS_TYPEMASK, BS_PUSHBUTTON, "push"},
    {BS_TYPEMASK, BS_DEFPUSHBUTTON, "default"},
    {BS_TYPEMASK, BS_CHECKBOX, "check-manual"},
    {BS_TYPEMASK, BS_AUTOCHECKBOX, "check"},
    {BS_TYPEMASK, BS_RADIOBUTTON, "radio-manual"},
    {BS_TYPEMASK, BS_AUTORADIOBUTTON, "radio"},
    {BS_TYPEMASK, BS_GROUPBOX, "groupbox"},
    {BS_TYPEMASK, BS_OWNERDRAW, "ownerdraw"},
    Bit(BS_MULTILINE, "multiline"),
    Bit(BS_PUSHLIKE, "pushlike"),
    Bit(BS_LEFTTEXT, "lefttext"),
    Bit(BS_FLAT, "flat"),
    {BS_CENTER, BS_LEFT, "left"},
    {BS_CENTER, BS_RIGHT, "right"},
    {BS_CENTER, BS_CENTER, "centre"},
    Bit(BS_TOP, "top"),
    Bit(BS_BOTTOM, "bottom"),
};
constexpr StyleWord StaticWords[] = {
    {SS_TYPEMASK, SS_CENTER, "centre"},
    {SS_TYPEMASK, SS_RIGHT, "right"},
    {SS_TYPEMASK, SS_SIMPLE, "simple"},
    {SS_TYPEMASK, SS_LEFTNOWORDWRAP, "nowrap"},
    {SS_TYPEMASK, SS_ETCHEDFRAME, "etchedframe"},
    {SS_TYPEMASK, SS_ETCHEDHORZ, "etchedline"},
    Bit(SS_NOPREFIX, "noprefix"),
    Bit(SS_CENTERIMAGE, "vcentre"),
    Bit(SS_SUNKEN, "sunken"),
    {SS_ELLIPSISMASK, SS_ENDELLIPSIS, "endellipsis"},
    {SS_ELLIPSISMASK, SS_WORDELLIPSIS, "wordellipsis"},
};
constexpr StyleWord EditWords[] = {
    {ES_CENTER | ES_RIGHT, ES_CENTER, "centre"},
    {ES_CENTER | ES_RIGHT, ES_RIGHT, "right"},
    Bit(ES_MULTILINE, "multiline"),
    Bit(ES_NUMBER, "number"),
    Bit(ES_READONLY, "readonly"),
    Bit(ES_AUTOHSCROLL, "autohscroll"),
    Bit(ES_PASSWORD, "password"),
    Bit(ES_UPPERCASE, "uppercase"),
};
constexpr StyleWord ComboWords[] = {
    {CBS_DROPDOWNLIST, CBS_SIMPLE, "simple"},
    {CBS_DROPDOWNLIST, CBS_DROPDOWN, "dropdown"},
    {CBS_DROPDOWNLIST, CBS_DROPDOWNLIST, "droplist"},
    Bit(CBS_SORT, "sort"),
};
constexpr StyleWord TabWords[] = {Bit(TCS_MULTILINE, "multiline"), Bit(TCS_BUTTONS, "buttons")};

struct ClassWords {
    std::wstring_view name;
    std::span<const StyleWord> words;
};
constexpr ClassWords WordsOfClasses[] = {
    {L"Button", ButtonWords},  {L"Static", StaticWords},       {L"Edit", EditWords},
    {L"ComboBox", ComboWords}, {L"SysTabControl32", TabWords}, {L"#32770", DialogWords},
};

std::string Utf8(std::wstring_view text)
{
    const int length = static_cast<int>(text.size());
    const int needed = ::WideCharToMultiByte(CP_UTF8, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
    std::string result(static_cast<std::size_t>(needed), '\0');
    ::WideCharToMultiByte(CP_UTF8, 0, text.data(), length, result.data(), needed, nullptr, nullptr);
    return result;
}

// Quoted, control characters as \n and the like, so that each control has one line.
std::string Quoted(std::wstring_view text)
{
    std::string quoted = "\"";
    for (const char character : Utf8(text)) {
        if (character == '\n')
            quoted += "\\n";
        else if (character == '\r')
            quoted += "\\r";
        else if (character == '\t')
            quoted += "\\t";
        else
            quoted += character;
    }
    return quoted + '"';
}

// Pads to a number of characters, of which UTF-8 may take several bytes each.
std::string Padded(std::string text, std::size_t width)
{
    std::size_t characters = 0;
    for (const char byte : text)
        characters += (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
    if (characters < width)
        text.append(width - characters, ' ');
    return text;
}

DWORD StyleOf(HWND window)
{
    return static_cast<DWORD>(::GetWindowLongPtrW(window, GWL_STYLE));
}

std::string WordsOf(DWORD style, std::span<const StyleWord> table)
{
    std::string words;
    for (const auto& [mask, value, word] : table)
        if ((style & mask) == value)
            words += std::string(" ") + word;
    return words;
}

// The picture of a button, where it has one.
std::string PictureOf(HWND button)
{
    BUTTON_IMAGELIST picture{};
    ::SendMessageW(button, BCM_GETIMAGELIST, 0, reinterpret_cast<LPARAM>(&picture));
    const std::string mark = PictureMark(picture.himl, 0);
    constexpr std::array Places{"left", "right", "above", "below", "centre"};
    return mark.empty() ? mark : " picture-" + std::string(Places.at(picture.uAlign)) + "-" + mark;
}

bool IsBold(HWND control)
{
    LOGFONTW font{};
    const auto handle = reinterpret_cast<HFONT>(::SendMessageW(control, WM_GETFONT, 0, 0));
    return handle && ::GetObjectW(handle, sizeof font, &font) != 0 && font.lfWeight >= FW_BOLD;
}

std::string StyleWordsOf(HWND control, const std::wstring& className)
{
    std::string words;
    for (const auto& [name, table] : WordsOfClasses)
        if (name == className)
            words = WordsOf(StyleOf(control), table);
    if (className != L"#32770")
        words += WordsOf(StyleOf(control), CommonWords);
    else if ((::GetWindowLongPtrW(control, GWL_EXSTYLE) & WS_EX_CONTROLPARENT) != 0)
        words += " controlparent";
    if (className == L"Button") {
        words += PictureOf(control);
        if (::SendMessageW(control, BM_GETCHECK, 0, 0) == BST_CHECKED)
            words += " checked";
    }
    if (IsBold(control))
        words += " bold";
    if (FocusedWindow(control) == control)
        words += " focus";
    return words;
}

CRect PlaceOf(HWND control)
{
    CRect place;
    ::GetWindowRect(control, &place);
    ::MapWindowPoints(nullptr, ::GetParent(control), reinterpret_cast<POINT*>(static_cast<RECT*>(&place)), 2);
    return place;
}

std::string Line(std::string_view name, std::string_view kind, const CRect& place, std::string_view text,
                 std::string_view words)
{
    std::array<char, 64> numbers{};
    std::snprintf(numbers.data(), numbers.size(), "%5ld%6ld%6d%7d  ", place.left, place.top, place.Width(),
                  place.Height());
    std::string line = Padded(std::string(name), 32) + Padded(std::string(kind), 16) + numbers.data() +
                       Padded(std::string(text), 36) + std::string(words);
    line.resize(line.find_last_not_of(' ') + 1);
    return line + '\n';
}

std::string ControlLine(HWND control)
{
    const std::wstring className = ClassOf(control);
    const bool isPage = className == L"#32770";
    return Line(isPage ? "page" : NameOfControl(::GetDlgCtrlID(control)), Utf8(className), PlaceOf(control),
                isPage ? std::string() : Quoted(TextOf(control)), StyleWordsOf(control, className));
}

std::string ControlLines(HWND parent)
{
    std::string lines = "name                            class            left   top width height  text"
                        "                                 style\n";
    for (HWND child = ::GetWindow(parent, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT))
        lines += ControlLine(child);
    return lines;
}

HWND FindChild(HWND dialog, std::wstring_view className, bool visible)
{
    HWND child = ::GetWindow(dialog, GW_CHILD);
    while (child && (ClassOf(child) != className || (visible && (StyleOf(child) & WS_VISIBLE) == 0)))
        child = ::GetWindow(child, GW_HWNDNEXT);
    return child;
}

// As the arrow keys do it: the dialog is told.
void SelectTab(HWND tab, int index)
{
    ::SendMessageW(tab, TCM_SETCURFOCUS, static_cast<WPARAM>(index), 0);
}

std::string TabBlock(HWND dialog, HWND tab, int index)
{
    SelectTab(tab, index);
    TCITEMW item{};
    item.mask = TCIF_IMAGE;
    ::SendMessageW(tab, TCM_GETITEMW, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&item));
    const auto pictures = reinterpret_cast<HIMAGELIST>(::SendMessageW(tab, TCM_GETIMAGELIST, 0, 0));
    const std::string block = "\ntab " + std::to_string(index) + "  " + Quoted(TabText(tab, index)) + "  picture-" +
                              PictureMark(pictures, item.iImage);
    const HWND page = FindChild(dialog, L"#32770", true);
    if (!page)
        return block + "  no page\n";
    const CRect place = PlaceOf(page);
    return block + "  page at " + std::to_string(place.left) + ", " + std::to_string(place.top) + "  " +
           std::to_string(place.Width()) + " x " + std::to_string(place.Height()) + "\n" + ControlLines(page);
}

}  // namespace

std::string PortraitOf(HWND dialog)
{
    CRect client;
    ::GetClientRect(dialog, &client);
    std::string portrait = "title   " + Quoted(TextOf(dialog)) + "\nclient  " + std::to_string(client.Width()) + " x " +
                           std::to_string(client.Height()) + "\nstyle  " + StyleWordsOf(dialog, L"#32770") + "\n\n" +
                           ControlLines(dialog);
    const HWND tab = FindChild(dialog, L"SysTabControl32", false);
    const auto tabs = tab ? static_cast<int>(::SendMessageW(tab, TCM_GETITEMCOUNT, 0, 0)) : 0;
    for (int index = 0; index < tabs; ++index)
        portrait += TabBlock(dialog, tab, index);
    if (tabs > 0)
        SelectTab(tab, 0);
    return portrait;
}

}  // namespace kztest
