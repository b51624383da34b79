// The command "devices" on projects of any size, beside the two XML libraries passing over the same text.
#include <afxwin.h>

#include <expat.h>
#include <psapi.h>

#include <array>
#include <pugixml.hpp>
#include <stdexcept>

#include "ProjectFolder.h"
#include "Report.h"
#include "command/Arguments.h"
#include "command/Commands.h"

namespace {

using kzbench::PairedTimes;
using kzbench::ProjectFolder;
using kzbench::Settings;

CWinApp application;

struct Size {
    int devices;
    const char* shown;
    Settings settings;
    std::optional<double> limit;
    bool limitsMemory;
};

// Among few devices the comparison is one of opening files, and the memory that of any process.
constexpr Size Sizes[] = {
    {10, "10 devices", Settings::All, {}, false},
    {100, "10² devices", Settings::All, {}, false},
    {1'000, "10³ devices", Settings::All, 1.50, false},
    {10'000, "10⁴ devices", Settings::All, 1.50, true},
    {10'000, "10⁴ devices with one limit each", Settings::OneLimit, 1.50, false},
    {100'000, "10⁵ devices with one limit each", Settings::OneLimit, 1.50, true},
};

// What the command prints goes nowhere; what this program prints keeps the handle that it started with.
void SilenceCommands()
{
    ::SetStdHandle(STD_OUTPUT_HANDLE,
                   ::CreateFileW(L"NUL", GENERIC_WRITE, FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr));
}

void ListDevices(const std::filesystem::path& project)
{
    Arguments arguments;
    arguments.command = Command::Devices;
    arguments.project = project;
    if (RunCommand(arguments) != ExitTrue)
        throw std::runtime_error("the devices cannot be listed");
}

void PassOver(const ProjectFolder& folder)
{
    const std::string bytes = folder.MainText();
    const XML_Parser parser = XML_ParserCreate(nullptr);
    const bool wellFormed = XML_Parse(parser, bytes.data(), static_cast<int>(bytes.size()), XML_TRUE) == XML_STATUS_OK;
    XML_ParserFree(parser);
    pugi::xml_document tree;
    if (!wellFormed ||
        !tree.load_buffer(bytes.data(), bytes.size(), pugi::parse_full | pugi::parse_ws_pcdata, pugi::encoding_utf8))
        throw std::runtime_error("the project is malformed");
}

// The most memory that a process of its own has used for the command, in bytes; its exit status tells it in KB.
double PeakOf(const ProjectFolder& folder)
{
    std::array<wchar_t, 32768> program{};
    ::GetModuleFileNameW(nullptr, program.data(), static_cast<DWORD>(program.size()));
    std::wstring line = L"devices_bench \"" + folder.Path().wstring() + L"\"";
    STARTUPINFOW start{};
    start.cb = sizeof start;
    PROCESS_INFORMATION process{};
    if (!::CreateProcessW(program.data(), line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start, &process))
        throw std::runtime_error("the benchmark cannot start itself");
    ::WaitForSingleObject(process.hProcess, INFINITE);
    DWORD kilobytes = 0;
    ::GetExitCodeProcess(process.hProcess, &kilobytes);
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
    return kilobytes * 1024.0;
}

int TellPeak(const std::filesystem::path& project)
{
    ListDevices(project);
    PROCESS_MEMORY_COUNTERS counters{};
    ::GetProcessMemoryInfo(::GetCurrentProcess(), &counters, sizeof counters);
    return static_cast<int>(counters.PeakWorkingSetSize / 1024);
}

void AddMemory(kzbench::Report& report, const std::string& name, double peak, double file)
{
    report.Add(kzbench::Quantity{"memory to " + name, kzbench::Kilobytes(peak), "the file", kzbench::Kilobytes(file),
                                 "≤ 12 ×", peak <= 12 * file});
}

void AddGrowth(kzbench::Report& report, double small, double large)
{
    std::array<char, 32> ratio{};
    std::snprintf(ratio.data(), ratio.size(), "%.1f ×", large / small);
    report.Add(kzbench::Quantity{"list 10⁵ devices beside 10⁴", ratio.data(), "", "", "≤ 12 ×", large <= 12 * small});
}

}  // namespace

int main(int count, char** arguments)
{
    SilenceCommands();
    if (count > 1)
        return TellPeak(arguments[1]);
    kzbench::Report report;
    double before = 0;
    for (const Size& size : Sizes) {
        const ProjectFolder folder(size.devices, size.settings);
        const std::string name = std::string("list ") + size.shown;
        const PairedTimes times = kzbench::RunInTurn([&] { ListDevices(folder.Path()); }, [&] { PassOver(folder); });
        report.Add({name, "expat and pugixml alone", size.limit}, times);
        const double listing = kzbench::Median(times.operation);
        if (size.devices == 100'000)
            AddGrowth(report, before, listing);
        before = listing;
        if (size.limitsMemory)
            AddMemory(report, name, PeakOf(folder), static_cast<double>(folder.Size()));
    }
    return report.ExitCode();
}
