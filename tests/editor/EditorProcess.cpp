#include "EditorProcess.h"

#include <commctrl.h>

#include <stdexcept>

#include "Controls.h"
#include "KZUtf8.h"

namespace fs = std::filesystem;

namespace editor_tests {

namespace {

fs::path BuildFolder()
{
    wchar_t program[MAX_PATH];
    ::GetModuleFileNameW(nullptr, program, MAX_PATH);
    return fs::path(program).parent_path().parent_path();
}

fs::path LocalFolder(const EditorFolder& folder)
{
    return folder.Path() / "local";
}

std::wstring Quoted(const std::string& argument)
{
    // Enough for the tests, which pass no quotes and no backslash at the end.
    return L"\"" + FromUtf8(argument) + L"\"";
}

struct WindowSearch {
    DWORD process;
    std::function<bool(HWND)> matches;
    HWND found = nullptr;
};

BOOL CALLBACK Match(HWND window, LPARAM parameter)
{
    auto& search = *reinterpret_cast<WindowSearch*>(parameter);
    DWORD process = 0;
    ::GetWindowThreadProcessId(window, &process);
    if (process != search.process || !::IsWindowVisible(window) || !search.matches(window))
        return TRUE;
    search.found = window;
    return FALSE;
}

// The visible top-level window of the process that matches; null when there is none now.
HWND FindWindowOf(DWORD process, std::function<bool(HWND)> matches)
{
    WindowSearch search{process, std::move(matches)};
    ::EnumWindows(Match, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

HWND WaitForWindowOf(DWORD process, const std::function<bool(HWND)>& matches)
{
    HWND found = nullptr;
    return WaitUntil([&] { return (found = FindWindowOf(process, matches)) != nullptr; }) ? found : nullptr;
}

// Memory in another process, for messages that Windows does not carry over.
class RemoteMemory {
public:
    RemoteMemory(HANDLE process, std::size_t size)
        : m_process(process),
          m_memory(::VirtualAllocEx(process, nullptr, size, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE))
    {
    }
    ~RemoteMemory() { ::VirtualFreeEx(m_process, m_memory, 0, MEM_RELEASE); }
    RemoteMemory(const RemoteMemory&) = delete;
    RemoteMemory& operator=(const RemoteMemory&) = delete;

    [[nodiscard]] char* Address() const noexcept { return static_cast<char*>(m_memory); }

private:
    HANDLE m_process;
    void* m_memory;
};

}  // namespace

bool WaitUntil(const std::function<bool()>& condition)
{
    const auto end = std::chrono::steady_clock::now() + Patience;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > end)
            return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    return true;
}

EditorFolder::EditorFolder(const fs::path& folder) : m_folder(folder)
{
    fs::create_directories(m_folder);
    for (const auto& file : fs::directory_iterator(Products())) {
        const std::wstring name = file.path().filename().wstring();
        const bool isModule = name.starts_with(L"KZUsr");
        const bool isProgram = name == L"KZEditor.exe" || file.path().extension() == L".dll";
        if (isProgram && !isModule)
            fs::copy_file(file.path(), m_folder / name);
    }
    fs::copy(Products() / "images", m_folder / "images");
}

fs::path EditorFolder::CrashReports() const
{
    return LocalFolder(*this) / "KZEditor" / "crash";
}

fs::path EditorFolder::Products()
{
    return BuildFolder() / "bin";
}

fs::path EditorFolder::ModuleFile(const std::string& kind)
{
    return BuildFolder() / "tests" / "editor_modules" / kind / "KZUsrZEP.dll";
}

void EditorFolder::AddRealModule() const
{
    fs::copy_file(Products() / "KZUsrZEP.dll", m_folder / "KZUsrZEP.dll");
}

void EditorFolder::AddModule(const std::string& kind, const std::string& model) const
{
    fs::copy_file(ModuleFile(kind), m_folder / ("KZUsr" + model + ".dll"));
}

void EditorProcess::Pipe::Open()
{
    SECURITY_ATTRIBUTES inherit{sizeof inherit, nullptr, TRUE};
    if (!::CreatePipe(&read, &write, &inherit, 0))
        throw std::runtime_error("no pipe");
    ::SetHandleInformation(read, HANDLE_FLAG_INHERIT, 0);
}

void EditorProcess::Pipe::StartReading()
{
    ::CloseHandle(write);
    reader = std::thread([this] {
        char buffer[4096];
        DWORD size = 0;
        while (::ReadFile(read, buffer, sizeof buffer, &size, nullptr) && size > 0)
            text.append(buffer, size);
    });
}

void EditorProcess::Pipe::Close()
{
    if (reader.joinable())
        reader.join();
    if (read)
        ::CloseHandle(read);
    read = nullptr;
}

EditorProcess::EditorProcess(const EditorFolder& folder, const std::vector<std::string>& arguments,
                             const fs::path& currentFolder)
{
    m_output.Open();
    m_errors.Open();
    STARTUPINFOW start{};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdOutput = m_output.write;
    start.hStdError = m_errors.write;
    const fs::path program = folder.Path() / "KZEditor.exe";
    std::wstring line = L"\"" + program.wstring() + L"\"";
    for (const std::string& argument : arguments)
        line += L" " + Quoted(argument);
    ::SetEnvironmentVariableW(L"LOCALAPPDATA", LocalFolder(folder).c_str());
    const fs::path& current = currentFolder.empty() ? folder.Path() : currentFolder;
    if (!::CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, TRUE, 0, nullptr, current.c_str(), &start,
                          &m_process))
        throw std::runtime_error("the editor does not start");
    m_output.StartReading();
    m_errors.StartReading();
}

EditorProcess::~EditorProcess()
{
    if (::WaitForSingleObject(m_process.hProcess, 0) == WAIT_TIMEOUT)
        Kill();
    m_output.Close();
    m_errors.Close();
    ::CloseHandle(m_process.hThread);
    ::CloseHandle(m_process.hProcess);
}

int EditorProcess::Wait()
{
    const auto limit = static_cast<DWORD>(std::chrono::milliseconds(Patience).count());
    if (::WaitForSingleObject(m_process.hProcess, limit) != WAIT_OBJECT_0)
        return -1;
    m_output.Close();
    m_errors.Close();
    DWORD status = 0;
    ::GetExitCodeProcess(m_process.hProcess, &status);
    return static_cast<int>(status);
}

HWND EditorProcess::WindowTitled(const std::wstring& title) const
{
    return WaitForWindowOf(m_process.dwProcessId, [&](HWND window) { return TextOf(window) == title; });
}

bool EditorProcess::HasWindowTitled(const std::wstring& title) const
{
    return FindWindowOf(m_process.dwProcessId, [&](HWND window) { return TextOf(window) == title; }) != nullptr;
}

HWND EditorProcess::WindowWith(int control) const
{
    return WaitForWindowOf(m_process.dwProcessId, [&](HWND window) {
        return ::IsWindowEnabled(window) && ::GetDlgItem(window, control) != nullptr;
    });
}

void EditorProcess::Kill()
{
    ::TerminateProcess(m_process.hProcess, 99);
    ::WaitForSingleObject(m_process.hProcess, INFINITE);
}

std::wstring TextOf(HWND window)
{
    wchar_t text[2048] = L"";
    DWORD_PTR length = 0;
    ::SendMessageTimeoutW(window, WM_GETTEXT, std::size(text), reinterpret_cast<LPARAM>(text), SMTO_ABORTIFHUNG, 2000,
                          &length);
    return text;
}

std::wstring MessageOf(HWND box)
{
    constexpr int MessageText = 0xFFFF;
    return TextOf(::GetDlgItem(box, MessageText));
}

void Press(HWND window, int id)
{
    if (const HWND button = kztest::ControlIn(window, id))
        ::PostMessageW(button, BM_CLICK, 0, 0);
    else
        ::PostMessageW(window, WM_COMMAND, static_cast<WPARAM>(id), 0);
}

std::wstring ListCell(const EditorProcess& editor, HWND list, int row, int column)
{
    constexpr int capacity = 256;
    const RemoteMemory memory(editor.Process(), sizeof(LVITEMW) + capacity * sizeof(wchar_t));
    LVITEMW item{};
    item.iSubItem = column;
    item.cchTextMax = capacity;
    item.pszText = reinterpret_cast<wchar_t*>(memory.Address() + sizeof item);
    ::WriteProcessMemory(editor.Process(), memory.Address(), &item, sizeof item, nullptr);
    ::SendMessageW(list, LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(memory.Address()));
    wchar_t text[capacity] = L"";
    ::ReadProcessMemory(editor.Process(), item.pszText, text, sizeof text, nullptr);
    text[capacity - 1] = L'\0';
    return text;
}

}  // namespace editor_tests
