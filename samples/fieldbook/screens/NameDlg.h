/// @file
/// CNameDlg: asks for the name of a point.
#pragma once

#include "controls/nDialog.h"

#include "screens/EntryControls.h"
#include "points/History.h"

/// A popup dialog with a message, an entry field whose list has the names entered lately, OK and
/// cancel.
class CNameDlg : public CnDialog {
public:
    /// @param history must outlive the dialog, which leaves it as it is
    CNameDlg(const CString& strMessage, const CString& strTitle, CHistory& history, CWnd* pParent);

    /// The name that is proposed. Call before DoModal.
    void SetName(const CString& strName) { m_strName = strName; }
    /// After IDOK the name entered, without blanks and in capitals.
    CString GetName() const { return m_strName; }

protected:
    BOOL OnInitDialog() override;
    void OnOK() override;

private:
    CString m_strMessage;
    CString m_strTitle;
    CString m_strName;
    CHistory& m_history;
    CNameCombo m_name;
};
