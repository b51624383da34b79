// What the editor remembers of its user from one start to the next.
#pragma once

#include <windows.h>

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "KZQuorvelantaSetup.h"

struct EditorSettings {
    static constexpr std::size_t MostRecent = 10;

    std::vector<std::wstring> recent;  // the projects' folders, the last one first
    std::wstring lastProject;          // the folder; empty for none
    std::optional<KZLanguage> language;
    std::optional<RECT> place;  // of the window, on the screen
    bool isMaximized = false;
    int listShare = 0;      // of the window's width, in thousandths; 0: none
    int findingsShare = 0;  // of its height, likewise
    // Widths of columns in dialog units; none: as they are drawn.
    std::vector<int> deviceColumns;
    std::vector<int> findingColumns;

    // Puts the project in front; of more than MostRecent the oldest goes.
    void Remember(const std::wstring& folder);
    void Forget(std::size_t index);

    friend bool operator==(const EditorSettings& one, const EditorSettings& other) noexcept;
};

class SettingsFile {
public:
    // Reads the file. One that is missing or broken stands for no settings, and is replaced when they are stored.
    explicit SettingsFile(std::filesystem::path file);

    // The file of the user: the one that KZ_SETTINGS names, or else %APPDATA%\KZEditor\settings.xml.
    [[nodiscard]] static std::filesystem::path OfTheUser();

    EditorSettings settings;

    // Stores what has changed since. Whoever closes a program is not told that its place could not be remembered.
    void Store() noexcept;

private:
    std::filesystem::path m_file;
    EditorSettings m_stored;
};
