#include "controls/nTreeCtrl.h"

#include "controls/detail/Gesture.h"

using namespace fieldkit::detail;

// clang-format off
BEGIN_MESSAGE_MAP(CnTreeCtrl, CTreeCtrl)
    ON_WM_LBUTTONDOWN()
    ON_NOTIFY_REFLECT(NM_RECOGNIZEGESTURE, &CnTreeCtrl::OnRecognizeGesture)
END_MESSAGE_MAP()
// clang-format on

void CnTreeCtrl::OnLButtonDown(UINT, CPoint) {
    Default();
}

void CnTreeCtrl::OnRecognizeGesture(NMHDR*, LRESULT* pResult) {
    *pResult = kGestureHandled;
}
