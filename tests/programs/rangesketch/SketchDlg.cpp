// SketchDlg.cpp : the main dialog
//

#include "stdafx.h"
#include "RangeSketch.h"
#include "SketchDlg.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char THIS_FILE[] = __FILE__;
#endif

IMPLEMENT_DYNAMIC(CSketchDlg, CDialog)

CSketchDlg::CSketchDlg(CWnd* pParent /*=NULL*/)
	: CDialog(CSketchDlg::IDD, pParent), m_bSnap(TRUE)
{
	m_hIcon = AfxGetApp()->LoadIcon(IDR_MAINFRAME);
}

void CSketchDlg::DoDataExchange(CDataExchange* pDX)
{
	CDialog::DoDataExchange(pDX);
	DDX_Control(pDX, IDC_SKETCH, m_sketch);
	DDX_Control(pDX, IDC_PROGRESS, m_wndProgress);
	DDX_Control(pDX, IDC_SCALE, m_wndScale);
	DDX_Check(pDX, IDC_SNAP, m_bSnap);
}

BEGIN_MESSAGE_MAP(CSketchDlg, CDialog)
	ON_WM_SYSCOMMAND()
	ON_WM_HSCROLL()
	ON_WM_DRAWITEM()
	ON_WM_CLOSE()
	ON_BN_CLICKED(IDC_COMPUTE, OnCompute)
	ON_BN_CLICKED(IDC_CLEAR, OnClear)
	ON_BN_CLICKED(IDC_SNAP, OnSnap)
	ON_BN_CLICKED(IDC_COLOR, OnColor)
	ON_CONTROL(SKN_CHANGED, IDC_SKETCH, OnSketchChanged)
	ON_MESSAGE(WM_AREA_PROGRESS, OnAreaProgress)
	ON_MESSAGE(WM_AREA_DONE, OnAreaDone)
END_MESSAGE_MAP()

BOOL CSketchDlg::OnInitDialog()
{
	CDialog::OnInitDialog();
	SetIcon(m_hIcon, TRUE);
	SetIcon(m_hIcon, FALSE);
	CMenu* pSysMenu = GetSystemMenu(FALSE);
	if (pSysMenu != NULL)
	{
		CString strAbout(MAKEINTRESOURCE(IDS_ABOUTBOX));
		pSysMenu->AppendMenu(MF_SEPARATOR, 0, (LPCTSTR)NULL);
		pSysMenu->AppendMenu(MF_STRING, IDM_ABOUTBOX, strAbout);
	}
	SCROLLINFO info = { sizeof(info), SIF_RANGE | SIF_PAGE | SIF_POS, 10, 500, 50, 100, 0 };
	m_wndScale.SetScrollInfo(&info);
	m_wndProgress.SetRange(0, 100);
	m_sketch.SetLineColor(AfxGetApp()->GetProfileInt(_T("Sketch"), _T("Color"), RGB(0, 0, 160)));
	OnSketchChanged();
	return TRUE;
}

// Called when the program is idle.
void CSketchDlg::UpdateButtons()
{
	CWnd* pCompute = GetDlgItem(IDC_COMPUTE);
	BOOL bEnable = m_sketch.GetPoints().GetSize() > 2 && !m_job.IsRunning();
	if (pCompute != NULL && pCompute->IsWindowEnabled() != bEnable)
		pCompute->EnableWindow(bEnable);
}

void CSketchDlg::OnSysCommand(UINT nID, LPARAM lParam)
{
	if ((nID & 0xFFF0) == IDM_ABOUTBOX)
		AfxGetApp()->OnCmdMsg(ID_APP_ABOUT, CN_COMMAND, NULL, NULL);
	else
		CDialog::OnSysCommand(nID, lParam);
}

void CSketchDlg::OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar)
{
	if (pScrollBar == NULL || pScrollBar->GetDlgCtrlID() != IDC_SCALE)
	{
		CDialog::OnHScroll(nSBCode, nPos, pScrollBar);
		return;
	}
	int nMin, nMax;
	pScrollBar->GetScrollRange(&nMin, &nMax);
	int nScale = pScrollBar->GetScrollPos();
	switch (nSBCode)
	{
	case SB_LINELEFT:
		nScale -= 10;
		break;
	case SB_LINERIGHT:
		nScale += 10;
		break;
	case SB_PAGELEFT:
		nScale -= 50;
		break;
	case SB_PAGERIGHT:
		nScale += 50;
		break;
	case SB_THUMBPOSITION:
	case SB_THUMBTRACK:
		nScale = nPos;
		break;
	}
	nScale = __max(nMin, __min(nScale, nMax));
	pScrollBar->SetScrollPos(nScale);
	m_sketch.SetScale(nScale);
}

// The button of the colour shows it.
void CSketchDlg::OnDrawItem(int nIDCtl, LPDRAWITEMSTRUCT lpDrawItemStruct)
{
	if (nIDCtl != IDC_COLOR)
	{
		CDialog::OnDrawItem(nIDCtl, lpDrawItemStruct);
		return;
	}
	CDC dc;
	dc.Attach(lpDrawItemStruct->hDC);
	CRect rect(lpDrawItemStruct->rcItem);
	BOOL bPushed = (lpDrawItemStruct->itemState & ODS_SELECTED) != 0;
	dc.DrawFrameControl(rect, DFC_BUTTON, DFCS_BUTTONPUSH | (bPushed ? DFCS_PUSHED : 0));
	rect.DeflateRect(4, 4);
	if (bPushed)
		rect.OffsetRect(1, 1);
	CBrush brush(m_sketch.GetLineColor());
	dc.FillRect(&rect, &brush);
	dc.FrameRect(&rect, CBrush::FromHandle((HBRUSH)::GetStockObject(BLACK_BRUSH)));
	dc.Detach();
}

void CSketchDlg::OnSketchChanged()
{
	CString strText;
	strText.Format(IDS_LENGTH, m_sketch.GetLength(), m_sketch.GetScale());
	SetDlgItemText(IDC_LENGTH, strText);
	SetDlgItemText(IDC_AREA, CString((LPCTSTR)IDS_NO_AREA));
	m_wndProgress.SetPos(0);
}

void CSketchDlg::OnCompute()
{
	if (!m_job.Start(m_sketch.GetPoints(), m_hWnd))
		MessageBeep((UINT)-1);
}

LRESULT CSketchDlg::OnAreaProgress(WPARAM wParam, LPARAM /*lParam*/)
{
	m_wndProgress.SetPos((int)wParam);
	return 0;
}

LRESULT CSketchDlg::OnAreaDone(WPARAM wParam, LPARAM lParam)
{
	AREA_RESULT* pResult = (AREA_RESULT*)lParam;
	m_job.Stop();
	m_wndProgress.SetPos((int)wParam);
	double dScale = m_sketch.GetScale() / 1000.0;
	CString strText;
	strText.Format(IDS_AREA, pResult->dArea * dScale * dScale);
	SetDlgItemText(IDC_AREA, strText);
	delete pResult;
	return 0;
}

void CSketchDlg::OnClear()
{
	m_job.Stop();
	m_sketch.Clear();
}

void CSketchDlg::OnSnap()
{
	UpdateData(TRUE);
	m_sketch.SetSnap(m_bSnap);
}

void CSketchDlg::OnColor()
{
	CColorDialog dlg(m_sketch.GetLineColor(), CC_FULLOPEN, this);
	if (dlg.DoModal() == IDOK)
	{
		m_sketch.SetLineColor(dlg.GetColor());
		AfxGetApp()->WriteProfileInt(_T("Sketch"), _T("Color"), dlg.GetColor());
		GetDlgItem(IDC_COLOR)->Invalidate();
	}
}

BOOL CSketchDlg::OnCommand(WPARAM wParam, LPARAM lParam)
{
	TRACE(_T("RangeSketch: command %d, %d\n"), LOWORD(wParam), HIWORD(wParam));
	return CDialog::OnCommand(wParam, lParam);
}

// Enter is no end for a dialog without an OK button.
void CSketchDlg::OnOK()
{
}

void CSketchDlg::OnCancel()
{
	OnClose();
}

void CSketchDlg::OnClose()
{
	m_job.Stop();
	DestroyWindow();
}

void CSketchDlg::PostNcDestroy()
{
	CDialog::PostNcDestroy();
	AfxGetApp()->m_pMainWnd = NULL;
	delete this;
	::PostQuitMessage(0);
}
