// The root of the MFC subset: CObject, run-time classes and exceptions, as MFC's afx.h declares them.
//
// Differences from MFC: Unicode only; classes are not created by name or serialized; no diagnostics; no TRY/CATCH
// macros, C++ try and catch take their place. Exceptions are thrown by pointer and deleted with Delete(), as in MFC.
#pragma once

#ifndef UNICODE
#error "The MFC subset is Unicode only: define UNICODE and _UNICODE"
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

#include <tchar.h>

#include <cstddef>

#include "afxver_.h"

class CObject;
class CException;
struct CRuntimeClass;

// -- Run-time classes -------------------------------------------------------------------------------------------------

struct KZMFC_API CRuntimeClass {
    LPCSTR m_lpszClassName;
    CRuntimeClass*(PASCAL* m_pfnGetBaseClass)();  // null for CObject

    [[nodiscard]] BOOL IsDerivedFrom(const CRuntimeClass* pBaseClass) const noexcept;
};

class KZMFC_API CObject {
public:
    virtual ~CObject() = default;
    CObject(const CObject&) = delete;
    CObject& operator=(const CObject&) = delete;

    [[nodiscard]] virtual CRuntimeClass* GetRuntimeClass() const;
    [[nodiscard]] BOOL IsKindOf(const CRuntimeClass* pClass) const;

    static CRuntimeClass classCObject;
    static CRuntimeClass* PASCAL GetThisClass();

protected:
    CObject() noexcept = default;
};

#define RUNTIME_CLASS(class_name) (class_name::GetThisClass())

#define DECLARE_DYNAMIC(class_name)                                                                                    \
protected:                                                                                                             \
    static CRuntimeClass* PASCAL _GetBaseClass();                                                                      \
                                                                                                                       \
public:                                                                                                                \
    static CRuntimeClass class##class_name;                                                                            \
    static CRuntimeClass* PASCAL GetThisClass();                                                                       \
    CRuntimeClass* GetRuntimeClass() const override;

#define IMPLEMENT_DYNAMIC(class_name, base_class_name)                                                                 \
    CRuntimeClass* PASCAL class_name::_GetBaseClass()                                                                  \
    {                                                                                                                  \
        return RUNTIME_CLASS(base_class_name);                                                                         \
    }                                                                                                                  \
    CRuntimeClass class_name::class##class_name = {#class_name, &class_name::_GetBaseClass};                           \
    CRuntimeClass* PASCAL class_name::GetThisClass()                                                                   \
    {                                                                                                                  \
        return &class_name::class##class_name;                                                                         \
    }                                                                                                                  \
    CRuntimeClass* class_name::GetRuntimeClass() const                                                                 \
    {                                                                                                                  \
        return GetThisClass();                                                                                         \
    }

#include "afxstr.h"

// -- Exceptions -------------------------------------------------------------------------------------------------------

class KZMFC_API CException : public CObject {
    DECLARE_DYNAMIC(CException)

public:
    explicit CException(BOOL bAutoDelete = TRUE) noexcept : m_bAutoDelete(bAutoDelete) {}

    // Ends the life of a caught exception, unless it is a shared one.
    void Delete();

    // Fills in a text for the user, cut off at nMaxError characters. Returns FALSE when the exception has none.
    virtual BOOL GetErrorMessage(LPWSTR lpszError, UINT nMaxError, UINT* pnHelpContext = nullptr) const;
    // Shows that text in a message box, or one with the class's name when the exception has none.
    virtual int ReportError(UINT nType = MB_OK, UINT nMessageID = 0);

private:
    BOOL m_bAutoDelete;
};

// Each of the following says what it is in one fixed text.
#define AFX_DECLARE_EXCEPTION(class_name)                                                                              \
    class KZMFC_API class_name : public CException {                                                                   \
        DECLARE_DYNAMIC(class_name)                                                                                    \
                                                                                                                       \
    public:                                                                                                            \
        using CException::CException;                                                                                  \
        BOOL GetErrorMessage(LPWSTR lpszError, UINT nMaxError, UINT* pnHelpContext = nullptr) const override;          \
    };

AFX_DECLARE_EXCEPTION(CMemoryException)
AFX_DECLARE_EXCEPTION(CNotSupportedException)
AFX_DECLARE_EXCEPTION(CResourceException)
AFX_DECLARE_EXCEPTION(CInvalidArgException)
AFX_DECLARE_EXCEPTION(CUserException)  // the user has already been told

#undef AFX_DECLARE_EXCEPTION

// The exceptions thrown here are shared objects, so that throwing takes no memory.
[[noreturn]] KZMFC_API void AFXAPI AfxThrowMemoryException();
[[noreturn]] KZMFC_API void AFXAPI AfxThrowNotSupportedException();
[[noreturn]] KZMFC_API void AFXAPI AfxThrowResourceException();
[[noreturn]] KZMFC_API void AFXAPI AfxThrowInvalidArgException();
[[noreturn]] KZMFC_API void AFXAPI AfxThrowUserException();
