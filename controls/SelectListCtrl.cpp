#include "controls/SelectListCtrl.h"

namespace {

constexpr COLORREF kHighlightText = RGB(0, 0, 0);
constexpr COLORREF kHighlightBackground = RGB(0, 255, 255);

} // namespace

// clang-format off
BEGIN_MESSAGE_MAP(CSelectListCtrl, CnListCtrl)
    ON_NOTIFY_REFLECT(NM_CUSTOMDRAW, &CSelectListCtrl::OnCustomDraw)
END_MESSAGE_MAP()
// clang-format on

DWORD CSelectListCtrl::GetItemAttribute(int) {
    return 0;
}

void CSelectListCtrl::OnCustomDraw(NMHDR* pNMHDR, LRESULT* pResult) {
    auto* const pDraw = reinterpret_cast<NMLVCUSTOMDRAW*>(pNMHDR);
    switch (pDraw->nmcd.dwDrawStage) {
    case CDDS_PREPAINT:
        *pResult = CDRF_NOTIFYITEMDRAW;
        return;
    case CDDS_ITEMPREPAINT:
        if (GetItemAttribute(static_cast<int>(pDraw->nmcd.dwItemSpec)) & AttributeHighlight) {
            pDraw->clrText = kHighlightText;
            pDraw->clrTextBk = kHighlightBackground;
        }
        *pResult = CDRF_NEWFONT; // also for new colours
        return;
    case CDDS_ITEMPREPAINT | CDDS_SUBITEM:
        *pResult = CDRF_NEWFONT;
        return;
    default:
        *pResult = CDRF_DODEFAULT;
    }
}
