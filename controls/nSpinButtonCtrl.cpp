#include "controls/nSpinButtonCtrl.h"

#include "controls/detail/Gesture.h"

using namespace fieldkit::detail;

// clang-format off
BEGIN_MESSAGE_MAP(CnSpinButtonCtrl, CSpinButtonCtrl)
    ON_WM_LBUTTONDOWN()
    ON_NOTIFY_REFLECT(NM_RECOGNIZEGESTURE, &CnSpinButtonCtrl::OnRecognizeGesture)
END_MESSAGE_MAP()
// clang-format on

void CnSpinButtonCtrl::OnLButtonDown(UINT, CPoint) {
    Default();
}

void CnSpinButtonCtrl::OnRecognizeGesture(NMHDR*, LRESULT* pResult) {
    *pResult = kGestureHandled;
}
