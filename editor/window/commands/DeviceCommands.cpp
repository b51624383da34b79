#include "DeviceCommands.h"

#include <set>

#include "KZMainCfg.h"
#include "changes/DeviceEdit.h"
#include "modules/DeviceType.h"
#include "project/ChosenVariables.h"
#include "text/PlantMessage.h"
#include "window/add/AddDeviceDialog.h"
#include "window/duplicate/DuplicateDeviceDialog.h"
#include "window/frame/MainWindow.h"
#include "window/remove/RemoveDevicesDialog.h"
#include "window/rename/RenameDeviceDialog.h"

namespace {

using DriverIds = std::vector<KZBasicString>;

// The places of the marked devices in the project's list.
std::vector<std::size_t> MarkedPlaces(const MainWindow& window)
{
    const plant::DeviceList& devices = window.Project().Devices();
    const DriverIds& marked = window.MarkedDevices();
    const std::set<KZBasicString> wanted(marked.begin(), marked.end());
    std::vector<std::size_t> places;
    for (std::size_t place = 0; place < devices.size(); ++place) {
        if (wanted.contains(devices[place].driverId))
            places.push_back(place);
    }
    return places;
}

// The ids that these new devices are going to have. Throws plant::Refusal.
DriverIds NewIds(plant::Project& project, std::span<const plant::DeviceNaming> names)
{
    plant::FreeDriverIds free(project);
    DriverIds ids;
    for (const plant::DeviceNaming& naming : names)
        ids.push_back(free.Take(naming.name));
    return ids;
}

// Carries out a change that makes devices of these names.
void Make(MainWindow& window, plant::Message step, std::span<const plant::DeviceNaming> names,
          const std::function<void()>& change)
{
    DriverIds ids;
    try {
        ids = NewIds(window.Project(), names);
    } catch (const plant::Refusal& refusal) {
        AfxMessageBox(PlantMessage(refusal.What()).c_str(), MB_OK | MB_ICONERROR);
        return;
    }
    window.Change(std::move(step), ids, change);
}

// "TREN#" for TREN1, so that the number takes the place of the old one.
std::wstring PatternOf(std::wstring name)
{
    name.erase(name.find_last_not_of(L"0123456789") + 1);
    return name + L"#";
}

std::wstring FreeNumber(const plant::Project& project)
{
    return plant::NamesFromPattern(project, L"#", L"", 1, L"").front().number;
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
    const plant::DeviceNaming& naming = device;
    Make(window, {IDS_PLANT_STEP_ADD, {device.name}}, {&naming, 1}, [&] { plant::AddDevice(project, device); });
}

void DuplicateDevice(MainWindow& window)
{
    plant::Project& project = window.Project();
    const std::size_t from = MarkedPlaces(window).front();
    const plant::DeviceNaming original = plant::NamingOf(project.Devices()[from]);
    DuplicateDeviceDialog dialog(
        &window, {L"1", PatternOf(original.name), L"", original.description},
        [&](const DuplicateEntries& entries, std::size_t count) {
            return plant::NamesFromPattern(project, entries.pattern, entries.firstNumber, count, entries.description);
        },
        [&](std::span<const plant::DeviceNaming> names) { return plant::JudgeDuplicates(project, names); });
    if (dialog.DoModal() == IDOK)
        Make(window, {IDS_PLANT_STEP_DUPLICATE, {original.name}}, dialog.Names(),
             [&] { plant::DuplicateDevice(project, from, dialog.Names()); });
}

void RenameDevice(MainWindow& window)
{
    plant::Project& project = window.Project();
    const std::size_t place = MarkedPlaces(window).front();
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
    const std::vector<std::size_t> places = MarkedPlaces(window);
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
    const DriverIds ids = window.MarkedDevices();
    window.Change(std::move(step), ids, [&] { plant::RemoveDevices(project, places); });
}
