#include "ModuleSummary.h"

#include "DeviceType.h"
#include "PeFile.h"
#include "text/EditorText.h"

namespace {

ModuleRow RowOf(std::wstring file, std::wstring model, std::wstring version, ModuleStatus status)
{
    constexpr const char* words[] = {"ready", "missing", "cannot-load", "wrong-architecture", "no-entry", "refused"};
    const char* word = words[static_cast<std::size_t>(status.state)];
    return {std::move(file), std::move(model), std::move(version), std::move(status), word};
}

}  // namespace

std::vector<ModuleRow> ModuleRows(const ModuleLoader& modules)
{
    std::vector<ModuleRow> rows;
    for (const Module& module : modules.Modules()) {
        // A module that starts may still have registered nothing for its devices.
        const ModuleStatus status =
            FindDeviceType(module.Model()) ? modules.StatusOf(module.Model().c_str()) : module.Status();
        rows.push_back(RowOf(module.File().filename().wstring(), module.Model(), FileVersion(module.File()), status));
    }
    for (const DeviceType& type : DeviceTypes()) {
        if (ModuleStatus status = modules.StatusOf(type.name); status.state == ModuleState::Missing)
            rows.push_back(RowOf(ModuleFileName(type.name), type.name, {}, std::move(status)));
    }
    return rows;
}

std::wstring ModuleSummary(const ModuleLoader& modules)
{
    if (modules.Modules().empty())
        return FormatEditorText(IDS_MODULES_NONE, ProgramFolder().c_str());
    std::wstring text;
    for (const Module& module : modules.Modules()) {
        const ModuleStatus& status = module.Status();
        text += text.empty() ? L"" : L"\r\n";
        text += status.IsReady() ? FormatEditorText(IDS_MODULES_READY, module.File().filename().c_str())
                                 : status.reason + L" " + status.remedy;
    }
    return text;
}
