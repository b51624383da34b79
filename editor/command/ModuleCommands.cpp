#include "ModuleCommands.h"

#include "Console.h"
#include "KZUtf8.h"
#include "diagnosis/Diagnosis.h"
#include "modules/ModuleSummary.h"

ExitStatus ListModules(const Arguments&)
{
    const auto orDash = [](const std::wstring& text) { return text.empty() ? "-" : ToUtf8(text); };
    for (const ModuleRow& row : ModuleRows(ModuleLoader(ProgramFolder())))
        PrintRow({ToUtf8(row.file), ToUtf8(row.model), orDash(row.version), row.stateWord, orDash(row.status.reason)});
    return ExitTrue;
}

ExitStatus DiagnoseInstallation(const Arguments& arguments)
{
    const Diagnosis diagnosis = Diagnose(ModuleLoader(ProgramFolder()), arguments.project);
    PrintLines(DiagnosisText(diagnosis));
    return IsSound(diagnosis) ? ExitTrue : ExitFalse;
}
