// The project that a main window shows, and what lives as long as it is open.
#pragma once

#include "changes/UndoList.h"
#include "main/ProjectStore.h"
#include "modules/DeviceDrivers.h"
#include "window/findings/BackgroundCheck.h"

struct OpenProject {
    // Throws plant::Refusal when the project cannot be opened.
    explicit OpenProject(const std::filesystem::path& folder) : project(folder) {}

    plant::Project project;
    ProjectStore store{project, "window"};
    plant::UndoList undo{project};
    BackgroundCheck check{project};
    DeviceDrivers drivers{project.Devices()};
};
