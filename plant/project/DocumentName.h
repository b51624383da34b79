// How the documents of a project are named: "main.xml", and "devices/…" for a device's document, in UTF-8.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "KZBasicString.h"

namespace plant {

inline constexpr std::string_view MainDocument = "main.xml";
inline constexpr std::string_view DeviceFolder = "devices";

// Whether a text that came from a file is such a name: it then stands for a file in the project's folder or in its
// "devices", whatever the system makes of file names.
[[nodiscard]] bool IsDocumentName(std::string_view name);

// The name of the document of a device, and of the document that a file in "devices" is.
[[nodiscard]] std::string DeviceDocumentName(const KZBasicString& driverId);
[[nodiscard]] std::string DeviceDocumentOfFile(std::string_view fileName);

// An order of names in which those that stand for the same file are equal: on Windows "devices/A.xml" and
// "devices/a.xml" are.
struct NameLess {
    using is_transparent = void;
    [[nodiscard]] bool operator()(std::string_view a, std::string_view b) const noexcept;
};
[[nodiscard]] bool IsSameName(std::string_view a, std::string_view b) noexcept;

// The file that a name stands for below a folder, and a path as such a name.
[[nodiscard]] std::filesystem::path FileOf(const std::filesystem::path& folder, std::string_view name);
[[nodiscard]] std::string NameOf(const std::filesystem::path& path);

// A path as messages show it; unlike path::wstring it takes names that the C locale cannot hold.
[[nodiscard]] std::wstring Shown(const std::filesystem::path& path);

}  // namespace plant
