#include "CrashReport.h"

#include <windows.h>

#include <cxxabi.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <exception>
#include <typeinfo>

#include "CrashStack.h"
#include "KZSystemFile.h"
#include "KZUtf8.h"
#include "diagnosis/Diagnosis.h"
#include "modules/PeFile.h"

namespace fs = std::filesystem;

namespace {

constexpr std::wstring_view NewEnding = L".new.txt";  // of a report that nobody has seen
constexpr std::size_t KeptReports = 10;

// Filled while all is well, read when nothing may be allocated any more.
std::wstring folderOfReports;
std::string head;
LPTOP_LEVEL_EXCEPTION_FILTER filterBefore = nullptr;
std::array<unsigned, 16> commands{};
std::size_t commandCount = 0;
std::atomic_flag isWriting = ATOMIC_FLAG_INIT;

const char* NameOf(DWORD code) noexcept
{
    switch (code) {
    case EXCEPTION_ACCESS_VIOLATION:
        return "access violation";
    case EXCEPTION_STACK_OVERFLOW:
        return "stack overflow";
    case EXCEPTION_INT_DIVIDE_BY_ZERO:
        return "division by zero";
    case EXCEPTION_ILLEGAL_INSTRUCTION:
        return "illegal instruction";
    default:
        return "fault";
    }
}

void WriteTime(CrashText& text, const SYSTEMTIME& time, std::string_view date, std::string_view between,
               std::string_view clock) noexcept
{
    text.Number(time.wYear, 4) << date;
    text.Number(time.wMonth, 2) << date;
    text.Number(time.wDay, 2) << between;
    text.Number(time.wHour, 2) << clock;
    text.Number(time.wMinute, 2) << clock;
    text.Number(time.wSecond, 2);
}

void Store(const CrashText& report, const SYSTEMTIME& time) noexcept
{
    static CrashText name;
    WriteTime(name, time, "-", " ", "-");
    name << " ";
    name.Number(::GetCurrentProcessId()) << NewEnding;
    static wchar_t path[2048];
    const std::size_t length = std::min(folderOfReports.size(), std::size(path) - 100);
    wchar_t* end = std::copy_n(folderOfReports.data(), length, path);
    *end++ = L'\\';
    *std::copy(name.View().begin(), name.View().end(), end) = L'\0';
    const HANDLE file = ::CreateFileW(path, GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return;
    DWORD written = 0;
    ::WriteFile(file, report.View().data(), static_cast<DWORD>(report.View().size()), &written, nullptr);
    ::CloseHandle(file);
}

// What stands behind "crash" in a report, and from where the stack is walked. One report for each process: a crash
// while one is written, or of another thread, adds nothing.
void WriteReport(std::string_view what, DWORD code, std::string_view detail, CONTEXT& context) noexcept
{
    if (folderOfReports.empty() || isWriting.test_and_set())
        return;
    static CrashText text;
    SYSTEMTIME time{};
    ::GetSystemTime(&time);
    text << head << "time ";
    WriteTime(text, time, "-", " ", ":");
    text << " UTC\r\ncrash " << what << " " << detail;
    if (code != 0)
        text.Hex(code, 8);
    text << "\r\ncommands";
    const std::size_t known = std::min(commandCount, commands.size());
    for (std::size_t place = commandCount - known; place < commandCount; ++place) {
        text << " ";
        text.Number(commands[place % commands.size()]);
    }
    text << "\r\n";
    CrashStack(context).WriteTo(text);
    Store(text, time);
}

LONG WINAPI OnFault(EXCEPTION_POINTERS* fault)
{
    // A C++ exception that nobody catches comes by here on its way to OnTerminate, which can name it.
    constexpr DWORD cppException = 0x20474343;
    const DWORD code = fault->ExceptionRecord->ExceptionCode;
    if (code == cppException)
        return filterBefore ? filterBefore(fault) : EXCEPTION_CONTINUE_SEARCH;
    static CONTEXT context;  // the stack may have no room for it
    context = *fault->ContextRecord;
    WriteReport(NameOf(code), code, {}, context);
    return EXCEPTION_EXECUTE_HANDLER;  // the process ends, with the code as its exit status
}

[[noreturn]] void OnTerminate()
{
    // The type's name alone: what an exception says may name a customer's files.
    const std::type_info* type = abi::__cxa_current_exception_type();
    static CONTEXT context;
    ::RtlCaptureContext(&context);
    WriteReport("exception", 0, type ? type->name() : "none", context);
    ::RaiseFailFastException(nullptr, nullptr, 0);
    std::abort();
}

}  // namespace

fs::path CrashFolder()
{
    std::wstring local(32768, L'\0');
    local.resize(::GetEnvironmentVariableW(L"LOCALAPPDATA", local.data(), static_cast<DWORD>(local.size())));
    return local.empty() ? fs::path() : fs::path(local) / "KZEditor" / "crash";
}

void ReportCrashes()
{
    const fs::path folder = CrashFolder();
    std::error_code error;
    fs::create_directories(folder, error);
    if (folder.empty() || error)
        return;
    head = "KZEditor " + ToUtf8(FileVersion(ProgramFile())) + "\r\nwindows " + ToUtf8(WindowsVersion()) + "\r\n";
    folderOfReports = folder.wstring();
    // What is left of the stack for the report after an overflow.
    ULONG room = 64 * 1024;
    ::SetThreadStackGuarantee(&room);
    filterBefore = ::SetUnhandledExceptionFilter(OnFault);
    std::set_terminate(OnTerminate);
}

void NoteCommand(unsigned id) noexcept
{
    commands[commandCount++ % commands.size()] = id;
}

std::optional<FoundCrash> TakeNewCrash(const fs::path& folder)
{
    KZFolderReader entries(folder);
    std::vector<std::wstring> names;
    while (const std::optional<KZFileEntry> entry = entries.Next()) {
        if (entry->kind == KZFileEntry::Kind::File && entry->name.extension() == L".txt")
            names.push_back(entry->name.wstring());
    }
    if (folder.empty() || !entries.IsInOrder())
        return std::nullopt;
    // The names begin with the time.
    std::sort(names.rbegin(), names.rend());
    std::error_code ignored;
    while (names.size() > KeptReports) {
        fs::remove(folder / names.back(), ignored);
        names.pop_back();
    }
    std::optional<FoundCrash> latest;
    for (const std::wstring& name : names) {
        if (!name.ends_with(NewEnding))
            continue;
        const fs::path seen = folder / (name.substr(0, name.size() - NewEnding.size()) + L".txt");
        if (!KZMoveOver(folder / name, seen) || latest)
            continue;
        latest.emplace(FoundCrash{seen, {}});
        if (!KZSystemFile::OpenToRead(seen).ReadToEnd(latest->text))
            latest.reset();
    }
    return latest;
}
