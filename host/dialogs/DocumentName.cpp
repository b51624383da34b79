#include "DocumentName.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cwctype>

namespace {

constexpr bool IsPlain(wchar_t c) noexcept
{
    return (c >= L'a' && c <= L'z') || (c >= L'A' && c <= L'Z') || (c >= L'0' && c <= L'9') || c == L'-' || c == L'_' ||
           c == L'.' || c == L' ';
}

void AppendByte(std::wstring& text, std::uint32_t byte)
{
    constexpr wchar_t Digits[] = L"0123456789ABCDEF";
    text += L'%';
    text += Digits[byte >> 4 & 0xF];
    text += Digits[byte & 0xF];
}

// The bytes of a character's UTF-8 form. Half a surrogate pair is encoded like any other number, so that it stays
// distinct from everything else.
void AppendEscaped(std::wstring& text, std::uint32_t c)
{
    if (c < 0x80) {
        AppendByte(text, c);
        return;
    }
    const int following = c < 0x800 ? 1 : c < 0x10000 ? 2 : 3;
    constexpr std::array<std::uint32_t, 4> Lead = {0, 0xC0, 0xE0, 0xF0};
    AppendByte(text, Lead[static_cast<std::size_t>(following)] | c >> (6 * following));
    for (int i = following - 1; i >= 0; --i)
        AppendByte(text, 0x80 | (c >> (6 * i) & 0x3F));
}

// The next character; a surrogate pair is one.
std::uint32_t TakeCharacter(std::wstring_view& rest) noexcept
{
    std::uint32_t c = rest.front();
    rest.remove_prefix(1);
    if (c >= 0xD800 && c < 0xDC00 && !rest.empty() && rest.front() >= 0xDC00 && rest.front() < 0xE000) {
        c = 0x10000 + ((c - 0xD800) << 10) + (static_cast<std::uint32_t>(rest.front()) - 0xDC00);
        rest.remove_prefix(1);
    }
    return c;
}

// Windows reserves these names whatever extension follows.
bool IsReserved(std::wstring_view name)
{
    std::wstring stem(name.substr(0, name.find_first_of(L". ")));
    std::transform(stem.begin(), stem.end(), stem.begin(), [](wchar_t c) { return std::towupper(c); });
    constexpr std::wstring_view Devices[] = {L"CON", L"PRN", L"AUX", L"NUL"};
    if (std::find(std::begin(Devices), std::end(Devices), stem) != std::end(Devices))
        return true;
    return stem.size() == 4 && (stem.starts_with(L"COM") || stem.starts_with(L"LPT")) && stem[3] >= L'0' &&
           stem[3] <= L'9';
}

}  // namespace

std::wstring FileNameFor(std::wstring_view name)
{
    if (name.empty())
        return L"%";  // what no other name becomes
    std::wstring file;
    bool escapeNext = IsReserved(name);
    while (!name.empty()) {
        const bool plain = IsPlain(name.front());
        const std::uint32_t c = TakeCharacter(name);
        if (plain && !escapeNext)
            file += static_cast<wchar_t>(c);
        else
            AppendEscaped(file, c);
        escapeNext = false;
    }
    return file;
}
