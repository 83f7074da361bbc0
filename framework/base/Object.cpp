#include "afx.h"

#include <cstring>
#include <mutex>

namespace {

// Both serve the static objects of every module, whichever comes first and goes last:
// so they are ready at once and never destroyed.
constinit AFX_CLASSINIT* g_pFirst = nullptr;

std::mutex& ListMutex() {
    static std::mutex& mutex = *new std::mutex;
    return mutex;
}

} // namespace

AFX_CLASSINIT::AFX_CLASSINIT(CRuntimeClass* pNewClass) noexcept : m_pClass(pNewClass) {
    const std::lock_guard lock(ListMutex());
    m_pNext = g_pFirst;
    g_pFirst = this;
}

AFX_CLASSINIT::~AFX_CLASSINIT() {
    const std::lock_guard lock(ListMutex());
    AFX_CLASSINIT** link = &g_pFirst;
    while (*link != this)
        link = &(*link)->m_pNext;
    *link = m_pNext;
}

CRuntimeClass* AFXAPI CRuntimeClass::FromName(LPCSTR lpszClassName) {
    if (lpszClassName == nullptr)
        return nullptr;
    const std::lock_guard lock(ListMutex());
    for (const AFX_CLASSINIT* entry = g_pFirst; entry != nullptr; entry = entry->m_pNext) {
        if (std::strcmp(entry->m_pClass->m_lpszClassName, lpszClassName) == 0)
            return entry->m_pClass;
    }
    return nullptr;
}

CObject* CRuntimeClass::CreateObject() const {
    return m_pfnCreateObject != nullptr ? m_pfnCreateObject() : nullptr;
}

CObject* AFXAPI CRuntimeClass::CreateObject(LPCSTR lpszClassName) {
    const CRuntimeClass* pClass = FromName(lpszClassName);
    return pClass != nullptr ? pClass->CreateObject() : nullptr;
}

BOOL CRuntimeClass::IsDerivedFrom(const CRuntimeClass* pBaseClass) const {
    for (const CRuntimeClass* pClass = this; pClass != nullptr; pClass = pClass->m_pfnGetBaseClass()) {
        if (pClass == pBaseClass)
            return TRUE;
    }
    return FALSE;
}

// A function of its own, as _GetBaseClass has another calling convention in 32-bit Windows.
CRuntimeClass CObject::classCObject = {"CObject", static_cast<int>(sizeof(CObject)), 0xFFFF, nullptr,
                                       []() -> CRuntimeClass* { return nullptr; }};

CRuntimeClass* CObject::GetRuntimeClass() const {
    return RUNTIME_CLASS(CObject);
}

void CObject::Serialize(CArchive& /*ar*/) {}

void CObject::AssertValid() const {}

void CObject::Dump(CDumpContext& dc) const {
    dc << "a " << GetRuntimeClass()->m_lpszClassName << " at " << static_cast<const void*>(this) << "\n";
}

CObject* AFXAPI AfxDynamicDownCast(CRuntimeClass* pClass, CObject* pObject) {
    return pObject != nullptr && pObject->IsKindOf(pClass) ? pObject : nullptr;
}

CObject* AFXAPI AfxStaticDownCast(CRuntimeClass* pClass, CObject* pObject) {
    if (pObject != nullptr && !pObject->IsKindOf(pClass))
        AfxAssertFailedLine(__FILE__, __LINE__);
    return pObject;
}
