// The main function of the Windows test programs: an application object, the common controls, and an end that is seen.
#pragma once

#include <afxwin.h>

namespace kztest {

// The exit code of a program that a test has crashed; the address and its module are on standard error.
inline constexpr int CrashExitCode = 99;

// What a crash writes down before the program ends, such as the events that led there; null for nothing.
void SetCrashNote(void (*note)()) noexcept;

// The application object of the test program. Its main window is null unless a test sets it.
[[nodiscard]] CWinApp& App() noexcept;

}  // namespace kztest
