// SurveyJob.h : points, groups of points, and the job that holds them
//

#pragma once

class CPointGroup;

// A surveyed point. Its group is the one that it was added to.
class CSurveyPoint : public CObject
{
	DECLARE_SERIAL(CSurveyPoint)

public:
	CSurveyPoint();
	CSurveyPoint(LPCTSTR lpszName, double dEast, double dNorth, double dHeight);

	CString m_strName;
	double m_dEast;
	double m_dNorth;
	double m_dHeight;
	CTime m_time;
	CPointGroup* m_pGroup;

	// A line of a text file. FALSE if it holds no point.
	BOOL Parse(const CString& strLine);
	CString ToText(TCHAR chSeparator) const;

	virtual void Serialize(CArchive& ar);
#ifdef _DEBUG
	virtual void AssertValid() const;
	virtual void Dump(CDumpContext& dc) const;
#endif
};

typedef CTypedPtrList<CObList, CSurveyPoint*> CPointList;

class CPointGroup : public CObject
{
	DECLARE_SERIAL(CPointGroup)

public:
	CPointGroup();
	explicit CPointGroup(LPCTSTR lpszName, COLORREF crText = RGB(0, 0, 0));

	CString m_strName;
	COLORREF m_crText;
	CPointList m_points;		// not owned: the job's

	virtual void Serialize(CArchive& ar);
};

class CSurveyJob : public CObject
{
	DECLARE_SERIAL(CSurveyJob)

public:
	CSurveyJob();
	virtual ~CSurveyJob();

	CObArray m_groups;
	CPointList m_points;

	CSurveyPoint* Add(CSurveyPoint* pPoint, CPointGroup* pGroup);
	void Remove(CSurveyPoint* pPoint);
	CSurveyPoint* Lookup(LPCTSTR lpszName) const;
	CPointGroup* GetGroup(int nIndex) const { return (CPointGroup*)m_groups[nIndex]; }
	int GetGroupCount() const { return m_groups.GetSize(); }
	void RemoveAll();

	// Text, one point a line; the numbers of lines that hold none are added to badLines.
	int Import(LPCTSTR lpszPath, CUIntArray& badLines);
	void Export(LPCTSTR lpszPath) const;

	virtual void Serialize(CArchive& ar);

protected:
	CMapStringToPtr m_names;
};
