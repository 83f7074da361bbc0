/// @file
/// Drawing objects, which are selected into device contexts. Included by afxwin.h.
#pragma once

#include "afx.h"
#include "atltypes.h"

#include <commctrl.h>

class CBitmap;
class CDC;
class CWnd;

/// A drawing object of the system, or the C++ side of one.
///
/// An object that was created or attached owns its handle and deletes it in its
/// destructor. FromHandle gives the owner of a handle, or a temporary object for a
/// foreign one, which is valid until the program is next idle and owns nothing.
class AFX_CORE CGdiObject : public CObject {
    DECLARE_DYNCREATE(CGdiObject)
public:
    CGdiObject() = default;
    ~CGdiObject() override;

    HGDIOBJ m_hObject = nullptr; ///< The system's object, or null.

    /// The handle, or null.
    operator HGDIOBJ() const { return m_hObject; }
    /// The handle; null also for a null object.
    HGDIOBJ GetSafeHandle() const;
    /// The object of a handle, a temporary one if nobody owns it; null for null.
    static CGdiObject* FromHandle(HGDIOBJ hObject);
    /// Deletes the temporary objects that nothing can hold any more; called when idle.
    static void DeleteTempMap();

    /// Takes over a handle; what the object held before is deleted.
    /// @return FALSE for null; the object is then as it was.
    BOOL Attach(HGDIOBJ hObject);
    /// Gives the handle up. @return what it was.
    HGDIOBJ Detach();
    /// @return FALSE without a handle, or if the system refuses because it is in use.
    BOOL DeleteObject();
    /// @param nCount room at lpObject in bytes @return the bytes written, 0 on failure
    int GetObject(int nCount, LPVOID lpObject) const;
    /// @param nIndex WHITE_BRUSH, BLACK_PEN, SYSTEM_FONT...
    BOOL CreateStockObject(int nIndex);
    /// OBJ_PEN, OBJ_BRUSH...; 0 for none.
    UINT GetObjectType() const { return ::GetObjectType(m_hObject); }
    /// The system's function of this name, which has no effect on anything but old systems' brushes.
    BOOL UnrealizeObject() { return ::UnrealizeObject(m_hObject); }

    /// Whether both stand for the same object of the system.
    ///@{
    bool operator==(const CGdiObject& other) const { return m_hObject == other.m_hObject; }
    bool operator!=(const CGdiObject& other) const { return m_hObject != other.m_hObject; }
    ///@}
};

/// A pen.
class AFX_CORE CPen : public CGdiObject {
    DECLARE_DYNAMIC(CPen)
public:
    CPen() = default;
    /// @param nWidth logical units; 0 is one pixel
    /// @throw CResourceException* if the system refuses
    ///@{
    CPen(int nPenStyle, int nWidth, COLORREF crColor);
    CPen(int nPenStyle, int nWidth, const LOGBRUSH* pLogBrush, int nStyleCount = 0,
         const DWORD* lpStyle = nullptr);
    ///@}

    /// The address of a temporary, for the call that it is written in.
    CPen* operator&() && noexcept { return this; }
    /// The handle, or null.
    operator HPEN() const { return static_cast<HPEN>(m_hObject); }
    /// The object of a handle, a temporary one if nobody owns it; null for null.
    static CPen* FromHandle(HPEN hPen);

    /// Makes the pen, or tells what it is made of. @return 0 on failure
    ///@{
    BOOL CreatePen(int nPenStyle, int nWidth, COLORREF crColor);
    /// @param nPenStyle PS_GEOMETRIC or PS_COSMETIC with style, ends and joins
    /// @param lpStyle   nStyleCount lengths of dashes and gaps, for PS_USERSTYLE
    BOOL CreatePen(int nPenStyle, int nWidth, const LOGBRUSH* pLogBrush, int nStyleCount = 0,
                   const DWORD* lpStyle = nullptr);
    BOOL CreatePenIndirect(LPLOGPEN lpLogPen);
    int GetLogPen(LOGPEN* pLogPen) const { return GetObject(sizeof(LOGPEN), pLogPen); }
    int GetExtLogPen(EXTLOGPEN* pLogPen) const { return GetObject(sizeof(EXTLOGPEN), pLogPen); }
    ///@}
};

/// A brush.
class AFX_CORE CBrush : public CGdiObject {
    DECLARE_DYNAMIC(CBrush)
public:
    CBrush() = default;
    /// The constructors throw CResourceException* if the system refuses.
    explicit CBrush(COLORREF crColor);
    /// @param nIndex HS_...
    CBrush(int nIndex, COLORREF crColor);
    /// @param pBitmap must outlive the brush
    explicit CBrush(CBitmap* pBitmap);

    /// The address of a temporary, for the call that it is written in.
    CBrush* operator&() && noexcept { return this; }
    /// The handle, or null.
    operator HBRUSH() const { return static_cast<HBRUSH>(m_hObject); }
    /// The object of a handle, a temporary one if nobody owns it; null for null.
    static CBrush* FromHandle(HBRUSH hBrush);

    /// Makes the brush. @return FALSE on failure
    ///@{
    BOOL CreateSolidBrush(COLORREF crColor);
    BOOL CreateHatchBrush(int nIndex, COLORREF crColor);
    BOOL CreateBrushIndirect(const LOGBRUSH* lpLogBrush);
    BOOL CreatePatternBrush(CBitmap* pBitmap);
    /// @param nUsage DIB_RGB_COLORS or DIB_PAL_COLORS
    BOOL CreateDIBPatternBrush(HGLOBAL hPackedDIB, UINT nUsage) {
        return Attach(::CreateDIBPatternBrush(hPackedDIB, nUsage));
    }
    BOOL CreateDIBPatternBrush(const void* lpPackedDIB, UINT nUsage) {
        return Attach(::CreateDIBPatternBrushPt(lpPackedDIB, nUsage));
    }
    ///@}
    /// @param nIndex COLOR_...
    BOOL CreateSysColorBrush(int nIndex);
    /// What the brush is made of. @return the bytes written, 0 on failure
    int GetLogBrush(LOGBRUSH* pLogBrush) const { return GetObject(sizeof(LOGBRUSH), pLogBrush); }
};

/// A font.
class AFX_CORE CFont : public CGdiObject {
    DECLARE_DYNAMIC(CFont)
public:
    CFont() = default;

    /// The address of a temporary, for the call that it is written in.
    CFont* operator&() && noexcept { return this; }
    /// The handle, or null.
    operator HFONT() const { return static_cast<HFONT>(m_hObject); }
    /// The object of a handle, a temporary one if nobody owns it; null for null.
    static CFont* FromHandle(HFONT hFont);

    /// Makes the font that fits the description best. @return FALSE on failure
    BOOL CreateFontIndirect(const LOGFONT* lpLogFont);
    /// @param nHeight logical units: > 0 of the line, < 0 of the characters, 0 the default
    BOOL CreateFont(int nHeight, int nWidth, int nEscapement, int nOrientation, int nWeight, BYTE bItalic,
                    BYTE bUnderline, BYTE cStrikeOut, BYTE nCharSet, BYTE nOutPrecision, BYTE nClipPrecision,
                    BYTE nQuality, BYTE nPitchAndFamily, LPCTSTR lpszFacename);
    /// @param nPointSize tenths of a point
    /// @param pDC        the device that it is for; null is the screen
    BOOL CreatePointFont(int nPointSize, LPCTSTR lpszFaceName, CDC* pDC = nullptr);
    /// Like CreateFontIndirect, but lfHeight is in tenths of a point.
    BOOL CreatePointFontIndirect(const LOGFONT* lpLogFont, CDC* pDC = nullptr);
    /// What the font was asked for. @return the bytes written, 0 on failure
    int GetLogFont(LOGFONT* pLogFont) const { return GetObject(sizeof(LOGFONT), pLogFont); }
};

/// A bitmap of the device.
class AFX_CORE CBitmap : public CGdiObject {
    DECLARE_DYNAMIC(CBitmap)
public:
    CBitmap() = default;

    /// The address of a temporary, for the call that it is written in.
    CBitmap* operator&() && noexcept { return this; }
    /// The handle, or null.
    operator HBITMAP() const { return static_cast<HBITMAP>(m_hObject); }
    /// The object of a handle, a temporary one if nobody owns it; null for null.
    static CBitmap* FromHandle(HBITMAP hBitmap);

    /// Loads from the application or an extension module.
    BOOL LoadBitmap(LPCTSTR lpszResourceName);
    /// The same by its number. @return FALSE if there is no such bitmap
    BOOL LoadBitmap(UINT nIDResource) { return LoadBitmap(MAKEINTRESOURCE(nIDResource)); }
    /// Loads a bitmap of the system.
    /// @param nIDBitmap OBM_...
    BOOL LoadOEMBitmap(UINT nIDBitmap) { return Attach(::LoadBitmap(nullptr, MAKEINTRESOURCE(nIDBitmap))); }
    /// Loads a bitmap in the user's colours.
    /// @param lpColorMap nMapSize pairs of colours; null: greys and blue become those of buttons
    BOOL LoadMappedBitmap(UINT nIDBitmap, UINT nFlags = 0, LPCOLORMAP lpColorMap = nullptr, int nMapSize = 0);
    /// @param lpBits rows padded to 16 bits; null leaves the pixels undefined
    BOOL CreateBitmap(int nWidth, int nHeight, UINT nPlanes, UINT nBitcount, const void* lpBits);
    /// Makes the bitmap: from a description, or for drawing on the device of pDC. @return FALSE on
    /// failure
    ///@{
    BOOL CreateBitmapIndirect(LPBITMAP lpBitmap);
    BOOL CreateCompatibleBitmap(CDC* pDC, int nWidth, int nHeight);
    BOOL CreateDiscardableBitmap(CDC* pDC, int nWidth, int nHeight);
    ///@}
    /// Size and format of the bitmap. @return the bytes written, 0 on failure
    int GetBitmap(BITMAP* pBitMap) const { return GetObject(sizeof(BITMAP), pBitMap); }
    /// The pixels, rows padded to 16 bits. @return the bytes copied
    ///@{
    DWORD SetBitmapBits(DWORD dwCount, const void* lpBits) {
        return static_cast<DWORD>(::SetBitmapBits(*this, dwCount, lpBits));
    }
    DWORD GetBitmapBits(DWORD dwCount, LPVOID lpBits) const {
        return static_cast<DWORD>(::GetBitmapBits(*this, static_cast<LONG>(dwCount), lpBits));
    }
    ///@}
    /// A size in tenths of a millimetre, which only programs look at.
    ///@{
    CSize SetBitmapDimension(int nWidth, int nHeight);
    CSize GetBitmapDimension() const;
    ///@}
};

/// A region of device coordinates.
class AFX_CORE CRgn : public CGdiObject {
    DECLARE_DYNAMIC(CRgn)
public:
    CRgn() = default;

    /// The address of a temporary, for the call that it is written in.
    CRgn* operator&() && noexcept { return this; }
    /// The handle, or null.
    operator HRGN() const { return static_cast<HRGN>(m_hObject); }
    /// The object of a handle, a temporary one if nobody owns it; null for null.
    static CRgn* FromHandle(HRGN hRgn);

    /// Makes the region; right and bottom lie outside. @return FALSE on failure
    ///@{
    BOOL CreateRectRgn(int x1, int y1, int x2, int y2) { return Attach(::CreateRectRgn(x1, y1, x2, y2)); }
    BOOL CreateRectRgnIndirect(LPCRECT lpRect) { return Attach(::CreateRectRgnIndirect(lpRect)); }
    BOOL CreateEllipticRgn(int x1, int y1, int x2, int y2) {
        return Attach(::CreateEllipticRgn(x1, y1, x2, y2));
    }
    BOOL CreateEllipticRgnIndirect(LPCRECT lpRect) { return Attach(::CreateEllipticRgnIndirect(lpRect)); }
    BOOL CreateRoundRectRgn(int x1, int y1, int x2, int y2, int x3, int y3) {
        return Attach(::CreateRoundRectRgn(x1, y1, x2, y2, x3, y3));
    }
    /// @param nMode ALTERNATE or WINDING
    BOOL CreatePolygonRgn(const POINT* lpPoints, int nCount, int nMode) {
        return Attach(::CreatePolygonRgn(lpPoints, nCount, nMode));
    }
    BOOL CreatePolyPolygonRgn(const POINT* lpPoints, const INT* lpPolyCounts, int nCount, int nPolyFillMode) {
        return Attach(::CreatePolyPolygonRgn(lpPoints, lpPolyCounts, nCount, nPolyFillMode));
    }
    BOOL CreateFromPath(CDC* pDC);
    BOOL CreateFromData(const XFORM* lpXForm, int nCount, const RGNDATA* pRgnData) {
        return Attach(::ExtCreateRegion(lpXForm, static_cast<DWORD>(nCount), pRgnData));
    }
    ///@}
    /// Makes the existing region a rectangle.
    ///@{
    void SetRectRgn(int x1, int y1, int x2, int y2) { ::SetRectRgn(*this, x1, y1, x2, y2); }
    void SetRectRgn(LPCRECT lpRect) { SetRectRgn(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom); }
    ///@}
    /// This region, which must exist, becomes the combination of two; it may be one of them.
    /// @param nCombineMode RGN_AND, RGN_COPY, RGN_DIFF, RGN_OR, RGN_XOR
    /// @return NULLREGION, SIMPLEREGION, COMPLEXREGION or ERROR
    int CombineRgn(const CRgn* pRgn1, const CRgn* pRgn2, int nCombineMode);
    /// The existing region becomes a copy of another, or is moved. @return its kind
    ///@{
    int CopyRgn(const CRgn* pRgnSrc) { return CombineRgn(pRgnSrc, nullptr, RGN_COPY); }
    int OffsetRgn(int x, int y) { return ::OffsetRgn(*this, x, y); }
    int OffsetRgn(POINT point) { return OffsetRgn(point.x, point.y); }
    ///@}
    BOOL EqualRgn(const CRgn* pRgn) const { return ::EqualRgn(*this, *pRgn); }
    /// The smallest rectangle around the region. @return the region's kind
    int GetRgnBox(LPRECT lpRect) const { return ::GetRgnBox(*this, lpRect); }
    /// Whether a point, or any part of a rectangle, lies in the region.
    ///@{
    BOOL PtInRegion(int x, int y) const { return ::PtInRegion(*this, x, y); }
    BOOL PtInRegion(POINT point) const { return PtInRegion(point.x, point.y); }
    BOOL RectInRegion(LPCRECT lpRect) const { return ::RectInRegion(*this, lpRect); }
    ///@}
    /// @param nCount room at lpRgnData in bytes; null there asks for it
    int GetRegionData(LPRGNDATA lpRgnData, int nCount) const {
        return static_cast<int>(::GetRegionData(*this, static_cast<DWORD>(nCount), lpRgnData));
    }
};
