/// @file
/// Drawing: the objects that are selected into a device context, and the device
/// contexts themselves. Included by afxwin.h.
#pragma once

#include "afx.h"
#include "atltypes.h"

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
    CPen(int nPenStyle, int nWidth, COLORREF crColor);

    /// The handle, or null.
    operator HPEN() const { return static_cast<HPEN>(m_hObject); }
    /// The object of a handle, a temporary one if nobody owns it; null for null.
    static CPen* FromHandle(HPEN hPen);

    /// Makes the pen, or tells what it is made of. @return 0 on failure
    ///@{
    BOOL CreatePen(int nPenStyle, int nWidth, COLORREF crColor);
    BOOL CreatePenIndirect(LPLOGPEN lpLogPen);
    int GetLogPen(LOGPEN* pLogPen) const { return GetObject(sizeof(LOGPEN), pLogPen); }
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

    /// The handle, or null.
    operator HBITMAP() const { return static_cast<HBITMAP>(m_hObject); }
    /// The object of a handle, a temporary one if nobody owns it; null for null.
    static CBitmap* FromHandle(HBITMAP hBitmap);

    /// Loads from the application or an extension module.
    BOOL LoadBitmap(LPCTSTR lpszResourceName);
    /// The same by its number. @return FALSE if there is no such bitmap
    BOOL LoadBitmap(UINT nIDResource) { return LoadBitmap(MAKEINTRESOURCE(nIDResource)); }
    /// @param lpBits rows padded to 16 bits; null leaves the pixels undefined
    BOOL CreateBitmap(int nWidth, int nHeight, UINT nPlanes, UINT nBitcount, const void* lpBits);
    /// Makes the bitmap: from a description, or for drawing on the device of pDC. @return FALSE on
    /// failure
    ///@{
    BOOL CreateBitmapIndirect(LPBITMAP lpBitmap);
    BOOL CreateCompatibleBitmap(CDC* pDC, int nWidth, int nHeight);
    ///@}
    /// Size and format of the bitmap. @return the bytes written, 0 on failure
    int GetBitmap(BITMAP* pBitMap) const { return GetObject(sizeof(BITMAP), pBitMap); }
};

/// A region of device coordinates.
class AFX_CORE CRgn : public CGdiObject {
    DECLARE_DYNAMIC(CRgn)
public:
    CRgn() = default;

    /// The handle, or null.
    operator HRGN() const { return static_cast<HRGN>(m_hObject); }
    /// The object of a handle, a temporary one if nobody owns it; null for null.
    static CRgn* FromHandle(HRGN hRgn);

    /// Makes a rectangular region; right and bottom lie outside. @return FALSE on failure
    ///@{
    BOOL CreateRectRgn(int x1, int y1, int x2, int y2);
    BOOL CreateRectRgnIndirect(LPCRECT lpRect);
    ///@}
    /// Makes the existing region a rectangle.
    void SetRectRgn(LPCRECT lpRect);
    /// This region, which must exist, becomes the combination of two; it may be one of them.
    /// @param nCombineMode RGN_AND, RGN_COPY, RGN_DIFF, RGN_OR, RGN_XOR
    /// @return NULLREGION, SIMPLEREGION, COMPLEXREGION or ERROR
    int CombineRgn(const CRgn* pRgn1, const CRgn* pRgn2, int nCombineMode);
    /// The smallest rectangle around the region. @return the region's kind
    int GetRgnBox(LPRECT lpRect) const;
};

/// A device context of the system, or the C++ side of one.
///
/// An object that created or attached a context deletes it in its destructor. FromHandle
/// gives temporary objects for foreign contexts; they are valid until the program is next
/// idle. A SelectObject call returns the object selected before (a temporary one if need
/// be), which the caller selects again before the new one is deleted.
class AFX_CORE CDC : public CObject {
    DECLARE_DYNCREATE(CDC)
public:
    CDC() = default;
    ~CDC() override;

    HDC m_hDC = nullptr;       ///< What drawing goes to.
    HDC m_hAttribDC = nullptr; ///< What questions are answered from; always m_hDC here.

    /// What drawing goes to, or null.
    operator HDC() const { return m_hDC; }
    /// The handle; null also for a null object.
    HDC GetSafeHdc() const;
    /// The object of a context, a temporary one if nobody owns it; null for null.
    static CDC* FromHandle(HDC hDC);
    /// Deletes the temporary objects that nothing can hold any more; called when idle.
    static void DeleteTempMap();
    /// Takes a context over. @return FALSE for null
    BOOL Attach(HDC hDC);
    /// Gives the context up. @return what it was
    HDC Detach();
    /// The window that the context is of; null for none.
    CWnd* GetWindow() const;

    /// @param pDC null is the screen
    BOOL CreateCompatibleDC(CDC* pDC);
    /// Deletes the context. @return FALSE without one, or on failure
    BOOL DeleteDC();
    /// @return the number of the saved state for RestoreDC, 0 on failure
    virtual int SaveDC();
    /// @param nSavedDC what SaveDC returned, or -1 for the last
    virtual BOOL RestoreDC(int nSavedDC);
    /// @param nIndex LOGPIXELSX, BITSPIXEL...
    int GetDeviceCaps(int nIndex) const;

    // --- Objects -------------------------------------------------------------------
    /// Selects an object and returns the previous one, or returns the one selected now.
    ///@{
    virtual CGdiObject* SelectStockObject(int nIndex);
    virtual CPen* SelectObject(CPen* pPen);
    virtual CBrush* SelectObject(CBrush* pBrush);
    virtual CFont* SelectObject(CFont* pFont);
    CBitmap* SelectObject(CBitmap* pBitmap);
    /// Makes a copy of the region the clipping region. @return its kind
    int SelectObject(CRgn* pRgn);
    CPen* GetCurrentPen() const;
    CBrush* GetCurrentBrush() const;
    CFont* GetCurrentFont() const;
    CBitmap* GetCurrentBitmap() const;
    ///@}

    // --- Attributes: each setter returns the previous value --------------------------
    /// The attribute of this name. COLORREF is 0x00BBGGRR.
    ///@{
    int SetBkMode(int nBkMode);
    int GetBkMode() const;
    virtual COLORREF SetBkColor(COLORREF crColor);
    COLORREF GetBkColor() const;
    virtual COLORREF SetTextColor(COLORREF crColor);
    COLORREF GetTextColor() const;
    int SetROP2(int nDrawMode);
    int GetROP2() const;
    UINT SetTextAlign(UINT nFlags);
    UINT GetTextAlign() const;
    int SetStretchBltMode(int nStretchMode);
    CPoint SetBrushOrg(int x, int y);
    ///@}

    // --- Coordinates ---------------------------------------------------------------
    /// The point of the device that the origin of logical coordinates is at; setters return the
    /// previous one.
    ///@{
    virtual CPoint SetViewportOrg(int x, int y);
    CPoint SetViewportOrg(POINT point) { return SetViewportOrg(point.x, point.y); }
    CPoint GetViewportOrg() const;
    ///@}
    /// Converts points or a rectangle between logical and device coordinates, in place.
    ///@{
    void LPtoDP(LPPOINT lpPoints, int nCount = 1) const;
    void LPtoDP(LPRECT lpRect) const;
    void DPtoLP(LPPOINT lpPoints, int nCount = 1) const;
    void DPtoLP(LPRECT lpRect) const;
    ///@}

    // --- Clipping: each returns the kind of the new clipping region --------------------
    /// Reads or changes the clipping region. A null region is none: drawing is not clipped. nMode
    /// is RGN_AND and the like.
    ///@{
    virtual int GetClipBox(LPRECT lpRect) const;
    virtual int SelectClipRgn(CRgn* pRgn);
    int SelectClipRgn(CRgn* pRgn, int nMode);
    virtual int ExcludeClipRect(int x1, int y1, int x2, int y2);
    virtual int ExcludeClipRect(LPCRECT lpRect);
    virtual int IntersectClipRect(int x1, int y1, int x2, int y2);
    virtual int IntersectClipRect(LPCRECT lpRect);
    ///@}

    // --- Lines and shapes ------------------------------------------------------------
    /// The Win32 function of the same name, in logical coordinates. MoveTo returns the previous
    /// position; right and bottom of rectangles lie outside.
    ///@{
    CPoint GetCurrentPosition() const;
    CPoint MoveTo(int x, int y);
    CPoint MoveTo(POINT point) { return MoveTo(point.x, point.y); }
    BOOL LineTo(int x, int y);
    BOOL LineTo(POINT point) { return LineTo(point.x, point.y); }
    BOOL Polyline(const POINT* lpPoints, int nCount);
    BOOL Polygon(const POINT* lpPoints, int nCount);
    BOOL Arc(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4);
    BOOL Arc(LPCRECT lpRect, POINT ptStart, POINT ptEnd);
    BOOL Rectangle(int x1, int y1, int x2, int y2);
    BOOL Rectangle(LPCRECT lpRect);
    BOOL Ellipse(int x1, int y1, int x2, int y2);
    BOOL Ellipse(LPCRECT lpRect);
    void FillRect(LPCRECT lpRect, CBrush* pBrush);
    ///@}
    /// Fills with a colour; the background colour stays as it was.
    void FillSolidRect(LPCRECT lpRect, COLORREF clr);
    /// See FillSolidRect.
    void FillSolidRect(int x, int y, int cx, int cy, COLORREF clr);
    /// The Win32 function of the same name, in logical coordinates.
    ///@{
    void FrameRect(LPCRECT lpRect, CBrush* pBrush);
    void InvertRect(LPCRECT lpRect);
    BOOL DrawIcon(int x, int y, HICON hIcon);
    BOOL DrawIcon(POINT point, HICON hIcon) { return DrawIcon(point.x, point.y, hIcon); }
    BOOL DrawEdge(LPRECT lpRect, UINT nEdge, UINT nFlags);
    BOOL DrawFrameControl(LPRECT lpRect, UINT nType, UINT nState);
    void DrawFocusRect(LPCRECT lpRect);
    ///@}
    /// A frame one pixel wide: left and top in one colour, right and bottom in the other.
    void Draw3dRect(LPCRECT lpRect, COLORREF clrTopLeft, COLORREF clrBottomRight);
    /// See Draw3dRect.
    void Draw3dRect(int x, int y, int cx, int cy, COLORREF clrTopLeft, COLORREF clrBottomRight);

    /// Moves the frame that shows where something is being dragged.
    ///
    /// The frame inverts what is under it, so the same call with the same rectangle takes it
    /// away. Only the pixels in which the previous frame and the new one differ are drawn.
    /// @param lpRect     new frame (logical coordinates)
    /// @param size       width of its vertical (cx) and horizontal (cy) sides
    /// @param lpRectLast previous frame, taken away in the same call; null draws only
    /// @param sizeLast   width of the previous frame's sides
    /// @param pBrush     null is the half-tone brush
    /// @param pBrushLast brush of the previous frame; null is pBrush
    void DrawDragRect(LPCRECT lpRect, SIZE size, LPCRECT lpRectLast, SIZE sizeLast, CBrush* pBrush = nullptr,
                      CBrush* pBrushLast = nullptr);
    /// A brush of alternating black and white pixels; the framework's, not to be deleted.
    static CBrush* GetHalftoneBrush();

    // --- Bitmaps and pixels ------------------------------------------------------------
    /// The Win32 function of the same name. dwRop is SRCCOPY and the like. @return FALSE on failure
    ///@{
    BOOL PatBlt(int x, int y, int nWidth, int nHeight, DWORD dwRop);
    BOOL BitBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, DWORD dwRop);
    BOOL StretchBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, int nSrcWidth,
                    int nSrcHeight, DWORD dwRop);
    ///@}
    /// The colour of a pixel; CLR_INVALID outside of the clipping region. SetPixel returns the
    /// colour that it has set.
    ///@{
    COLORREF GetPixel(int x, int y) const;
    COLORREF GetPixel(POINT point) const { return GetPixel(point.x, point.y); }
    COLORREF SetPixel(int x, int y, COLORREF crColor);
    COLORREF SetPixel(POINT point, COLORREF crColor) { return SetPixel(point.x, point.y, crColor); }
    ///@}

    // --- Text --------------------------------------------------------------------------
    /// Draws a text at a point, by the text alignment. @return FALSE on failure
    ///@{
    virtual BOOL TextOut(int x, int y, LPCTSTR lpszString, int nCount);
    BOOL TextOut(int x, int y, const CString& str);
    virtual BOOL ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, LPCTSTR lpszString, UINT nCount,
                            LPINT lpDxWidths);
    BOOL ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, const CString& str, LPINT lpDxWidths);
    ///@}
    /// @param nCount characters, -1 for all @return the height of the text
    virtual int DrawText(LPCTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat);
    /// The same for the whole string.
    int DrawText(const CString& str, LPRECT lpRect, UINT nFormat);
    /// Width and height of a text in one line, logical units.
    ///@{
    CSize GetTextExtent(LPCTSTR lpszString, int nCount) const;
    CSize GetTextExtent(const CString& str) const;
    ///@}
    /// The measures of the selected font. @return FALSE on failure
    BOOL GetTextMetrics(LPTEXTMETRIC lpMetrics) const;
};

/// What a WM_PAINT handler draws on: begins painting, and ends it in the destructor.
class AFX_CORE CPaintDC : public CDC {
    DECLARE_DYNAMIC(CPaintDC)
public:
    /// @throw CResourceException* if the system refuses
    explicit CPaintDC(CWnd* pWnd);
    ~CPaintDC() override;

    PAINTSTRUCT m_ps = {}; ///< What BeginPaint told: the rectangle to paint among others.

protected:
    HWND m_hWnd; ///< The window.
};

/// The client area of a window; released in the destructor.
class AFX_CORE CClientDC : public CDC {
    DECLARE_DYNAMIC(CClientDC)
public:
    /// @param pWnd null is the screen
    /// @throw CResourceException* if the system refuses
    explicit CClientDC(CWnd* pWnd);
    ~CClientDC() override;

protected:
    HWND m_hWnd; ///< The window; null for the screen.
};

/// A window with its frame; released in the destructor.
class AFX_CORE CWindowDC : public CDC {
    DECLARE_DYNAMIC(CWindowDC)
public:
    /// @param pWnd null is the screen
    /// @throw CResourceException* if the system refuses
    explicit CWindowDC(CWnd* pWnd);
    ~CWindowDC() override;

protected:
    HWND m_hWnd; ///< The window; null for the screen.
};
