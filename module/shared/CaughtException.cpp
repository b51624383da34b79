#include "CaughtException.h"

#include <afxwin.h>

#include <cwchar>
#include <exception>
#include <new>

CaughtException TakeException() noexcept
{
    CaughtException caught;
    auto& reason = caught.reason;
    try {
        throw;
    } catch (CMemoryException* exception) {
        caught.isOutOfMemory = true;
        exception->Delete();
    } catch (CException* exception) {
        exception->GetErrorMessage(reason.data(), static_cast<UINT>(reason.size()));
        exception->Delete();
    } catch (const std::bad_alloc&) {
        caught.isOutOfMemory = true;
    } catch (const std::exception& exception) {
        std::swprintf(reason.data(), reason.size(), L"%.199hs", exception.what());
    } catch (...) {
        // It gives no reason.
    }
    return caught;
}
