// KZEditor is a console program, so that a shell waits for a command and gets its output and exit status. A window that
// is started without a shell gives its console up at once; where Windows honours the manifest's
// consoleAllocationPolicy, none is made in the first place.
#include "EditorApp.h"

namespace {

EditorApp theApp;

}  // namespace

int main()
{
    // What Windows loads later for itself, such as a shell extension, does not come from the current folder either.
    ::SetDefaultDllDirectories(LOAD_LIBRARY_SEARCH_DEFAULT_DIRS);
    if (!AfxWinInit(::GetModuleHandleW(nullptr), nullptr, ::GetCommandLineW(), SW_SHOWDEFAULT))
        return 2;
    return theApp.RunProgram();
}
