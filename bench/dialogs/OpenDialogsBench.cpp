// Opening and closing the module's dialogs beside their templates alone.
#include "Report.h"
#include "Roads.h"

namespace {

CWinApp application;

}  // namespace

int main()
{
    kzbench::Report report;
    Roads roads;
    for (const Road& road : roads.All())
        report.Add({std::string("open and close: ") + road.dialog, "the bare templates", road.limit},
                   kzbench::RunInTurn(road.open, [&] { RunBareDialog(road.bare, roads.Owner().m_hWnd); }));
    return report.ExitCode();
}
