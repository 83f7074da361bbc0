// SketchDlg.h : the main dialog
//

#pragma once

#include "SketchWnd.h"
#include "AreaThread.h"

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
	CProgressCtrl m_wndProgress;
	CScrollBar m_wndScale;
	BOOL m_bSnap;
	CAreaJob m_job;

	virtual void DoDataExchange(CDataExchange* pDX);
	virtual BOOL OnInitDialog();
	virtual void OnOK();
	virtual void OnCancel();
	virtual void PostNcDestroy();
	virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);

	afx_msg void OnSysCommand(UINT nID, LPARAM lParam);
	afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
	afx_msg void OnDrawItem(int nIDCtl, LPDRAWITEMSTRUCT lpDrawItemStruct);
	afx_msg void OnClose();
	afx_msg void OnCompute();
	afx_msg void OnClear();
	afx_msg void OnSnap();
	afx_msg void OnColor();
	afx_msg void OnSketchChanged();
	afx_msg LRESULT OnAreaProgress(WPARAM wParam, LPARAM lParam);
	afx_msg LRESULT OnAreaDone(WPARAM wParam, LPARAM lParam);
	DECLARE_MESSAGE_MAP()
};
