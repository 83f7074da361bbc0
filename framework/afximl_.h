/// @file
/// Image lists. Included by afxcmn.h.
#pragma once

#include "afxwin.h"

/// A row of equally sized images.
///
/// An object that was created or attached owns its list and destroys it in its destructor.
/// FromHandle gives the owner of a list, or a temporary object for a foreign one, which
/// is valid until the program is next idle and owns nothing.
///
/// A list view or tree view that is given a list does not own it; when the control goes, the
/// list stays with its object.
class AFX_CORE CImageList : public CObject {
    DECLARE_DYNCREATE(CImageList)
public:
    CImageList() = default;
    ~CImageList() override;

    HIMAGELIST m_hImageList = nullptr; ///< The system's list, or null.

    /// The handle, or null.
    operator HIMAGELIST() const { return m_hImageList; }
    /// The handle; null also for a null object.
    HIMAGELIST GetSafeHandle() const;
    /// The object of a list, a temporary one if nobody owns it; null for null.
    static CImageList* FromHandle(HIMAGELIST hImageList);
    /// The owner of a list, or null.
    static CImageList* FromHandlePermanent(HIMAGELIST hImageList);
    /// Deletes the temporary objects that nothing can hold any more.
    static void DeleteTempMap();

    /// Takes over a list; what the object held before is destroyed.
    /// @return FALSE for null; the object is then as it was.
    BOOL Attach(HIMAGELIST hImageList);
    /// Gives the list up. @return what it was.
    HIMAGELIST Detach();

    // --- Creation: what the object held before is destroyed ---------------------------
    /// @param cx, cy   size of each image in pixels
    /// @param nFlags   ILC_...
    /// @param nInitial images to have room for; the list is empty
    /// @param nGrow    images to make room for when it is full
    BOOL Create(int cx, int cy, UINT nFlags, int nInitial, int nGrow);
    /// From a bitmap resource of the application or an extension module.
    /// @param cx     width of each image; the height is the bitmap's
    /// @param crMask the colour that is transparent
    BOOL Create(UINT nBitmapID, int cx, int nGrow, COLORREF crMask);
    /// The same with the bitmap's name.
    BOOL Create(LPCTSTR lpszBitmapID, int cx, int nGrow, COLORREF crMask);
    /// One image out of two, the second moved by (dx, dy) and laid over the first.
    BOOL Create(CImageList& imagelist1, int nImage1, CImageList& imagelist2, int nImage2, int dx, int dy) {
        return Attach(::ImageList_Merge(imagelist1, nImage1, imagelist2, nImage2, dx, dy));
    }
    /// A copy of another list.
    BOOL Create(CImageList* pImageList);
    /// @return FALSE if there is no list.
    BOOL DeleteImageList();

    // --- Images, counted from 0; -1 stands for failure ----------------------------------
    /// The number of images.
    int GetImageCount() const { return ::ImageList_GetImageCount(m_hImageList); }
    /// The new images at the end are undefined.
    BOOL SetImageCount(UINT uNewCount) { return ::ImageList_SetImageCount(m_hImageList, uNewCount); }
    /// Adds as many images as the bitmap is wide. @param pbmMask may be null
    /// @return the first new image
    int Add(CBitmap* pbmImage, CBitmap* pbmMask);
    /// @param crMask the colour that is transparent
    int Add(CBitmap* pbmImage, COLORREF crMask);
    /// The icon is copied and stays the caller's.
    int Add(HICON hIcon) { return Replace(-1, hIcon); }
    /// Removes an image, or all for -1. @return FALSE on failure
    BOOL Remove(int nImage) { return ::ImageList_Remove(m_hImageList, nImage); }
    /// Replaces an image. @param pbmMask may be null @return FALSE on failure
    BOOL Replace(int nImage, CBitmap* pbmImage, CBitmap* pbmMask);
    /// @param nImage -1 adds a new image @return the image
    int Replace(int nImage, HICON hIcon) { return ::ImageList_ReplaceIcon(m_hImageList, nImage, hIcon); }
    /// @return a new icon, which the caller destroys; null on failure
    HICON ExtractIcon(int nImage) { return ::ImageList_GetIcon(m_hImageList, nImage, ILD_NORMAL); }
    /// Copies an image within the list, or (ILCF_SWAP) exchanges both; or copies from another list.
    ///@{
    BOOL Copy(int iDst, int iSrc, UINT uFlags = ILCF_MOVE) {
        return ::ImageList_Copy(m_hImageList, iDst, m_hImageList, iSrc, uFlags);
    }
    BOOL Copy(int iDst, CImageList* pSrc, int iSrc, UINT uFlags = ILCF_MOVE) {
        return ::ImageList_Copy(m_hImageList, iDst, pSrc->m_hImageList, iSrc, uFlags);
    }
    ///@}
    /// @param pImageInfo its bitmaps stay the list's
    BOOL GetImageInfo(int nImage, IMAGEINFO* pImageInfo) const {
        return ::ImageList_GetImageInfo(m_hImageList, nImage, pImageInfo);
    }
    /// @param nOverlay 1 to 15: under this number the image can be laid over others
    BOOL SetOverlayImage(int nImage, int nOverlay) {
        return ::ImageList_SetOverlayImage(m_hImageList, nImage, nOverlay);
    }

    // --- Drawing ------------------------------------------------------------------------
    /// @param pt     upper left corner @param nStyle ILD_...
    BOOL Draw(CDC* pDC, int nImage, POINT pt, UINT nStyle);
    /// @param sz the part that is drawn; 0 is all of the image
    BOOL DrawEx(CDC* pDC, int nImage, POINT pt, SIZE sz, COLORREF clrBk, COLORREF clrFg, UINT nStyle) {
        return ::ImageList_DrawEx(m_hImageList, nImage, pDC->m_hDC, pt.x, pt.y, sz.cx, sz.cy, clrBk, clrFg,
                                  nStyle);
    }
    /// The structure's list and size are set here.
    BOOL DrawIndirect(IMAGELISTDRAWPARAMS* pimldp);
    /// @param cr what masked images are drawn on; CLR_NONE is transparent
    /// @return the previous colour
    COLORREF SetBkColor(COLORREF cr) { return ::ImageList_SetBkColor(m_hImageList, cr); }
    /// What masked images are drawn on; CLR_NONE is transparent.
    COLORREF GetBkColor() const { return ::ImageList_GetBkColor(m_hImageList); }

    // --- Dragging: one image at a time -----------------------------------------------------
    /// @param ptHotSpot where in the image the pen holds it
    ///@{
    BOOL BeginDrag(int nImage, CPoint ptHotSpot) {
        return ::ImageList_BeginDrag(m_hImageList, nImage, ptHotSpot.x, ptHotSpot.y);
    }
    BOOL SetDragCursorImage(int nDrag, CPoint ptHotSpot) {
        return ::ImageList_SetDragCursorImage(m_hImageList, nDrag, ptHotSpot.x, ptHotSpot.y);
    }
    static void EndDrag() { ::ImageList_EndDrag(); }
    ///@}
    /// Shows or hides the image on a window, which must not draw meanwhile; null is the screen.
    /// @param point from the window's corner, its frame included
    ///@{
    static BOOL DragEnter(CWnd* pWndLock, CPoint point) {
        return ::ImageList_DragEnter(pWndLock->GetSafeHwnd(), point.x, point.y);
    }
    static BOOL DragMove(CPoint pt) { return ::ImageList_DragMove(pt.x, pt.y); }
    static BOOL DragLeave(CWnd* pWndLock) { return ::ImageList_DragLeave(pWndLock->GetSafeHwnd()); }
    static BOOL DragShowNolock(BOOL bShow) { return ::ImageList_DragShowNolock(bShow); }
    ///@}
    /// The image being dragged, a temporary object. @param lpPoint, lpPointHotSpot may be null
    static CImageList* GetDragImage(LPPOINT lpPoint, LPPOINT lpPointHotSpot) {
        return FromHandle(::ImageList_GetDragImage(lpPoint, lpPointHotSpot));
    }

private:
    CImageList(const CImageList&) = delete;
    CImageList& operator=(const CImageList&) = delete;
};
