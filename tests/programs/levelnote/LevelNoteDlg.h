// LevelNoteDlg.h : header file
//

#if !defined(AFX_LEVELNOTEDLG_H__5C1B8A38_77E2_4E0B_9A5D_2D0F2B6C1101__INCLUDED_)
#define AFX_LEVELNOTEDLG_H__5C1B8A38_77E2_4E0B_9A5D_2D0F2B6C1101__INCLUDED_

#if _MSC_VER > 1000
#pragma once
#endif // _MSC_VER > 1000

#include <afxtempl.h>

// One set-up of the instrument: a look back and a look ahead, metres.
struct SIGHT
{
	double dBack;
	double dFore;
};

/////////////////////////////////////////////////////////////////////////////
// CLevelNoteDlg dialog

class CLevelNoteDlg : public CDialog
{
// Construction
public:
	CLevelNoteDlg(CWnd* pParent = NULL);

	int GetStationCount() const { return m_sights.GetSize(); }

// Dialog Data
	//{{AFX_DATA(CLevelNoteDlg)
	enum { IDD = IDD_LEVELNOTE_DIALOG };
	CListBox	m_wndStations;
	CEdit	m_wndBack;
	CButton	m_wndAdd;
	double	m_dStart;
	double	m_dBack;
	double	m_dFore;
	double	m_dKnown;
	BOOL	m_bUseKnown;
	int		m_nUnit;
	CString	m_strResult;
	//}}AFX_DATA

	//{{AFX_VIRTUAL(CLevelNoteDlg)
	public:
	virtual BOOL PreTranslateMessage(MSG* pMsg);
	protected:
	virtual void DoDataExchange(CDataExchange* pDX);
	//}}AFX_VIRTUAL

// Implementation
protected:
	HICON m_hIcon;
	HACCEL m_hAccel;
	CBrush m_brAlarm;
	BOOL m_bAlarm;
	CArray<SIGHT, SIGHT&> m_sights;

	double GetHeight(int nStation) const;
	void FillStations();
	void UpdateResult();

	//{{AFX_MSG(CLevelNoteDlg)
	virtual BOOL OnInitDialog();
	virtual void OnCancel();
	afx_msg void OnSysCommand(UINT nID, LPARAM lParam);
	afx_msg void OnPaint();
	afx_msg HCURSOR OnQueryDragIcon();
	afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);
	afx_msg void OnContextMenu(CWnd* pWnd, CPoint point);
	afx_msg void OnInitMenuPopup(CMenu* pPopupMenu, UINT nIndex, BOOL bSysMenu);
	afx_msg void OnAdd();
	afx_msg void OnChangeKnown();
	afx_msg void OnDblclkStations();
	afx_msg void OnStationRemove();
	afx_msg void OnStationClear();
	afx_msg void OnStationCopy();
	afx_msg void OnDestroy();
	//}}AFX_MSG
	afx_msg void OnUnit(UINT nID);
	afx_msg void OnUpdateStation(CCmdUI* pCmdUI);
	DECLARE_MESSAGE_MAP()
};

//{{AFX_INSERT_LOCATION}}

#endif // !defined(AFX_LEVELNOTEDLG_H__5C1B8A38_77E2_4E0B_9A5D_2D0F2B6C1101__INCLUDED_)
