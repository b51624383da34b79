#include <afxwin.h>

#include <cstring>
#include <new>

#include "Libraries.h"

CRuntimeClass CObject::classCObject = {"CObject", static_cast<int>(sizeof(CObject)), 0xFFFF, nullptr, nullptr, nullptr};

CRuntimeClass* PASCAL CObject::GetThisClass()
{
    return &classCObject;
}

CRuntimeClass* CObject::GetRuntimeClass() const
{
    return GetThisClass();
}

BOOL CObject::IsKindOf(const CRuntimeClass* pClass) const
{
    return GetRuntimeClass()->IsDerivedFrom(pClass);
}

CObject* AFXAPI AfxDynamicDownCast(CRuntimeClass* pClass, CObject* pObject)
{
    return pObject && pObject->IsKindOf(pClass) ? pObject : nullptr;
}

CObject* CRuntimeClass::CreateObject() const
{
    try {
        return m_pfnCreateObject ? m_pfnCreateObject() : nullptr;
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

BOOL CRuntimeClass::IsDerivedFrom(const CRuntimeClass* pBaseClass) const noexcept
{
    for (const CRuntimeClass* candidate = this; candidate;
         candidate = candidate->m_pfnGetBaseClass ? candidate->m_pfnGetBaseClass() : nullptr) {
        if (candidate == pBaseClass)
            return TRUE;
    }
    return FALSE;
}

CRuntimeClass* PASCAL CRuntimeClass::FromName(LPCSTR lpszClassName)
{
    const auto findIn = [&](CRuntimeClass* first) {
        while (first && std::strcmp(first->m_lpszClassName, lpszClassName) != 0)
            first = first->m_pNextClass;
        return first;
    };
    if (CRuntimeClass* found = findIn(AfxGetModuleState()->m_classList))
        return found;
    CRuntimeClass* found = nullptr;
    Libraries::Instance().FindFirst([&](const CDynLinkLibrary& library) {
        found = findIn(library.m_classList);
        return found != nullptr;
    });
    return found;
}

AFX_CLASSINIT::AFX_CLASSINIT(CRuntimeClass* pNewClass) noexcept
{
    AFX_MODULE_STATE* state = AfxGetModuleState();
    pNewClass->m_pNextClass = state->m_classList;
    state->m_classList = pNewClass;
}
