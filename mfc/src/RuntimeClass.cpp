#include <afx.h>

CRuntimeClass CObject::classCObject = {"CObject", nullptr};

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

BOOL CRuntimeClass::IsDerivedFrom(const CRuntimeClass* pBaseClass) const noexcept
{
    for (const CRuntimeClass* candidate = this; candidate;
         candidate = candidate->m_pfnGetBaseClass ? candidate->m_pfnGetBaseClass() : nullptr) {
        if (candidate == pBaseClass)
            return TRUE;
    }
    return FALSE;
}
