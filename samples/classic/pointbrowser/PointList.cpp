// PointList.cpp : the list control of points
//

#include "stdafx.h"
#include "PointBrowser.h"
#include "PointList.h"
#include "SurveyJob.h"

CPointListCtrl::CPointListCtrl()
{
	m_nSortColumn = -1;
	m_bAscending = TRUE;
}

BEGIN_MESSAGE_MAP(CPointListCtrl, CListCtrl)
	//{{AFX_MSG_MAP(CPointListCtrl)
	ON_NOTIFY_REFLECT(LVN_COLUMNCLICK, OnColumnclick)
	ON_WM_KEYDOWN()
	//}}AFX_MSG_MAP
END_MESSAGE_MAP()

void CPointListCtrl::InsertColumns()
{
	static const struct { UINT nID; int nFormat; int nWidth; } columns[COL_COUNT] =
	{
		{ IDS_COL_NAME, LVCFMT_LEFT, 60 }, { IDS_COL_EAST, LVCFMT_RIGHT, 66 },
		{ IDS_COL_NORTH, LVCFMT_RIGHT, 66 }, { IDS_COL_HEIGHT, LVCFMT_RIGHT, 54 },
		{ IDS_COL_DATE, LVCFMT_LEFT, 80 },
	};
	CString strTitle;
	for (int i = 0; i < COL_COUNT; i++)
	{
		VERIFY(strTitle.LoadString(columns[i].nID));
		InsertColumn(i, strTitle, columns[i].nFormat, columns[i].nWidth, i);
	}
	SetExtendedStyle(GetExtendedStyle() | LVS_EX_FULLROWSELECT | LVS_EX_GRIDLINES);
}

void CPointListCtrl::Fill(const CSurveyJob& job)
{
	SetRedraw(FALSE);
	DeleteAllItems();
	SetItemCount(job.m_points.GetCount());
	POSITION pos = job.m_points.GetHeadPosition();
	while (pos != NULL)
		AddPoint(job.m_points.GetNext(pos));
	if (m_nSortColumn >= 0)
		Sort(m_nSortColumn, m_bAscending);
	SetRedraw(TRUE);
	Invalidate();
}

void CPointListCtrl::AddPoint(CSurveyPoint* pPoint)
{
	LVITEM item = { 0 };
	item.mask = LVIF_TEXT | LVIF_PARAM;
	item.iItem = GetItemCount();
	item.pszText = (LPTSTR)(LPCTSTR)pPoint->m_strName;
	item.lParam = (LPARAM)pPoint;
	UpdatePoint(InsertItem(&item));
}

void CPointListCtrl::UpdatePoint(int nItem)
{
	const CSurveyPoint* pPoint = GetPoint(nItem);
	CString strText;
	SetItemText(nItem, COL_NAME, pPoint->m_strName);
	strText.Format(_T("%.3f"), pPoint->m_dEast);
	SetItemText(nItem, COL_EAST, strText);
	strText.Format(_T("%.3f"), pPoint->m_dNorth);
	SetItemText(nItem, COL_NORTH, strText);
	strText.Format(_T("%.2f"), pPoint->m_dHeight);
	SetItemText(nItem, COL_HEIGHT, strText);
	SetItemText(nItem, COL_DATE, pPoint->m_time.Format(_T("%Y/%m/%d")));
}

CSurveyPoint* CPointListCtrl::GetSelectedPoint(int* pnItem) const
{
	POSITION pos = GetFirstSelectedItemPosition();
	if (pos == NULL)
		return NULL;
	int nItem = GetNextSelectedItem(pos);
	if (pnItem != NULL)
		*pnItem = nItem;
	return GetPoint(nItem);
}

void CPointListCtrl::Select(int nItem)
{
	SetItemState(nItem, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
	EnsureVisible(nItem, FALSE);
}

int CALLBACK CPointListCtrl::Compare(LPARAM lParam1, LPARAM lParam2, LPARAM lParamSort)
{
	const CPointListCtrl* pList = (const CPointListCtrl*)lParamSort;
	const CSurveyPoint* p1 = (const CSurveyPoint*)lParam1;
	const CSurveyPoint* p2 = (const CSurveyPoint*)lParam2;
	int nResult = p1->m_strName.CompareNoCase(p2->m_strName);
	if (pList->m_nSortColumn == COL_HEIGHT)
		nResult = p1->m_dHeight < p2->m_dHeight ? -1 : p1->m_dHeight > p2->m_dHeight;
	else if (pList->m_nSortColumn == COL_DATE)
	{
		CTimeSpan span = p1->m_time - p2->m_time;
		nResult = (int)span.GetTotalSeconds();
	}
	return pList->m_bAscending ? nResult : -nResult;
}

void CPointListCtrl::Sort(int nColumn, BOOL bAscending)
{
	m_nSortColumn = nColumn;
	m_bAscending = bAscending;
	SortItems(Compare, (DWORD_PTR)this);
	RedrawItems(0, GetItemCount() - 1);

	CHeaderCtrl* pHeader = GetHeaderCtrl();
	for (int i = 0; i < pHeader->GetItemCount(); i++)
	{
		HDITEM item;
		item.mask = HDI_FORMAT;
		pHeader->GetItem(i, &item);
		item.fmt &= ~(HDF_SORTUP | HDF_SORTDOWN);
		if (i == nColumn)
			item.fmt |= bAscending ? HDF_SORTUP : HDF_SORTDOWN;
		pHeader->SetItem(i, &item);
	}
}

void CPointListCtrl::OnColumnclick(NMHDR* pNMHDR, LRESULT* pResult)
{
	NM_LISTVIEW* pNMListView = (NM_LISTVIEW*)pNMHDR;
	Sort(pNMListView->iSubItem, pNMListView->iSubItem == m_nSortColumn ? !m_bAscending : TRUE);
	*pResult = 0;
}

void CPointListCtrl::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags)
{
	if (nChar == VK_DELETE)
		GetParent()->SendMessage(WM_COMMAND, ID_POINT_DELETE);
	else
		CListCtrl::OnKeyDown(nChar, nRepCnt, nFlags);
}
