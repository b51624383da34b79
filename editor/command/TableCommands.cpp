#include "TableCommands.h"

#include <algorithm>

#include "Console.h"
#include "FieldCommands.h"
#include "KZMainCfg.h"
#include "ProjectCommands.h"
#include "fields/FieldQuery.h"
#include "project/DocumentName.h"
#include "project/ReplaceFile.h"
#include "table/Export.h"
#include "table/Import.h"

namespace {

std::vector<std::string> KeysOf(const std::vector<const plant::Field*>& fields)
{
    std::vector<std::string> keys(fields.size());
    std::transform(fields.begin(), fields.end(), keys.begin(), [](const plant::Field* field) { return field->key; });
    return keys;
}

std::string ReadTable(const std::filesystem::path& file)
{
    std::optional<std::string> bytes = plant::RealDisk().Read(file);
    if (!bytes)
        throw plant::Refusal(IDS_PLANT_TABLE_MISSING, {plant::Shown(file)});
    return std::move(*bytes);
}

}  // namespace

ExitStatus ExportDevices(const Arguments& arguments)
{
    const std::unique_ptr<plant::Project> project = OpenProject(arguments);
    const plant::StoredProject files(project->Folder());
    plant::DeviceReader reader(*KZMainCfg::Get(), files);
    const auto fields = plant::FieldsNamed(*plant::FieldsOfType(arguments.type), arguments.fields);
    const std::string table = plant::ExportTable(project->Devices(), reader, KeysOf(fields));
    if (arguments.output)
        plant::ReplaceInOneStep(plant::RealDisk(), *arguments.output, table);
    else
        PrintLines(table);
    return ExitTrue;
}

ExitStatus ImportDevices(const Arguments& arguments)
{
    const std::string table = ReadTable(arguments.otherPath);
    const std::unique_ptr<plant::Project> project = OpenProject(arguments);
    plant::FieldEdit edit(*project, plant::FieldEdit::Unsettable::MayStay);
    const auto findings = plant::ImportTable(*project, edit, table, plant::Shown(arguments.otherPath));
    PrintFindings(findings);
    if (!findings.empty()) {
        PrintFindings(edit.Findings());
        return ExitError;
    }
    const ExitStatus status = Conclude(arguments, *project, edit, "import");
    if (status != ExitError)
        PrintLine("import: " + std::to_string(edit.Changes().size()) + " changes");
    return status;
}
