/// @file
/// CInputDlg: asks for one line of text.
#pragma once

#include "controls/nDialog.h"

/// A popup dialog with a message, one entry field, OK and cancel.
///
/// Message and caption are given as texts or as string resource ids, which are loaded at
/// construction.
class FIELDKIT_API CInputDlg : public CnDialog {
public:
    /// The question above the field and the title, each as a text or as the id of a string
    /// resource. The owner is pParent; null is the application's main window.
    ///@{
    CInputDlg(int nMessageId, int nCaptionId, CWnd* pParent);
    CInputDlg(const wchar_t* pszMessage, int nCaptionId, CWnd* pParent);
    CInputDlg(int nMessageId, const wchar_t* pszCaption, CWnd* pParent);
    CInputDlg(const wchar_t* pszMessage, const wchar_t* pszCaption, CWnd* pParent);
    ///@}

    /// The text that the field shows at first. Call before DoModal.
    void SetString(CString str);
    /// The text entered, if DoModal gave IDOK; else what SetString was given.
    CString GetString() const;

protected:
    /// Exchanges the text of the field.
    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;

private:
    CString m_strMessage;
    CString m_strCaption;
    CString m_strValue;
};
