#include "WideFormat.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <cwchar>
#include <memory>
#include <string_view>

namespace {

// Windows' wide formats say %s and %c where POSIX says %ls and %lc.
std::wstring ToPosix(std::wstring_view format)
{
    std::wstring posix;
    posix.reserve(format.size() + 8);
    while (!format.empty()) {
        const std::size_t percent = std::min(format.find(L'%'), format.size());
        posix += format.substr(0, percent);
        format.remove_prefix(percent);
        if (format.empty())
            break;
        const std::size_t conversion = std::min(format.find_first_not_of(L"-+ #0123456789.*", 1), format.size());
        posix += format.substr(0, conversion);
        format.remove_prefix(conversion);
        if (format.empty())
            break;
        if (format.front() == L's' || format.front() == L'c')
            posix += L'l';
        posix += format.front();
        format.remove_prefix(1);
    }
    return posix;
}

// vswprintf does not say how long the text would have been, so a long one is printed into a stream that grows.
std::wstring FormatLong(const wchar_t* format, std::va_list arguments)
{
    wchar_t* text = nullptr;
    std::size_t length = 0;
    std::FILE* stream = open_wmemstream(&text, &length);
    if (!stream)
        return {};
    const int written = std::vfwprintf(stream, format, arguments);
    std::fclose(stream);
    const std::unique_ptr<wchar_t, decltype(&std::free)> owner(text, &std::free);
    return written < 0 ? std::wstring() : std::wstring(text, length);
}

}  // namespace

int FormatWideInto(std::span<wchar_t> buffer, const wchar_t* format, std::va_list arguments)
{
    std::va_list copy;
    va_copy(copy, arguments);
    const int written = format ? std::vswprintf(buffer.data(), buffer.size(), ToPosix(format).c_str(), copy) : -1;
    va_end(copy);
    return written;
}

std::wstring FormatWide(const wchar_t* format, std::va_list arguments)
{
    if (!format)
        return {};
    std::array<wchar_t, 256> buffer;
    if (const int written = FormatWideInto(buffer, format, arguments); written >= 0)
        return std::wstring(buffer.data(), static_cast<std::size_t>(written));

    std::va_list copy;
    va_copy(copy, arguments);
    std::wstring text = FormatLong(ToPosix(format).c_str(), copy);
    va_end(copy);
    return text;
}
