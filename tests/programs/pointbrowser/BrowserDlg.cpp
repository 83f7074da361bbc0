// BrowserDlg.cpp : the main dialog, and the dialog of one point
//

#include "stdafx.h"
#include "PointBrowser.h"
#include "BrowserDlg.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char THIS_FILE[] = __FILE__;
#endif

/////////////////////////////////////////////////////////////////////////////
// CEditPointDlg

CEditPointDlg::CEditPointDlg(CSurveyJob& job, CWnd* pParent /*=NULL*/)
	: CDialog(CEditPointDlg::IDD, pParent), m_job(job)
{
	//{{AFX_DATA_INIT(CEditPointDlg)
	m_dEast = 0.0;
	m_dNorth = 0.0;
	m_dHeight = 0.0;
	m_time = CTime::GetCurrentTime();
	m_nGroup = 0;
	//}}AFX_DATA_INIT
}

void CEditPointDlg::Load(const CSurveyPoint& point)
{
	m_strOldName = m_strName = point.m_strName;
	m_dEast = point.m_dEast;
	m_dNorth = point.m_dNorth;
	m_dHeight = point.m_dHeight;
	m_time = point.m_time;
	for (int i = 0; i < m_job.GetGroupCount(); i++)
	{
		if (m_job.GetGroup(i) == point.m_pGroup)
			m_nGroup = i;
	}
}

void CEditPointDlg::Store(CSurveyPoint& point) const
{
	point.m_strName = m_strName;
	point.m_dEast = m_dEast;
	point.m_dNorth = m_dNorth;
	point.m_dHeight = m_dHeight;
	point.m_time = m_time;
}

void CEditPointDlg::DoDataExchange(CDataExchange* pDX)
{
	CDialog::DoDataExchange(pDX);
	//{{AFX_DATA_MAP(CEditPointDlg)
	DDX_Text(pDX, IDC_NAME, m_strName);
	DDV_MaxChars(pDX, m_strName, 16);
	DDX_Text(pDX, IDC_EAST, m_dEast);
	DDX_Text(pDX, IDC_NORTH, m_dNorth);
	DDX_Text(pDX, IDC_HEIGHT, m_dHeight);
	DDV_MinMaxDouble(pDX, m_dHeight, -500., 9000.);
	DDX_DateTimeCtrl(pDX, IDC_DATE, m_time);
	//}}AFX_DATA_MAP
	if (pDX->m_bSaveAndValidate || m_job.GetGroupCount() > 0)
		DDX_CBIndex(pDX, IDC_GROUP, m_nGroup);
}

BEGIN_MESSAGE_MAP(CEditPointDlg, CDialog)
END_MESSAGE_MAP()

BOOL CEditPointDlg::OnInitDialog()
{
	CComboBox* pCombo = (CComboBox*)GetDlgItem(IDC_GROUP);
	for (int i = 0; i < m_job.GetGroupCount(); i++)
		pCombo->AddString(m_job.GetGroup(i)->m_strName);
	CDialog::OnInitDialog();
	if (!m_strName.IsEmpty())
		SetWindowText(m_strName);
	return TRUE;
}

void CEditPointDlg::OnOK()
{
	if (!UpdateData())
		return;
	m_strName.TrimLeft();
	m_strName.TrimRight();
	if (m_strName.IsEmpty() || (m_strName != m_strOldName && m_job.Lookup(m_strName) != NULL))
	{
		CString strText;
		strText.FormatMessage(IDS_NAME_TAKEN, (LPCTSTR)m_strName);
		MessageBox(strText, NULL, MB_ICONWARNING);
		GetDlgItem(IDC_NAME)->SetFocus();
		return;
	}
	EndDialog(IDOK);
}

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
	ON_WM_QUERYDRAGICON()
	ON_WM_SIZE()
	ON_WM_DROPFILES()
	ON_EN_CHANGE(IDC_FIND, OnFind)
	ON_BN_CLICKED(IDC_MENU_BUTTON, OnMenu)
	ON_COMMAND(ID_POINT_ADD, OnPointAdd)
	ON_COMMAND(ID_POINT_EDIT, OnPointEdit)
	ON_COMMAND(ID_POINT_DELETE, OnPointDelete)
	ON_COMMAND(ID_FILE_OPEN, OnFileOpen)
	ON_COMMAND(ID_FILE_SAVE, OnFileSave)
	ON_COMMAND(ID_FILE_IMPORT, OnFileImport)
	ON_COMMAND(ID_FILE_EXPORT, OnFileExport)
	ON_NOTIFY(NM_DBLCLK, IDC_POINTS, OnDblclkPoints)
	ON_NOTIFY(LVN_ITEMCHANGED, IDC_POINTS, OnItemchangedPoints)
	//}}AFX_MSG_MAP
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
	static const struct { LPCTSTR lpszName; double dEast, dNorth, dHeight; int nGroup; } points[] =
	{
		{ _T("T1"), 1000.000, 2000.000, 35.20, 1 },
		{ _T("T2"), 1043.215, 2011.870, 35.94, 1 },
		{ _T("a12"), 1012.400, 2004.125, 34.87, 0 },
		{ _T("a3"), 1018.955, 1996.310, -1.25, 0 },
		{ _T("B7"), 1027.080, 2008.640, 36.02, 0 },
	};
	m_job.RemoveAll();
	m_job.m_groups.Add(new CPointGroup(_T("境界点")));
	m_job.m_groups.Add(new CPointGroup(_T("基準点"), RGB(0, 96, 0)));
	for (int i = 0; i < sizeof(points) / sizeof(points[0]); i++)
	{
		CSurveyPoint* pPoint = new CSurveyPoint(points[i].lpszName, points[i].dEast,
			points[i].dNorth, points[i].dHeight);
		VERIFY(m_job.Add(pPoint, m_job.GetGroup(points[i].nGroup)) != NULL);
	}
}

void CBrowserDlg::ShowCount()
{
	CString strText, strName;
	CSurveyPoint* pPoint = m_list.GetSelectedPoint();
	if (pPoint != NULL)
		strName.Format(_T("%s: %s"), pPoint->m_pGroup != NULL ? pPoint->m_pGroup->m_strName : CString(),
			pPoint->m_strName);
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
	UINT nState = m_list.GetSelectedCount() > 0 ? MF_ENABLED : MF_GRAYED;
	pPopup->EnableMenuItem(ID_POINT_EDIT, MF_BYCOMMAND | nState);
	pPopup->EnableMenuItem(ID_POINT_DELETE, MF_BYCOMMAND | nState);
	pPopup->TrackPopupMenu(TPM_RIGHTALIGN, rect.right, rect.bottom, this);
}

void CBrowserDlg::OnPointAdd()
{
	CEditPointDlg dlg(m_job, this);
	if (dlg.DoModal() != IDOK)
		return;
	CSurveyPoint* pPoint = new CSurveyPoint;
	dlg.Store(*pPoint);
	CPointGroup* pGroup = dlg.m_nGroup >= 0 && dlg.m_nGroup < m_job.GetGroupCount() ?
		m_job.GetGroup(dlg.m_nGroup) : NULL;
	if (m_job.Add(pPoint, pGroup) == NULL)
	{
		delete pPoint;
		return;
	}
	m_list.AddPoint(pPoint);
	m_list.Select(m_list.GetItemCount() - 1);
	ShowCount();
}

void CBrowserDlg::OnPointEdit()
{
	int nItem;
	CSurveyPoint* pPoint = m_list.GetSelectedPoint(&nItem);
	if (pPoint == NULL)
		return;
	CEditPointDlg dlg(m_job, this);
	dlg.Load(*pPoint);
	if (dlg.DoModal() == IDOK)
	{
		dlg.Store(*pPoint);
		m_list.UpdatePoint(nItem);
		m_list.RedrawItems(nItem, nItem);
		ShowCount();
	}
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

void CBrowserDlg::OnFileImport()
{
	CString strFilter;
	strFilter.LoadString(IDS_TEXT_FILTER);
	CFileDialog dlg(TRUE, _T("csv"), NULL, OFN_HIDEREADONLY, strFilter, this);
	if (dlg.DoModal() != IDOK)
		return;
	CUIntArray badLines;
	try
	{
		m_job.Import(dlg.GetPathName(), badLines);
	}
	catch (CFileException* e)
	{
		e->ReportError();
		e->Delete();
	}
	m_list.Fill(m_job);
	CString strLines, strLine;
	for (int i = 0; i < badLines.GetSize(); i++)
	{
		strLine.Format(_T(" %u"), badLines[i]);
		strLines += strLine;
	}
	if (!strLines.IsEmpty())
	{
		CString strText;
		strText.Format(IDS_BAD_LINE, dlg.GetFileTitle(), strLines);
		AfxMessageBox(strText);
	}
	ShowCount();
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

void CBrowserDlg::OnDblclkPoints(NMHDR* /*pNMHDR*/, LRESULT* pResult)
{
	PostMessage(WM_COMMAND, ID_POINT_EDIT);
	*pResult = 0;
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
