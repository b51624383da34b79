// A project: a folder with the main configuration document and one document per device.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "DeviceList.h"

class Project {
public:
    // Loads DIR/main.xml into the process's main configuration document, so there is one project per process.
    // Throws EditorError when the folder or the document is missing, broken, or lists devices that cannot be told
    // apart.
    explicit Project(const std::filesystem::path& folder);

    // The folder's name.
    [[nodiscard]] const std::wstring& Name() const noexcept { return m_name; }
    [[nodiscard]] const std::vector<Device>& Devices() const noexcept { return m_devices; }

    // Throws EditorError, naming the devices that there are, when no device has the name.
    [[nodiscard]] const Device& DeviceByName(std::wstring_view name) const;

    [[nodiscard]] bool IsDirty() const noexcept;
    // Writes main.xml when it is dirty. On failure the file is untouched and the document stays dirty.
    [[nodiscard]] KZDocumentResult Save();

private:
    std::filesystem::path m_mainFile;
    std::wstring m_name;
    std::vector<Device> m_devices;
};
