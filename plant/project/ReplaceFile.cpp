#include "ReplaceFile.h"

#include "DocumentName.h"

namespace plant {

void RequireReplaceable(Disk& disk, const Path& file)
{
    const auto found = disk.Find(file);
    if (found && found->readOnly)
        throw Refusal(IDS_PLANT_FILE_READ_ONLY, {Shown(file)});
    if (found && found->kind == KZFileEntry::Kind::Folder)
        throw Refusal(IDS_PLANT_FILE_IS_FOLDER, {Shown(file)});
    Insist([&] {
        if (found && !disk.Hold(file, KZHold::ExistingFile))
            throw Refusal(IDS_PLANT_FILE_IN_USE, {Shown(file)});
    });
}

void ReplaceInOneStep(Disk& disk, const Path& file, std::string_view bytes)
{
    RequireReplaceable(disk, file);
    // No other process uses the name; one of the same number that was killed may have left such a file.
    Path beside = file;
    beside.concat(".").concat(std::to_string(KZProcessNumber())).concat(".tmp");
    disk.Remove(beside);
    try {
        disk.Write(beside, bytes);
        Insist([&] { disk.Move(beside, file); });
    } catch (...) {
        try {
            disk.Remove(beside);
        } catch (const Refusal&) {
            // The first failure is the one to tell.
        }
        throw;
    }
}

}  // namespace plant
