// The one way in which exceptions are kept from leaving a window procedure, dialog procedure or hook.
#pragma once

#include <windows.h>

// To be called in a handler of all exceptions: reports the one being handled through
// CWinThread::ProcessWndProcException and returns its answer to the message.
LRESULT ReportCurrentException(const MSG& message) noexcept;
