// BrowserDlg.h : the main dialog, and the dialog of one point
//

#pragma once

#include "PointList.h"
#include "SurveyJob.h"

/////////////////////////////////////////////////////////////////////////////
// CEditPointDlg

class CEditPointDlg : public CDialog
{
public:
	CEditPointDlg(CSurveyJob& job, CWnd* pParent = NULL);

	//{{AFX_DATA(CEditPointDlg)
	enum { IDD = IDD_EDIT_POINT };
	CString	m_strName;
	double	m_dEast;
	double	m_dNorth;
	double	m_dHeight;
	CTime	m_time;
	int		m_nGroup;
	//}}AFX_DATA

	void Load(const CSurveyPoint& point);
	void Store(CSurveyPoint& point) const;

protected:
	CSurveyJob& m_job;
	CString m_strOldName;

	virtual void DoDataExchange(CDataExchange* pDX);
	virtual BOOL OnInitDialog();
	virtual void OnOK();
	DECLARE_MESSAGE_MAP()
};

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
	afx_msg HCURSOR OnQueryDragIcon();
	afx_msg void OnSize(UINT nType, int cx, int cy);
	afx_msg void OnDropFiles(HDROP hDropInfo);
	afx_msg void OnFind();
	afx_msg void OnMenu();
	afx_msg void OnPointAdd();
	afx_msg void OnPointEdit();
	afx_msg void OnPointDelete();
	afx_msg void OnFileOpen();
	afx_msg void OnFileSave();
	afx_msg void OnFileImport();
	afx_msg void OnFileExport();
	afx_msg void OnDblclkPoints(NMHDR* pNMHDR, LRESULT* pResult);
	afx_msg void OnItemchangedPoints(NMHDR* pNMHDR, LRESULT* pResult);
	//}}AFX_MSG
	DECLARE_MESSAGE_MAP()
};
