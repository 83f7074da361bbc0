// Device contexts: ownership, selected objects, attributes, coordinates, clipping.
#include "GdiFromHandle.h"

#include <cstdlib>
#include <utility>

using namespace fieldkit::detail;

IMPLEMENT_DYNCREATE(CDC, CObject)

// --- Ownership ----------------------------------------------------------------------------

CDC::~CDC() {
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

BOOL CDC::CreateDC(LPCTSTR lpszDriverName, LPCTSTR lpszDeviceName, LPCTSTR lpszOutput,
                   const void* lpInitData) {
    return Attach(
        ::CreateDC(lpszDriverName, lpszDeviceName, lpszOutput, static_cast<const DEVMODE*>(lpInitData)));
}

BOOL CDC::CreateIC(LPCTSTR lpszDriverName, LPCTSTR lpszDeviceName, LPCTSTR lpszOutput,
                   const void* lpInitData) {
    return Attach(
        ::CreateIC(lpszDriverName, lpszDeviceName, lpszOutput, static_cast<const DEVMODE*>(lpInitData)));
}

BOOL CDC::DeleteDC() {
    return m_hDC != nullptr && ::DeleteDC(Detach());
}

/// The attribute context keeps its own states; it goes back as far as the other.
int CDC::SaveDC() {
    const int nSaved = ::SaveDC(m_hDC);
    if (IsSplit() && ::SaveDC(m_hAttribDC) != 0)
        return -1;
    return nSaved;
}

BOOL CDC::RestoreDC(int nSavedDC) {
    const BOOL bRestored = ::RestoreDC(m_hDC, nSavedDC);
    return IsSplit() ? ::RestoreDC(m_hAttribDC, nSavedDC) && bRestored : bRestored;
}

// --- Objects ------------------------------------------------------------------------------

namespace {

HGDIOBJ HandleOf(const CGdiObject* pObject) {
    return pObject != nullptr ? pObject->m_hObject : nullptr;
}

template <class Object>
Object* Current(HDC hDC, UINT nKind) {
    return GdiFromHandle<Object>(::GetCurrentObject(hDC, nKind));
}

} // namespace

template <class Object>
Object* CDC::Select(HGDIOBJ hObject) {
    return GdiFromHandle<Object>(Set(::SelectObject, hObject));
}

CGdiObject* CDC::SelectStockObject(int nIndex) {
    return CGdiObject::FromHandle(Set(::SelectObject, ::GetStockObject(nIndex)));
}
CPen* CDC::SelectObject(CPen* pPen) {
    return Select<CPen>(HandleOf(pPen));
}
CBrush* CDC::SelectObject(CBrush* pBrush) {
    return Select<CBrush>(HandleOf(pBrush));
}
CFont* CDC::SelectObject(CFont* pFont) {
    return Select<CFont>(HandleOf(pFont));
}
/// A bitmap can be in one context only.
CBitmap* CDC::SelectObject(CBitmap* pBitmap) {
    return GdiFromHandle<CBitmap>(::SelectObject(m_hDC, HandleOf(pBitmap)));
}
CGdiObject* CDC::SelectObject(CGdiObject* pObject) {
    return CGdiObject::FromHandle(Set(::SelectObject, HandleOf(pObject)));
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

// --- Coordinates --------------------------------------------------------------------------

namespace {

constexpr int kHimetricPerInch = 2540;

/// The size multiplied by the first and divided by the second factor; a size has no direction.
void Scale(LPSIZE lpSize, SIZE factor, SIZE divisor) {
    lpSize->cx = ::MulDiv(lpSize->cx, std::abs(factor.cx), std::abs(divisor.cx));
    lpSize->cy = ::MulDiv(lpSize->cy, std::abs(factor.cy), std::abs(divisor.cy));
}

CSize PixelsPerInch(const CDCState& dc) {
    return CSize(dc.GetDeviceCaps(LOGPIXELSX), dc.GetDeviceCaps(LOGPIXELSY));
}

} // namespace

void CDCState::LPtoDP(LPSIZE lpSize) const {
    Scale(lpSize, GetViewportExt(), GetWindowExt());
}
void CDCState::DPtoLP(LPSIZE lpSize) const {
    Scale(lpSize, GetWindowExt(), GetViewportExt());
}
void CDCState::DPtoHIMETRIC(LPSIZE lpSize) const {
    Scale(lpSize, CSize(kHimetricPerInch, kHimetricPerInch), PixelsPerInch(*this));
}
void CDCState::HIMETRICtoDP(LPSIZE lpSize) const {
    Scale(lpSize, PixelsPerInch(*this), CSize(kHimetricPerInch, kHimetricPerInch));
}
void CDCState::LPtoHIMETRIC(LPSIZE lpSize) const {
    LPtoDP(lpSize);
    DPtoHIMETRIC(lpSize);
}
void CDCState::HIMETRICtoLP(LPSIZE lpSize) const {
    HIMETRICtoDP(lpSize);
    DPtoLP(lpSize);
}

// --- Clipping -----------------------------------------------------------------------------

int CDCState::SelectClipRgn(CRgn* pRgn) {
    return Set(::SelectClipRgn, static_cast<HRGN>(HandleOf(pRgn)));
}

int CDCState::SelectClipRgn(CRgn* pRgn, int nMode) {
    return Set(::ExtSelectClipRgn, static_cast<HRGN>(HandleOf(pRgn)), nMode);
}

int CDCState::ExcludeUpdateRgn(CWnd* pWnd) {
    return ::ExcludeUpdateRgn(m_hDC, pWnd->m_hWnd);
}

int CDCState::GetTextFace(CString& rString) const {
    const int nLength = GetTextFace(0, nullptr); // with the terminator
    GetTextFace(nLength, rString.GetBuffer(nLength));
    rString.ReleaseBuffer();
    return rString.GetLength();
}
