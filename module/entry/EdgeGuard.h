// The module's edge: no exception passes into the host, and none is swallowed without a word.
#pragma once

#include <afxwin.h>

#include <exception>

namespace zep {

// Tells the user that an operation failed, with the reason that the exception gives.
void ReportFailure(const char* reason) noexcept;

// Runs an operation on behalf of the host. An exception is reported and the failure value returned.
template <class Operation, class Result>
Result AtEdge(Operation operation, Result failure) noexcept
{
    try {
        return operation();
    } catch (CException* exception) {
        exception->ReportError();
        exception->Delete();
    } catch (const std::exception& exception) {
        ReportFailure(exception.what());
    } catch (...) {
        ReportFailure(nullptr);
    }
    return failure;
}

}  // namespace zep
