/// @file
/// CnListCtrl: a list view without the device's press-and-hold and, on request, without
/// any selection.
#pragma once

#include <afxcmn.h>

#include "api/Export.h"

/// A list view on which a resting stylus is a press from the first moment.
///
/// Its item-changed notifications end here; the parent does not get them.
class FIELDKIT_API CnListCtrl : public CListCtrl {
public:
    /// Bits of the option word.
    enum Option : DWORD {
        OptionNoSelection = 0x1, ///< An item that becomes selected loses selection and focus at once.
    };

    CnListCtrl() = default;

    /// Replaces the option word. What is selected stays so until the next change of an item.
    void SetOption(DWORD dwOption);

protected:
    /// Default processing only.
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    /// With OptionNoSelection takes every selection away again.
    afx_msg void OnItemchanged(NMHDR* pNMHDR, LRESULT* pResult);
    /// Answers that the stylus is taken: no press-and-hold.
    afx_msg void OnRecognizeGesture(NMHDR* pNMHDR, LRESULT* pResult);

    DECLARE_MESSAGE_MAP()

private:
    void ClearSelection(int nChanged);

    DWORD m_dwOption = 0;
    bool m_bClearing = false;
};
