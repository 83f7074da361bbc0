// SketchWnd.cpp : the control that one draws in
//

#include "stdafx.h"
#include "RangeSketch.h"
#include "SketchWnd.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char THIS_FILE[] = __FILE__;
#endif

static const TCHAR szClassName[] = _T("RangeSketchWnd");
static const int nGrid = 10;		// pixels

IMPLEMENT_DYNCREATE(CSketchWnd, CWnd)

CSketchWnd::CSketchWnd()
	: m_nScale(100), m_bDragging(FALSE), m_ptDrag(0, 0), m_sizeBuffer(0, 0)
{
	RegisterWindowClass();
}

BOOL CSketchWnd::RegisterWindowClass(HINSTANCE hInstance)
{
	WNDCLASS wc;
	if (hInstance == NULL)
		hInstance = AfxGetInstanceHandle();
	if (::GetClassInfo(hInstance, szClassName, &wc))
		return TRUE;
	memset(&wc, 0, sizeof(wc));
	wc.style = CS_DBLCLKS;
	wc.lpfnWndProc = ::DefWindowProc;
	wc.hInstance = hInstance;
	wc.lpszClassName = szClassName;
	if (!AfxRegisterClass(&wc))
	{
		AfxThrowResourceException();
		return FALSE;
	}
	return TRUE;
}

BEGIN_MESSAGE_MAP(CSketchWnd, CWnd)
	ON_WM_ERASEBKGND()
	ON_WM_PAINT()
	ON_WM_LBUTTONDOWN()
	ON_WM_MOUSEMOVE()
	ON_WM_LBUTTONUP()
	ON_WM_RBUTTONDOWN()
	ON_WM_SETCURSOR()
	ON_WM_GETDLGCODE()
	ON_WM_SETFOCUS()
	ON_WM_KILLFOCUS()
END_MESSAGE_MAP()

void CSketchWnd::PreSubclassWindow()
{
	CBitmap bmpPaper;
	if (bmpPaper.LoadBitmap(IDB_PAPER))
		m_brPaper.CreatePatternBrush(&bmpPaper);
	else
		m_brPaper.CreateSolidBrush(RGB(255, 255, 240));
	m_font.CreateFont(-10, 0, 0, 0, FW_NORMAL, FALSE, FALSE, 0, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS,
		CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, DEFAULT_PITCH | FF_SWISS, _T("MS Shell Dlg"));
	CWnd::PreSubclassWindow();
}

void CSketchWnd::SetScale(int nScale)
{
	ASSERT(nScale > 0);
	m_nScale = nScale;
	Changed();
}

double CSketchWnd::GetLength() const
{
	double dLength = 0.0;
	for (int i = 1; i < m_points.GetSize(); i++)
	{
		CSize size = m_points[i] - m_points[i - 1];
		dLength += sqrt((double)size.cx * size.cx + (double)size.cy * size.cy);
	}
	return dLength * m_nScale / 1000.0;
}

double CSketchWnd::GetArea() const
{
	double dTwice = 0.0;
	for (int i = 0, j = m_points.GetUpperBound(); i < m_points.GetSize(); j = i++)
		dTwice += (double)m_points[j].x * m_points[i].y - (double)m_points[i].x * m_points[j].y;
	return fabs(dTwice) / 2.0;
}

void CSketchWnd::Clear()
{
	m_points.RemoveAll();
	Changed();
}

void CSketchWnd::Changed()
{
	Invalidate(FALSE);
	CWnd* pParent = GetParent();
	if (pParent != NULL)
		pParent->SendMessage(WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(), SKN_CHANGED), (LPARAM)m_hWnd);
}

CPoint CSketchWnd::Snap(CPoint point) const
{
	return CPoint((point.x + nGrid / 2) / nGrid * nGrid, (point.y + nGrid / 2) / nGrid * nGrid);
}

BOOL CSketchWnd::OnEraseBkgnd(CDC* /*pDC*/)
{
	return TRUE; // the picture covers everything
}

// The picture is put together in memory, so that nothing flickers.
void CSketchWnd::OnPaint()
{
	CPaintDC dc(this);
	CRect rect;
	GetClientRect(&rect);
	CDC dcMem;
	dcMem.CreateCompatibleDC(&dc);
	if (m_sizeBuffer != rect.Size())
	{
		m_bmpBuffer.DeleteObject();
		m_bmpBuffer.CreateCompatibleBitmap(&dc, rect.Width(), rect.Height());
		m_sizeBuffer = rect.Size();
	}
	CBitmap* pOldBitmap = dcMem.SelectObject(&m_bmpBuffer);
	Draw(&dcMem, rect);
	dc.BitBlt(0, 0, rect.Width(), rect.Height(), &dcMem, 0, 0, SRCCOPY);
	dcMem.SelectObject(pOldBitmap);
}

void CSketchWnd::Draw(CDC* pDC, const CRect& rect)
{
	int nSaved = pDC->SaveDC();
	pDC->FillRect(rect, &m_brPaper);
	DrawPoints(pDC);
	DrawNorth(pDC, rect);
	CRect rectFrame(rect);
	if (GetFocus() == this)
	{
		rectFrame.DeflateRect(2, 2);
		pDC->DrawFocusRect(rectFrame);
		rectFrame.InflateRect(2, 2);
	}
	pDC->DrawEdge(rectFrame, EDGE_SUNKEN, BF_RECT);
	pDC->RestoreDC(nSaved);
}

void CSketchWnd::DrawPoints(CDC* pDC)
{
	int nCount = m_points.GetSize();
	if (nCount == 0)
		return;

	if (nCount > 2)
	{
		CBrush brArea(HS_BDIAGONAL, RGB(160, 192, 160));
		CBrush* pOldBrush = pDC->SelectObject(&brArea);
		CPen* pOldPen = (CPen*)pDC->SelectStockObject(NULL_PEN);
		pDC->SetPolyFillMode(ALTERNATE);
		pDC->Polygon((LPPOINT)m_points.GetData(), nCount);
		pDC->SelectObject(pOldPen);
		pDC->SelectObject(pOldBrush);
	}

	if (nCount > 1)
		pDC->Polyline(m_points.GetData(), nCount);
	CFont* pOldFont = pDC->SelectObject(&m_font);
	pDC->SetBkMode(TRANSPARENT);
	CString strName;
	for (int i = 0; i < nCount; i++)
	{
		CRect rectMark(m_points[i], CSize(0, 0));
		rectMark.InflateRect(3, 3);
		CBrush brMark(i == nCount - 1 ? RGB(255, 64, 64) : RGB(255, 255, 255));
		CBrush* pOldBrush = pDC->SelectObject(&brMark);
		pDC->Ellipse(rectMark);
		pDC->SelectObject(pOldBrush);
		strName.Format(_T("%d"), i + 1);
		pDC->TextOut(rectMark.right + 2, rectMark.top, strName);
	}
	pDC->SelectObject(pOldFont);
}

// An arrow in the upper right corner, in coordinates of its own.
void CSketchWnd::DrawNorth(CDC* pDC, const CRect& rect)
{
	int nSaved = pDC->SaveDC();
	pDC->SetMapMode(MM_ANISOTROPIC);
	pDC->SetWindowOrg(0, 0);
	pDC->SetWindowExt(100, 100);
	pDC->SetViewportOrg(rect.right - 26, rect.top + 6);
	pDC->SetViewportExt(20, 20);
	POINT arrow[] = { { 50, 0 }, { 80, 100 }, { 50, 75 }, { 20, 100 } };
	CRgn rgn;
	rgn.CreatePolygonRgn(arrow, 4, WINDING);
	pDC->SelectStockObject(BLACK_BRUSH);
	pDC->Polygon(arrow, 4);
	pDC->RestoreDC(nSaved);
	CRect rectBox;
	rgn.GetRgnBox(&rectBox);
	ASSERT(rectBox.Width() > 0);
}

void CSketchWnd::OnLButtonDown(UINT nFlags, CPoint point)
{
	SetFocus();
	SetCapture();
	m_bDragging = TRUE;
	m_ptDrag = Snap(point);
	DrawRubber();
	CWnd::OnLButtonDown(nFlags, point);
}

void CSketchWnd::OnMouseMove(UINT nFlags, CPoint point)
{
	if (m_bDragging && (nFlags & MK_LBUTTON) && Snap(point) != m_ptDrag)
	{
		DrawRubber();
		m_ptDrag = Snap(point);
		DrawRubber();
	}
	CWnd::OnMouseMove(nFlags, point);
}

void CSketchWnd::OnLButtonUp(UINT nFlags, CPoint point)
{
	if (m_bDragging)
	{
		DrawRubber();
		m_bDragging = FALSE;
		if (GetCapture() == this)
			ReleaseCapture();
		CRect rect;
		GetClientRect(&rect);
		if (rect.PtInRect(point))
		{
			m_points.Add(Snap(point));
			Changed();
		}
	}
	CWnd::OnLButtonUp(nFlags, point);
}

// A line from the last point to the pen; drawn twice it is gone.
void CSketchWnd::DrawRubber()
{
	if (m_points.GetSize() == 0)
		return;
	CClientDC dc(this);
	int nOldROP = dc.SetROP2(R2_NOT);
	dc.MoveTo(m_points[m_points.GetUpperBound()]);
	dc.LineTo(m_ptDrag);
	dc.SetROP2(nOldROP);
}

// Takes the last point back.
void CSketchWnd::OnRButtonDown(UINT nFlags, CPoint point)
{
	if (m_points.GetSize() > 0)
	{
		m_points.RemoveAt(m_points.GetUpperBound());
		Changed();
	}
	CWnd::OnRButtonDown(nFlags, point);
}

BOOL CSketchWnd::OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message)
{
	if (nHitTest == HTCLIENT)
	{
		::SetCursor(AfxGetApp()->LoadStandardCursor(IDC_CROSS));
		return TRUE;
	}
	return CWnd::OnSetCursor(pWnd, nHitTest, message);
}

UINT CSketchWnd::OnGetDlgCode()
{
	return CWnd::OnGetDlgCode() | DLGC_WANTARROWS;
}

void CSketchWnd::OnSetFocus(CWnd* pOldWnd)
{
	CWnd::OnSetFocus(pOldWnd);
	Invalidate(FALSE);
}

void CSketchWnd::OnKillFocus(CWnd* pNewWnd)
{
	CWnd::OnKillFocus(pNewWnd);
	Invalidate(FALSE);
}
