#include "controls/nListBox.h"

#include "controls/detail/Gesture.h"

using namespace fieldkit::detail;

// clang-format off
BEGIN_MESSAGE_MAP(CnListBox, CListBox)
    ON_WM_LBUTTONDOWN()
    ON_NOTIFY_REFLECT(NM_RECOGNIZEGESTURE, &CnListBox::OnRecognizeGesture)
END_MESSAGE_MAP()
// clang-format on

void CnListBox::OnLButtonDown(UINT, CPoint) {
    Default();
}

void CnListBox::OnRecognizeGesture(NMHDR*, LRESULT* pResult) {
    *pResult = kGestureHandled;
}
