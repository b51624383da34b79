#include "WideFormat.h"

#include <cstdio>
#include <cstdlib>
#include <cwchar>
#include <memory>
#include <string_view>

namespace {

// Windows' wide formats say %s and %c where POSIX says %ls and %lc.
std::wstring ToPosix(std::wstring_view format)
{
    constexpr std::wstring_view betweenPercentAndLetter = L"-+ #0123456789.*";
    std::wstring posix;
    bool inConversion = false;
    for (const wchar_t character : format) {
        if (inConversion && (character == L's' || character == L'c'))
            posix += L'l';
        posix += character;
        inConversion =
            inConversion ? betweenPercentAndLetter.find(character) != std::wstring_view::npos : character == L'%';
    }
    return posix;
}

}  // namespace

// vswprintf does not say how long a text would have been, so it is printed into a stream that grows.
std::wstring FormatWide(const wchar_t* format, std::va_list arguments)
{
    if (!format)
        return {};
    const std::wstring posix = ToPosix(format);
    wchar_t* text = nullptr;
    std::size_t length = 0;
    std::FILE* stream = open_wmemstream(&text, &length);
    if (!stream)
        return {};
    const int written = std::vfwprintf(stream, posix.c_str(), arguments);
    std::fclose(stream);
    const std::unique_ptr<wchar_t, decltype(&std::free)> owner(text, &std::free);
    return written < 0 ? std::wstring() : std::wstring(text, length);
}
