#include "ProgramCommands.h"

#include <algorithm>
#include <cstdio>

#include "KZUtf8.h"
#include "diagnosis/Diagnosis.h"
#include "modules/PeFile.h"
#include "project/ProjectFolder.h"
#include "text/DocumentText.h"
#include "text/EditorText.h"
#include "text/PlantMessage.h"
#include "window/about/AboutDialog.h"
#include "window/frame/MainWindow.h"
#include "window/history/HistoryDialog.h"
#include "window/modules/ModulesDialog.h"
#include "window/open/ProjectFolderDialog.h"

namespace {

// A time of the history, such as "2026-11-21T21:28:04Z".
std::wstring TimeText(const std::string& utcText)
{
    unsigned part[6] = {};
    if (std::sscanf(utcText.c_str(), "%4u-%2u-%2uT%2u:%2u:%2u", &part[0], &part[1], &part[2], &part[3], &part[4],
                    &part[5]) != 6)
        return FromUtf8(utcText);
    const auto word = [&part](int index) { return static_cast<WORD>(part[index]); };
    return LocalTime({word(0), word(1), 0, word(2), word(3), word(4), word(5), 0});
}

// The latest first.
std::vector<SaveRow> SaveRows(plant::Project& project)
{
    const DocumentTexts texts(project.Devices());
    std::vector<SaveRow> rows;
    for (const plant::HistoryEntry& entry : project.Entries()) {
        SaveRow row{entry.number,
                    TimeText(entry.time),
                    entry.cause == "window" ? EditorText(IDS_HISTORY_BY_WINDOW) : FromUtf8(entry.cause),
                    {}};
        for (const std::string& document : entry.documents)
            row.documents.push_back(texts.Of(document));
        rows.push_back(std::move(row));
    }
    std::reverse(rows.begin(), rows.end());
    return rows;
}

bool ConfirmRestore(plant::Project& project, int number)
{
    try {
        const plant::Change change = project.Restore(number, true);
        if (change.empty()) {
            AfxMessageBox(FormatEditorText(IDS_HISTORY_NOTHING, number).c_str(), MB_OK | MB_ICONINFORMATION);
            return false;
        }
        const std::wstring question =
            FormatEditorText(IDS_HISTORY_CONFIRM, static_cast<int>(change.size()), number,
                             DocumentTexts(project.Devices()).Listed(plant::NamesIn(change)).c_str());
        return AfxMessageBox(question.c_str(), MB_YESNO | MB_ICONQUESTION | MB_DEFBUTTON2) == IDYES;
    } catch (const plant::Refusal& refusal) {
        AfxMessageBox(PlantMessage(refusal.What()).c_str(), MB_OK | MB_ICONERROR);
        return false;
    }
}

}  // namespace

void ShowModules(MainWindow& window)
{
    ModulesDialog(&window, ModuleRows(window.Modules())).DoModal();
}

void ShowAbout(MainWindow& window)
{
    const Diagnosis diagnosis =
        Diagnose(window.Modules(), window.HasProject() ? window.Project().Folder() : plant::Path(L"."));
    wchar_t program[MAX_PATH] = L"";
    ::GetModuleFileNameW(nullptr, program, MAX_PATH);
    AboutDialog(&window, FileVersion(program), FromUtf8(DiagnosisText(diagnosis))).DoModal();
}

void ShowHistory(MainWindow& window)
{
    plant::Project& project = window.Project();
    std::vector<SaveRow> saves;
    try {
        saves = SaveRows(project);
    } catch (const plant::Refusal& refusal) {
        AfxMessageBox(PlantMessage(refusal.What()).c_str(), MB_OK | MB_ICONERROR);
        return;
    }
    HistoryDialog dialog(&window, std::move(saves), [&](int number) { return ConfirmRestore(project, number); });
    if (dialog.DoModal() == IDOK)
        window.CarryOut([&] { project.Restore(dialog.Number(), false); });
}

void SaveCopyAs(MainWindow& window)
{
    ProjectFolderDialog(&window, FolderPurpose::Copy, {}, [&](const plant::Path& folder) {
        plant::SaveCopy(window.Project(), folder);
    }).DoModal();
}
