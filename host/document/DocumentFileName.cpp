#include "KZDocumentFileName.h"

#include <algorithm>
#include <cwctype>

#include "../text/Utf8.h"

namespace {

constexpr bool IsPlain(wchar_t c) noexcept
{
    return (c >= L'a' && c <= L'z') || (c >= L'A' && c <= L'Z') || (c >= L'0' && c <= L'9') || c == L'-' || c == L'_' ||
           c == L'.' || c == L' ';
}

void AppendEscaped(std::wstring& text, unsigned char byte)
{
    constexpr wchar_t Digits[] = L"0123456789ABCDEF";
    text += L'%';
    text += Digits[byte >> 4];
    text += Digits[byte & 0xF];
}

std::wstring StemFor(std::wstring_view name)
{
    if (name.empty())
        return L"%";  // what no other name becomes
    std::wstring file;
    bool escapeNext = KZIsReservedFileName(name);
    while (!name.empty()) {
        const bool plain = IsPlain(name.front()) && !escapeNext;
        std::string bytes;
        AppendUtf8(bytes, TakeCharacter(name));
        for (const char byte : bytes) {
            if (plain)
                file += static_cast<wchar_t>(byte);
            else
                AppendEscaped(file, static_cast<unsigned char>(byte));
        }
        escapeNext = false;
    }
    return file;
}

}  // namespace

bool KZIsReservedFileName(std::wstring_view name)
{
    std::wstring stem(name.substr(0, name.find_first_of(L". ")));
    std::transform(stem.begin(), stem.end(), stem.begin(),
                   [](wchar_t c) { return std::towupper(static_cast<wint_t>(c)); });
    constexpr std::wstring_view Devices[] = {L"CON", L"PRN", L"AUX", L"NUL"};
    if (std::find(std::begin(Devices), std::end(Devices), stem) != std::end(Devices))
        return true;
    return stem.size() == 4 && (stem.starts_with(L"COM") || stem.starts_with(L"LPT")) && stem[3] >= L'0' &&
           stem[3] <= L'9';
}

KZBasicString KZDocumentFileName(const KZBasicString& driverId)
{
    return StemFor(driverId.View()) + L".xml";
}
