#include "FieldCommands.h"

#include "Console.h"
#include "KZMainCfg.h"
#include "KZUtf8.h"
#include "ProjectCommands.h"
#include "changes/FieldCopy.h"
#include "fields/FieldQuery.h"
#include "fields/ProjectDifference.h"
#include "project/DocumentName.h"
#include "text/EditorError.h"
#include "text/EditorText.h"
#include "text/FieldText.h"
#include "text/PlantMessage.h"

namespace {

// For programs, the same in every language.
const char* KindWord(plant::FieldKind kind) noexcept
{
    constexpr const char* words[] = {"whole number", "decimal", "choice", "set", "text"};
    return words[static_cast<std::size_t>(kind)];
}

std::string OrDash(const std::string& text)
{
    return text.empty() ? "-" : text;
}

std::string NameOf(const plant::Project& project, std::size_t device)
{
    return ToUtf8(project.Devices()[device].name.View());
}

std::vector<plant::Assignment> AssignmentsTo(const plant::FieldTable& table, const Arguments& arguments)
{
    std::vector<plant::Assignment> assignments;
    for (const auto& [key, value] : arguments.assignments)
        assignments.push_back({&plant::FieldNamed(table, key), value});
    return assignments;
}

void PrintDifference(const plant::FieldDifference& difference)
{
    switch (difference.kind) {
    case plant::FieldDifference::Kind::Value:
        return PrintRow({difference.device, difference.field->key, difference.here, difference.there});
    case plant::FieldDifference::Kind::Type:
        return PrintRow({difference.device, "-", difference.here, difference.there});
    case plant::FieldDifference::Kind::OnlyHere:
        return PrintRow({difference.device, "-", "present", "absent"});
    case plant::FieldDifference::Kind::OnlyThere:
        return PrintRow({difference.device, "-", "absent", "present"});
    }
}

}  // namespace

ExitStatus ListFields(const Arguments& arguments)
{
    const plant::FieldTable* const fields = plant::FieldsOfType(arguments.type);
    if (!fields)
        throw EditorError(FormatEditorText(IDS_NO_FIELDS_OF_TYPE, arguments.type.c_str()));
    for (const plant::Field& field : *fields)
        PrintRow({field.key, KindWord(field.kind), OrDash(field.unit), OrDash(field.values),
                  field.isWritable ? "rw" : "r", ToUtf8(FieldCaption(field))});
    return ExitTrue;
}

ExitStatus PrintValues(const Arguments& arguments)
{
    const std::unique_ptr<plant::Project> project = OpenProject(arguments);
    const plant::StoredProject files(project->Folder());
    plant::DeviceReader reader(*KZMainCfg::Get(), files);
    std::string lines;  // the last document may be a broken one
    for (const std::size_t device : plant::DevicesNamed(*project, arguments.devices)) {
        const plant::DeviceRecords& records = reader.Read(project->Devices()[device]);
        for (const plant::Field* field : plant::FieldsNamed(records.Table(), arguments.fields)) {
            if (!arguments.stored || records.IsStored(*field))
                lines += Row({NameOf(*project, device), field->key, records.Value(*field)}) += '\n';
        }
    }
    PrintLines(lines);
    return ExitTrue;
}

ExitStatus SetValues(const Arguments& arguments)
{
    const std::unique_ptr<plant::Project> project = OpenProject(arguments);
    plant::FieldEdit edit(*project);
    for (const std::size_t device : plant::DevicesNamed(*project, arguments.devices)) {
        const plant::FieldTable& table = *plant::FieldsOfType(project->Devices()[device].typeName.View());
        edit.Add(device, AssignmentsTo(table, arguments));
    }
    return Conclude(arguments, *project, edit, "set");
}

ExitStatus CopyValues(const Arguments& arguments)
{
    const std::unique_ptr<plant::Project> project = OpenProject(arguments);
    const plant::StoredProject files(project->Folder());
    plant::DeviceReader reader(*KZMainCfg::Get(), files);
    const std::size_t from = plant::DevicesNamed(*project, {arguments.device}).front();
    plant::FieldEdit edit = plant::CopyFields(*project, reader, from, plant::DevicesNamed(*project, arguments.devices),
                                              {arguments.fields, arguments.sections});
    return Conclude(arguments, *project, edit, "copy");
}

ExitStatus CompareProjects(const Arguments& arguments)
{
    const std::unique_ptr<plant::Project> project = OpenProject(arguments);
    const plant::StoredProject files(project->Folder());
    const plant::StoredProject otherFiles(arguments.otherPath);
    XmlDocument otherMain(L"configuration");
    otherFiles.ReadMain(otherMain);
    const plant::DeviceList otherDevices =
        plant::ReadDevices(otherMain, plant::Shown(otherFiles.Folder() / plant::MainDocument));

    const auto differences =
        plant::Differences({*KZMainCfg::Get(), project->Devices(), files}, {otherMain, otherDevices, otherFiles});
    for (const plant::FieldDifference& difference : differences)
        PrintDifference(difference);
    return differences.empty() ? ExitTrue : ExitFalse;
}

void PrintFindings(const std::vector<plant::Finding>& findings)
{
    for (const plant::Finding& finding : findings) {
        const std::string place = finding.device.empty() ? "" : finding.device + ": " + finding.place + ": ";
        PrintErrorLine(place + ToUtf8(PlantMessage(finding.reason)));
    }
}

ExitStatus Conclude(const Arguments& arguments, const plant::Project& project, plant::FieldEdit& edit,
                    const char* command)
{
    PrintFindings(edit.Findings());
    if (!edit.Findings().empty())
        return ExitError;
    if (!arguments.dryRun && !edit.Changes().empty())
        edit.Save(command);
    for (const plant::FieldChange& change : edit.Changes())
        PrintRow({NameOf(project, change.device), change.field->key, change.before, change.after});
    return edit.Changes().empty() ? ExitFalse : ExitTrue;
}
