#include "SaveQuestion.h"

#include <afxwin.h>

#include <algorithm>

#include "project/DocumentName.h"
#include "resources/DialogTextIds.h"
#include "text/EditorText.h"

bool AskToSave(const plant::ReviewCount& count)
{
    const std::wstring question =
        FormatEditorText(IDS_ASK_TO_SAVE, static_cast<int>(count.lines), static_cast<int>(count.devices));
    return AfxMessageBox(question.c_str(), MB_YESNO | MB_ICONQUESTION) == IDYES;
}

std::optional<plant::ReviewCount> CountToSave(plant::Project& project)
{
    const auto& changed = project.ChangedDevices();
    if (std::none_of(changed.begin(), changed.end(), [&](const KZBasicString& driverId) {
            return project.IsUnsaved(plant::DeviceDocumentName(driverId));
        }))
        return std::nullopt;
    try {
        return plant::CountOf(plant::Review(project));
    } catch (const plant::Refusal&) {
        return std::nullopt;
    }
}

bool MaySave(plant::Project& project)
{
    const std::optional<plant::ReviewCount> count = CountToSave(project);
    return !count || AskToSave(*count);
}
