// Which of the module's dialogs a window is, and the host's hub in front of them.
#pragma once

#include <afxwin.h>

#include <array>
#include <cstddef>
#include <optional>

#include "KZDlgOptions.h"

enum class DialogKind { Hub, Device, Units, Limits, Selection, Other };
inline constexpr std::size_t DialogKindCount = 6;
inline constexpr std::array DialogKinds{DialogKind::Hub, DialogKind::Device, DialogKind::Units, DialogKind::Limits,
                                        DialogKind::Selection};

[[nodiscard]] DialogKind KindOf(HWND dialog);
[[nodiscard]] const char* NameOf(DialogKind kind) noexcept;

// A section of the hub, or none.
using OptionalSection = std::optional<KZOptionsSection>;

// The ways into the options: the hub alone, and each section that opens a dialog of the module.
inline constexpr std::array<OptionalSection, 4> OptionsRoads{std::nullopt, KZSectionDevice, KZSectionUnits,
                                                             KZSectionLimits};

// Clicks a section's button; the section opens after this step.
void ClickSection(HWND hub, KZOptionsSection section);
