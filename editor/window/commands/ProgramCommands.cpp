#include "ProgramCommands.h"

#include <algorithm>
#include <cstdio>
#include <map>

#include "KZUtf8.h"
#include "diagnosis/Diagnosis.h"
#include "modules/PeFile.h"
#include "project/DocumentName.h"
#include "project/ProjectFolder.h"
#include "text/EditorText.h"
#include "text/PlantMessage.h"
#include "window/about/AboutDialog.h"
#include "window/frame/MainWindow.h"
#include "window/history/HistoryDialog.h"
#include "window/modules/ModulesDialog.h"
#include "window/open/ProjectFolderDialog.h"

namespace {

// Documents in the words of the user: with the name of the device, where it is a device's.
class DocumentTexts {
public:
    explicit DocumentTexts(const plant::Project& project)
    {
        for (const KZDeviceIdentity& device : project.Devices())
            m_devices.emplace(plant::DeviceDocumentName(device.driverId), device.name.View());
    }

    [[nodiscard]] std::wstring operator()(const std::string& document) const
    {
        std::wstring text = FromUtf8(document);
        if (const auto device = m_devices.find(document); device != m_devices.end())
            text.append(L" (").append(device->second).append(L")");
        return text;
    }

private:
    std::map<std::string, std::wstring> m_devices;
};

// A time of the history, such as "2026-11-21T21:28:04Z", in the user's time zone and way of writing.
std::wstring LocalTime(const std::string& utcText)
{
    unsigned part[6] = {};
    if (std::sscanf(utcText.c_str(), "%4u-%2u-%2uT%2u:%2u:%2u", &part[0], &part[1], &part[2], &part[3], &part[4],
                    &part[5]) != 6)
        return FromUtf8(utcText);
    const auto word = [&part](int index) { return static_cast<WORD>(part[index]); };
    const SYSTEMTIME utc{word(0), word(1), 0, word(2), word(3), word(4), word(5), 0};
    SYSTEMTIME local{};
    wchar_t date[80] = L"";
    wchar_t clock[80] = L"";
    ::SystemTimeToTzSpecificLocalTime(nullptr, &utc, &local);
    ::GetDateFormatEx(LOCALE_NAME_USER_DEFAULT, DATE_SHORTDATE, &local, nullptr, date, 80, nullptr);
    ::GetTimeFormatEx(LOCALE_NAME_USER_DEFAULT, 0, &local, nullptr, clock, 80);
    return std::wstring(date) + L" " + clock;
}

// The latest first.
std::vector<SaveRow> SaveRows(plant::Project& project)
{
    const DocumentTexts text(project);
    std::vector<SaveRow> rows;
    for (const plant::HistoryEntry& entry : project.Entries()) {
        SaveRow row{entry.number,
                    LocalTime(entry.time),
                    entry.cause == "window" ? EditorText(IDS_HISTORY_BY_WINDOW) : FromUtf8(entry.cause),
                    {}};
        for (const std::string& document : entry.documents)
            row.documents.push_back(text(document));
        rows.push_back(std::move(row));
    }
    std::reverse(rows.begin(), rows.end());
    return rows;
}

// Of many documents only the first.
std::wstring Listed(const plant::Project& project, const plant::Change& change)
{
    constexpr std::size_t most = 10;
    const DocumentTexts text(project);
    std::wstring list;
    std::size_t count = 0;
    for (const auto& [name, bytes] : change) {
        if (++count <= most)
            list.append(list.empty() ? L"" : L", ").append(text(name));
    }
    return count <= most ? list : FormatEditorText(IDS_AND_MORE, list.c_str(), static_cast<int>(count - most));
}

bool ConfirmRestore(plant::Project& project, int number)
{
    try {
        const plant::Change change = project.Restore(number, true);
        if (change.empty()) {
            AfxMessageBox(FormatEditorText(IDS_HISTORY_NOTHING, number).c_str(), MB_OK | MB_ICONINFORMATION);
            return false;
        }
        const std::wstring question = FormatEditorText(IDS_HISTORY_CONFIRM, static_cast<int>(change.size()), number,
                                                       Listed(project, change).c_str());
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
