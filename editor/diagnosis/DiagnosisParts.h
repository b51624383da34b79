// The parts of the diagnosis; each appends its lines.
#pragma once

#include "Diagnosis.h"

void DiagnoseFiles(Diagnosis& diagnosis);
void DiagnoseModules(Diagnosis& diagnosis, const ModuleLoader& modules);
void DiagnoseSystem(Diagnosis& diagnosis);
// Which font stands for one that dialogs name, and what it lacks.
void DiagnoseFont(Diagnosis& diagnosis, HDC context, const wchar_t* name);
void DiagnoseProject(Diagnosis& diagnosis, const std::filesystem::path& folder);
