// Device contexts: ownership, selected objects, attributes, coordinates, clipping.
#include "GdiFromHandle.h"

#include <utility>

using namespace fieldkit::detail;

IMPLEMENT_DYNCREATE(CDC, CObject)

// --- Ownership ----------------------------------------------------------------------------

CDC::~CDC() {
    if (m_hDC != nullptr)
        DeleteDC();
}

// Built as CWnd::GetSafeHwnd is.
HDC CDC::GetSafeHdc() const {
    return this != nullptr ? m_hDC : nullptr;
}

CDC* CDC::FromHandle(HDC hDC) {
    CThreadState& state = CThreadState::Get();
    return state.m_contexts.FromHandle(hDC, state.m_nModalDepth, [hDC] {
        auto* pDC = new CDC;
        pDC->m_hAttribDC = hDC;
        return pDC;
    });
}

void CDC::DeleteTempMap() {
    CThreadState& state = CThreadState::Get();
    state.m_contexts.DeleteTemporary(state.m_nModalDepth);
}

BOOL CDC::Attach(HDC hDC) {
    if (hDC == nullptr)
        return FALSE;
    if (m_hDC != hDC)
        DeleteDC();
    m_hDC = m_hAttribDC = hDC;
    CThreadState::Get().m_contexts.SetPermanent(hDC, this);
    return TRUE;
}

HDC CDC::Detach() {
    if (m_hDC == nullptr)
        return nullptr;
    // A window with a context of its own hands out the same one again and again.
    const HDC hDC = std::exchange(m_hDC, nullptr);
    m_hAttribDC = nullptr;
    auto& contexts = CThreadState::Get().m_contexts;
    if (const CDC* pOwner = contexts.Permanent(hDC); pOwner == nullptr || pOwner == this)
        contexts.Remove(hDC);
    return hDC;
}

CWnd* CDC::GetWindow() const {
    return CWnd::FromHandle(::WindowFromDC(m_hDC));
}

BOOL CDC::CreateCompatibleDC(CDC* pDC) {
    return Attach(::CreateCompatibleDC(pDC != nullptr ? pDC->m_hDC : nullptr));
}

BOOL CDC::DeleteDC() {
    return m_hDC != nullptr && ::DeleteDC(Detach());
}
int CDC::SaveDC() {
    return ::SaveDC(m_hDC);
}
BOOL CDC::RestoreDC(int nSavedDC) {
    return ::RestoreDC(m_hDC, nSavedDC);
}
int CDC::GetDeviceCaps(int nIndex) const {
    return ::GetDeviceCaps(m_hAttribDC, nIndex);
}

// --- Objects ------------------------------------------------------------------------------

namespace {

HGDIOBJ HandleOf(const CGdiObject* pObject) {
    return pObject != nullptr ? pObject->m_hObject : nullptr;
}

template <class Object>
Object* Select(HDC hDC, const Object* pObject) {
    return GdiFromHandle<Object>(::SelectObject(hDC, HandleOf(pObject)));
}

template <class Object>
Object* Current(HDC hDC, UINT nKind) {
    return GdiFromHandle<Object>(::GetCurrentObject(hDC, nKind));
}

} // namespace

CGdiObject* CDC::SelectStockObject(int nIndex) {
    return CGdiObject::FromHandle(::SelectObject(m_hDC, ::GetStockObject(nIndex)));
}
CPen* CDC::SelectObject(CPen* pPen) {
    return Select(m_hDC, pPen);
}
CBrush* CDC::SelectObject(CBrush* pBrush) {
    return Select(m_hDC, pBrush);
}
CFont* CDC::SelectObject(CFont* pFont) {
    return Select(m_hDC, pFont);
}
CBitmap* CDC::SelectObject(CBitmap* pBitmap) {
    return Select(m_hDC, pBitmap);
}
int CDC::SelectObject(CRgn* pRgn) {
    return SelectClipRgn(pRgn);
}

CPen* CDC::GetCurrentPen() const {
    return Current<CPen>(m_hAttribDC, OBJ_PEN);
}
CBrush* CDC::GetCurrentBrush() const {
    return Current<CBrush>(m_hAttribDC, OBJ_BRUSH);
}
CFont* CDC::GetCurrentFont() const {
    return Current<CFont>(m_hAttribDC, OBJ_FONT);
}
CBitmap* CDC::GetCurrentBitmap() const {
    return Current<CBitmap>(m_hAttribDC, OBJ_BITMAP);
}

// --- Attributes ---------------------------------------------------------------------------

int CDC::SetBkMode(int nBkMode) {
    return ::SetBkMode(m_hDC, nBkMode);
}
int CDC::GetBkMode() const {
    return ::GetBkMode(m_hAttribDC);
}
COLORREF CDC::SetBkColor(COLORREF crColor) {
    return ::SetBkColor(m_hDC, crColor);
}
COLORREF CDC::GetBkColor() const {
    return ::GetBkColor(m_hAttribDC);
}
COLORREF CDC::SetTextColor(COLORREF crColor) {
    return ::SetTextColor(m_hDC, crColor);
}
COLORREF CDC::GetTextColor() const {
    return ::GetTextColor(m_hAttribDC);
}
int CDC::SetROP2(int nDrawMode) {
    return ::SetROP2(m_hDC, nDrawMode);
}
int CDC::GetROP2() const {
    return ::GetROP2(m_hAttribDC);
}
UINT CDC::SetTextAlign(UINT nFlags) {
    return ::SetTextAlign(m_hDC, nFlags);
}
UINT CDC::GetTextAlign() const {
    return ::GetTextAlign(m_hAttribDC);
}
int CDC::SetStretchBltMode(int nStretchMode) {
    return ::SetStretchBltMode(m_hDC, nStretchMode);
}

CPoint CDC::SetBrushOrg(int x, int y) {
    POINT previous = {};
    ::SetBrushOrgEx(m_hDC, x, y, &previous);
    return previous;
}

// --- Coordinates --------------------------------------------------------------------------

CPoint CDC::SetViewportOrg(int x, int y) {
    POINT previous = {};
    ::SetViewportOrgEx(m_hDC, x, y, &previous);
    return previous;
}

CPoint CDC::GetViewportOrg() const {
    POINT point = {};
    ::GetViewportOrgEx(m_hAttribDC, &point);
    return point;
}

void CDC::LPtoDP(LPPOINT lpPoints, int nCount) const {
    ::LPtoDP(m_hAttribDC, lpPoints, nCount);
}
void CDC::LPtoDP(LPRECT lpRect) const {
    LPtoDP(reinterpret_cast<LPPOINT>(lpRect), 2);
}
void CDC::DPtoLP(LPPOINT lpPoints, int nCount) const {
    ::DPtoLP(m_hAttribDC, lpPoints, nCount);
}
void CDC::DPtoLP(LPRECT lpRect) const {
    DPtoLP(reinterpret_cast<LPPOINT>(lpRect), 2);
}

// --- Clipping -----------------------------------------------------------------------------

int CDC::GetClipBox(LPRECT lpRect) const {
    return ::GetClipBox(m_hAttribDC, lpRect);
}

int CDC::SelectClipRgn(CRgn* pRgn) {
    return ::SelectClipRgn(m_hDC, static_cast<HRGN>(HandleOf(pRgn)));
}

int CDC::SelectClipRgn(CRgn* pRgn, int nMode) {
    return ::ExtSelectClipRgn(m_hDC, static_cast<HRGN>(HandleOf(pRgn)), nMode);
}

int CDC::ExcludeClipRect(int x1, int y1, int x2, int y2) {
    return ::ExcludeClipRect(m_hDC, x1, y1, x2, y2);
}

int CDC::ExcludeClipRect(LPCRECT lpRect) {
    return ExcludeClipRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

int CDC::IntersectClipRect(int x1, int y1, int x2, int y2) {
    return ::IntersectClipRect(m_hDC, x1, y1, x2, y2);
}

int CDC::IntersectClipRect(LPCRECT lpRect) {
    return IntersectClipRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}
