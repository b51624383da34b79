// Where an exception must not go on, and its kind makes no difference. MFC throws pointers, which belong to whoever
// catches them; in real MFC running out of memory throws one too.
#pragma once

#include <afxwin.h>

// Runs an operation and gives its answer; false when it throws.
template <class Operation>
[[nodiscard]] bool Succeeds(Operation operation) noexcept
{
    try {
        return operation();
    } catch (CException* exception) {
        exception->Delete();
    } catch (...) {
        // There is nothing to give back.
    }
    return false;
}
