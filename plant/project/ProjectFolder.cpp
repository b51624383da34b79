#include "ProjectFolder.h"

#include "Commit.h"
#include "DeviceList.h"
#include "DocumentName.h"
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
    disk.MakeFolder(folder);
    disk.Write(folder / MainDocument, EmptyProject);
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
