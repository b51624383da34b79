// The memory of a process that has the module loaded: before any dialog, and while each is open. Memory that a dialog
// gives back stays with the process for the next one, so these are no differences.
#include <afxwin.h>
#include <psapi.h>

#include "Report.h"
#include "Roads.h"

namespace {

CWinApp application;

std::string WorkingSet()
{
    PROCESS_MEMORY_COUNTERS counters{};
    ::GetProcessMemoryInfo(::GetCurrentProcess(), &counters, sizeof counters);
    return kzbench::Kilobytes(static_cast<double>(counters.WorkingSetSize));
}

}  // namespace

int main()
{
    kzbench::Report report;
    Roads roads;
    const std::string atRest = WorkingSet();
    report.Add(kzbench::Quantity{"working set before any dialog", atRest});
    for (const Road& road : roads.All()) {
        std::string open;
        roads.Owner().WhileOpen([&open] { open = WorkingSet(); });
        road.open();
        report.Add(kzbench::Quantity{std::string("working set while open: ") + road.dialog, open, "before any dialog",
                                     atRest});
    }
    return report.ExitCode();
}
