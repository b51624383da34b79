// The editor's own files: their versions, and whether they are the ones beside the editor.
#include "DiagnosisParts.h"
#include "KZUtf8.h"
#include "command/RequiredFiles.h"
#include "modules/ModuleSummary.h"
#include "modules/PeFile.h"
#include "text/EditorText.h"

namespace fs = std::filesystem;

namespace {

std::wstring OrDash(const std::wstring& text)
{
    return text.empty() ? L"-" : text;
}

std::wstring FaultOf(const fs::path& file, const std::wstring& version, const std::wstring* wantedVersion)
{
    const std::wstring name = file.filename().wstring();
    std::error_code ignored;
    if (!fs::equivalent(file.parent_path(), ProgramFolder(), ignored))
        return FormatEditorText(IDS_DIAGNOSIS_OTHER_FOLDER, name.c_str(), file.parent_path().c_str());
    if (wantedVersion && version != *wantedVersion)
        return FormatEditorText(IDS_DIAGNOSIS_OTHER_VERSION, name.c_str(), OrDash(version).c_str(),
                                wantedVersion->c_str());
    return {};
}

}  // namespace

void DiagnoseFiles(Diagnosis& diagnosis)
{
    // Ours have the editor's version.
    static constexpr struct {
        const wchar_t* name;
        bool isOurs;
    } libraries[] = {
        {L"KZHost.dll", true},       {L"KZMfc.dll", true},           {L"libcsv.dll", false},
        {L"libstdc++-6.dll", false}, {L"libgcc_s_seh-1.dll", false}, {L"libwinpthread-1.dll", false},
    };
    const fs::path program = ProgramFile();
    const std::wstring programVersion = FileVersion(program);
    diagnosis.push_back({"file", program.filename().wstring(), OrDash(programVersion), {}});
    for (const auto& [name, isOurs] : libraries) {
        const HMODULE library = ::GetModuleHandleW(name);
        const fs::path file = library ? ProgramFile(library) : ProgramFolder() / name;
        const std::wstring version = FileVersion(file);
        diagnosis.push_back(
            {"file", name, OrDash(version), FaultOf(file, version, isOurs ? &programVersion : nullptr)});
    }
    const std::optional<std::wstring> missing = MissingPicture();
    diagnosis.push_back({"file", L"images", missing ? L"-" : L"complete",
                         missing ? FormatEditorText(IDS_PICTURE_MISSING, missing->c_str()) : std::wstring()});
}

void DiagnoseModules(Diagnosis& diagnosis, const ModuleLoader& modules)
{
    for (const ModuleRow& row : ModuleRows(modules)) {
        const std::wstring state = FromUtf8(row.stateWord);
        const std::wstring value = row.version.empty() ? state : row.version + L" " + state;
        const std::wstring fault = row.status.IsReady() ? std::wstring() : row.status.reason + L" " + row.status.remedy;
        diagnosis.push_back({"module", row.file, value, fault});
    }
}
