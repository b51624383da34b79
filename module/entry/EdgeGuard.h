// The module's edge: no exception passes into the host, and none is swallowed without a word.
#pragma once

#include <afxwin.h>

#include "CaughtException.h"
#include "KZBasicString.h"

namespace zep {

// Tells the user of a failure, in a message over the parent's window; over the active one when there is no parent.
class FailureReport {
public:
    // Loads the messages: when one is needed, there may be no memory for it.
    explicit FailureReport(const CWnd* parent) noexcept;

    void Show(const CaughtException& failure) const noexcept;

private:
    HWND m_owner;
    KZBasicString m_failed;
    KZBasicString m_outOfMemory;
};

// Runs an operation on behalf of the host. An exception is reported and the failure value returned.
template <class Operation, class Result>
Result AtEdge(const CWnd* parent, Operation operation, Result failure) noexcept
{
    const FailureReport report(parent);
    try {
        return operation();
    } catch (...) {
        report.Show(TakeException());
        return failure;
    }
}

}  // namespace zep
