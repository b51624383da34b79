#include "Diagnosis.h"

#include <algorithm>

#include "DiagnosisParts.h"
#include "KZUtf8.h"
#include "command/Console.h"

Diagnosis Diagnose(const ModuleLoader& modules, const std::filesystem::path& project)
{
    Diagnosis diagnosis;
    DiagnoseFiles(diagnosis);
    DiagnoseModules(diagnosis, modules);
    DiagnoseSystem(diagnosis);
    DiagnoseProject(diagnosis, project);
    return diagnosis;
}

bool IsSound(const Diagnosis& diagnosis) noexcept
{
    return std::all_of(diagnosis.begin(), diagnosis.end(),
                       [](const DiagnosisLine& line) { return line.fault.empty(); });
}

std::string DiagnosisText(const Diagnosis& diagnosis)
{
    std::string text;
    for (const DiagnosisLine& line : diagnosis) {
        const std::wstring& fault = line.fault.empty() ? L"-" : line.fault;
        text += Row({line.subject, ToUtf8(line.name), ToUtf8(line.value), ToUtf8(fault)}) + '\n';
    }
    return text;
}
