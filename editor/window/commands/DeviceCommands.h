// What the main window can do with the devices of the project: its dialogs ask, and the plant carries it out as one
// step that can be undone.
#pragma once

class MainWindow;

// Whether the project can be changed, and one device or at least one is marked.
[[nodiscard]] bool CanChangeProject(const MainWindow& window);
[[nodiscard]] bool CanChangeOneDevice(const MainWindow& window);
[[nodiscard]] bool CanChangeDevices(const MainWindow& window);

void AddDevice(MainWindow& window);
void DuplicateDevice(MainWindow& window);
void RenameDevice(MainWindow& window);
void RemoveDevices(MainWindow& window);

// Shows what is unsaved, line by line, and takes back what the user checks.
void ReviewChanges(MainWindow& window);
