// What is unsaved, line by line.
#include <algorithm>

#include "DeviceCommands.h"
#include "KZUtf8.h"
#include "changes/Review.h"
#include "text/EditorText.h"
#include "text/FieldText.h"
#include "text/PlantMessage.h"
#include "window/frame/MainWindow.h"
#include "window/review/ReviewDialog.h"

namespace {

using What = plant::ReviewLine::What;

std::wstring WhatText(const plant::ReviewLine& line)
{
    constexpr unsigned texts[] = {0,
                                  IDS_REVIEW_ADDED,
                                  IDS_REVIEW_REMOVED,
                                  IDS_REVIEW_NAME,
                                  IDS_REVIEW_NUMBER,
                                  IDS_REVIEW_DESCRIPTION,
                                  IDS_REVIEW_VARIABLES,
                                  IDS_REVIEW_DOCUMENT,
                                  IDS_REVIEW_SETTINGS,
                                  IDS_REVIEW_OTHER};
    return line.what == What::Value ? FieldCaption(*line.field)
                                    : EditorText(texts[static_cast<std::size_t>(line.what)]);
}

std::wstring ValueText(const plant::ReviewLine& line, const std::string& value)
{
    if (line.what == What::Value) {
        std::wstring text = FieldValueText(*line.field, value);
        return line.field->unit.empty() || text == NoValue ? text : text + L" " + FromUtf8(line.field->unit);
    }
    std::wstring text = FromUtf8(value);
    std::replace(text.begin(), text.end(), L'\n', L' ');  // between names of variables
    return text;
}

}  // namespace

void ReviewChanges(MainWindow& window)
{
    plant::Project& project = window.Project();
    std::vector<plant::ReviewLine> lines;
    try {
        lines = plant::Review(project);
    } catch (const plant::Refusal& refusal) {
        AfxMessageBox(PlantMessage(refusal.What()).c_str(), MB_OK | MB_ICONERROR);
        return;
    }
    std::vector<ChangeRow> rows;
    rows.reserve(lines.size());
    for (const plant::ReviewLine& line : lines)
        rows.push_back({FromUtf8(line.device), WhatText(line), ValueText(line, line.before),
                        ValueText(line, line.after), line.what != What::Other});
    ReviewDialog dialog(&window, std::move(rows), static_cast<int>(plant::CountOf(lines).devices));
    if (dialog.DoModal() != IDOK)
        return;
    std::vector<plant::ReviewLine> taken;
    std::vector<KZBasicString> driverIds;
    for (const std::size_t row : dialog.Checked()) {
        taken.push_back(lines[row]);
        driverIds.push_back(lines[row].driverId);
    }
    window.Change({IDS_PLANT_STEP_TAKE_BACK, {}}, driverIds, [&] { plant::TakeBack(project, taken); });
}
