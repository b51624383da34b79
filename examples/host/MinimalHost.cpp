// The smallest host: loads a driver module, lets the user pick variables of one device and prints what was picked.
//
//   MinimalHost MODULE PROJECT      MODULE the full path of KZUsrZEP.dll, PROJECT a folder with main.xml and devices/
//
// Exit status: 0 the user confirmed, 1 the user cancelled, 2 something is missing, which is on standard error.
#include <afxwin.h>

#include <commctrl.h>

#include <cstdio>
#include <filesystem>

#include "KZDriverDeviceZEP.h"
#include "KZDriverServices.h"
#include "KZMainCfg.h"
#include "KZQuorvelantaSetup.h"

namespace {

// Every host has one application object; MFC finds it by itself.
CWinApp theApp(L"MinimalHost");

constexpr int Confirmed = 0;
constexpr int Cancelled = 1;
constexpr int Failed = 2;

int Fail(const wchar_t* what, const wchar_t* name)
{
    std::fwprintf(stderr, L"MinimalHost: %ls: %ls\n", what, name);
    return Failed;
}

// The module, freed only after the host has forgotten what it registered.
class LoadedModule {
public:
    // The path must be a full one. What the module needs is then looked for beside it, beside the program and among
    // Windows' own libraries, never in the current folder.
    explicit LoadedModule(const wchar_t* fullPath)
        : m_library(
              ::LoadLibraryExW(fullPath, nullptr, LOAD_LIBRARY_SEARCH_DLL_LOAD_DIR | LOAD_LIBRARY_SEARCH_DEFAULT_DIRS))
    {
    }
    ~LoadedModule()
    {
        KZDriverServices::Remove(RUNTIME_CLASS(KZDriverDeviceZEP));
        if (m_library)
            ::FreeLibrary(m_library);
    }
    LoadedModule(const LoadedModule&) = delete;
    LoadedModule& operator=(const LoadedModule&) = delete;

    // Once, before anything else of the module is used.
    [[nodiscard]] bool Initialize() const
    {
        using Entry = bool (*)();
        const auto address = m_library ? ::GetProcAddress(m_library, "InitializeUsrDriver_ZEP") : nullptr;
        const auto entry = reinterpret_cast<Entry>(reinterpret_cast<void*>(address));
        return entry && entry();
    }

private:
    HMODULE m_library;
};

bool OpenProject(const std::filesystem::path& folder)
{
    KZMainCfg::SetProjectFolder(folder.wstring());
    return KZMainCfg::Get()->Load(folder / L"main.xml").ok;
}

// A host takes these from its own list of devices. The groups are those that the device provides.
KZDriverDeviceZEP MakeDevice()
{
    return KZDriverDeviceZEP({.driverId = L"zep-01",
                              .name = L"TREN1",
                              .number = 1,
                              .typeName = L"ZEP",
                              .description = L"Cold rolling mill",
                              .groups = KZVariableGroups(0x74)});
}

int SelectVariables(KZDriver& device)
{
    const KZDriverCallbacks* callbacks = KZDriverServices::Find(device.GetRuntimeClass());
    if (!callbacks)
        return Fail(L"no module registered the class of", device.Name().c_str());
    constexpr int atMost = 8;
    std::list<KZBasicString> variables{L"TREN1.VI1N"};
    if (!callbacks->selectVariables(nullptr, &device, variables, device.VariableGroups(), atMost, nullptr))
        return Cancelled;
    for (const KZBasicString& variable : variables)
        std::wprintf(L"%ls\n", variable.c_str());
    return Confirmed;
}

}  // namespace

int wmain(int argc, wchar_t** argv)
{
    if (argc != 3)
        return Fail(L"usage", L"MinimalHost MODULE PROJECT");
    const INITCOMMONCONTROLSEX controls{sizeof controls, ICC_WIN95_CLASSES};
    if (!AfxWinInit(::GetModuleHandleW(nullptr), nullptr, ::GetCommandLineW(), SW_SHOWDEFAULT) ||
        !::InitCommonControlsEx(&controls))
        return Fail(L"Windows does not start", L"MFC");
    KZQuorvelantaSetup::Get()->SetLanguage(KZLanguage::English);
    if (!OpenProject(argv[2]))
        return Fail(L"no project in", argv[2]);
    const LoadedModule library(argv[1]);
    if (!library.Initialize())
        return Fail(L"not a module that can be used", argv[1]);
    KZDriverDeviceZEP device = MakeDevice();
    return SelectVariables(device);
}
