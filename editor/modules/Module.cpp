#include "Module.h"

#include <cwctype>

#include "DeviceType.h"
#include "KZUtf8.h"
#include "PeFile.h"
#include "text/EditorText.h"

namespace {

constexpr std::wstring_view FilePrefix = L"KZUsr";

bool EqualIgnoringCase(std::wstring_view first, std::wstring_view second) noexcept
{
    return ::CompareStringOrdinal(first.data(), static_cast<int>(first.size()), second.data(),
                                  static_cast<int>(second.size()), TRUE) == CSTR_EQUAL;
}

// Windows' own words for an error, in one line. Some of them leave a place for the file's name.
std::wstring SystemReason(DWORD error, const std::wstring& fileName)
{
    wchar_t buffer[512];
    const DWORD length = ::FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, error, 0,
                                          buffer, static_cast<DWORD>(std::size(buffer)), nullptr);
    std::wstring text(buffer, length);
    for (wchar_t& character : text) {
        if (character == L'\r' || character == L'\n')
            character = L' ';
    }
    while (!text.empty() && (text.back() == L' ' || text.back() == L'.'))
        text.pop_back();
    if (const auto place = text.find(L"%1"); place != std::wstring::npos)
        text.replace(place, 2, fileName);
    return text.empty() ? FormatEditorText(IDS_SYSTEM_ERROR, static_cast<int>(error)) : text;
}

// Keeps Windows from showing its own message box about a library that a module lacks.
class QuietLoading {
public:
    QuietLoading() noexcept { ::SetThreadErrorMode(SEM_FAILCRITICALERRORS, &m_before); }
    ~QuietLoading() { ::SetThreadErrorMode(m_before, nullptr); }
    QuietLoading(const QuietLoading&) = delete;
    QuietLoading& operator=(const QuietLoading&) = delete;

private:
    DWORD m_before = 0;
};

HMODULE LoadQuietly(const std::filesystem::path& file, DWORD& error) noexcept
{
    const QuietLoading quiet;
    // What the module needs is beside it, beside the editor or Windows' own; never in the current folder or on the
    // PATH.
    const HMODULE library =
        ::LoadLibraryExW(file.c_str(), nullptr, LOAD_LIBRARY_SEARCH_DLL_LOAD_DIR | LOAD_LIBRARY_SEARCH_DEFAULT_DIRS);
    error = ::GetLastError();
    return library;
}

}  // namespace

std::wstring ModuleFileName(std::wstring_view model)
{
    return std::wstring(FilePrefix).append(model).append(L".dll");
}

std::wstring ModuleStateName(ModuleState state)
{
    constexpr unsigned names[] = {IDS_STATE_READY,       IDS_STATE_MISSING,
                                  IDS_STATE_CANNOT_LOAD, IDS_STATE_WRONG_ARCHITECTURE,
                                  IDS_STATE_NO_ENTRY,    IDS_STATE_REFUSED};
    return EditorText(names[static_cast<std::size_t>(state)]);
}

void Module::FreeLibrary::operator()(HMODULE library) const noexcept
{
    ::FreeLibrary(library);
}

std::wstring Module::ModelOf(const std::filesystem::path& file)
{
    const std::wstring stem = file.stem().wstring();
    if (!EqualIgnoringCase(file.extension().wstring(), L".dll") || stem.size() <= FilePrefix.size() ||
        !EqualIgnoringCase(stem.substr(0, FilePrefix.size()), FilePrefix))
        return {};
    return stem.substr(FilePrefix.size());
}

Module::Module(const std::filesystem::path& file) : m_file(file), m_model(ModelOf(file)), m_status(Load())
{
    if (m_status.IsReady())
        return;
    m_registration.reset();
    m_library.reset();
}

ModuleStatus Module::Load()
{
    const std::wstring path = m_file.wstring();
    const std::wstring name = m_file.filename().wstring();
    if (const auto machine = PeMachine(m_file); machine && *machine != OwnMachine()) {
        const std::wstring needed = MachineName(OwnMachine());
        return {ModuleState::WrongArchitecture,
                FormatEditorText(IDS_MODULE_WRONG_ARCHITECTURE, path.c_str(), MachineName(*machine).c_str(),
                                 needed.c_str()),
                FormatEditorText(IDS_REMEDY_WRONG_ARCHITECTURE, needed.c_str())};
    }
    DWORD error = ERROR_SUCCESS;
    m_library.reset(LoadQuietly(m_file, error));
    if (!m_library) {
        const std::wstring reason = SystemReason(error, name);
        return {ModuleState::CannotLoad, FormatEditorText(IDS_MODULE_CANNOT_LOAD, path.c_str(), reason.c_str()),
                FormatEditorText(IDS_REMEDY_CANNOT_LOAD, name.c_str())};
    }
    const std::string entryName = "InitializeUsrDriver_" + ToUtf8(m_model);
    const auto address = ::GetProcAddress(m_library.get(), entryName.c_str());
    return Initialize(reinterpret_cast<Entry>(reinterpret_cast<void*>(address)), entryName);
}

ModuleStatus Module::Initialize(Entry entry, const std::string& entryName)
{
    const std::wstring path = m_file.wstring();
    const std::wstring wideEntry = FromUtf8(entryName);
    if (!entry)
        return {ModuleState::NoEntry, FormatEditorText(IDS_MODULE_NO_ENTRY, path.c_str(), wideEntry.c_str()),
                FormatEditorText(IDS_REMEDY_NO_ENTRY, m_model.c_str())};

    const DeviceType* type = FindDeviceType(m_model);
    const bool wasFree = type && !KZDriverServices::Find(type->deviceClass);
    const bool initialized = entry();
    // Whoever put the class into the registry takes it out again, whatever the entry answered.
    if (wasFree && KZDriverServices::Find(type->deviceClass))
        m_registration.reset(type->deviceClass);
    if (initialized)
        return {ModuleState::Ready, {}, {}};
    return {ModuleState::Refused, FormatEditorText(IDS_MODULE_REFUSED, path.c_str(), wideEntry.c_str()),
            FormatEditorText(IDS_REMEDY_REFUSED, m_file.filename().c_str())};
}
