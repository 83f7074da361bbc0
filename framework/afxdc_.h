/// @file
/// Device contexts. Included by afxwin.h.
///
/// A member that has no words of its own is the system's function of its name for this
/// context, with that function's result: measures are logical units, the right and bottom
/// edges of rectangles lie outside, FALSE stands for failure.
#pragma once

#include "afxdca_.h"

/// A device context of the system, or the C++ side of one.
///
/// An object that created or attached a context deletes it in its destructor. FromHandle
/// gives temporary objects for foreign contexts; they are valid until the program is next
/// idle. A SelectObject call returns the object selected before (a temporary one if need
/// be), which the caller selects again before the new one is deleted.
class AFX_CORE CDC : public CDCState {
    DECLARE_DYNCREATE(CDC)
public:
    CDC() = default;
    ~CDC() override;

    /// The address of a temporary, for the call that it is written in.
    CDC* operator&() && noexcept { return this; }
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
    /// A context of a device, or (IC) one that only answers questions.
    ///@{
    BOOL CreateDC(LPCTSTR lpszDriverName, LPCTSTR lpszDeviceName, LPCTSTR lpszOutput, const void* lpInitData);
    BOOL CreateIC(LPCTSTR lpszDriverName, LPCTSTR lpszDeviceName, LPCTSTR lpszOutput, const void* lpInitData);
    ///@}
    /// Deletes the context. @return FALSE without one, or on failure
    BOOL DeleteDC();
    /// @return the number of the saved state for RestoreDC, 0 on failure
    virtual int SaveDC();
    /// @param nSavedDC what SaveDC returned, or -1 for the last
    virtual BOOL RestoreDC(int nSavedDC);

    // --- Objects -------------------------------------------------------------------
    /// Selects an object and returns the previous one, or returns the one selected now.
    ///@{
    virtual CGdiObject* SelectStockObject(int nIndex);
    virtual CPen* SelectObject(CPen* pPen);
    virtual CBrush* SelectObject(CBrush* pBrush);
    virtual CFont* SelectObject(CFont* pFont);
    CBitmap* SelectObject(CBitmap* pBitmap);
    CGdiObject* SelectObject(CGdiObject* pObject);
    /// Makes a copy of the region the clipping region. @return its kind
    int SelectObject(CRgn* pRgn) { return SelectClipRgn(pRgn); }
    CPen* GetCurrentPen() const;
    CBrush* GetCurrentBrush() const;
    CFont* GetCurrentFont() const;
    CBitmap* GetCurrentBitmap() const;
    ///@}
    /// @param nObjectType OBJ_PEN or OBJ_BRUSH
    /// @return what the function returned last, which ends the enumeration with 0
    int EnumObjects(int nObjectType, int(CALLBACK* lpfn)(LPVOID, LPARAM), LPARAM lpData) {
        return ::EnumObjects(m_hAttribDC, nObjectType, lpfn, lpData);
    }

    // --- Lines -----------------------------------------------------------------------
    /// The pen's position; MoveTo returns the previous one. The ...To members begin there and move it.
    ///@{
    CPoint GetCurrentPosition() const { return Get<POINT>(::GetCurrentPositionEx); }
    CPoint MoveTo(int x, int y) { return Change<POINT>(::MoveToEx, x, y); }
    CPoint MoveTo(POINT point) { return MoveTo(point.x, point.y); }
    BOOL LineTo(int x, int y);
    BOOL LineTo(POINT point) { return LineTo(point.x, point.y); }
    BOOL PolylineTo(const POINT* lpPoints, int nCount) {
        return ::PolylineTo(m_hDC, lpPoints, static_cast<DWORD>(nCount));
    }
    BOOL PolyBezierTo(const POINT* lpPoints, int nCount) {
        return ::PolyBezierTo(m_hDC, lpPoints, static_cast<DWORD>(nCount));
    }
    BOOL ArcTo(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4) {
        return ::ArcTo(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
    }
    BOOL ArcTo(LPCRECT lpRect, POINT ptStart, POINT ptEnd) {
        return InRect(::ArcTo, lpRect, ptStart.x, ptStart.y, ptEnd.x, ptEnd.y);
    }
    /// @param fStartAngle, fSweepAngle degrees, counter-clockwise
    BOOL AngleArc(int x, int y, int nRadius, float fStartAngle, float fSweepAngle) {
        return ::AngleArc(m_hDC, x, y, static_cast<DWORD>(nRadius), fStartAngle, fSweepAngle);
    }
    ///@}
    /// Lines and curves that leave the pen's position where it is.
    ///@{
    BOOL Polyline(const POINT* lpPoints, int nCount) { return ::Polyline(m_hDC, lpPoints, nCount); }
    BOOL PolyPolyline(const POINT* lpPoints, const DWORD* lpPolyPoints, int nCount) {
        return ::PolyPolyline(m_hDC, lpPoints, lpPolyPoints, static_cast<DWORD>(nCount));
    }
    BOOL PolyBezier(const POINT* lpPoints, int nCount) {
        return ::PolyBezier(m_hDC, lpPoints, static_cast<DWORD>(nCount));
    }
    BOOL PolyDraw(const POINT* lpPoints, const BYTE* lpTypes, int nCount) {
        return ::PolyDraw(m_hDC, lpPoints, lpTypes, nCount);
    }
    BOOL Arc(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4) {
        return ::Arc(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
    }
    BOOL Arc(LPCRECT lpRect, POINT ptStart, POINT ptEnd) {
        return InRect(::Arc, lpRect, ptStart.x, ptStart.y, ptEnd.x, ptEnd.y);
    }
    ///@}

    // --- Shapes: outline by the pen, inside by the brush -------------------------------
    ///@{
    BOOL Rectangle(int x1, int y1, int x2, int y2) { return ::Rectangle(m_hDC, x1, y1, x2, y2); }
    BOOL Rectangle(LPCRECT lpRect) { return InRect(::Rectangle, lpRect); }
    /// @param x3, y3 width and height of the ellipse that rounds the corners
    BOOL RoundRect(int x1, int y1, int x2, int y2, int x3, int y3) {
        return ::RoundRect(m_hDC, x1, y1, x2, y2, x3, y3);
    }
    BOOL RoundRect(LPCRECT lpRect, POINT point) { return InRect(::RoundRect, lpRect, point.x, point.y); }
    BOOL Ellipse(int x1, int y1, int x2, int y2) { return ::Ellipse(m_hDC, x1, y1, x2, y2); }
    BOOL Ellipse(LPCRECT lpRect) { return InRect(::Ellipse, lpRect); }
    BOOL Chord(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4) {
        return ::Chord(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
    }
    BOOL Chord(LPCRECT lpRect, POINT ptStart, POINT ptEnd) {
        return InRect(::Chord, lpRect, ptStart.x, ptStart.y, ptEnd.x, ptEnd.y);
    }
    BOOL Pie(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4) {
        return ::Pie(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
    }
    BOOL Pie(LPCRECT lpRect, POINT ptStart, POINT ptEnd) {
        return InRect(::Pie, lpRect, ptStart.x, ptStart.y, ptEnd.x, ptEnd.y);
    }
    BOOL Polygon(const POINT* lpPoints, int nCount) { return ::Polygon(m_hDC, lpPoints, nCount); }
    BOOL PolyPolygon(const POINT* lpPoints, const INT* lpPolyCounts, int nCount) {
        return ::PolyPolygon(m_hDC, lpPoints, lpPolyCounts, nCount);
    }
    ///@}

    // --- Rectangles and regions ----------------------------------------------------------
    ///@{
    void FillRect(LPCRECT lpRect, CBrush* pBrush) { ::FillRect(m_hDC, lpRect, *pBrush); }
    void FrameRect(LPCRECT lpRect, CBrush* pBrush) { ::FrameRect(m_hDC, lpRect, *pBrush); }
    void InvertRect(LPCRECT lpRect) { ::InvertRect(m_hDC, lpRect); }
    void DrawFocusRect(LPCRECT lpRect) { ::DrawFocusRect(m_hDC, lpRect); }
    BOOL FillRgn(CRgn* pRgn, CBrush* pBrush) { return ::FillRgn(m_hDC, *pRgn, *pBrush); }
    BOOL FrameRgn(CRgn* pRgn, CBrush* pBrush, int nWidth, int nHeight) {
        return ::FrameRgn(m_hDC, *pRgn, *pBrush, nWidth, nHeight);
    }
    BOOL InvertRgn(CRgn* pRgn) { return ::InvertRgn(m_hDC, *pRgn); }
    BOOL PaintRgn(CRgn* pRgn) { return ::PaintRgn(m_hDC, *pRgn); }
    BOOL DrawEdge(LPRECT lpRect, UINT nEdge, UINT nFlags) { return ::DrawEdge(m_hDC, lpRect, nEdge, nFlags); }
    BOOL DrawFrameControl(LPRECT lpRect, UINT nType, UINT nState) {
        return ::DrawFrameControl(m_hDC, lpRect, nType, nState);
    }
    BOOL GradientFill(TRIVERTEX* pVertices, ULONG nVertices, void* pMesh, ULONG nMeshElements, DWORD dwMode) {
        return ::GdiGradientFill(m_hDC, pVertices, nVertices, pMesh, nMeshElements, dwMode);
    }
    ///@}
    /// Fills with a colour; the background colour stays as it was.
    ///@{
    void FillSolidRect(LPCRECT lpRect, COLORREF clr);
    void FillSolidRect(int x, int y, int cx, int cy, COLORREF clr) {
        FillSolidRect(CRect(x, y, x + cx, y + cy), clr);
    }
    ///@}
    /// A frame one pixel wide: left and top in one colour, right and bottom in the other.
    ///@{
    void Draw3dRect(LPCRECT lpRect, COLORREF clrTopLeft, COLORREF clrBottomRight) {
        Draw3dRect(lpRect->left, lpRect->top, lpRect->right - lpRect->left, lpRect->bottom - lpRect->top,
                   clrTopLeft, clrBottomRight);
    }
    void Draw3dRect(int x, int y, int cx, int cy, COLORREF clrTopLeft, COLORREF clrBottomRight);
    ///@}

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

    // --- Icons and states ------------------------------------------------------------------
    ///@{
    BOOL DrawIcon(int x, int y, HICON hIcon) { return ::DrawIcon(m_hDC, x, y, hIcon); }
    BOOL DrawIcon(POINT point, HICON hIcon) { return DrawIcon(point.x, point.y, hIcon); }
    ///@}
    /// Draws a picture or a text as disabled, pressed and so on.
    /// @param nFlags      DSS_...; what is drawn is told by the type of the argument
    /// @param bPrefixText TRUE: & underlines the next character
    /// @param nTextLen    0 is the whole text
    ///@{
    BOOL DrawState(CPoint pt, CSize size, HBITMAP hBitmap, UINT nFlags, HBRUSH hBrush = nullptr);
    BOOL DrawState(CPoint pt, CSize size, CBitmap* pBitmap, UINT nFlags, CBrush* pBrush = nullptr);
    BOOL DrawState(CPoint pt, CSize size, HICON hIcon, UINT nFlags, HBRUSH hBrush = nullptr);
    BOOL DrawState(CPoint pt, CSize size, HICON hIcon, UINT nFlags, CBrush* pBrush);
    BOOL DrawState(CPoint pt, CSize size, LPCTSTR lpszText, UINT nFlags, BOOL bPrefixText = TRUE,
                   int nTextLen = 0, HBRUSH hBrush = nullptr);
    BOOL DrawState(CPoint pt, CSize size, LPCTSTR lpszText, UINT nFlags, BOOL bPrefixText, int nTextLen,
                   CBrush* pBrush);
    BOOL DrawState(CPoint pt, CSize size, DRAWSTATEPROC lpDrawProc, LPARAM lData, UINT nFlags,
                   HBRUSH hBrush = nullptr);
    BOOL DrawState(CPoint pt, CSize size, DRAWSTATEPROC lpDrawProc, LPARAM lData, UINT nFlags,
                   CBrush* pBrush);
    ///@}

    // --- Bitmaps and pixels ------------------------------------------------------------
    /// dwRop is SRCCOPY and the like.
    ///@{
    BOOL PatBlt(int x, int y, int nWidth, int nHeight, DWORD dwRop) {
        return ::PatBlt(m_hDC, x, y, nWidth, nHeight, dwRop);
    }
    BOOL BitBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, DWORD dwRop) {
        return ::BitBlt(m_hDC, x, y, nWidth, nHeight, pSrcDC->GetSafeHdc(), xSrc, ySrc, dwRop);
    }
    BOOL StretchBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, int nSrcWidth,
                    int nSrcHeight, DWORD dwRop) {
        return ::StretchBlt(m_hDC, x, y, nWidth, nHeight, pSrcDC->GetSafeHdc(), xSrc, ySrc, nSrcWidth,
                            nSrcHeight, dwRop);
    }
    BOOL MaskBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, CBitmap& maskBitmap,
                 int xMask, int yMask, DWORD dwRop) {
        return ::MaskBlt(m_hDC, x, y, nWidth, nHeight, pSrcDC->GetSafeHdc(), xSrc, ySrc, maskBitmap, xMask,
                         yMask, dwRop);
    }
    BOOL PlgBlt(LPPOINT lpPoint, CDC* pSrcDC, int xSrc, int ySrc, int nWidth, int nHeight,
                CBitmap& maskBitmap, int xMask, int yMask) {
        return ::PlgBlt(m_hDC, lpPoint, pSrcDC->GetSafeHdc(), xSrc, ySrc, nWidth, nHeight, maskBitmap, xMask,
                        yMask);
    }
    /// @param clrTransparent pixels of this colour stay away
    BOOL TransparentBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, int nSrcWidth,
                        int nSrcHeight, UINT clrTransparent) {
        return ::GdiTransparentBlt(m_hDC, x, y, nWidth, nHeight, pSrcDC->GetSafeHdc(), xSrc, ySrc, nSrcWidth,
                                   nSrcHeight, clrTransparent);
    }
    BOOL AlphaBlend(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, int nSrcWidth,
                    int nSrcHeight, BLENDFUNCTION blend) {
        return ::GdiAlphaBlend(m_hDC, x, y, nWidth, nHeight, pSrcDC->GetSafeHdc(), xSrc, ySrc, nSrcWidth,
                               nSrcHeight, blend);
    }
    BOOL FloodFill(int x, int y, COLORREF crColor) { return ::FloodFill(m_hDC, x, y, crColor); }
    /// @param nFillType FLOODFILLBORDER or FLOODFILLSURFACE
    BOOL ExtFloodFill(int x, int y, COLORREF crColor, UINT nFillType) {
        return ::ExtFloodFill(m_hDC, x, y, crColor, nFillType);
    }
    BOOL ScrollDC(int dx, int dy, LPCRECT lpRectScroll, LPCRECT lpRectClip, CRgn* pRgnUpdate,
                  LPRECT lpRectUpdate);
    ///@}
    /// The colour of a pixel; CLR_INVALID outside of the clipping region. SetPixel returns the
    /// colour that it has set.
    ///@{
    COLORREF GetPixel(int x, int y) const { return ::GetPixel(m_hDC, x, y); }
    COLORREF GetPixel(POINT point) const { return GetPixel(point.x, point.y); }
    COLORREF SetPixel(int x, int y, COLORREF crColor) { return ::SetPixel(m_hDC, x, y, crColor); }
    COLORREF SetPixel(POINT point, COLORREF crColor) { return SetPixel(point.x, point.y, crColor); }
    BOOL SetPixelV(int x, int y, COLORREF crColor) { return ::SetPixelV(m_hDC, x, y, crColor); }
    BOOL SetPixelV(POINT point, COLORREF crColor) { return SetPixelV(point.x, point.y, crColor); }
    ///@}

    // --- Text --------------------------------------------------------------------------
    /// Draws a text at a point, by the text alignment.
    ///@{
    virtual BOOL TextOut(int x, int y, LPCTSTR lpszString, int nCount) {
        return ::TextOut(m_hDC, x, y, lpszString, nCount);
    }
    BOOL TextOut(int x, int y, const CString& str) { return TextOut(x, y, str, str.GetLength()); }
    virtual BOOL ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, LPCTSTR lpszString, UINT nCount,
                            LPINT lpDxWidths) {
        return ::ExtTextOut(m_hDC, x, y, nOptions, lpRect, lpszString, nCount, lpDxWidths);
    }
    BOOL ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, const CString& str, LPINT lpDxWidths) {
        return ExtTextOut(x, y, nOptions, lpRect, str, static_cast<UINT>(str.GetLength()), lpDxWidths);
    }
    ///@}
    /// @param nTabOrigin where the tab stops are counted from @return the text's size
    ///@{
    virtual CSize TabbedTextOut(int x, int y, LPCTSTR lpszString, int nCount, int nTabPositions,
                                LPINT lpnTabStopPositions, int nTabOrigin) {
        return WordsOf(
            ::TabbedTextOut(m_hDC, x, y, lpszString, nCount, nTabPositions, lpnTabStopPositions, nTabOrigin));
    }
    CSize TabbedTextOut(int x, int y, const CString& str, int nTabPositions, LPINT lpnTabStopPositions,
                        int nTabOrigin) {
        return TabbedTextOut(x, y, str, str.GetLength(), nTabPositions, lpnTabStopPositions, nTabOrigin);
    }
    ///@}
    /// @param nCount characters, -1 for all @return the height of the text
    ///@{
    virtual int DrawText(LPCTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat) {
        return ::DrawText(m_hDC, lpszString, nCount, lpRect, nFormat);
    }
    int DrawText(const CString& str, LPRECT lpRect, UINT nFormat) {
        return DrawText(str, str.GetLength(), lpRect, nFormat);
    }
    virtual int DrawTextEx(LPTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat,
                           LPDRAWTEXTPARAMS lpDTParams) {
        return ::DrawTextEx(m_hDC, lpszString, nCount, lpRect, nFormat, lpDTParams);
    }
    /// @param nFormat without DT_MODIFYSTRING, which would write into the text
    int DrawTextEx(const CString& str, LPRECT lpRect, UINT nFormat, LPDRAWTEXTPARAMS lpDTParams) {
        return DrawTextEx(const_cast<LPTSTR>(static_cast<LPCTSTR>(str)), str.GetLength(), lpRect,
                          nFormat & ~static_cast<UINT>(DT_MODIFYSTRING), lpDTParams);
    }
    virtual BOOL GrayString(CBrush* pBrush, GRAYSTRINGPROC lpfnOutput, LPARAM lpData, int nCount, int x,
                            int y, int nWidth, int nHeight) {
        const HBRUSH hBrush = pBrush != nullptr ? static_cast<HBRUSH>(*pBrush) : nullptr;
        return ::GrayString(m_hDC, hBrush, lpfnOutput, lpData, nCount, x, y, nWidth, nHeight);
    }
    ///@}

    // --- Paths -----------------------------------------------------------------------------
    /// What is drawn between BeginPath and EndPath is kept as a path, which these use up.
    ///@{
    BOOL BeginPath() { return ::BeginPath(m_hDC); }
    BOOL EndPath() { return ::EndPath(m_hDC); }
    BOOL AbortPath() { return ::AbortPath(m_hDC); }
    BOOL CloseFigure() { return ::CloseFigure(m_hDC); }
    BOOL FlattenPath() { return ::FlattenPath(m_hDC); }
    BOOL WidenPath() { return ::WidenPath(m_hDC); }
    BOOL FillPath() { return ::FillPath(m_hDC); }
    BOOL StrokePath() { return ::StrokePath(m_hDC); }
    BOOL StrokeAndFillPath() { return ::StrokeAndFillPath(m_hDC); }
    int GetPath(LPPOINT lpPoints, LPBYTE lpTypes, int nCount) const {
        return ::GetPath(m_hDC, lpPoints, lpTypes, nCount);
    }
    ///@}

private:
    template <class Function, class... Args>
    BOOL InRect(Function function, LPCRECT lpRect, Args... args) {
        return function(m_hDC, lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, args...);
    }
    template <class Object>
    Object* Select(HGDIOBJ hObject);
};

/// Gives a context back, at the end of its life, as it was at the beginning: attributes, clipping and
/// selected objects. Objects that are selected meanwhile must be declared before it, so that they are
/// deleted after it.
class AfxSavedDC {
public:
    explicit AfxSavedDC(CDC& dc) : m_dc(dc), m_nSaved(dc.SaveDC()) {}
    ~AfxSavedDC() { m_dc.RestoreDC(m_nSaved); }
    AfxSavedDC(const AfxSavedDC&) = delete;
    AfxSavedDC& operator=(const AfxSavedDC&) = delete;

private:
    CDC& m_dc;
    int m_nSaved;
};
