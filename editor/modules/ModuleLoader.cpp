#include "ModuleLoader.h"

#include <algorithm>

#include "DeviceType.h"
#include "text/EditorText.h"

namespace fs = std::filesystem;

namespace {

std::vector<fs::path> ModuleFiles(const fs::path& folder)
{
    std::vector<fs::path> files;
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
        if (!Module::ModelOf(entry->path()).empty())
            files.push_back(entry->path());
    }
    std::sort(files.begin(), files.end());
    return files;
}

}  // namespace

ModuleLoader::ModuleLoader(const fs::path& folder) : m_folder(fs::absolute(folder).lexically_normal())
{
    const std::vector<fs::path> files = ModuleFiles(m_folder);
    m_modules.reserve(files.size());
    for (const fs::path& file : files)
        m_modules.emplace_back(file);
}

const Module* ModuleLoader::ModuleOf(const KZBasicString& typeName) const
{
    for (const Module& module : m_modules) {
        if (module.Model() == typeName.View())
            return &module;
    }
    return nullptr;
}

ModuleStatus ModuleLoader::StatusOf(const KZBasicString& typeName) const
{
    const wchar_t* model = typeName.c_str();
    const DeviceType* type = FindDeviceType(typeName.View());
    const Module* module = ModuleOf(typeName);
    if (module && !module->Status().IsReady())
        return module->Status();
    if (!type)
        return {ModuleState::Missing, FormatEditorText(IDS_MODULE_UNKNOWN_TYPE, model),
                EditorText(IDS_REMEDY_UNKNOWN_TYPE)};
    if (!module) {
        const std::wstring name = ModuleFileName(typeName.View());
        return {ModuleState::Missing, FormatEditorText(IDS_MODULE_MISSING, name.c_str(), m_folder.c_str()),
                FormatEditorText(IDS_REMEDY_MISSING, name.c_str())};
    }
    if (!KZDriverServices::Find(type->deviceClass))
        return {ModuleState::Refused, FormatEditorText(IDS_MODULE_NOT_REGISTERED, module->File().c_str(), model),
                FormatEditorText(IDS_REMEDY_REFUSED, module->File().filename().c_str())};
    return module->Status();
}

const KZDriverCallbacks* ModuleLoader::CallbacksOf(const KZBasicString& typeName) const
{
    return StatusOf(typeName).IsReady() ? KZDriverServices::Find(FindDeviceType(typeName.View())->deviceClass)
                                        : nullptr;
}

fs::path ProgramFile(HMODULE library)
{
    // The longest path that Windows knows; GetModuleFileName cuts what does not fit.
    std::wstring path(32768, L'\0');
    path.resize(::GetModuleFileNameW(library, path.data(), static_cast<DWORD>(path.size())));
    return path;
}

fs::path ProgramFolder()
{
    return ProgramFile().parent_path();
}
