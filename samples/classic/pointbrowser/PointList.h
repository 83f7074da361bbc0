// PointList.h : the list control of points
//

#pragma once

class CSurveyPoint;
class CSurveyJob;

class CPointListCtrl : public CListCtrl
{
public:
	CPointListCtrl();

	enum { COL_NAME, COL_EAST, COL_NORTH, COL_HEIGHT, COL_DATE, COL_COUNT };

	void InsertColumns();
	void Fill(const CSurveyJob& job);
	void AddPoint(CSurveyPoint* pPoint);
	void UpdatePoint(int nItem);
	CSurveyPoint* GetPoint(int nItem) const { return (CSurveyPoint*)GetItemData(nItem); }
	CSurveyPoint* GetSelectedPoint(int* pnItem = NULL) const;
	void Select(int nItem);
	void Sort(int nColumn, BOOL bAscending);

protected:
	int m_nSortColumn;
	BOOL m_bAscending;

	static int CALLBACK Compare(LPARAM lParam1, LPARAM lParam2, LPARAM lParamSort);

	//{{AFX_MSG(CPointListCtrl)
	afx_msg void OnColumnclick(NMHDR* pNMHDR, LRESULT* pResult);
	afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
	//}}AFX_MSG
	DECLARE_MESSAGE_MAP()
};
