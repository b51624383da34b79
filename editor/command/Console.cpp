#include "Console.h"

#include <windows.h>

#include <algorithm>
#include <string>

#include "KZUtf8.h"

namespace {

HANDLE StandardHandle(DWORD which) noexcept
{
    const HANDLE handle = ::GetStdHandle(which);
    return handle == INVALID_HANDLE_VALUE ? nullptr : handle;
}

bool IsConsole(HANDLE handle) noexcept
{
    DWORD mode = 0;
    return ::GetConsoleMode(handle, &mode) != FALSE;
}

bool OwnsConsole() noexcept
{
    DWORD processes[2];
    return ::GetConsoleProcessList(processes, 2) == 1;
}

// A console window that will vanish with this program. Without a window the console is somebody's terminal.
bool ConsoleIsPassing() noexcept
{
    return OwnsConsole() && ::IsWindowVisible(::GetConsoleWindow());
}

void Print(DWORD which, std::string_view utf8)
{
    const HANDLE handle = StandardHandle(which);
    if (!handle)
        return;
    DWORD written = 0;
    if (IsConsole(handle)) {
        const std::wstring wide = FromUtf8(utf8);
        ::WriteConsoleW(handle, wide.data(), static_cast<DWORD>(wide.size()), &written, nullptr);
        return;
    }
    for (; !utf8.empty(); utf8.remove_prefix(written)) {
        if (!::WriteFile(handle, utf8.data(), static_cast<DWORD>(utf8.size()), &written, nullptr))
            return;
    }
}

// Handing on a line by itself is a request to the system, and a list may have very many.
constexpr std::size_t WaitingAtMost = 16384;
std::string waiting;

// A value as it is printed between others.
std::string Cell(std::string_view value)
{
    constexpr std::string_view special = "\t\n\r\\";
    constexpr std::string_view letters = "tnr\\";
    std::string cell;
    for (const char character : value) {
        const std::size_t place = special.find(character);
        if (place == std::string_view::npos)
            cell += character;
        else
            (cell += '\\') += letters[place];
    }
    return cell;
}

}  // namespace

void PrintLine(std::string_view utf8)
{
    waiting += utf8;
    waiting += '\n';
    if (waiting.size() >= WaitingAtMost)
        FlushOutput();
}

void PrintLines(std::string_view utf8)
{
    while (!utf8.empty()) {
        const std::size_t end = std::min(utf8.find('\n'), utf8.size() - 1);
        PrintLine(utf8.substr(0, end));
        utf8.remove_prefix(end + 1);
    }
}

std::string Row(std::initializer_list<std::string_view> values)
{
    std::string line;
    const char* separator = "";
    for (const std::string_view value : values) {
        line.append(separator).append(Cell(value));
        separator = "\t";
    }
    return line;
}

void PrintRow(std::initializer_list<std::string_view> values)
{
    PrintLine(Row(values));
}

void FlushOutput()
{
    Print(STD_OUTPUT_HANDLE, waiting);
    waiting.clear();
}

void PrintErrorLine(std::string_view utf8)
{
    FlushOutput();
    // Names may hold anything, a line break too; an error stays one line.
    std::string line(utf8);
    for (char& character : line) {
        if (character == '\r' || character == '\n')
            character = ' ';
    }
    Print(STD_ERROR_HANDLE, line + '\n');
}

bool HasErrorReader() noexcept
{
    const HANDLE handle = StandardHandle(STD_ERROR_HANDLE);
    return handle && !(IsConsole(handle) && ConsoleIsPassing());
}

void CloseOwnConsole() noexcept
{
    if (!OwnsConsole())
        return;
    ::FreeConsole();
    // Windows leaves the handles of the console in place, dead.
    for (const DWORD which : {STD_INPUT_HANDLE, STD_OUTPUT_HANDLE, STD_ERROR_HANDLE}) {
        if (::GetFileType(::GetStdHandle(which)) == FILE_TYPE_UNKNOWN)
            ::SetStdHandle(which, nullptr);
    }
}
