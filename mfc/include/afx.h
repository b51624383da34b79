// The root of the MFC subset: CObject, run-time classes, diagnostics and exceptions, as MFC's afx.h declares them.
//
// Differences from MFC: Unicode only; no serialization, so IMPLEMENT_DYNCREATE enters a class in its module's class
// list, where MFC's IMPLEMENT_SERIAL does; no TRY/CATCH macros, C++ try and catch take their place. Exceptions are
// thrown by pointer and deleted with Delete(), as in MFC.
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

// -- Diagnostics ------------------------------------------------------------------------------------------------------

// Reports a failed assertion in debug builds: to the debugger, and in a message box that offers to break.
KZMFC_API void AFXAPI AfxAssertFailed(const char* expression, const char* file, int line) noexcept;
KZMFC_API void AFX_CDECL AfxTrace(LPCWSTR format, ...) noexcept;

#ifdef _DEBUG
#define ASSERT(f) (static_cast<void>((f) || (AfxAssertFailed(#f, __FILE__, __LINE__), false)))
#define VERIFY(f) ASSERT(f)
#define TRACE AfxTrace
#else
#define ASSERT(f) (static_cast<void>(0))
#define VERIFY(f) (static_cast<void>(f))
#define TRACE(...) (static_cast<void>(0))
#endif
#define ASSERT_VALID(object) ASSERT((object) != nullptr)

// -- Run-time classes -------------------------------------------------------------------------------------------------

struct KZMFC_API CRuntimeClass {
    LPCSTR m_lpszClassName;
    int m_nObjectSize;
    UINT m_wSchema;                               // 0xFFFF: not serializable
    CObject*(PASCAL* m_pfnCreateObject)();        // null for abstract classes and those without DECLARE_DYNCREATE
    CRuntimeClass*(PASCAL* m_pfnGetBaseClass)();  // null for CObject
    CRuntimeClass* m_pNextClass;                  // in the class list of its module

    // A new object, or null when the class cannot be created dynamically or memory runs out.
    [[nodiscard]] CObject* CreateObject() const;
    [[nodiscard]] BOOL IsDerivedFrom(const CRuntimeClass* pBaseClass) const noexcept;

    // The class of that name in the class lists of the application and its extension libraries, or null.
    [[nodiscard]] static CRuntimeClass* PASCAL FromName(LPCSTR lpszClassName);
};

// Enters a class in the class list that is being filled, at static construction.
struct KZMFC_API AFX_CLASSINIT {
    explicit AFX_CLASSINIT(CRuntimeClass* pNewClass) noexcept;
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

#define DECLARE_DYNCREATE(class_name)                                                                                  \
    DECLARE_DYNAMIC(class_name)                                                                                        \
    static CObject* PASCAL CreateObject();

#define IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, wSchema, pfnNew)                                           \
    CRuntimeClass* PASCAL class_name::_GetBaseClass()                                                                  \
    {                                                                                                                  \
        return RUNTIME_CLASS(base_class_name);                                                                         \
    }                                                                                                                  \
    CRuntimeClass class_name::class##class_name = {#class_name, static_cast<int>(sizeof(class_name)), wSchema,         \
                                                   pfnNew,      &class_name::_GetBaseClass,           nullptr};        \
    CRuntimeClass* PASCAL class_name::GetThisClass()                                                                   \
    {                                                                                                                  \
        return &class_name::class##class_name;                                                                         \
    }                                                                                                                  \
    CRuntimeClass* class_name::GetRuntimeClass() const                                                                 \
    {                                                                                                                  \
        return GetThisClass();                                                                                         \
    }

#define IMPLEMENT_DYNAMIC(class_name, base_class_name)                                                                 \
    IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, 0xFFFF, nullptr)

#define IMPLEMENT_DYNCREATE(class_name, base_class_name)                                                               \
    CObject* PASCAL class_name::CreateObject()                                                                         \
    {                                                                                                                  \
        return new class_name;                                                                                         \
    }                                                                                                                  \
    IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, 0xFFFF, class_name::CreateObject)                              \
    static const AFX_CLASSINIT _init_##class_name(RUNTIME_CLASS(class_name));

// The object as a class_name, or null when it is none (or null).
KZMFC_API CObject* AFXAPI AfxDynamicDownCast(CRuntimeClass* pClass, CObject* pObject);
#define DYNAMIC_DOWNCAST(class_name, object)                                                                           \
    (static_cast<class_name*>(AfxDynamicDownCast(RUNTIME_CLASS(class_name), object)))

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
    // Shows that text, or the string resource nMessageID when the exception has none, in a message box.
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
