#include "ProjectFolder.h"

#include "Commit.h"
#include "DeviceList.h"
#include "DocumentName.h"
#include "KZMainCfg.h"
#include "Project.h"
#include "StoredProject.h"
#include "text/Refusal.h"

namespace plant {

namespace {

constexpr std::string_view EmptyProject = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                                          "<configuration>\n"
                                          "  <devices>\n"
                                          "  </devices>\n"
                                          "</configuration>\n";

void RequireNoProject(Disk& disk, const Path& folder)
{
    if (disk.Find(folder / MainDocument))
        throw Refusal(IDS_PLANT_PROJECT_EXISTS, {Shown(folder)});
}

// The newest first, so that folders are empty.
void RemoveAll(Disk& disk, std::vector<Path>& made) noexcept
{
    for (; !made.empty(); made.pop_back())
        try {
            disk.Remove(made.back());
        } catch (const std::exception&) {
            // The failure that led here is the one to tell.
        }
}

}  // namespace

bool CanBeWritten(Disk& disk, const Path& folder)
{
    try {
        const auto main = disk.Find(folder / MainDocument);
        if (main && main->readOnly)
            return false;
        const Path trial = folder / ("write test " + std::to_string(KZProcessNumber()));
        if (const auto held = disk.Hold(trial, KZHold::Temporary))
            held->Remove();
        return true;
    } catch (const Refusal& refusal) {
        // Whatever else is wrong may be mended before somebody saves.
        return refusal.What().text != IDS_PLANT_FILE_DENIED;
    }
}

void NewProject(const Path& folder, Disk& disk)
{
    RequireNoProject(disk, folder);
    const bool isThere = disk.Find(folder).has_value();
    disk.MakeFolder(folder);
    std::vector<Path> made(isThere ? 0 : 1, folder);
    made.push_back(folder / MainDocument);
    try {
        disk.Write(made.back(), EmptyProject);
    } catch (...) {
        RemoveAll(disk, made);
        throw;
    }
}

// The main configuration document comes last: without it a folder is no project.
void SaveCopy(Project& project, const Path& folder, Disk& disk)
{
    RequireNoProject(disk, folder);
    const Path devices = folder / DeviceFolder;
    std::vector<Path> made;
    const auto makeFolder = [&](const Path& path) {
        if (disk.Find(path))
            return;
        disk.MakeFolder(path);
        made.push_back(path);
    };
    const auto write = [&](const std::string& name, std::string_view bytes) {
        const Path file = FileOf(folder, name);
        if (disk.Find(file))
            throw Refusal(IDS_PLANT_PROJECT_EXISTS, {Shown(folder)});
        made.push_back(file);
        disk.Write(file, bytes);
    };
    try {
        makeFolder(folder);
        makeFolder(devices);
        for (const KZDeviceIdentity& device : project.Devices())
            if (const auto bytes = project.Peek(DeviceDocumentName(device.driverId)))
                write(DeviceDocumentName(device.driverId), *bytes);
        write(std::string(MainDocument), KZMainCfg::Get()->Serialize());
    } catch (...) {
        RemoveAll(disk, made);
        throw;
    }
}

void RequireOpenable(const Path& folder, Disk& disk)
{
    const Path existing = ExistingFolder(folder);
    FinishInterruptedCommit(disk, existing);
    XmlDocument main(L"configuration");
    StoredProject(existing, disk).ReadMain(main);
    static_cast<void>(ReadDevices(main, Shown(existing / MainDocument)));
}

}  // namespace plant
