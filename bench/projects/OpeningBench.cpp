// Opening the main window on a large project, and showing another of its devices, beside the same with six devices; and
// the largest project that a document can hold.
#include <afxwin.h>

#include <commctrl.h>
#include <psapi.h>

#include <array>
#include <chrono>
#include <cstdio>
#include <stdexcept>

#include "ProjectFolder.h"
#include "Report.h"
#include "modules/ModuleLoader.h"
#include "resources/EditorIds.h"
#include "window/frame/MainWindow.h"

namespace {

using kzbench::ProjectFolder;
using kzbench::Settings;

CWinApp application;

constexpr int Many = 10'000;
constexpr int Few = 6;
constexpr int Pairs = 5;
constexpr int Shows = 20;

constexpr int Most = 100'000;              // with one limit each
constexpr double LongestOpening = 10'000;  // milliseconds
constexpr double LongestFind = 1'000;      // milliseconds
constexpr double MostMemory = 12;          // times the file

void TakeMessages()
{
    MSG message;
    while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) && message.message != WM_QUIT)
        ::DispatchMessageW(&message);
}

class OpenWindow {
public:
    OpenWindow(std::unique_ptr<OpenProject> project, const ModuleLoader& modules)
        : m_window(modules, m_settings, std::move(project))
    {
        m_window.Create();
        Paint();
    }
    ~OpenWindow()
    {
        m_window.DestroyWindow();
        TakeMessages();
    }
    OpenWindow(const OpenWindow&) = delete;
    OpenWindow& operator=(const OpenWindow&) = delete;

    // Returns how many devices are shown then.
    int Find(const wchar_t* words)
    {
        ::SetWindowTextW(::GetDlgItem(m_window.m_hWnd, IDC_FIND), words);
        Paint();
        return ListView_GetItemCount(::GetDlgItem(m_window.m_hWnd, IDC_DEVICES));
    }
    void Press(WPARAM key)
    {
        ::SendMessageW(::GetDlgItem(m_window.m_hWnd, IDC_DEVICES), WM_KEYDOWN, key, 0);
        Paint();
    }

private:
    void Paint()
    {
        TakeMessages();
        ::RedrawWindow(m_window.m_hWnd, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    }

    kztest::TemporaryFolder m_folder;
    SettingsFile m_settings{m_folder.Path() / "settings.xml"};
    MainWindow m_window;
};

using Clock = std::chrono::steady_clock;

double MillisecondsSince(Clock::time_point start)
{
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

struct Sample {
    double loading;
    double opening;
    double showing;  // of another device, near the end of the list
};

Sample Measure(const ProjectFolder& folder, const ModuleLoader& modules)
{
    Sample sample{};
    auto start = Clock::now();
    auto project = std::make_unique<OpenProject>(folder.Path());
    sample.loading = MillisecondsSince(start);

    start = Clock::now();
    OpenWindow window(std::move(project), modules);
    window.Press(VK_DOWN);
    sample.opening = MillisecondsSince(start);

    window.Press(VK_END);
    start = Clock::now();
    for (int show = 0; show < Shows; ++show)
        window.Press(show % 2 == 0 ? VK_UP : VK_DOWN);
    sample.showing = MillisecondsSince(start) / Shows;
    return sample;
}

double MemoryNow()
{
    PROCESS_MEMORY_COUNTERS counters{};
    ::GetProcessMemoryInfo(::GetCurrentProcess(), &counters, sizeof counters);
    return static_cast<double>(counters.WorkingSetSize);
}

void AddTime(kzbench::Report& report, const std::string& name, double milliseconds, double limit)
{
    std::array<char, 32> shown{};
    std::array<char, 32> bound{};
    std::snprintf(shown.data(), shown.size(), "%.0f ms", milliseconds);
    std::snprintf(bound.data(), bound.size(), "≤ %.0f ms", limit);
    report.Add(kzbench::Quantity{name, shown.data(), "", "", bound.data(), milliseconds <= limit});
}

void MeasureMost(kzbench::Report& report, const ModuleLoader& modules)
{
    const ProjectFolder folder(Most, Settings::OneLimit);
    const double before = MemoryNow();
    auto start = Clock::now();
    OpenWindow window(std::make_unique<OpenProject>(folder.Path()), modules);
    window.Press(VK_DOWN);
    AddTime(report, "load 10⁵ devices, open the main window, take a key", MillisecondsSince(start), LongestOpening);
    const double memory = MemoryNow() - before;
    start = Clock::now();
    const int found = window.Find(L"rolling 777");
    AddTime(report, "find some of 10⁵ devices by words", MillisecondsSince(start), LongestFind);
    if (found == 0 || found >= Most)
        throw std::runtime_error("other devices were found");
    const auto file = static_cast<double>(folder.Size());
    std::array<char, 32> bound{};
    std::snprintf(bound.data(), bound.size(), "≤ %.0f ×", MostMemory);
    report.Add(kzbench::Quantity{"memory of the window on 10⁵ devices", kzbench::Kilobytes(memory), "the file",
                                 kzbench::Kilobytes(file), bound.data(), memory <= MostMemory * file});
}

}  // namespace

int main()
{
    const ProjectFolder many(Many, Settings::All);
    const ProjectFolder few(Few, Settings::All);
    const ModuleLoader modules(ProgramFolder().parent_path() / "bin");
    kzbench::PairedTimes opening;
    kzbench::PairedTimes showing;
    for (int pair = 0; pair < Pairs; ++pair) {
        const Sample large = Measure(many, modules);
        const Sample small = Measure(few, modules);
        opening.operation.push_back(large.loading + large.opening);
        opening.floor.push_back(large.loading + small.opening);
        showing.operation.push_back(large.showing);
        showing.floor.push_back(small.showing);
    }
    kzbench::Report report;
    report.Add({"open the main window of 10⁴ devices, take a key", "load them, open the window of six", 1.30}, opening);
    report.Add({"show another of 10⁴ devices", "another of six", 1.30}, showing);
    MeasureMost(report, modules);
    return report.ExitCode();
}
