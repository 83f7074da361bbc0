// InstrumentPage.h : model, prism and the air that is measured through
//

#pragma once

class CInstrumentPage : public CPropertyPage
{
	DECLARE_DYNCREATE(CInstrumentPage)

public:
	CInstrumentPage();

// Dialog Data
	enum { IDD = IDD_INSTRUMENT };
	CComboBox m_wndModel;
	CComboBox m_wndPrism;
	CSpinButtonCtrl m_wndPressure;
	CToolTipCtrl m_tips;

// Overrides
	virtual BOOL OnInitDialog();
	virtual BOOL OnApply();
	virtual void OnReset();
	virtual BOOL PreTranslateMessage(MSG* pMsg);

protected:
	virtual void DoDataExchange(CDataExchange* pDX);

	afx_msg void OnChange();
	afx_msg void OnSelchangePrism();
	afx_msg void OnDeltaposPressure(NMHDR* pNMHDR, LRESULT* pResult);
	DECLARE_MESSAGE_MAP()
};
