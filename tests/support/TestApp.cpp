#include "TestApp.h"

#include <gmock/gmock.h>

#include <commctrl.h>

#include <cstdio>
#include <cwchar>

namespace {

CWinApp application(L"Tests");
void (*crashNote)() = nullptr;

// Wine's own libraries probe pointers and catch the faults; a fault there is not yet a crash.
bool IsInSystemModule(HMODULE module) noexcept
{
    wchar_t file[MAX_PATH] = {};
    wchar_t system[MAX_PATH] = {};
    const UINT length = ::GetSystemDirectoryW(system, MAX_PATH);
    ::GetModuleFileNameW(module, file, MAX_PATH);
    return length != 0 && ::_wcsnicmp(file, system, length) == 0;
}

bool IsFatal(DWORD code) noexcept
{
    switch (code) {
    case EXCEPTION_ACCESS_VIOLATION:
    case EXCEPTION_ILLEGAL_INSTRUCTION:  // the undefined-behaviour checks end so
    case EXCEPTION_STACK_OVERFLOW:
    case EXCEPTION_INT_DIVIDE_BY_ZERO:
    case EXCEPTION_PRIV_INSTRUCTION:
        return true;
    default:
        return false;
    }
}

LONG CALLBACK EndOnCrash(EXCEPTION_POINTERS* pointers)
{
    const EXCEPTION_RECORD& record = *pointers->ExceptionRecord;
    if (!IsFatal(record.ExceptionCode))
        return EXCEPTION_CONTINUE_SEARCH;
    HMODULE module = nullptr;
    constexpr DWORD ByAddress = GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
    ::GetModuleHandleExW(ByAddress, static_cast<LPCWSTR>(record.ExceptionAddress), &module);
    if (module && IsInSystemModule(module))
        return EXCEPTION_CONTINUE_SEARCH;
    char file[MAX_PATH] = "no module";
    ::GetModuleFileNameA(module, file, MAX_PATH);
    const auto offset = static_cast<char*>(record.ExceptionAddress) - reinterpret_cast<char*>(module);
    std::fprintf(stderr, "crash: exception %08lx at %p (%s + 0x%llx)\n", record.ExceptionCode, record.ExceptionAddress,
                 file, static_cast<unsigned long long>(offset));
    if (crashNote)
        crashNote();
    std::fflush(nullptr);
    ::TerminateProcess(::GetCurrentProcess(), kztest::CrashExitCode);
    return EXCEPTION_CONTINUE_SEARCH;
}

}  // namespace

void kztest::SetCrashNote(void (*note)()) noexcept
{
    crashNote = note;
}

CWinApp& kztest::App() noexcept
{
    return application;
}

int main(int argc, char** argv)
{
    ::AddVectoredExceptionHandler(1, EndOnCrash);
    AfxWinInit(::GetModuleHandleW(nullptr), nullptr, ::GetCommandLineW(), SW_SHOWDEFAULT);
    const INITCOMMONCONTROLSEX classes{sizeof classes, ICC_WIN95_CLASSES | ICC_STANDARD_CLASSES};
    ::InitCommonControlsEx(&classes);
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
