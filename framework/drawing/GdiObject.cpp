// Ownership of drawing objects: handle map, attachment, deletion.
#include "GdiFromHandle.h"

#include <utility>

using namespace fieldkit::detail;

IMPLEMENT_DYNCREATE(CGdiObject, CObject)
IMPLEMENT_DYNAMIC(CPen, CGdiObject)
IMPLEMENT_DYNAMIC(CBrush, CGdiObject)
IMPLEMENT_DYNAMIC(CFont, CGdiObject)
IMPLEMENT_DYNAMIC(CBitmap, CGdiObject)
IMPLEMENT_DYNAMIC(CRgn, CGdiObject)

CGdiObject::~CGdiObject() {
    DeleteObject();
}

// Built as CWnd::GetSafeHwnd is.
HGDIOBJ CGdiObject::GetSafeHandle() const {
    return this != nullptr ? m_hObject : nullptr;
}

BOOL CGdiObject::Attach(HGDIOBJ hObject) {
    if (hObject == nullptr)
        return FALSE;
    if (m_hObject != hObject)
        DeleteObject();
    m_hObject = hObject;
    CThreadState::Get().m_gdiObjects.SetPermanent(hObject, this);
    return TRUE;
}

HGDIOBJ CGdiObject::Detach() {
    if (m_hObject == nullptr)
        return nullptr;
    // Stock objects and the system's brushes have several owners: only the last one counts.
    const HGDIOBJ hObject = std::exchange(m_hObject, nullptr);
    auto& objects = CThreadState::Get().m_gdiObjects;
    if (const CGdiObject* pOwner = objects.Permanent(hObject); pOwner == nullptr || pOwner == this)
        objects.Remove(hObject);
    return hObject;
}

BOOL CGdiObject::DeleteObject() {
    return m_hObject != nullptr && ::DeleteObject(Detach());
}

int CGdiObject::GetObject(int nCount, LPVOID lpObject) const {
    return ::GetObject(m_hObject, nCount, lpObject);
}

BOOL CGdiObject::CreateStockObject(int nIndex) {
    return Attach(::GetStockObject(nIndex));
}

void CGdiObject::DeleteTempMap() {
    CThreadState& state = CThreadState::Get();
    state.m_gdiObjects.DeleteTemporary(state.m_nModalDepth);
}

// --- Objects of handles -------------------------------------------------------------------

namespace {

/// An object of the class that the handle's kind asks for, so that a later FromHandle of
/// that class can share it.
CGdiObject* NewObjectOfKind(HGDIOBJ hObject) {
    switch (::GetObjectType(hObject)) {
    case OBJ_PEN:
    case OBJ_EXTPEN:
        return new CPen;
    case OBJ_BRUSH:
        return new CBrush;
    case OBJ_FONT:
        return new CFont;
    case OBJ_BITMAP:
        return new CBitmap;
    case OBJ_REGION:
        return new CRgn;
    default:
        return new CGdiObject;
    }
}

} // namespace

CGdiObject* CGdiObject::FromHandle(HGDIOBJ hObject) {
    CThreadState& state = CThreadState::Get();
    return state.m_gdiObjects.FromHandle(hObject, state.m_nModalDepth,
                                         [hObject] { return NewObjectOfKind(hObject); });
}

CPen* CPen::FromHandle(HPEN hPen) {
    return GdiFromHandle<CPen>(hPen);
}
CBrush* CBrush::FromHandle(HBRUSH hBrush) {
    return GdiFromHandle<CBrush>(hBrush);
}
CFont* CFont::FromHandle(HFONT hFont) {
    return GdiFromHandle<CFont>(hFont);
}
CBitmap* CBitmap::FromHandle(HBITMAP hBitmap) {
    return GdiFromHandle<CBitmap>(hBitmap);
}
CRgn* CRgn::FromHandle(HRGN hRgn) {
    return GdiFromHandle<CRgn>(hRgn);
}
