// What the header of a Windows program or library says, read without loading it.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

// The IMAGE_FILE_MACHINE_… value; nothing when the file cannot be read or is not a Windows program or library.
[[nodiscard]] std::optional<std::uint16_t> PeMachine(const std::filesystem::path& path);

// The version in the file's resources, such as "1.0.0.0"; empty when it has none.
[[nodiscard]] std::wstring FileVersion(const std::filesystem::path& path);

// The machine that this program is built for.
[[nodiscard]] std::uint16_t OwnMachine() noexcept;

// "x64", "x86", "ARM64", or the value in hexadecimal.
[[nodiscard]] std::wstring MachineName(std::uint16_t machine);
