#include "DeviceCommands.h"

#include "KZMainCfg.h"
#include "changes/DeviceEdit.h"
#include "modules/DeviceType.h"
#include "project/ChosenVariables.h"
#include "window/add/AddDeviceDialog.h"
#include "window/duplicate/DuplicateDeviceDialog.h"
#include "window/frame/MainWindow.h"
#include "window/remove/RemoveDevicesDialog.h"
#include "window/rename/RenameDeviceDialog.h"

namespace {

// "TREN#" for TREN1, so that the number takes the place of the old one.
std::wstring PatternOf(std::wstring name)
{
    name.erase(name.find_last_not_of(L"0123456789") + 1);
    return name + L"#";
}

std::wstring FreeNumber(const plant::Project& project)
{
    return plant::NamesFromPattern(project, L"#", {}, 1, {}).front().number;
}

}  // namespace

bool CanChangeProject(const MainWindow& window)
{
    return window.HasProject() && !window.Project().IsReadOnly();
}

bool CanChangeOneDevice(const MainWindow& window)
{
    return CanChangeProject(window) && window.MarkedDevices().size() == 1;
}

bool CanChangeDevices(const MainWindow& window)
{
    return CanChangeProject(window) && !window.MarkedDevices().empty();
}

void AddDevice(MainWindow& window)
{
    plant::Project& project = window.Project();
    plant::NewDevice proposed;
    proposed.number = FreeNumber(project);
    proposed.typeName = DeviceTypes().front().name;
    AddDeviceDialog dialog(&window, proposed,
                           [&](const plant::NewDevice& device) { return plant::JudgeAdd(project, device); });
    if (dialog.DoModal() != IDOK)
        return;
    const plant::NewDevice& device = dialog.Device();
    window.Change({IDS_PLANT_STEP_ADD, {device.name}}, {}, [&] { plant::AddDevice(project, device); });
}

void DuplicateDevice(MainWindow& window)
{
    plant::Project& project = window.Project();
    const std::size_t from = window.MarkedPlaces().front();
    const plant::DeviceNaming original = plant::NamingOf(project.Devices()[from]);
    DuplicateDeviceDialog dialog(
        &window, {.pattern = PatternOf(original.name), .description = original.description},
        [&](const DuplicateEntries& entries, std::size_t count) {
            return plant::NamesFromPattern(project, entries.pattern, entries.firstNumber, count, entries.description);
        },
        [&](std::span<const plant::DeviceNaming> names) { return plant::JudgeDuplicates(project, names); });
    if (dialog.DoModal() == IDOK)
        window.Change({IDS_PLANT_STEP_DUPLICATE, {original.name}}, {},
                      [&] { plant::DuplicateDevice(project, from, dialog.Names()); });
}

void RenameDevice(MainWindow& window)
{
    plant::Project& project = window.Project();
    const std::size_t place = window.MarkedPlaces().front();
    const plant::DeviceNaming before = plant::NamingOf(project.Devices()[place]);
    RenameDeviceDialog dialog(
        &window, before, [&](const plant::DeviceNaming& naming) { return plant::JudgeRename(project, place, naming); });
    if (dialog.DoModal() == IDOK && dialog.Naming() != before)
        window.Change({IDS_PLANT_STEP_RENAME, {before.name}}, window.MarkedDevices(),
                      [&] { plant::RenameDevice(project, place, dialog.Naming()); });
}

void RemoveDevices(MainWindow& window)
{
    plant::Project& project = window.Project();
    const std::vector<std::size_t> places = window.MarkedPlaces();
    std::vector<RemovedDevice> rows;
    for (const std::size_t place : places) {
        const KZDeviceIdentity& device = project.Devices()[place];
        const plant::DeviceNaming naming = plant::NamingOf(device);
        const auto variables = plant::ChosenVariables(*KZMainCfg::Get(), device.driverId).size();
        rows.push_back({naming.number, naming.name, naming.description, static_cast<int>(variables)});
    }
    if (RemoveDevicesDialog(&window, rows).DoModal() != IDOK)
        return;
    plant::Message step = rows.size() == 1 ? plant::Message{IDS_PLANT_STEP_REMOVE, {rows.front().name}}
                                           : plant::Message{IDS_PLANT_STEP_REMOVE_MANY, {std::to_wstring(rows.size())}};
    // A copy, since the marks go with the devices.
    const std::vector<KZBasicString> ids = window.MarkedDevices();
    window.Change(std::move(step), ids, [&] { plant::RemoveDevices(project, places); });
}
