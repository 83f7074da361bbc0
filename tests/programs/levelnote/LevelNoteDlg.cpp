// LevelNoteDlg.cpp : implementation file
//

#include "stdafx.h"
#include "LevelNote.h"
#include "LevelNoteDlg.h"
#include <math.h>

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char THIS_FILE[] = __FILE__;
#endif

// A run is good when it closes within this much, metres.
const double MISCLOSURE_LIMIT = 0.005;

/////////////////////////////////////////////////////////////////////////////
// CAboutDlg dialog

class CAboutDlg : public CDialog
{
public:
	CAboutDlg();

// Dialog Data
	//{{AFX_DATA(CAboutDlg)
	enum { IDD = IDD_ABOUTBOX };
	//}}AFX_DATA

	//{{AFX_VIRTUAL(CAboutDlg)
	protected:
	virtual void DoDataExchange(CDataExchange* pDX);
	//}}AFX_VIRTUAL

// Implementation
protected:
	//{{AFX_MSG(CAboutDlg)
	//}}AFX_MSG
	DECLARE_MESSAGE_MAP()
};

CAboutDlg::CAboutDlg() : CDialog(CAboutDlg::IDD)
{
	//{{AFX_DATA_INIT(CAboutDlg)
	//}}AFX_DATA_INIT
}

void CAboutDlg::DoDataExchange(CDataExchange* pDX)
{
	CDialog::DoDataExchange(pDX);
	//{{AFX_DATA_MAP(CAboutDlg)
	//}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(CAboutDlg, CDialog)
	//{{AFX_MSG_MAP(CAboutDlg)
	//}}AFX_MSG_MAP
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// CLevelNoteDlg dialog

CLevelNoteDlg::CLevelNoteDlg(CWnd* pParent /*=NULL*/)
	: CDialog(CLevelNoteDlg::IDD, pParent)
{
	//{{AFX_DATA_INIT(CLevelNoteDlg)
	m_dStart = 100.0;
	m_dBack = 0.0;
	m_dFore = 0.0;
	m_dKnown = 100.0;
	m_bUseKnown = FALSE;
	m_nUnit = 0;
	m_strResult = _T("");
	//}}AFX_DATA_INIT
	m_bAlarm = FALSE;
	m_hAccel = NULL;
	m_hIcon = AfxGetApp()->LoadIcon(IDR_MAINFRAME);
}

void CLevelNoteDlg::DoDataExchange(CDataExchange* pDX)
{
	CDialog::DoDataExchange(pDX);
	//{{AFX_DATA_MAP(CLevelNoteDlg)
	DDX_Control(pDX, IDC_STATIONS, m_wndStations);
	DDX_Control(pDX, IDC_BACKSIGHT, m_wndBack);
	DDX_Control(pDX, IDC_ADD, m_wndAdd);
	DDX_Text(pDX, IDC_START, m_dStart);
	DDV_MinMaxDouble(pDX, m_dStart, -500., 9000.);
	DDX_Text(pDX, IDC_BACKSIGHT, m_dBack);
	DDV_MinMaxDouble(pDX, m_dBack, 0., 5.);
	DDX_Text(pDX, IDC_FORESIGHT, m_dFore);
	DDV_MinMaxDouble(pDX, m_dFore, 0., 5.);
	DDX_Text(pDX, IDC_KNOWN, m_dKnown);
	DDX_Check(pDX, IDC_USE_KNOWN, m_bUseKnown);
	DDX_Radio(pDX, IDC_UNIT_M, m_nUnit);
	DDX_Text(pDX, IDC_RESULT, m_strResult);
	//}}AFX_DATA_MAP
}

BEGIN_MESSAGE_MAP(CLevelNoteDlg, CDialog)
	//{{AFX_MSG_MAP(CLevelNoteDlg)
	ON_WM_SYSCOMMAND()
	ON_WM_PAINT()
	ON_WM_QUERYDRAGICON()
	ON_WM_CTLCOLOR()
	ON_WM_CONTEXTMENU()
	ON_WM_INITMENUPOPUP()
	ON_WM_DESTROY()
	ON_BN_CLICKED(IDC_ADD, OnAdd)
	ON_BN_CLICKED(IDC_USE_KNOWN, OnChangeKnown)
	ON_EN_KILLFOCUS(IDC_KNOWN, OnChangeKnown)
	ON_EN_KILLFOCUS(IDC_START, OnChangeKnown)
	ON_LBN_DBLCLK(IDC_STATIONS, OnDblclkStations)
	ON_COMMAND(ID_STATION_REMOVE, OnStationRemove)
	ON_COMMAND(ID_STATION_CLEAR, OnStationClear)
	ON_COMMAND(ID_STATION_COPY, OnStationCopy)
	//}}AFX_MSG_MAP
	ON_COMMAND_RANGE(IDC_UNIT_M, IDC_UNIT_MM, OnUnit)
	ON_UPDATE_COMMAND_UI(ID_STATION_REMOVE, OnUpdateStation)
	ON_UPDATE_COMMAND_UI(ID_STATION_CLEAR, OnUpdateStation)
	ON_UPDATE_COMMAND_UI(ID_STATION_COPY, OnUpdateStation)
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// CLevelNoteDlg message handlers

BOOL CLevelNoteDlg::OnInitDialog()
{
	CDialog::OnInitDialog();

	// The About box is a command of the system menu, so its number has to be one.
	ASSERT((IDM_ABOUTBOX & 0xFFF0) == IDM_ABOUTBOX);
	ASSERT(IDM_ABOUTBOX < 0xF000);

	CMenu* pSysMenu = GetSystemMenu(FALSE);
	if (pSysMenu != NULL)
	{
		CString strAboutMenu;
		strAboutMenu.LoadString(IDS_ABOUTBOX);
		if (!strAboutMenu.IsEmpty())
		{
			pSysMenu->AppendMenu(MF_SEPARATOR);
			pSysMenu->AppendMenu(MF_STRING, IDM_ABOUTBOX, strAboutMenu);
		}
	}

	SetIcon(m_hIcon, TRUE);
	SetIcon(m_hIcon, FALSE);

	m_brAlarm.CreateSolidBrush(RGB(255, 224, 224));
	m_hAccel = ::LoadAccelerators(AfxGetResourceHandle(), MAKEINTRESOURCE(IDR_ACCELERATOR));

	int nTabs[] = { 18, 62, 106 };
	m_wndStations.SetTabStops(3, nTabs);
	m_wndStations.SetHorizontalExtent(240);

	m_nUnit = AfxGetApp()->GetProfileInt(_T("Settings"), _T("Unit"), 0);
	m_wndBack.LimitText(8);
	m_wndBack.SetFocus();
	m_wndBack.SetSel(0, -1);
	FillStations();

	return FALSE;  // the focus has been set to a control
}

void CLevelNoteDlg::OnDestroy()
{
	AfxGetApp()->WriteProfileInt(_T("Settings"), _T("Unit"), m_nUnit);
	CDialog::OnDestroy();
}

void CLevelNoteDlg::OnSysCommand(UINT nID, LPARAM lParam)
{
	if ((nID & 0xFFF0) == IDM_ABOUTBOX)
	{
		CAboutDlg dlgAbout;
		dlgAbout.DoModal();
	}
	else
	{
		CDialog::OnSysCommand(nID, lParam);
	}
}

// A minimized dialog draws its icon itself.
void CLevelNoteDlg::OnPaint()
{
	if (IsIconic())
	{
		CPaintDC dc(this);

		SendMessage(WM_ICONERASEBKGND, (WPARAM) dc.GetSafeHdc(), 0);

		// in the middle of what is left of the window
		int cxIcon = GetSystemMetrics(SM_CXICON);
		int cyIcon = GetSystemMetrics(SM_CYICON);
		CRect rect;
		GetClientRect(&rect);
		int x = (rect.Width() - cxIcon + 1) / 2;
		int y = (rect.Height() - cyIcon + 1) / 2;

		dc.DrawIcon(x, y, m_hIcon);
	}
	else
	{
		CDialog::OnPaint();
	}
}

// What is shown while the minimized window is dragged.
HCURSOR CLevelNoteDlg::OnQueryDragIcon()
{
	return (HCURSOR) m_hIcon;
}

// A run that does not close shows its result in red.
HBRUSH CLevelNoteDlg::OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor)
{
	HBRUSH hbr = CDialog::OnCtlColor(pDC, pWnd, nCtlColor);
	if (m_bAlarm && nCtlColor == CTLCOLOR_STATIC && pWnd->GetDlgCtrlID() == IDC_RESULT)
	{
		pDC->SetTextColor(RGB(192, 0, 0));
		pDC->SetBkColor(RGB(255, 224, 224));
		return (HBRUSH) m_brAlarm.GetSafeHandle();
	}
	return hbr;
}

BOOL CLevelNoteDlg::PreTranslateMessage(MSG* pMsg)
{
	if (m_hAccel != NULL && ::TranslateAccelerator(m_hWnd, m_hAccel, pMsg))
		return TRUE;
	return CDialog::PreTranslateMessage(pMsg);
}

void CLevelNoteDlg::OnContextMenu(CWnd* pWnd, CPoint point)
{
	if (pWnd->GetSafeHwnd() != m_wndStations.GetSafeHwnd())
		return;
	if (point.x == -1 && point.y == -1)
	{
		// keyboard: at the upper left corner of the list
		CRect rect;
		m_wndStations.GetWindowRect(rect);
		point = rect.TopLeft();
		point.Offset(8, 8);
	}

	CMenu menu;
	VERIFY(menu.LoadMenu(IDR_STATION_MENU));
	CMenu* pPopup = menu.GetSubMenu(0);
	ASSERT(pPopup != NULL);
	pPopup->TrackPopupMenu(TPM_LEFTALIGN | TPM_RIGHTBUTTON, point.x, point.y, this);
}

void CLevelNoteDlg::OnInitMenuPopup(CMenu* pPopupMenu, UINT nIndex, BOOL bSysMenu)
{
	CDialog::OnInitMenuPopup(pPopupMenu, nIndex, bSysMenu);
	if (bSysMenu)
		return;
	// a dialog does not run the update handlers of its menus by itself
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

void CLevelNoteDlg::OnUpdateStation(CCmdUI* pCmdUI)
{
	BOOL bSelected = m_wndStations.GetCurSel() != LB_ERR;
	pCmdUI->Enable(pCmdUI->m_nID == ID_STATION_CLEAR ? GetStationCount() > 0 : bSelected);
}

double CLevelNoteDlg::GetHeight(int nStation) const
{
	double dHeight = m_dStart;
	for (int i = 0; i <= nStation; i++)
	{
		const SIGHT& sight = m_sights[i];
		dHeight += sight.dBack - sight.dFore;
	}
	return dHeight;
}

void CLevelNoteDlg::FillStations()
{
	m_wndStations.SetRedraw(FALSE);
	m_wndStations.ResetContent();
	double dScale = m_nUnit == 1 ? 1000.0 : 1.0;
	int nDecimals = m_nUnit == 1 ? 0 : 3;
	CString strLine, strFormat;
	strFormat.LoadString(IDS_LINE_FORMAT);
	for (int i = 0; i < m_sights.GetSize(); i++)
	{
		strLine.Format(strFormat, i + 1, nDecimals, m_sights.GetAt(i).dBack * dScale,
			nDecimals, m_sights.GetAt(i).dFore * dScale, nDecimals, GetHeight(i) * dScale);
		m_wndStations.AddString(strLine);
	}
	m_wndStations.SetRedraw(TRUE);
	m_wndStations.Invalidate();
	if (m_sights.GetSize() > 0)
		m_wndStations.SetTopIndex(m_sights.GetUpperBound());
	UpdateResult();
}

void CLevelNoteDlg::UpdateResult()
{
	m_bAlarm = FALSE;
	double dLast = GetHeight(m_sights.GetUpperBound());
	double dError = dLast - m_dKnown;
	CString strNumber;
	strNumber.Format(_T("%.3f"), m_bUseKnown ? dError : dLast);
	if (!m_bUseKnown)
		m_strResult = strNumber + _T(" m");
	else if (fabs(dError) <= MISCLOSURE_LIMIT)
		AfxFormatString1(m_strResult, IDS_CLOSED, strNumber);
	else
	{
		AfxFormatString1(m_strResult, IDS_MISCLOSURE, strNumber);
		m_bAlarm = TRUE;
	}
	SetDlgItemText(IDC_RESULT, m_strResult);
	GetDlgItem(IDC_KNOWN)->EnableWindow(m_bUseKnown);
	GetDlgItem(IDC_RESULT)->Invalidate();
}

void CLevelNoteDlg::OnAdd()
{
	if (!UpdateData(TRUE))
		return;
	if (m_dBack == 0.0 && m_dFore == 0.0)
	{
		MessageBeep(MB_ICONEXCLAMATION);
		return;
	}

	SIGHT sight;
	sight.dBack = m_dBack;
	sight.dFore = m_dFore;
	m_sights.Add(sight);
	m_dBack = m_dFore = 0.0;
	UpdateData(FALSE);
	FillStations();
	GotoDlgCtrl(&m_wndBack);
}

void CLevelNoteDlg::OnChangeKnown()
{
	if (UpdateData(TRUE))
		FillStations();
}

void CLevelNoteDlg::OnUnit(UINT nID)
{
	ASSERT(nID == IDC_UNIT_M || nID == IDC_UNIT_MM);
	m_nUnit = nID - IDC_UNIT_M;
	FillStations();
}

// A double tap takes the sight back into the fields.
void CLevelNoteDlg::OnDblclkStations()
{
	int nIndex = m_wndStations.GetCurSel();
	if (nIndex == LB_ERR)
		return;
	m_dBack = m_sights[nIndex].dBack;
	m_dFore = m_sights[nIndex].dFore;
	m_sights.RemoveAt(nIndex);
	UpdateData(FALSE);
	FillStations();
}

void CLevelNoteDlg::OnStationRemove()
{
	int nIndex = m_wndStations.GetCurSel();
	if (nIndex == LB_ERR)
		return;
	m_sights.RemoveAt(nIndex);
	FillStations();
	m_wndStations.SetCurSel(min(nIndex, m_sights.GetUpperBound()));
}

void CLevelNoteDlg::OnStationClear()
{
	if (AfxMessageBox(IDS_ASK_CLEAR, MB_YESNO | MB_ICONQUESTION) != IDYES)
		return;
	m_sights.RemoveAll();
	FillStations();
}

// The whole run goes to the clipboard as text.
void CLevelNoteDlg::OnStationCopy()
{
	CString strAll, strLine;
	for (int i = 0; i < m_wndStations.GetCount(); i++)
	{
		m_wndStations.GetText(i, strLine);
		strAll += strLine + _T("\r\n");
	}
	if (!OpenClipboard())
		return;
	::EmptyClipboard();
	int nBytes = (strAll.GetLength() + 1) * sizeof(TCHAR);
	HGLOBAL hText = ::GlobalAlloc(GMEM_MOVEABLE, nBytes);
	if (hText != NULL)
	{
		memcpy(::GlobalLock(hText), (LPCTSTR) strAll, nBytes);
		::GlobalUnlock(hText);
#ifdef _UNICODE
		::SetClipboardData(CF_UNICODETEXT, hText);
#else
		::SetClipboardData(CF_TEXT, hText);
#endif
	}
	::CloseClipboard();
}

void CLevelNoteDlg::OnCancel()
{
	if (m_sights.GetSize() > 0)
	{
		CString strText;
		strText.Format(_T("%s: %d"), (LPCTSTR) AfxGetApp()->m_pszAppName, m_sights.GetSize());
		TRACE(_T("%s\n"), (LPCTSTR) strText);
	}
	CDialog::OnCancel();
}
