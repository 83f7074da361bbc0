// SetupSheet.h : the sheet
//

#pragma once

#include "InstrumentPage.h"
#include "OutputPage.h"

class CSetupSheet : public CPropertySheet
{
	DECLARE_DYNAMIC(CSetupSheet)

public:
	CSetupSheet(UINT nIDCaption, CWnd* pParentWnd = NULL, UINT iSelectPage = 0);

	virtual BOOL OnInitDialog();

protected:
	CInstrumentPage m_instrument;
	COutputPage m_output;

	afx_msg void OnDestroy();
	afx_msg BOOL OnToolTipText(UINT id, NMHDR* pNMHDR, LRESULT* pResult);
	DECLARE_MESSAGE_MAP()
};
