// BrowserDlg.h : the main dialog
//

#pragma once

#include "PointList.h"
#include "SurveyJob.h"

/////////////////////////////////////////////////////////////////////////////
// CBrowserDlg

class CBrowserDlg : public CDialog
{
public:
	CBrowserDlg(CWnd* pParent = NULL);

	CString m_strPath;

	//{{AFX_DATA(CBrowserDlg)
	enum { IDD = IDD_BROWSER };
	CPointListCtrl	m_list;
	CStatic	m_wndCount;
	CString	m_strFind;
	//}}AFX_DATA

protected:
	HICON m_hIcon;
	CImageList m_images;
	CFont m_fontBold;
	CSurveyJob m_job;
	CMenu m_menu;

	virtual void DoDataExchange(CDataExchange* pDX);
	void ShowCount();
	BOOL LoadJob(LPCTSTR lpszPath);
	BOOL SaveJob(LPCTSTR lpszPath);
	void MakeExample();

	//{{AFX_MSG(CBrowserDlg)
	virtual BOOL OnInitDialog();
	virtual void OnOK();
	afx_msg void OnSysCommand(UINT nID, LPARAM lParam);
	afx_msg void OnPaint();
	afx_msg HCURSOR OnQueryDragIcon();
	afx_msg void OnContextMenu(CWnd* pWnd, CPoint point);
	afx_msg void OnInitMenuPopup(CMenu* pPopupMenu, UINT nIndex, BOOL bSysMenu);
	afx_msg void OnSize(UINT nType, int cx, int cy);
	afx_msg void OnDropFiles(HDROP hDropInfo);
	afx_msg void OnFind();
	afx_msg void OnMenu();
	afx_msg void OnPointDelete();
	afx_msg void OnFileOpen();
	afx_msg void OnFileSave();
	afx_msg void OnFileExport();
	afx_msg void OnItemchangedPoints(NMHDR* pNMHDR, LRESULT* pResult);
	//}}AFX_MSG
	afx_msg void OnUpdatePoint(CCmdUI* pCmdUI);
	DECLARE_MESSAGE_MAP()
};
