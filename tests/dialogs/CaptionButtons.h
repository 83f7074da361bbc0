// The buttons in the title bar of a full-screen dialog, which are no windows.
#pragma once

#include "support/PenInput.h"

namespace caption {

inline void TapAt(const CWnd& dlg, int nFromRight) {
    CRect rect;
    dlg.GetWindowRect(rect);
    pen::Tap(CPoint(rect.right - nFromRight, rect.top + 13));
}

inline void TapOk(const CWnd& dlg) {
    TapAt(dlg, 45);
}
inline void TapClose(const CWnd& dlg) {
    TapAt(dlg, 12);
}

} // namespace caption
