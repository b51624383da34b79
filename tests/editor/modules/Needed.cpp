// A library that leaves a file beside itself when it is loaded: "<its path>.loaded".
#include <windows.h>

#include <string>

extern "C" __declspec(dllexport) int NeededFunction()
{
    return 1;
}

extern "C" BOOL WINAPI DllMain(HINSTANCE library, DWORD reason, LPVOID)
{
    if (reason != DLL_PROCESS_ATTACH)
        return TRUE;
    wchar_t path[1024];
    ::GetModuleFileNameW(library, path, static_cast<DWORD>(std::size(path)));
    const std::wstring mark = std::wstring(path) + L".loaded";
    ::CloseHandle(::CreateFileW(mark.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
    return TRUE;
}
