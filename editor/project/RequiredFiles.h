// What a command needs on disk before it opens a dialog. Dialogs put up with less, but nobody is there to read what
// they say when a script runs the command.
#pragma once

#include "KZDriver.h"

// Throws EditorError when the device's document is missing or broken. The file is only read.
void RequireDeviceDocument(const KZDriver& driver);

// Throws EditorError when one of the host's pictures is missing.
void RequirePictures();
