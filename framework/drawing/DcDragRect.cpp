// The frame that follows what the user drags.
#include "afxwin.h"

namespace {

/// Alternate pixels, eight by eight: the smallest pattern that every device takes.
class CHalftone {
public:
    CHalftone() {
        constexpr WORD rows[] = {0x5555, 0xAAAA, 0x5555, 0xAAAA, 0x5555, 0xAAAA, 0x5555, 0xAAAA};
        const HBITMAP hBitmap = ::CreateBitmap(8, 8, 1, 1, rows);
        m_hBrush = ::CreatePatternBrush(hBitmap);
        ::DeleteObject(hBitmap);
        if (m_hBrush == nullptr)
            AfxThrowResourceException(); // the next one who asks tries again
    }
    ~CHalftone() { ::DeleteObject(m_hBrush); }
    CHalftone(const CHalftone&) = delete;
    CHalftone& operator=(const CHalftone&) = delete;

    HBRUSH Brush() const { return m_hBrush; }

private:
    HBRUSH m_hBrush;
};

/// The four sides of a frame. Regions take device coordinates.
void CreateFrame(CRgn& rgn, const CDC& dc, LPCRECT lpRect, SIZE size) {
    CRect outside(lpRect);
    CRect inside(outside);
    inside.DeflateRect(size.cx, size.cy);
    dc.LPtoDP(outside);
    rgn.CreateRectRgnIndirect(outside);
    if (inside.IsRectEmpty())
        return; // sides so wide that they meet
    dc.LPtoDP(inside);
    CRgn hole;
    hole.CreateRectRgnIndirect(inside);
    rgn.CombineRgn(&rgn, &hole, RGN_DIFF);
}

void InvertRegion(CDC& dc, CRgn& rgn, CBrush* pBrush) {
    const AfxSavedDC saved(dc);
    CRect box;
    if (dc.SelectClipRgn(&rgn, RGN_AND) != ERROR && dc.GetClipBox(box) > NULLREGION) {
        if (*pBrush == *CDC::GetHalftoneBrush()) {
            // A one-bit pattern takes these colours. The frame must be the same when it
            // is taken away, whatever the application has set meanwhile.
            dc.SetTextColor(RGB(0, 0, 0));
            dc.SetBkColor(RGB(255, 255, 255));
        }
        dc.SelectObject(pBrush);
        dc.PatBlt(box.left, box.top, box.Width(), box.Height(), PATINVERT);
    }
}

} // namespace

CBrush* CDC::GetHalftoneBrush() {
    static const CHalftone halftone;
    return CBrush::FromHandle(halftone.Brush());
}

void CDC::DrawDragRect(LPCRECT lpRect, SIZE size, LPCRECT lpRectLast, SIZE sizeLast, CBrush* pBrush,
                       CBrush* pBrushLast) {
    CBrush* const pNew = pBrush != nullptr ? pBrush : GetHalftoneBrush();
    CBrush* const pLast = pBrushLast != nullptr ? pBrushLast : pNew;
    CRgn rgnNew;
    CreateFrame(rgnNew, *this, lpRect, size);
    if (lpRectLast != nullptr) {
        CRgn rgnLast;
        CreateFrame(rgnLast, *this, lpRectLast, sizeLast);
        if (*pNew == *pLast)
            rgnNew.CombineRgn(&rgnNew, &rgnLast, RGN_XOR);
        else
            InvertRegion(*this, rgnLast, pLast);
    }
    InvertRegion(*this, rgnNew, pNew);
}
