// What a command needs on disk before it opens a dialog. Dialogs put up with less, but nobody is there to read what
// they say when a script runs the command.
#pragma once

#include <optional>
#include <string>

#include "project/Project.h"

// Throws EditorError when the device's document is missing and plant::Refusal when it is broken.
void RequireDeviceDocument(plant::Project& project, const KZBasicString& driverId);

// The first of the host's pictures that is missing.
[[nodiscard]] std::optional<std::wstring> MissingPicture();
// Throws EditorError when there is one.
void RequirePictures();
