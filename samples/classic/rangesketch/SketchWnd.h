// SketchWnd.h : the control that one draws in
//

#pragma once

// What the control tells its parent with WM_COMMAND.
#define SKN_CHANGED		1

typedef CArray<CPoint, CPoint> CPointArray;

class CSketchWnd : public CWnd
{
	DECLARE_DYNCREATE(CSketchWnd)

public:
	CSketchWnd();

	// The name that the dialog's template has for it.
	static BOOL RegisterWindowClass(HINSTANCE hInstance = NULL);

// Attributes
public:
	const CPointArray& GetPoints() const { return m_points; }
	// Millimetres of ground for a pixel.
	void SetScale(int nScale);
	int GetScale() const { return m_nScale; }
	double GetLength() const;
	// Square pixels.
	double GetArea() const;

// Operations
public:
	void Clear();

// Overrides
protected:
	virtual void PreSubclassWindow();

// Implementation
protected:
	CPointArray m_points;
	int m_nScale;
	BOOL m_bDragging;
	CPoint m_ptDrag;
	CBitmap m_bmpBuffer;
	CSize m_sizeBuffer;
	CBrush m_brPaper;
	CFont m_font;

	void Draw(CDC* pDC, const CRect& rect);
	void DrawPoints(CDC* pDC);
	void DrawNorth(CDC* pDC, const CRect& rect);
	CPoint Snap(CPoint point) const;
	void Changed();
	void DrawRubber();

	afx_msg BOOL OnEraseBkgnd(CDC* pDC);
	afx_msg void OnPaint();
	afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
	afx_msg void OnMouseMove(UINT nFlags, CPoint point);
	afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
	afx_msg void OnRButtonDown(UINT nFlags, CPoint point);
	afx_msg BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message);
	afx_msg UINT OnGetDlgCode();
	afx_msg void OnSetFocus(CWnd* pOldWnd);
	afx_msg void OnKillFocus(CWnd* pNewWnd);
	DECLARE_MESSAGE_MAP()
};
