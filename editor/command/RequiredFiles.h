// What a command needs on disk before it opens a dialog. Dialogs put up with less, but nobody is there to read what
// they say when a script runs the command.
#pragma once

#include "project/Project.h"

// Throws EditorError when the device's document is missing and plant::Refusal when it is broken.
void RequireDeviceDocument(plant::Project& project, const KZBasicString& driverId);

// Throws EditorError when one of the host's pictures is missing.
void RequirePictures();
