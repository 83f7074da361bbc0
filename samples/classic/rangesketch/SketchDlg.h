// SketchDlg.h : the main dialog
//

#pragma once

#include "SketchWnd.h"

class CSketchDlg : public CDialog
{
	DECLARE_DYNAMIC(CSketchDlg)

public:
	CSketchDlg(CWnd* pParent = NULL);

	enum { IDD = IDD_SKETCH };

	void UpdateButtons();

protected:
	HICON m_hIcon;
	CSketchWnd m_sketch;
	CScrollBar m_wndScale;

	virtual void DoDataExchange(CDataExchange* pDX);
	virtual BOOL OnInitDialog();
	virtual void OnOK();
	virtual void OnCancel();
	virtual void PostNcDestroy();

	afx_msg void OnSysCommand(UINT nID, LPARAM lParam);
	afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
	afx_msg void OnDrawItem(int nIDCtl, LPDRAWITEMSTRUCT lpDrawItemStruct);
	afx_msg void OnClose();
	afx_msg void OnCompute();
	afx_msg void OnClear();
	afx_msg void OnSketchChanged();
	DECLARE_MESSAGE_MAP()
};
