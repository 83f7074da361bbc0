/// @file
/// CPointEntryDlg: new points, typed in.
#pragma once

#include "controls/nDialog.h"

#include "screens/EntryControls.h"
#include "screens/Job.h"

/// Takes points over into the book, one after the other. Each coordinate may be left blank.
class CPointEntryDlg : public CnDialog {
public:
    /// @param job must outlive the dialog
    CPointEntryDlg(CJob& job, CWnd* pParent);

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;
    /// Enter goes from field to field; from the last one it stores. A minus behind digits goes on, too:
    /// it can only begin the next number.
    BOOL PreTranslateMessage(MSG* pMsg) override;
    /// Takes over what has been typed, too.
    void OnOK() override;
    /// Asks before typed values are given up.
    void OnCancel() override;
    /// Takes over the point that has been entered.
    /// @return false, with nothing changed, if another point has its name
    virtual bool Take(const CNamedPoint& point);

    void ShowPoint(const CNamedPoint& point);
    /// @return false if the fields hold no good point, which the user is told
    bool Add();

    afx_msg void OnAdd();
    afx_msg BOOL OnQueryEndSession();
    /// Proposes the next free name of the kind.
    afx_msg void OnKind();
    afx_msg void OnNoHeight();
    DECLARE_MESSAGE_MAP()

    CJob& m_job;
    std::vector<CString> m_others; ///< What else the point's line has.

private:
    void AttachControls();
    CString TextOf(const CWnd& control) const;
    /// All that is typed, to see whether it has changed.
    CString Typed() const;
    bool IsBlank() const;
    bool IsOnLastField() const;
    bool EndsNumber(const MSG& msg) const;
    bool MayGiveUpTyped();

    CChoiceCombo m_kind;
    CNameCombo m_name;
    CCodeEdit m_code;
    CNumberEdit m_n;
    CNumberEdit m_e;
    CNumberEdit m_z;
    CNoHeightButton m_noHeight;
    CResultLine m_message;
    CString m_strShown; ///< What was in the fields when they were shown.
};
