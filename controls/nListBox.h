/// @file
/// CnListBox: a list box without the device's press-and-hold.
#pragma once

#include <afxcmn.h>

#include "api/Export.h"

/// A list box on which a resting stylus is a press from the first moment: the device asks
/// each control before it waits for a press-and-hold, and this one has taken the stylus.
class FIELDKIT_API CnListBox : public CListBox {
public:
    CnListBox() = default;

protected:
    /// Default processing only.
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    /// Answers that the stylus is taken: no press-and-hold.
    afx_msg void OnRecognizeGesture(NMHDR* pNMHDR, LRESULT* pResult);

    DECLARE_MESSAGE_MAP()
};
