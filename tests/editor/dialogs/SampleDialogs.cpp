#include "SampleDialogs.h"

#include "window/about/AboutDialog.h"
#include "window/add/AddDeviceDialog.h"
#include "window/duplicate/DuplicateDeviceDialog.h"
#include "window/history/HistoryDialog.h"
#include "window/modules/ModulesDialog.h"
#include "window/open/ProjectFolderDialog.h"
#include "window/remove/RemoveDevicesDialog.h"
#include "window/rename/RenameDeviceDialog.h"
#include "window/review/ReviewDialog.h"

namespace editor_tests {

namespace {

std::unique_ptr<CDialog> About()
{
    return std::make_unique<AboutDialog>(nullptr, L"1.0.0.0",
                                         L"file\tKZEditor.exe\t1.0.0.0\t-\nwindows\tWindows\t10.0\t-\n");
}

const plant::DeviceNaming Train{L"TREN1", L"1", L"Tren de laminación en frío, celda 4 de la subestación Norte"};

std::unique_ptr<CDialog> AddDevice()
{
    plant::NewDevice device;
    device.name = L"TREN7";
    device.number = L"7";
    device.typeName = L"ZEP";
    device.transformerRatio = L"1000";
    return std::make_unique<AddDeviceDialog>(nullptr, device, [](const auto&) { return plant::EntryRefusals(); });
}

std::unique_ptr<CDialog> RenameDevice()
{
    return std::make_unique<RenameDeviceDialog>(nullptr, Train, [](const auto&) { return plant::EntryRefusals(); });
}

std::unique_ptr<CDialog> DuplicateDevice()
{
    return std::make_unique<DuplicateDeviceDialog>(
        nullptr, DuplicateEntries{L"3", L"TREN#", L"7", L"Tren de laminación"},
        [](const DuplicateEntries&, std::size_t) {
            return std::vector<plant::DeviceNaming>{
                {L"TREN7", L"7", L""}, {L"TREN8", L"8", L""}, {L"TREN9", L"9", L""}};
        },
        [](std::span<const plant::DeviceNaming>) {
            return plant::EntryRefusals{{1, plant::DeviceEntry::Name, {IDS_PLANT_NAME_USED, {L"TREN8"}}}};
        });
}

std::unique_ptr<CDialog> RemoveDevices()
{
    return std::make_unique<RemoveDevicesDialog>(
        nullptr, std::vector<RemovedDevice>{{Train.number, Train.name, Train.description, 118},
                                            {L"12", L"CPD", L"Data hall, UPS busbar A", 0}});
}

std::unique_ptr<CDialog> Modules()
{
    const ModuleStatus refused{ModuleState::CannotLoad, L"KZUsrOLD.dll cannot be loaded: it is no program.",
                               L"Copy KZUsrOLD.dll again, together with the DLLs that it needs."};
    return std::make_unique<ModulesDialog>(
        nullptr,
        std::vector<ModuleRow>{{L"KZUsrOLD.dll", L"OLD", L"", refused, "cannot-load"},
                               {L"KZUsrZEP.dll", L"ZEP", L"1.0.0.0", {ModuleState::Ready, L"", L""}, "ready"}});
}

std::unique_ptr<CDialog> History()
{
    return std::make_unique<HistoryDialog>(
        nullptr,
        std::vector<SaveRow>{
            {12, L"22/11/2026 9:28:04", L"the editor's window", {L"main.xml", L"devices/zep-01.xml (TREN1)"}},
            {11, L"21/11/2026 21:02:59", L"import", {L"devices/zep-02.xml (CPD)"}},
        },
        [](int) { return true; });
}

template <FolderPurpose Purpose>
std::unique_ptr<CDialog> ProjectFolder()
{
    return std::make_unique<ProjectFolderDialog>(
        nullptr, Purpose, std::vector<std::wstring>{L"C:\\Plants\\Sagunto", L"D:\\Archivo\\2025\\Almussafes"},
        [](const plant::Path&) {});
}

std::unique_ptr<CDialog> Review()
{
    return std::make_unique<ReviewDialog>(
        nullptr,
        std::vector<ChangeRow>{{L"TREN1", L"Minimum current", L"20 A", L"25 A", true, true},
                               {L"CPD", L"Power factor, Network, Warning, Maximum", L"0.95", L"0.9"},
                               {L"", L"What belongs to no device", L"", L"", false}},
        2);
}

constexpr SampleDialog Samples[] = {
    {"About", About},
    {"AddDevice", AddDevice},
    {"CopyOfProject", ProjectFolder<FolderPurpose::Copy>},
    {"DuplicateDevice", DuplicateDevice},
    {"History", History},
    {"Modules", Modules},
    {"NewProject", ProjectFolder<FolderPurpose::New>},
    {"OpenProject", ProjectFolder<FolderPurpose::Open>},
    {"RemoveDevices", RemoveDevices},
    {"RenameDevice", RenameDevice},
    {"Review", Review},
};

}  // namespace

std::span<const SampleDialog> SampleDialogs()
{
    return Samples;
}

}  // namespace editor_tests
