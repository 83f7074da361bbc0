/// @file
/// CnComboBox: a combo box that brings the soft input panel along.
#pragma once

#include "controls/SipOption.h"
#include "api/Export.h"

/// A combo box of a dialog that shows the soft input panel while it has the focus.
///
/// Its set-focus and kill-focus notifications end here; the dialog does not get them.
class FIELDKIT_API CnComboBox : public CComboBox {
public:
    CnComboBox() = default;

    /// Takes over a combo box of a dialog.
    /// @param nID      its control id in pParent
    /// @param dwOption SipOption bits; they replace the ones before, even on failure
    /// @return FALSE if there is no such control or this object already has one
    BOOL Attach(UINT nID, CWnd* pParent, DWORD dwOption);

protected:
    /// Shows the soft input panel in the mode of the options.
    afx_msg void OnSetfocus();
    /// Lets the soft input panel go, if the options named a mode.
    afx_msg void OnKillfocus();
    /// Default processing only.
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);

    DECLARE_MESSAGE_MAP()

private:
    DWORD m_dwOption = 0;
};
