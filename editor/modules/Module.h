// One driver module: loaded, asked to register itself, and freed when this object ends, nowhere else.
#pragma once

#include <windows.h>

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "KZDriverServices.h"

enum class ModuleState { Ready, Missing, CannotLoad, WrongArchitecture, NoEntry, Refused };

// A state in the words of the user's language.
struct ModuleStatus {
    ModuleState state;
    std::wstring reason;  // one sentence that names the file; empty for Ready
    std::wstring remedy;  // what the user can do about it; empty for Ready

    [[nodiscard]] bool IsReady() const noexcept { return state == ModuleState::Ready; }
};

// The state as one or two words, for a table.
[[nodiscard]] std::wstring ModuleStateName(ModuleState state);

// The name of the file that serves a model: KZUsr<model>.dll.
[[nodiscard]] std::wstring ModuleFileName(std::wstring_view model);

class Module {
public:
    // Loads KZUsr<model>.dll and calls its InitializeUsrDriver_<model>. The file must be a full path.
    explicit Module(const std::filesystem::path& file);

    [[nodiscard]] const std::filesystem::path& File() const noexcept { return m_file; }
    [[nodiscard]] const std::wstring& Model() const noexcept { return m_model; }
    [[nodiscard]] const ModuleStatus& Status() const noexcept { return m_status; }

    // The model's name in a module's file name, upper and lower case as it stands; empty when the file is no module.
    [[nodiscard]] static std::wstring ModelOf(const std::filesystem::path& file);

private:
    using Entry = bool (*)();
    struct FreeLibrary {
        void operator()(HMODULE library) const noexcept;
    };
    // Forgets what a module registered, before its code goes.
    struct Unregister {
        void operator()(const CRuntimeClass* deviceClass) const noexcept { KZDriverServices::Remove(deviceClass); }
    };

    ModuleStatus Load();
    ModuleStatus Initialize(Entry entry, const std::string& entryName);

    std::filesystem::path m_file;
    std::wstring m_model;
    std::unique_ptr<std::remove_pointer_t<HMODULE>, FreeLibrary> m_library;
    std::unique_ptr<const CRuntimeClass, Unregister> m_registration;
    ModuleStatus m_status;
};
