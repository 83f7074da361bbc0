#include "drawing/GdiFromHandle.h"
#include "afxcmn.h"

#include <utility>

using namespace fieldkit::detail;

IMPLEMENT_DYNCREATE(CImageList, CObject)

namespace {

HBITMAP BitmapOf(const CBitmap* pBitmap) {
    return pBitmap != nullptr ? static_cast<HBITMAP>(pBitmap->m_hObject) : nullptr;
}

} // namespace

// --- Ownership ----------------------------------------------------------------------------

CImageList::~CImageList() {
    DeleteImageList();
}

// Built as CWnd::GetSafeHwnd is.
HIMAGELIST CImageList::GetSafeHandle() const {
    return this != nullptr ? m_hImageList : nullptr;
}

CImageList* CImageList::FromHandle(HIMAGELIST hImageList) {
    CThreadState& state = CThreadState::Get();
    return state.m_imageLists.FromHandle(hImageList, state.m_nModalDepth, [] { return new CImageList; });
}

CImageList* CImageList::FromHandlePermanent(HIMAGELIST hImageList) {
    return CThreadState::Get().m_imageLists.Permanent(hImageList);
}

void CImageList::DeleteTempMap() {
    CThreadState& state = CThreadState::Get();
    state.m_imageLists.DeleteTemporary(state.m_nModalDepth);
}

BOOL CImageList::Attach(HIMAGELIST hImageList) {
    if (hImageList == nullptr)
        return FALSE;
    if (m_hImageList != hImageList)
        DeleteImageList();
    m_hImageList = hImageList;
    CThreadState::Get().m_imageLists.SetPermanent(hImageList, this);
    return TRUE;
}

HIMAGELIST CImageList::Detach() {
    if (m_hImageList != nullptr)
        CThreadState::Get().m_imageLists.Remove(m_hImageList);
    return std::exchange(m_hImageList, nullptr);
}

BOOL CImageList::DeleteImageList() {
    return m_hImageList != nullptr && ::ImageList_Destroy(Detach());
}

// --- Creation -----------------------------------------------------------------------------

BOOL CImageList::Create(int cx, int cy, UINT nFlags, int nInitial, int nGrow) {
    return Attach(::ImageList_Create(cx, cy, nFlags, nInitial, nGrow));
}

BOOL CImageList::Create(UINT nBitmapID, int cx, int nGrow, COLORREF crMask) {
    return Create(MAKEINTRESOURCE(nBitmapID), cx, nGrow, crMask);
}

BOOL CImageList::Create(LPCTSTR lpszBitmapID, int cx, int nGrow, COLORREF crMask) {
    const HINSTANCE hInstance = AfxFindResourceHandle(lpszBitmapID, RT_BITMAP);
    return Attach(::ImageList_LoadImage(hInstance, lpszBitmapID, cx, nGrow, crMask, IMAGE_BITMAP, 0));
}

BOOL CImageList::Create(CImageList* pImageList) {
    return Attach(::ImageList_Duplicate(pImageList->m_hImageList));
}

// --- Images -------------------------------------------------------------------------------

int CImageList::Add(CBitmap* pbmImage, CBitmap* pbmMask) {
    return ::ImageList_Add(m_hImageList, BitmapOf(pbmImage), BitmapOf(pbmMask));
}

int CImageList::Add(CBitmap* pbmImage, COLORREF crMask) {
    return ::ImageList_AddMasked(m_hImageList, BitmapOf(pbmImage), crMask);
}

BOOL CImageList::Replace(int nImage, CBitmap* pbmImage, CBitmap* pbmMask) {
    return ::ImageList_Replace(m_hImageList, nImage, BitmapOf(pbmImage), BitmapOf(pbmMask));
}

BOOL CImageList::Draw(CDC* pDC, int nImage, POINT pt, UINT nStyle) {
    return ::ImageList_Draw(m_hImageList, nImage, pDC->m_hDC, pt.x, pt.y, nStyle);
}

BOOL CImageList::DrawIndirect(IMAGELISTDRAWPARAMS* pimldp) {
    pimldp->cbSize = sizeof *pimldp;
    pimldp->himl = m_hImageList;
    return ::ImageList_DrawIndirect(pimldp);
}
