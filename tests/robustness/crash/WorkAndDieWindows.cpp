#include <windows.h>

#include <stdexcept>
#include <string>

#include "Workers.h"

namespace crash {

namespace {

class Handle {
public:
    explicit Handle(HANDLE handle) noexcept : m_handle(handle) {}
    ~Handle() { Close(); }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
    [[nodiscard]] HANDLE Get() const noexcept { return m_handle; }
    void Close() noexcept
    {
        if (m_handle)
            ::CloseHandle(m_handle);
        m_handle = nullptr;
    }

private:
    HANDLE m_handle;
};

// Sleep knows whole milliseconds only, and a piece of work takes less.
void Wait(int microseconds)
{
    LARGE_INTEGER frequency;
    LARGE_INTEGER now;
    ::QueryPerformanceFrequency(&frequency);
    ::QueryPerformanceCounter(&now);
    const auto end = now.QuadPart + frequency.QuadPart * microseconds / 1'000'000;
    for (; now.QuadPart < end; ::QueryPerformanceCounter(&now))
        ::Sleep(0);
}

std::filesystem::path Program()
{
    wchar_t own[MAX_PATH];
    ::GetModuleFileNameW(nullptr, own, MAX_PATH);
    return std::filesystem::path(own).replace_filename("endure_worker.exe");
}

bool TakeReport(const Handle& reports, long& number)
{
    DWORD read = 0;
    return ::ReadFile(reports.Get(), &number, sizeof number, &read, nullptr) && read == sizeof number;
}

void Require(bool holds, const char* what)
{
    if (!holds)
        throw std::runtime_error(what);
}

}  // namespace

long WorkAndDie(const Worker& worker, const std::filesystem::path& place, long last, int microseconds)
{
    SECURITY_ATTRIBUTES inherited{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
    HANDLE readEnd = nullptr;
    HANDLE writeEnd = nullptr;
    Require(::CreatePipe(&readEnd, &writeEnd, &inherited, 0), "no pipe");
    const Handle reports(readEnd);
    Handle output(writeEnd);
    ::SetHandleInformation(reports.Get(), HANDLE_FLAG_INHERIT, 0);

    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdOutput = output.Get();
    PROCESS_INFORMATION started{};
    const std::string name = worker.name;
    std::wstring command = L"endure_worker.exe " + std::wstring(name.begin(), name.end()) + L" \"" + place.wstring() +
                           L"\" " + std::to_wstring(last);
    Require(::CreateProcessW(Program().c_str(), command.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup,
                             &started),
            "the worker could not be started");
    const Handle process(started.hProcess);
    const Handle thread(started.hThread);
    output.Close();
    Require(TakeReport(reports, last), "the worker has not begun");
    Wait(microseconds);
    Require(::TerminateProcess(process.Get(), 0), "the worker has ended by itself");
    ::WaitForSingleObject(process.Get(), INFINITE);
    while (TakeReport(reports, last)) {
    }
    return last;
}

}  // namespace crash
