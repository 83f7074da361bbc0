/// @file
/// What a device context remembers and answers. Included by afxwin.h.
///
/// A member that has no words of its own is the system's function of its name for this
/// context, with that function's result: measures are logical units, FALSE stands for failure.
#pragma once

#include "afxgdi_.h"

/// The part of a device context that draws nothing: its handles, attributes, coordinates,
/// clipping and measures of texts. Applications use CDC.
///
/// Drawing goes to m_hDC, questions to m_hAttribDC. They are the same context unless a
/// program sets another one: then what is selected or set is selected and set in both.
class AFX_CORE CDCState : public CObject {
public:
    HDC m_hDC = nullptr;       ///< What drawing goes to.
    HDC m_hAttribDC = nullptr; ///< What questions are answered from.

    BOOL m_bPrinting = FALSE; ///< What IsPrinting says at least; for programs to set.

    /// What drawing goes to, or null.
    operator HDC() const { return m_hDC; }
    /// Sets or takes away the context for questions, or the one for drawing; neither is owned.
    ///@{
    virtual void SetAttribDC(HDC hDC) { m_hAttribDC = hDC; }
    virtual void SetOutputDC(HDC hDC) { m_hDC = hDC; }
    virtual void ReleaseAttribDC() { m_hAttribDC = nullptr; }
    virtual void ReleaseOutputDC() { m_hDC = nullptr; }
    ///@}
    /// @param nIndex LOGPIXELSX, BITSPIXEL...
    int GetDeviceCaps(int nIndex) const { return ::GetDeviceCaps(m_hAttribDC, nIndex); }
    /// Whether the device prints on paper.
    BOOL IsPrinting() const { return m_bPrinting || GetDeviceCaps(TECHNOLOGY) == DT_RASPRINTER; }

    // --- Attributes: each setter returns the previous value --------------------------
    /// The attribute of this name. COLORREF is 0x00BBGGRR.
    ///@{
    int SetBkMode(int nBkMode) { return Set(::SetBkMode, nBkMode); }
    int GetBkMode() const { return ::GetBkMode(m_hAttribDC); }
    virtual COLORREF SetBkColor(COLORREF crColor) { return Set(::SetBkColor, crColor); }
    COLORREF GetBkColor() const { return ::GetBkColor(m_hAttribDC); }
    virtual COLORREF SetTextColor(COLORREF crColor) { return Set(::SetTextColor, crColor); }
    COLORREF GetTextColor() const { return ::GetTextColor(m_hAttribDC); }
    COLORREF SetDCBrushColor(COLORREF crColor) { return Set(::SetDCBrushColor, crColor); }
    COLORREF GetDCBrushColor() const { return ::GetDCBrushColor(m_hAttribDC); }
    COLORREF SetDCPenColor(COLORREF crColor) { return Set(::SetDCPenColor, crColor); }
    COLORREF GetDCPenColor() const { return ::GetDCPenColor(m_hAttribDC); }
    COLORREF GetNearestColor(COLORREF crColor) const { return ::GetNearestColor(m_hAttribDC, crColor); }
    int SetROP2(int nDrawMode) { return Set(::SetROP2, nDrawMode); }
    int GetROP2() const { return ::GetROP2(m_hAttribDC); }
    int SetPolyFillMode(int nPolyFillMode) { return Set(::SetPolyFillMode, nPolyFillMode); }
    int GetPolyFillMode() const { return ::GetPolyFillMode(m_hAttribDC); }
    int SetArcDirection(int nArcDirection) { return Set(::SetArcDirection, nArcDirection); }
    int GetArcDirection() const { return ::GetArcDirection(m_hAttribDC); }
    int SetStretchBltMode(int nStretchMode) { return Set(::SetStretchBltMode, nStretchMode); }
    int GetStretchBltMode() const { return ::GetStretchBltMode(m_hAttribDC); }
    int SetGraphicsMode(int nMode) { return Set(::SetGraphicsMode, nMode); }
    int GetGraphicsMode() const { return ::GetGraphicsMode(m_hAttribDC); }
    DWORD SetLayout(DWORD dwLayout) { return Set(::SetLayout, dwLayout); }
    DWORD GetLayout() const { return ::GetLayout(m_hAttribDC); }
    BOOL SetColorAdjustment(const COLORADJUSTMENT* lpColorAdjust) {
        return Set(::SetColorAdjustment, lpColorAdjust);
    }
    BOOL GetColorAdjustment(LPCOLORADJUSTMENT lpColorAdjust) const {
        return ::GetColorAdjustment(m_hAttribDC, lpColorAdjust);
    }
    BOOL SetMiterLimit(float fMiterLimit) { return ::SetMiterLimit(m_hDC, fMiterLimit, nullptr); }
    float GetMiterLimit() const { return Get<float>(::GetMiterLimit); }
    CPoint SetBrushOrg(int x, int y) { return Get<POINT>(::SetBrushOrgEx, m_hDC, x, y); }
    CPoint SetBrushOrg(POINT point) { return SetBrushOrg(point.x, point.y); }
    CPoint GetBrushOrg() const { return Get<POINT>(::GetBrushOrgEx); }
    ///@}

    // --- Coordinates ---------------------------------------------------------------
    /// @param nMapMode MM_... @return the previous mode
    virtual int SetMapMode(int nMapMode) { return Set(::SetMapMode, nMapMode); }
    int GetMapMode() const { return ::GetMapMode(m_hAttribDC); }
    /// The point of the device (viewport) and the logical point (window) that fall together.
    /// Setters return the previous one.
    ///@{
    virtual CPoint SetViewportOrg(int x, int y) { return Change<POINT>(::SetViewportOrgEx, x, y); }
    CPoint SetViewportOrg(POINT point) { return SetViewportOrg(point.x, point.y); }
    virtual CPoint OffsetViewportOrg(int nWidth, int nHeight) {
        return Change<POINT>(::OffsetViewportOrgEx, nWidth, nHeight);
    }
    CPoint GetViewportOrg() const { return Get<POINT>(::GetViewportOrgEx); }
    CPoint SetWindowOrg(int x, int y) { return Change<POINT>(::SetWindowOrgEx, x, y); }
    CPoint SetWindowOrg(POINT point) { return SetWindowOrg(point.x, point.y); }
    CPoint OffsetWindowOrg(int nWidth, int nHeight) {
        return Change<POINT>(::OffsetWindowOrgEx, nWidth, nHeight);
    }
    CPoint GetWindowOrg() const { return Get<POINT>(::GetWindowOrgEx); }
    ///@}
    /// How many device units (viewport) go to how many logical units (window), in the modes
    /// MM_ISOTROPIC and MM_ANISOTROPIC. Setters return the previous extent; the scaling ones
    /// multiply by the first and divide by the second number of each direction.
    ///@{
    virtual CSize SetViewportExt(int cx, int cy) { return Change<SIZE>(::SetViewportExtEx, cx, cy); }
    CSize SetViewportExt(SIZE size) { return SetViewportExt(size.cx, size.cy); }
    virtual CSize ScaleViewportExt(int xNum, int xDenom, int yNum, int yDenom) {
        return Change<SIZE>(::ScaleViewportExtEx, xNum, xDenom, yNum, yDenom);
    }
    CSize GetViewportExt() const { return Get<SIZE>(::GetViewportExtEx); }
    virtual CSize SetWindowExt(int cx, int cy) { return Change<SIZE>(::SetWindowExtEx, cx, cy); }
    CSize SetWindowExt(SIZE size) { return SetWindowExt(size.cx, size.cy); }
    virtual CSize ScaleWindowExt(int xNum, int xDenom, int yNum, int yDenom) {
        return Change<SIZE>(::ScaleWindowExtEx, xNum, xDenom, yNum, yDenom);
    }
    CSize GetWindowExt() const { return Get<SIZE>(::GetWindowExtEx); }
    ///@}
    /// Turning and stretching beyond the map mode, in GM_ADVANCED.
    ///@{
    BOOL SetWorldTransform(const XFORM& rXform) { return Set(::SetWorldTransform, &rXform); }
    BOOL ModifyWorldTransform(const XFORM& rXform, DWORD iMode) {
        return Set(::ModifyWorldTransform, &rXform, iMode);
    }
    BOOL GetWorldTransform(XFORM& rXform) const { return ::GetWorldTransform(m_hAttribDC, &rXform); }
    ///@}
    /// Converts points, a rectangle or a size between logical, device and HIMETRIC units (a
    /// hundredth of a millimetre each), in place.
    ///@{
    void LPtoDP(LPPOINT lpPoints, int nCount = 1) const { ::LPtoDP(m_hAttribDC, lpPoints, nCount); }
    void LPtoDP(LPRECT lpRect) const { LPtoDP(reinterpret_cast<LPPOINT>(lpRect), 2); }
    void LPtoDP(LPSIZE lpSize) const;
    void DPtoLP(LPPOINT lpPoints, int nCount = 1) const { ::DPtoLP(m_hAttribDC, lpPoints, nCount); }
    void DPtoLP(LPRECT lpRect) const { DPtoLP(reinterpret_cast<LPPOINT>(lpRect), 2); }
    void DPtoLP(LPSIZE lpSize) const;
    void DPtoHIMETRIC(LPSIZE lpSize) const;
    void HIMETRICtoDP(LPSIZE lpSize) const;
    void LPtoHIMETRIC(LPSIZE lpSize) const;
    void HIMETRICtoLP(LPSIZE lpSize) const;
    ///@}

    // --- Clipping: each returns the kind of the new clipping region --------------------
    /// Reads or changes the clipping region. A null region is none: drawing is not clipped. nMode
    /// is RGN_AND and the like.
    ///@{
    virtual int GetClipBox(LPRECT lpRect) const { return ::GetClipBox(m_hAttribDC, lpRect); }
    virtual int SelectClipRgn(CRgn* pRgn);
    int SelectClipRgn(CRgn* pRgn, int nMode);
    BOOL SelectClipPath(int nMode) { return ::SelectClipPath(m_hDC, nMode); }
    virtual int ExcludeClipRect(int x1, int y1, int x2, int y2) {
        return Set(::ExcludeClipRect, x1, y1, x2, y2);
    }
    virtual int ExcludeClipRect(LPCRECT lpRect) {
        return ExcludeClipRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
    }
    virtual int IntersectClipRect(int x1, int y1, int x2, int y2) {
        return Set(::IntersectClipRect, x1, y1, x2, y2);
    }
    virtual int IntersectClipRect(LPCRECT lpRect) {
        return IntersectClipRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
    }
    virtual int OffsetClipRgn(int x, int y) { return Set(::OffsetClipRgn, x, y); }
    virtual int OffsetClipRgn(SIZE size) { return OffsetClipRgn(size.cx, size.cy); }
    int ExcludeUpdateRgn(CWnd* pWnd);
    ///@}
    /// Whether a point, or any part of a rectangle, lies inside the clipping region.
    ///@{
    virtual BOOL PtVisible(int x, int y) const { return ::PtVisible(m_hDC, x, y); }
    BOOL PtVisible(POINT point) const { return PtVisible(point.x, point.y); }
    virtual BOOL RectVisible(LPCRECT lpRect) const { return ::RectVisible(m_hDC, lpRect); }
    ///@}
    /// The rectangle around all that has been drawn, as far as it is kept. @return DCB_...
    ///@{
    UINT GetBoundsRect(LPRECT lpRectBounds, UINT flags) {
        return ::GetBoundsRect(m_hAttribDC, lpRectBounds, flags);
    }
    UINT SetBoundsRect(LPCRECT lpRectBounds, UINT flags) {
        return ::SetBoundsRect(m_hDC, lpRectBounds, flags);
    }
    ///@}

    // --- Measures of texts ---------------------------------------------------------------
    /// Width and height of a text in one line, in the font of the attribute context or (Output)
    /// of the one drawn on.
    ///@{
    CSize GetTextExtent(LPCTSTR lpszString, int nCount) const {
        return Get<SIZE>(::GetTextExtentPoint32, m_hAttribDC, lpszString, nCount);
    }
    CSize GetTextExtent(const CString& str) const { return GetTextExtent(str, str.GetLength()); }
    CSize GetOutputTextExtent(LPCTSTR lpszString, int nCount) const {
        return Get<SIZE>(::GetTextExtentPoint32, m_hDC, lpszString, nCount);
    }
    CSize GetOutputTextExtent(const CString& str) const { return GetOutputTextExtent(str, str.GetLength()); }
    CSize GetTabbedTextExtent(LPCTSTR lpszString, int nCount, int nTabPositions,
                              LPINT lpnTabStopPositions) const {
        return WordsOf(
            ::GetTabbedTextExtent(m_hAttribDC, lpszString, nCount, nTabPositions, lpnTabStopPositions));
    }
    CSize GetTabbedTextExtent(const CString& str, int nTabPositions, LPINT lpnTabStopPositions) const {
        return GetTabbedTextExtent(str, str.GetLength(), nTabPositions, lpnTabStopPositions);
    }
    CSize GetOutputTabbedTextExtent(LPCTSTR lpszString, int nCount, int nTabPositions,
                                    LPINT lpnTabStopPositions) const {
        return WordsOf(::GetTabbedTextExtent(m_hDC, lpszString, nCount, nTabPositions, lpnTabStopPositions));
    }
    ///@}
    /// @param nMaxExtent the width that the text has to fit into
    /// @param lpnFit     receives the characters that fit; may be null
    /// @param alpDx      receives the width up to each of them; may be null
    BOOL GetTextExtentExPoint(LPCTSTR lpszString, int nCount, int nMaxExtent, LPINT lpnFit, LPINT alpDx,
                              LPSIZE lpSize) const {
        return ::GetTextExtentExPoint(m_hAttribDC, lpszString, nCount, nMaxExtent, lpnFit, alpDx, lpSize);
    }
    /// Alignment and spacing of texts; setters return the previous value.
    ///@{
    UINT SetTextAlign(UINT nFlags) { return Set(::SetTextAlign, nFlags); }
    UINT GetTextAlign() const { return ::GetTextAlign(m_hAttribDC); }
    int SetTextCharacterExtra(int nCharExtra) { return Set(::SetTextCharacterExtra, nCharExtra); }
    int GetTextCharacterExtra() const { return ::GetTextCharacterExtra(m_hAttribDC); }
    int SetTextJustification(int nBreakExtra, int nBreakCount) {
        return Set(::SetTextJustification, nBreakExtra, nBreakCount);
    }
    DWORD SetMapperFlags(DWORD dwFlag) { return ::SetMapperFlags(m_hDC, dwFlag); }
    ///@}
    /// The measures of the selected font and of its characters.
    ///@{
    BOOL GetTextMetrics(LPTEXTMETRIC lpMetrics) const { return ::GetTextMetrics(m_hAttribDC, lpMetrics); }
    BOOL GetOutputTextMetrics(LPTEXTMETRIC lpMetrics) const { return ::GetTextMetrics(m_hDC, lpMetrics); }
    UINT GetOutlineTextMetrics(UINT cbData, LPOUTLINETEXTMETRIC lpotm) const {
        return ::GetOutlineTextMetrics(m_hAttribDC, cbData, lpotm);
    }
    int GetTextFace(int nCount, LPTSTR lpszFacename) const {
        return ::GetTextFace(m_hAttribDC, nCount, lpszFacename);
    }
    int GetTextFace(CString& rString) const;
    BOOL GetCharWidth(UINT nFirstChar, UINT nLastChar, LPINT lpBuffer) const {
        return ::GetCharWidth32(m_hAttribDC, nFirstChar, nLastChar, lpBuffer);
    }
    BOOL GetCharWidth(UINT nFirstChar, UINT nLastChar, float* lpFloatBuffer) const {
        return ::GetCharWidthFloat(m_hAttribDC, nFirstChar, nLastChar, lpFloatBuffer);
    }
    BOOL GetOutputCharWidth(UINT nFirstChar, UINT nLastChar, LPINT lpBuffer) const {
        return ::GetCharWidth32(m_hDC, nFirstChar, nLastChar, lpBuffer);
    }
    BOOL GetCharABCWidths(UINT nFirstChar, UINT nLastChar, LPABC lpabc) const {
        return ::GetCharABCWidths(m_hAttribDC, nFirstChar, nLastChar, lpabc);
    }
    BOOL GetCharABCWidths(UINT nFirstChar, UINT nLastChar, LPABCFLOAT lpABCF) const {
        return ::GetCharABCWidthsFloat(m_hAttribDC, nFirstChar, nLastChar, lpABCF);
    }
    CSize GetAspectRatioFilter() const { return Get<SIZE>(::GetAspectRatioFilterEx); }
    DWORD GetFontLanguageInfo() const { return ::GetFontLanguageInfo(m_hAttribDC); }
    DWORD GetFontData(DWORD dwTable, DWORD dwOffset, LPVOID lpData, DWORD cbData) const {
        return ::GetFontData(m_hAttribDC, dwTable, dwOffset, lpData, cbData);
    }
    int GetKerningPairs(int nPairs, LPKERNINGPAIR lpkrnpair) const {
        return static_cast<int>(::GetKerningPairs(m_hAttribDC, static_cast<DWORD>(nPairs), lpkrnpair));
    }
    DWORD GetGlyphOutline(UINT nChar, UINT nFormat, LPGLYPHMETRICS lpgm, DWORD cbBuffer, LPVOID lpBuffer,
                          const MAT2* lpmat2) const {
        return ::GetGlyphOutline(m_hAttribDC, nChar, nFormat, lpgm, cbBuffer, lpBuffer, lpmat2);
    }
    ///@}

protected:
    CDCState() = default;

    /// Whether questions go to another context than drawing.
    bool IsSplit() const { return m_hAttribDC != m_hDC && m_hAttribDC != nullptr; }
    /// Calls a function that sets something, in both contexts where they differ.
    template <class Result, class... Parameters, class... Args>
    Result Set(Result(WINAPI* function)(HDC, Parameters...), Args... args) {
        Result previous = function(m_hDC, args...);
        if (IsSplit())
            previous = function(m_hAttribDC, args...);
        return previous;
    }
    /// The same for a function that writes the previous value.
    template <class Value, class Function, class... Args>
    Value Change(Function function, Args... args) {
        Value previous = {};
        Set(function, args..., &previous);
        return previous;
    }
    /// A value that a function of the system writes.
    template <class Value, class Function, class... Args>
    static Value Get(Function function, HDC hDC, Args... args) {
        Value value = {};
        function(hDC, args..., &value);
        return value;
    }
    template <class Value, class Function>
    Value Get(Function function) const {
        return Get<Value>(function, m_hAttribDC);
    }
    static CSize WordsOf(LONG nSize) { return CSize(static_cast<DWORD>(nSize)); }

private:
    CDCState(const CDCState&) = delete;
    CDCState& operator=(const CDCState&) = delete;
};
