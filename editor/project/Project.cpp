#include "Project.h"

#include "KZMainCfg.h"
#include "text/EditorError.h"
#include "text/EditorText.h"

namespace fs = std::filesystem;

namespace {

fs::path ExistingFolder(const fs::path& folder)
{
    std::error_code error;
    if (!fs::is_directory(folder, error))
        throw EditorError(FormatEditorText(IDS_PROJECT_NO_FOLDER, folder.c_str()));
    fs::path absolute = fs::absolute(folder, error).lexically_normal();
    return absolute.has_filename() ? absolute : absolute.parent_path();
}

void LoadMain(const fs::path& file)
{
    std::error_code error;
    if (!fs::is_regular_file(file, error))
        throw EditorError(FormatEditorText(IDS_PROJECT_NO_MAIN, file.c_str()));
    if (const KZDocumentResult loaded = KZMainCfg::Get()->Load(file); !loaded)
        throw EditorError(FormatEditorText(IDS_PROJECT_BROKEN_MAIN, loaded.message.c_str()));
}

}  // namespace

Project::Project(const fs::path& folder)
{
    const fs::path root = ExistingFolder(folder);
    m_mainFile = root / L"main.xml";
    m_name = root.filename().wstring();
    LoadMain(m_mainFile);
    KZMainCfg::SetProjectFolder(root.wstring());
    m_devices = ReadDevices(*KZMainCfg::Get(), m_mainFile);
}

const Device& Project::DeviceByName(std::wstring_view name) const
{
    std::wstring known;
    for (const Device& device : m_devices) {
        if (device.driver->Name().View() == name)
            return device;
        known += known.empty() ? L"" : L", ";
        known += device.driver->Name().View();
    }
    const std::wstring wanted(name);
    throw EditorError(FormatEditorText(IDS_PROJECT_NO_DEVICE, wanted.c_str(), m_mainFile.c_str(), known.c_str()));
}

bool Project::IsDirty() const noexcept
{
    return KZMainCfg::Get()->IsDirty();
}

KZDocumentResult Project::Save()
{
    return IsDirty() ? KZMainCfg::Get()->Save(m_mainFile) : KZDocumentResult{};
}
