// What somebody who helps a user asks for first: versions, modules, Windows, its settings, the project's rights, and
// what is wrong with any of them.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "modules/ModuleLoader.h"

struct DiagnosisLine {
    std::string subject;  // for programs, the same in every language: "file", "module", "pictures", "windows",
                          // "locale", "screen", "font", "project"
    std::wstring name;
    std::wstring value;  // "-" when there is none
    std::wstring fault;  // what is wrong and what to do, in the user's language; empty when nothing is
};

using Diagnosis = std::vector<DiagnosisLine>;

// Looks at everything. Of a folder without a main.xml there is one line, or none when it is "."; to see whether a
// project can be written to, a file is made in it and taken away again. Throws std::bad_alloc only.
[[nodiscard]] Diagnosis Diagnose(const ModuleLoader& modules, const std::filesystem::path& project);

// Such as "10.0.19045"; under Wine its version too.
[[nodiscard]] std::wstring WindowsVersion();

[[nodiscard]] bool IsSound(const Diagnosis& diagnosis) noexcept;

// One line for each in UTF-8, all ended by "\n", with tabs between subject, name, value and fault, "-" for no fault.
[[nodiscard]] std::string DiagnosisText(const Diagnosis& diagnosis);
