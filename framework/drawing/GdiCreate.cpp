// Creation of pens, brushes, fonts, bitmaps and regions.
#include "afxwin.h"

#include <cstdlib>

// --- Pens ---------------------------------------------------------------------------------

CPen::CPen(int nPenStyle, int nWidth, COLORREF crColor) {
    if (!CreatePen(nPenStyle, nWidth, crColor))
        AfxThrowResourceException();
}

BOOL CPen::CreatePen(int nPenStyle, int nWidth, COLORREF crColor) {
    return Attach(::CreatePen(nPenStyle, nWidth, crColor));
}

CPen::CPen(int nPenStyle, int nWidth, const LOGBRUSH* pLogBrush, int nStyleCount, const DWORD* lpStyle) {
    if (!CreatePen(nPenStyle, nWidth, pLogBrush, nStyleCount, lpStyle))
        AfxThrowResourceException();
}

BOOL CPen::CreatePen(int nPenStyle, int nWidth, const LOGBRUSH* pLogBrush, int nStyleCount,
                     const DWORD* lpStyle) {
    return Attach(::ExtCreatePen(static_cast<DWORD>(nPenStyle), static_cast<DWORD>(nWidth), pLogBrush,
                                 static_cast<DWORD>(nStyleCount), lpStyle));
}

BOOL CPen::CreatePenIndirect(LPLOGPEN lpLogPen) {
    return Attach(::CreatePenIndirect(lpLogPen));
}

// --- Brushes ------------------------------------------------------------------------------

CBrush::CBrush(COLORREF crColor) {
    if (!CreateSolidBrush(crColor))
        AfxThrowResourceException();
}

CBrush::CBrush(int nIndex, COLORREF crColor) {
    if (!CreateHatchBrush(nIndex, crColor))
        AfxThrowResourceException();
}

CBrush::CBrush(CBitmap* pBitmap) {
    if (!CreatePatternBrush(pBitmap))
        AfxThrowResourceException();
}

BOOL CBrush::CreateSolidBrush(COLORREF crColor) {
    return Attach(::CreateSolidBrush(crColor));
}

BOOL CBrush::CreateHatchBrush(int nIndex, COLORREF crColor) {
    return Attach(::CreateHatchBrush(nIndex, crColor));
}

BOOL CBrush::CreateBrushIndirect(const LOGBRUSH* lpLogBrush) {
    return Attach(::CreateBrushIndirect(lpLogBrush));
}

BOOL CBrush::CreatePatternBrush(CBitmap* pBitmap) {
    return pBitmap != nullptr && Attach(::CreatePatternBrush(*pBitmap));
}

BOOL CBrush::CreateSysColorBrush(int nIndex) {
    return Attach(::GetSysColorBrush(nIndex));
}

// --- Fonts --------------------------------------------------------------------------------

BOOL CFont::CreateFontIndirect(const LOGFONT* lpLogFont) {
    return Attach(::CreateFontIndirect(lpLogFont));
}

BOOL CFont::CreateFont(int nHeight, int nWidth, int nEscapement, int nOrientation, int nWeight, BYTE bItalic,
                       BYTE bUnderline, BYTE cStrikeOut, BYTE nCharSet, BYTE nOutPrecision,
                       BYTE nClipPrecision, BYTE nQuality, BYTE nPitchAndFamily, LPCTSTR lpszFacename) {
    return Attach(::CreateFont(nHeight, nWidth, nEscapement, nOrientation, nWeight, bItalic, bUnderline,
                               cStrikeOut, nCharSet, nOutPrecision, nClipPrecision, nQuality, nPitchAndFamily,
                               lpszFacename));
}

BOOL CFont::CreatePointFont(int nPointSize, LPCTSTR lpszFaceName, CDC* pDC) {
    LOGFONT logFont = {};
    logFont.lfCharSet = DEFAULT_CHARSET;
    logFont.lfHeight = nPointSize;
    ::lstrcpyn(logFont.lfFaceName, lpszFaceName, LF_FACESIZE);
    return CreatePointFontIndirect(&logFont, pDC);
}

BOOL CFont::CreatePointFontIndirect(const LOGFONT* lpLogFont, CDC* pDC) {
    CClientDC dcScreen(nullptr);
    const CDC& dc = pDC != nullptr ? *pDC : dcScreen;
    constexpr int kTenthsOfAPointPerInch = 720;
    POINT points[] = {
        {0, 0}, {0, ::MulDiv(dc.GetDeviceCaps(LOGPIXELSY), lpLogFont->lfHeight, kTenthsOfAPointPerInch)}};
    dc.DPtoLP(points, 2);
    LOGFONT logFont = *lpLogFont;
    logFont.lfHeight = -std::abs(points[1].y - points[0].y);
    return CreateFontIndirect(&logFont);
}

// --- Bitmaps ------------------------------------------------------------------------------

BOOL CBitmap::LoadBitmap(LPCTSTR lpszResourceName) {
    return Attach(::LoadBitmap(AfxFindResourceHandle(lpszResourceName, RT_BITMAP), lpszResourceName));
}

BOOL CBitmap::LoadMappedBitmap(UINT nIDBitmap, UINT nFlags, LPCOLORMAP lpColorMap, int nMapSize) {
    const HINSTANCE hInstance = AfxFindResourceHandle(MAKEINTRESOURCE(nIDBitmap), RT_BITMAP);
    return Attach(
        ::CreateMappedBitmap(hInstance, static_cast<INT_PTR>(nIDBitmap), nFlags, lpColorMap, nMapSize));
}

BOOL CBitmap::CreateBitmap(int nWidth, int nHeight, UINT nPlanes, UINT nBitcount, const void* lpBits) {
    return Attach(::CreateBitmap(nWidth, nHeight, nPlanes, nBitcount, lpBits));
}

BOOL CBitmap::CreateBitmapIndirect(LPBITMAP lpBitmap) {
    return Attach(::CreateBitmapIndirect(lpBitmap));
}

BOOL CBitmap::CreateCompatibleBitmap(CDC* pDC, int nWidth, int nHeight) {
    return Attach(::CreateCompatibleBitmap(pDC->GetSafeHdc(), nWidth, nHeight));
}

BOOL CBitmap::CreateDiscardableBitmap(CDC* pDC, int nWidth, int nHeight) {
    return Attach(::CreateDiscardableBitmap(pDC->GetSafeHdc(), nWidth, nHeight));
}

CSize CBitmap::SetBitmapDimension(int nWidth, int nHeight) {
    SIZE previous = {};
    ::SetBitmapDimensionEx(*this, nWidth, nHeight, &previous);
    return previous;
}

CSize CBitmap::GetBitmapDimension() const {
    SIZE size = {};
    ::GetBitmapDimensionEx(*this, &size);
    return size;
}

// --- Regions ------------------------------------------------------------------------------

BOOL CRgn::CreateFromPath(CDC* pDC) {
    return Attach(::PathToRegion(pDC->GetSafeHdc()));
}

int CRgn::CombineRgn(const CRgn* pRgn1, const CRgn* pRgn2, int nCombineMode) {
    const HRGN hRgn2 = pRgn2 != nullptr ? static_cast<HRGN>(*pRgn2) : nullptr;
    return ::CombineRgn(*this, *pRgn1, hRgn2, nCombineMode);
}
