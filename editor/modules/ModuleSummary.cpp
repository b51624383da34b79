#include "ModuleSummary.h"

#include "text/EditorText.h"

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
