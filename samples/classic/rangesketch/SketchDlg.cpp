// SketchDlg.cpp : the main dialog
//

#include "stdafx.h"
#include "RangeSketch.h"
#include "SketchDlg.h"

IMPLEMENT_DYNAMIC(CSketchDlg, CDialog)

CSketchDlg::CSketchDlg(CWnd* pParent /*=NULL*/)
	: CDialog(CSketchDlg::IDD, pParent)
{
	m_hIcon = AfxGetApp()->LoadIcon(IDR_MAINFRAME);
}

void CSketchDlg::DoDataExchange(CDataExchange* pDX)
{
	CDialog::DoDataExchange(pDX);
	DDX_Control(pDX, IDC_SKETCH, m_sketch);
	DDX_Control(pDX, IDC_SCALE, m_wndScale);
}

BEGIN_MESSAGE_MAP(CSketchDlg, CDialog)
	ON_WM_SYSCOMMAND()
	ON_WM_HSCROLL()
	ON_WM_DRAWITEM()
	ON_WM_CLOSE()
	ON_BN_CLICKED(IDC_COMPUTE, OnCompute)
	ON_BN_CLICKED(IDC_CLEAR, OnClear)
	ON_CONTROL(SKN_CHANGED, IDC_SKETCH, OnSketchChanged)
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
	OnSketchChanged();
	return TRUE;
}

// Called when the program is idle.
void CSketchDlg::UpdateButtons()
{
	CWnd* pCompute = GetDlgItem(IDC_COMPUTE);
	BOOL bEnable = m_sketch.GetPoints().GetSize() > 2;
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
	if (nSBCode == SB_THUMBPOSITION || nSBCode == SB_THUMBTRACK)
		nScale = nPos;
	else if (nSBCode != SB_ENDSCROLL)
		nScale += nSBCode == SB_LINERIGHT || nSBCode == SB_PAGERIGHT ? 10 : -10;
	nScale = __max(nMin, __min(nScale, nMax));
	pScrollBar->SetScrollPos(nScale);
	m_sketch.SetScale(nScale);
}

// The button in the colour of the lines.
void CSketchDlg::OnDrawItem(int nIDCtl, LPDRAWITEMSTRUCT lpDrawItemStruct)
{
	if (nIDCtl != IDC_CLEAR)
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
	CBrush brush(RGB(0, 0, 160));
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
}

void CSketchDlg::OnCompute()
{
	double dScale = m_sketch.GetScale() / 1000.0;
	CString strText;
	strText.Format(IDS_AREA, m_sketch.GetArea() * dScale * dScale);
	SetDlgItemText(IDC_AREA, strText);
}

void CSketchDlg::OnClear()
{
	m_sketch.Clear();
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
	DestroyWindow();
}

void CSketchDlg::PostNcDestroy()
{
	CDialog::PostNcDestroy();
	AfxGetApp()->m_pMainWnd = NULL;
	delete this;
	::PostQuitMessage(0);
}
