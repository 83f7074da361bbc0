// OutputPage.h : how measurements are written
//

#pragma once

class COutputPage : public CPropertyPage
{
	DECLARE_DYNCREATE(COutputPage)

public:
	COutputPage();

// Dialog Data
	enum { IDD = IDD_OUTPUT };
	CListBox m_wndColumns;

// Overrides
	virtual BOOL OnInitDialog();
	virtual BOOL OnApply();

protected:
	virtual void DoDataExchange(CDataExchange* pDX);

	afx_msg void OnDblclkColumns();
	afx_msg void OnSelchangeColumns();
	afx_msg void OnSeparator(UINT nID);
	DECLARE_MESSAGE_MAP()
};
