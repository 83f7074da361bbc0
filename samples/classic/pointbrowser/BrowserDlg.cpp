// BrowserDlg.cpp : the main dialog
//

#include "stdafx.h"
#include "PointBrowser.h"
#include "BrowserDlg.h"

/////////////////////////////////////////////////////////////////////////////
// CBrowserDlg

CBrowserDlg::CBrowserDlg(CWnd* pParent /*=NULL*/) : CDialog(CBrowserDlg::IDD, pParent)
{
	//{{AFX_DATA_INIT(CBrowserDlg)
	m_strFind = _T("");
	//}}AFX_DATA_INIT
	m_hIcon = AfxGetApp()->LoadIcon(IDR_MAINFRAME);
}

void CBrowserDlg::DoDataExchange(CDataExchange* pDX)
{
	CDialog::DoDataExchange(pDX);
	//{{AFX_DATA_MAP(CBrowserDlg)
	DDX_Control(pDX, IDC_POINTS, m_list);
	DDX_Control(pDX, IDC_COUNT, m_wndCount);
	DDX_Text(pDX, IDC_FIND, m_strFind);
	//}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(CBrowserDlg, CDialog)
	//{{AFX_MSG_MAP(CBrowserDlg)
	ON_WM_SYSCOMMAND()
	ON_WM_PAINT()
	ON_WM_QUERYDRAGICON()
	ON_WM_CONTEXTMENU()
	ON_WM_INITMENUPOPUP()
	ON_WM_SIZE()
	ON_WM_DROPFILES()
	ON_EN_CHANGE(IDC_FIND, OnFind)
	ON_EN_KILLFOCUS(IDC_FIND, OnFind)
	ON_BN_CLICKED(IDC_MENU_BUTTON, OnMenu)
	ON_COMMAND(ID_POINT_DELETE, OnPointDelete)
	ON_COMMAND(ID_FILE_OPEN, OnFileOpen)
	ON_COMMAND(ID_FILE_SAVE, OnFileSave)
	ON_COMMAND(ID_FILE_EXPORT, OnFileExport)
	ON_NOTIFY(LVN_ITEMCHANGED, IDC_POINTS, OnItemchangedPoints)
	//}}AFX_MSG_MAP
	ON_UPDATE_COMMAND_UI(ID_POINT_DELETE, OnUpdatePoint)
END_MESSAGE_MAP()

BOOL CBrowserDlg::OnInitDialog()
{
	CDialog::OnInitDialog();

	CMenu* pSysMenu = GetSystemMenu(FALSE);
	CString strAboutMenu;
	if (pSysMenu != NULL && strAboutMenu.LoadString(IDS_ABOUTBOX))
	{
		pSysMenu->AppendMenu(MF_SEPARATOR);
		pSysMenu->AppendMenu(MF_STRING, IDM_ABOUTBOX, strAboutMenu);
	}
	SetIcon(m_hIcon, TRUE);
	SetIcon(m_hIcon, FALSE);
	DragAcceptFiles();

	LOGFONT lf;
	GetFont()->GetLogFont(&lf);
	lf.lfWeight = FW_BOLD;
	m_fontBold.CreateFontIndirect(&lf);
	m_wndCount.SetFont(&m_fontBold);

	m_images.Create(16, 16, ILC_COLOR8 | ILC_MASK, 1, 1);
	m_images.Add(m_hIcon);
	m_list.SetImageList(&m_images, LVSIL_SMALL);
	m_list.InsertColumns();

	CFileStatus status;
	if (m_strPath.IsEmpty() || !CFile::GetStatus(m_strPath, status) || !LoadJob(m_strPath))
		MakeExample();
	m_list.Fill(m_job);
	m_list.Sort(CPointListCtrl::COL_NAME, TRUE);
	ShowCount();
	VERIFY(m_menu.LoadMenu(IDR_MENU));
	return TRUE;
}

// So that there is something to see without a file.
void CBrowserDlg::MakeExample()
{
	static const struct { LPCTSTR lpszName; double dEast, dNorth, dHeight; } points[] =
	{
		{ _T("T1"), 1000.000, 2000.000, 35.20 },
		{ _T("T2"), 1043.215, 2011.870, 35.94 },
		{ _T("a12"), 1012.400, 2004.125, 34.87 },
		{ _T("a3"), 1018.955, 1996.310, -1.25 },
		{ _T("B7"), 1027.080, 2008.640, 36.02 },
	};
	m_job.RemoveAll();
	for (int i = 0; i < sizeof(points) / sizeof(points[0]); i++)
	{
		m_job.Add(new CSurveyPoint(points[i].lpszName, points[i].dEast, points[i].dNorth, points[i].dHeight));
	}
}

void CBrowserDlg::ShowCount()
{
	CString strText, strName;
	CSurveyPoint* pPoint = m_list.GetSelectedPoint();
	if (pPoint != NULL)
		strName.Format(_T("%s: %s"), CString(_T("基準点")), pPoint->m_strName);
	strText.Format(IDS_COUNT, m_list.GetItemCount(), strName);
	m_wndCount.SetWindowText(strText);
}

BOOL CBrowserDlg::LoadJob(LPCTSTR lpszPath)
{
	CFile file;
	CFileException e;
	if (!file.Open(lpszPath, CFile::modeRead | CFile::shareDenyWrite, &e))
	{
		TCHAR szCause[255];
		e.GetErrorMessage(szCause, 255);
		AfxMessageBox(szCause, MB_ICONSTOP);
		return FALSE;
	}
	BOOL bLoaded = FALSE;
	TRY
	{
		CArchive ar(&file, CArchive::load);
		m_job.Serialize(ar);
		ar.Close();
		bLoaded = TRUE;
	}
	CATCH (CArchiveException, e)
	{
		e->ReportError();
	}
	AND_CATCH (CFileException, e)
	{
		TRACE1("PointBrowser: cause %d\n", e->m_cause);
		e->ReportError();
	}
	END_CATCH
	file.Close();
	if (bLoaded)
		m_strPath = lpszPath;
	else
		m_job.RemoveAll();
	return bLoaded;
}

BOOL CBrowserDlg::SaveJob(LPCTSTR lpszPath)
{
	CWaitCursor wait;
	try
	{
		CFile file(lpszPath, CFile::modeCreate | CFile::modeWrite);
		CArchive ar(&file, CArchive::store);
		m_job.Serialize(ar);
		ar.Close();
		file.Close();
		m_strPath = lpszPath;
		return TRUE;
	}
	catch (CException* e)
	{
		e->ReportError(MB_ICONSTOP);
		e->Delete();
	}
	return FALSE;
}

void CBrowserDlg::OnSysCommand(UINT nID, LPARAM lParam)
{
	if ((nID & 0xFFF0) == IDM_ABOUTBOX)
	{
		CDialog dlgAbout(IDD_ABOUTBOX, this);
		dlgAbout.DoModal();
		return;
	}
	CDialog::OnSysCommand(nID, lParam);
}

// A minimized dialog draws its icon itself.
void CBrowserDlg::OnPaint()
{
	if (!IsIconic())
	{
		CDialog::OnPaint();
		return;
	}
	CPaintDC dc(this);
	SendMessage(WM_ICONERASEBKGND, (WPARAM) dc.GetSafeHdc(), 0);
	dc.DrawIcon(0, 0, m_hIcon);
}

HCURSOR CBrowserDlg::OnQueryDragIcon()
{
	return (HCURSOR)m_hIcon;
}

// The list takes what is left between the row at the top and the row at the bottom.
void CBrowserDlg::OnSize(UINT nType, int cx, int cy)
{
	CDialog::OnSize(nType, cx, cy);
	if (nType == SIZE_MINIMIZED || m_list.GetSafeHwnd() == NULL)
		return;
	CRect rectList, rectCount;
	m_list.GetWindowRect(&rectList);
	m_wndCount.GetWindowRect(&rectCount);
	ScreenToClient(&rectList);
	int nRow = rectCount.Height() + 4;
	m_list.MoveWindow(rectList.left, rectList.top, cx - 2 * rectList.left, cy - rectList.top - nRow);
	m_wndCount.SetWindowPos(NULL, rectList.left, cy - nRow + 2, cx - 2 * rectList.left, rectCount.Height(),
		SWP_NOZORDER | SWP_NOACTIVATE);
}

void CBrowserDlg::OnDropFiles(HDROP hDropInfo)
{
	TCHAR szPath[MAX_PATH];
	if (::DragQueryFile(hDropInfo, 0, szPath, MAX_PATH) != 0 && LoadJob(szPath))
		m_list.Fill(m_job);
	::DragFinish(hDropInfo);
	ShowCount();
}

void CBrowserDlg::OnFind()
{
	UpdateData();
	if (m_strFind.IsEmpty())
		return;
	LVFINDINFO info;
	info.flags = LVFI_PARTIAL | LVFI_STRING;
	info.psz = m_strFind;
	int nItem = m_list.FindItem(&info);
	if (nItem >= 0)
		m_list.Select(nItem);
}

void CBrowserDlg::OnMenu()
{
	CRect rect;
	GetDlgItem(IDC_MENU_BUTTON)->GetWindowRect(&rect);
	CMenu* pPopup = m_menu.GetSubMenu(0);
	pPopup->EnableMenuItem(ID_FILE_EXPORT, MF_BYCOMMAND | (m_list.GetItemCount() > 0 ? MF_ENABLED : MF_GRAYED));
	pPopup->TrackPopupMenu(TPM_RIGHTALIGN, rect.right, rect.bottom, this);
}

// The same menu at the pen; by the keyboard there is no place for it.
void CBrowserDlg::OnContextMenu(CWnd* pWnd, CPoint point)
{
	if (pWnd->GetSafeHwnd() == m_list.GetSafeHwnd() && point != CPoint(-1, -1))
		m_menu.GetSubMenu(0)->TrackPopupMenu(TPM_LEFTALIGN | TPM_RIGHTBUTTON, point.x, point.y, this);
	else
		OnMenu();
}

// A dialog does not run the update handlers of its menus by itself.
void CBrowserDlg::OnInitMenuPopup(CMenu* pPopupMenu, UINT nIndex, BOOL bSysMenu)
{
	CDialog::OnInitMenuPopup(pPopupMenu, nIndex, bSysMenu);
	if (bSysMenu)
		return;
	CCmdUI state;
	state.m_pMenu = pPopupMenu;
	state.m_nIndexMax = pPopupMenu->GetMenuItemCount();
	for (state.m_nIndex = 0; state.m_nIndex < state.m_nIndexMax; state.m_nIndex++)
	{
		state.m_nID = pPopupMenu->GetMenuItemID(state.m_nIndex);
		if (state.m_nID != 0 && state.m_nID != (UINT) -1)
			state.DoUpdate(this, FALSE);
	}
}

void CBrowserDlg::OnUpdatePoint(CCmdUI* pCmdUI)
{
	pCmdUI->Enable(m_list.GetSelectedCount() > 0);
}

void CBrowserDlg::OnPointDelete()
{
	int nItem;
	CSurveyPoint* pPoint = m_list.GetSelectedPoint(&nItem);
	if (pPoint == NULL)
		return;
	CString strText;
	AfxFormatString1(strText, IDS_ASK_DELETE, pPoint->m_strName);
	if (AfxMessageBox(strText, MB_YESNO) == IDYES)
	{
		m_list.DeleteItem(nItem);
		m_job.Remove(pPoint);
		ShowCount();
	}
}

void CBrowserDlg::OnFileOpen()
{
	CString strFilter;
	strFilter.LoadString(IDS_JOB_FILTER);
	CFileDialog dlg(TRUE, _T("job"), NULL, OFN_HIDEREADONLY | OFN_FILEMUSTEXIST, strFilter);
	if (dlg.DoModal() == IDOK && LoadJob(dlg.GetPathName()))
		m_list.Fill(m_job);
	ShowCount();
}

void CBrowserDlg::OnFileSave()
{
	CString strPath = m_strPath;
	if (strPath.IsEmpty())
	{
		CFileDialog dlg(FALSE, _T("job"), _T("survey"), OFN_OVERWRITEPROMPT);
		if (dlg.DoModal() != IDOK)
			return;
		strPath = dlg.GetPathName();
	}
	SaveJob(strPath);
}

void CBrowserDlg::OnFileExport()
{
	CString strPath = m_strPath.IsEmpty() ? CString(_T("points.csv")) : m_strPath + _T(".csv");
	TRY
	{
		m_job.Export(strPath);
		CFileStatus status;
		if (CFile::GetStatus(strPath, status))
			TRACE(_T("PointBrowser: %s, %d bytes\n"), status.m_szFullName, (int)status.m_size);
	}
	CATCH_ALL(e)
	{
		e->ReportError();
	}
	END_CATCH_ALL
}

void CBrowserDlg::OnItemchangedPoints(NMHDR* pNMHDR, LRESULT* pResult)
{
	NM_LISTVIEW* pNMListView = (NM_LISTVIEW*)pNMHDR;
	if ((pNMListView->uChanged & LVIF_STATE) && ((pNMListView->uOldState ^ pNMListView->uNewState) & LVIS_SELECTED))
		ShowCount();
	*pResult = 0;
}

void CBrowserDlg::OnOK()
{
	// Enter in the search field is not the end of the program
	if (GetFocus() == GetDlgItem(IDC_FIND))
		OnFind();
	else
		CDialog::OnOK();
}
