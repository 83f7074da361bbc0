/// @file
/// CnPropertyPage: a page of a CnPropertySheet.
#pragma once

#include <afxdlgs.h>

#include "api/Export.h"

/// A page of a property sheet that is set up like a plain dialog.
class FIELDKIT_API CnPropertyPage : public CPropertyPage {
public:
    /// @param nIDTemplate template, searched in the application and in the library; its
    ///                    title is the text of the tab
    explicit CnPropertyPage(int nIDTemplate);

    /// Ties the edges of a control to those of the page, as CnDialog::Anchor.
    BOOL Anchor(UINT nID, int nLeft, int nTop, int nRight, int nBottom);

protected:
    /// Nothing of its own; derived classes call it first.
    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;

    /// Default processing only.
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);

    DECLARE_MESSAGE_MAP()
};
