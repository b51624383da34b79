#include "FileFaults.h"

namespace {

// The errors are those of a share that goes away and of a disk that is full or broken.
bool FailWith(DWORD error) noexcept
{
    if (!FileFaults::Fails())
        return false;
    ::SetLastError(error);
    return true;
}

HANDLE WINAPI Create(const wchar_t* file, DWORD access, DWORD share, SECURITY_ATTRIBUTES* security, DWORD disposition,
                     DWORD flags, HANDLE like)
{
    return FailWith(ERROR_ACCESS_DENIED) ? INVALID_HANDLE_VALUE
                                         : ::CreateFileW(file, access, share, security, disposition, flags, like);
}
BOOL WINAPI Read(HANDLE file, void* bytes, DWORD size, DWORD* read, OVERLAPPED* overlapped)
{
    return !FailWith(ERROR_READ_FAULT) && ::ReadFile(file, bytes, size, read, overlapped);
}
BOOL WINAPI Write(HANDLE file, const void* bytes, DWORD size, DWORD* written, OVERLAPPED* overlapped)
{
    if (!FailWith(ERROR_DISK_FULL))
        return ::WriteFile(file, bytes, size, written, overlapped);
    // A full disk has taken the first half.
    ::WriteFile(file, bytes, size / 2, written, overlapped);
    ::SetLastError(ERROR_DISK_FULL);
    return FALSE;
}
BOOL WINAPI Flush(HANDLE file)
{
    return !FailWith(ERROR_WRITE_FAULT) && ::FlushFileBuffers(file);
}
BOOL WINAPI Close(HANDLE file)
{
    const BOOL closed = ::CloseHandle(file);
    return !FailWith(ERROR_WRITE_FAULT) && closed;
}
BOOL WINAPI Move(const wchar_t* from, const wchar_t* to, DWORD flags)
{
    return !FailWith(ERROR_SHARING_VIOLATION) && ::MoveFileExW(from, to, flags);
}

struct Function {
    const char* symbol;
    void* replacement;
};
const Function Functions[FileCallCount] = {
    {"CreateFileW", reinterpret_cast<void*>(&Create)}, {"ReadFile", reinterpret_cast<void*>(&Read)},
    {"WriteFile", reinterpret_cast<void*>(&Write)},    {"FlushFileBuffers", reinterpret_cast<void*>(&Flush)},
    {"CloseHandle", reinterpret_cast<void*>(&Close)},  {"MoveFileExW", reinterpret_cast<void*>(&Move)}};

}  // namespace

const char* NameOf(FileCall call) noexcept
{
    return Functions[static_cast<int>(call)].symbol;
}

FileFaults::FileFaults(FileCall call, int failing)
    : m_patch(::GetModuleHandleW(L"KZHost.dll"), NameOf(call), Functions[static_cast<int>(call)].replacement)
{
    s_count = 0;
    s_failing = failing;
}
