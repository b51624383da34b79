// What the main window can tell about the program, and about the project as a whole.
#pragma once

class MainWindow;

void ShowModules(MainWindow& window);
void ShowAbout(MainWindow& window);

// The saves of the project, one of which the user can go back to.
void ShowHistory(MainWindow& window);

// Writes what is shown as another project; this one stays open.
void SaveCopyAs(MainWindow& window);
