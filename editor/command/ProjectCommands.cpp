#include "ProjectCommands.h"

#include "Console.h"
#include "KZUtf8.h"
#include "check/ProjectCheck.h"
#include "project/Commit.h"
#include "project/DocumentName.h"
#include "project/GroupMask.h"
#include "text/EditorError.h"
#include "text/EditorText.h"
#include "text/PlantMessage.h"

namespace {

void TellOfUnsaved(const plant::Path& folder)
{
    const plant::Recoveries recoveries = plant::FindRecoveries(plant::RealDisk(), folder);
    for (const plant::FoundRecovery& found : recoveries.found)
        PrintErrorLine(ToUtf8(FormatEditorText(IDS_UNSAVED_FOUND, FromUtf8(plant::UtcText(found.unsaved.time)).c_str(),
                                               plant::Shown(found.file).c_str())));
    for (const plant::Message& refused : recoveries.refused)
        PrintErrorLine(ToUtf8(PlantMessage(refused)));
}

}  // namespace

std::unique_ptr<plant::Project> OpenProject(const Arguments& arguments, plant::Project::MainIs main)
{
    auto project = std::make_unique<plant::Project>(arguments.project, plant::RealDisk(), main);
    TellOfUnsaved(project->Folder());
    return project;
}

ExitStatus ListDevices(const Arguments& arguments)
{
    const std::unique_ptr<plant::Project> project = OpenProject(arguments);
    for (const KZDeviceIdentity& device : project->Devices()) {
        std::wstring line(device.driverId.View());
        line.append(L"\t").append(device.name.View()).append(L"\t").append(device.typeName.View());
        PrintLine(ToUtf8(line.append(L"\t").append(plant::FormatGroupMask(device.groups))));
    }
    return ExitTrue;
}

ExitStatus ListHistory(const Arguments& arguments)
{
    // The history is most needed when main.xml cannot be opened.
    for (const plant::HistoryEntry& entry : OpenProject(arguments, plant::Project::MainIs::NotNeeded)->Entries())
        PrintLine(std::to_string(entry.number) + '\t' + entry.time + '\t' + entry.cause + '\t' +
                  plant::Joined(entry.documents, ","));
    return ExitTrue;
}

ExitStatus RestoreSave(const Arguments& arguments)
{
    const std::unique_ptr<plant::Project> project = OpenProject(arguments, plant::Project::MainIs::NotNeeded);
    const plant::Change change = project->Restore(arguments.saveNumber, arguments.dryRun);
    for (const auto& [name, bytes] : change)
        PrintLine(name + (bytes ? "\trestored" : "\tremoved"));
    return change.empty() ? ExitFalse : ExitTrue;
}

ExitStatus CheckForFaults(const Arguments& arguments)
{
    const plant::Path folder = plant::ExistingFolder(arguments.project);
    plant::FinishInterruptedCommit(plant::RealDisk(), folder);
    TellOfUnsaved(folder);
    const plant::Findings findings = plant::CheckProject(plant::StoredProject(folder), arguments.devices);
    for (const plant::Finding& finding : findings)
        PrintRow({finding.device.empty() ? "-" : finding.device, finding.place, ToUtf8(PlantMessage(finding.reason))});
    return findings.empty() ? ExitTrue : ExitFalse;
}

ExitStatus RecoverUnsaved(const Arguments& arguments)
{
    plant::Project project(arguments.project);
    plant::Recoveries recoveries = project.FindUnsaved();
    for (plant::FoundRecovery& found : recoveries.found) {
        if (arguments.discard) {
            plant::Discard(found);
        } else {
            if (const std::vector<std::string> changed = project.ChangedSince(found); !changed.empty())
                throw EditorError(FormatEditorText(IDS_RECOVER_CHANGED_SINCE,
                                                   FromUtf8(plant::Joined(changed, ", ")).c_str(),
                                                   plant::Shown(found.file).c_str()));
            project.Recover(found);
            project.Save("recover");
        }
        for (const auto& [name, bytes] : found.unsaved.documents)
            PrintLine(name + (arguments.discard ? "\tdiscarded" : "\trecovered"));
    }
    if (!recoveries.refused.empty())
        throw EditorError(PlantMessage(recoveries.refused.front()));
    return recoveries.found.empty() ? ExitFalse : ExitTrue;
}
