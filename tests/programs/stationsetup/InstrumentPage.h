// InstrumentPage.h : model, height and prism
//

#pragma once

class CInstrumentPage : public CPropertyPage
{
	DECLARE_DYNCREATE(CInstrumentPage)

public:
	CInstrumentPage();
	virtual ~CInstrumentPage();

// Dialog Data
	enum { IDD = IDD_INSTRUMENT };
	CComboBox m_wndModel;
	CComboBox m_wndPrism;
	CToolTipCtrl m_tips;

// Overrides
	virtual BOOL OnInitDialog();
	virtual BOOL OnApply();
	virtual BOOL PreTranslateMessage(MSG* pMsg);

protected:
	virtual void DoDataExchange(CDataExchange* pDX);

	afx_msg void OnChange();
	afx_msg void OnSelchangePrism();
	DECLARE_MESSAGE_MAP()
};
