// Projects as folders: making one, and whether one can be opened.
#pragma once

#include "Disk.h"

namespace plant {

class Project;

// Whether somebody may make files in the folder and replace the main configuration document.
[[nodiscard]] bool CanBeWritten(Disk& disk, const Path& folder);

// Makes a project without devices; the folder is made when it is missing, the one around it must be there. Throws
// Refusal when there is a project already or the folder cannot be written.
void NewProject(const Path& folder, Disk& disk = RealDisk());

// Throws what opening the project would throw, and leaves the project that is open as it is. What a killed process has
// left of a save is carried out.
void RequireOpenable(const Path& folder, Disk& disk = RealDisk());

// Writes the project as it is shown, what is unsaved included, as another one: the main configuration document and the
// documents of its devices, without history. The project stays where it is and as unsaved as it is. Throws Refusal when
// there is a project already, or a document cannot be read or written; of what was written nothing is left then.
void SaveCopy(Project& project, const Path& folder, Disk& disk = RealDisk());

}  // namespace plant
