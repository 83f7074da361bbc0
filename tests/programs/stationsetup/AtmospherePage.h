// AtmospherePage.h : temperature and pressure, and what they do to distances
//

#pragma once

class CAtmospherePage : public CPropertyPage
{
	DECLARE_DYNCREATE(CAtmospherePage)

public:
	CAtmospherePage();

// Dialog Data
	enum { IDD = IDD_ATMOSPHERE };
	CSliderCtrl m_wndTemperature;
	CSpinButtonCtrl m_wndPressure;
	CProgressCtrl m_wndBar;

// Overrides
	virtual BOOL OnInitDialog();
	virtual BOOL OnSetActive();
	virtual BOOL OnApply();
	virtual void OnReset();

protected:
	virtual void DoDataExchange(CDataExchange* pDX);
	void ShowPpm();

	afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
	afx_msg void OnChangePressure();
	afx_msg void OnDeltaposPressure(NMHDR* pNMHDR, LRESULT* pResult);
	afx_msg void OnCurvature();
	DECLARE_MESSAGE_MAP()
};
