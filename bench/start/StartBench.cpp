// How long it takes from the start of the editor until its window can be used, beside a program with an empty window.
#include <windows.h>

#include <chrono>
#include <stdexcept>
#include <string>
#include <thread>

#include "Report.h"
#include "TemporaryFolder.h"

namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

constexpr int Pairs = 11;
constexpr double MostMore = 300;  // milliseconds
constexpr std::chrono::seconds Patience{60};

class Program {
public:
    explicit Program(std::wstring line)
    {
        STARTUPINFOW start{};
        start.cb = sizeof start;
        if (!::CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start, &m_process))
            throw std::runtime_error("a program does not start");
    }
    ~Program()
    {
        ::PostMessageW(m_window, WM_CLOSE, 0, 0);
        if (::WaitForSingleObject(m_process.hProcess, 20'000) != WAIT_OBJECT_0)
            ::TerminateProcess(m_process.hProcess, 1);
        ::CloseHandle(m_process.hThread);
        ::CloseHandle(m_process.hProcess);
    }
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    // Returns when its window is shown and answers.
    void WaitUntilUsable()
    {
        const auto end = Clock::now() + Patience;
        while (!IsUsable()) {
            if (Clock::now() > end)
                throw std::runtime_error("a program shows no window");
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
    }

private:
    static BOOL CALLBACK Find(HWND window, LPARAM parameter)
    {
        auto* const program = reinterpret_cast<Program*>(parameter);
        DWORD process = 0;
        ::GetWindowThreadProcessId(window, &process);
        if (process != program->m_process.dwProcessId || !::IsWindowVisible(window))
            return TRUE;
        program->m_window = window;
        return FALSE;
    }

    // A thread answers a message from elsewhere when it has nothing left to do before it.
    bool IsUsable()
    {
        ::EnumWindows(Find, reinterpret_cast<LPARAM>(this));
        DWORD_PTR ignored = 0;
        return m_window && ::SendMessageTimeoutW(m_window, WM_NULL, 0, 0, SMTO_ABORTIFHUNG, 1000, &ignored) != 0;
    }

    PROCESS_INFORMATION m_process{};
    HWND m_window = nullptr;
};

double StartOf(const std::wstring& line)
{
    const auto start = Clock::now();
    Program program(line);
    program.WaitUntilUsable();
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

fs::path OwnFolder()
{
    wchar_t path[MAX_PATH];
    ::GetModuleFileNameW(nullptr, path, MAX_PATH);
    return fs::path(path).parent_path();
}

std::string Shown(double milliseconds)
{
    return std::to_string(static_cast<int>(milliseconds + 0.5)) + " ms";
}

}  // namespace

int main()
{
    const kztest::TemporaryFolder folder;
    fs::copy(KZ_EXAMPLES "/plant", folder.Path() / "plant", fs::copy_options::recursive);
    ::SetEnvironmentVariableW(L"LOCALAPPDATA", folder.Path().c_str());
    const fs::path program = OwnFolder().parent_path() / "bin" / "KZEditor.exe";
    const std::wstring editor =
        L"\"" + program.wstring() + L"\" --project \"" + (folder.Path() / "plant").wstring() + L"\"";
    const std::wstring empty = L"\"" + (OwnFolder() / "EmptyProgram.exe").wstring() + L"\"";

    kzbench::PairedTimes times;
    StartOf(editor);
    StartOf(empty);
    for (int pair = 0; pair < Pairs; ++pair) {
        times.operation.push_back(StartOf(editor));
        times.floor.push_back(StartOf(empty));
    }
    const double ours = kzbench::Median(times.operation);
    const double least = kzbench::Median(times.floor);
    kzbench::Report report;
    report.Add(kzbench::Quantity{"start of the editor to its window", Shown(ours), "an empty MFC program", Shown(least),
                                 "≤ 300 ms more", ours - least <= MostMore});
    return report.ExitCode();
}
