// SurveyJob.h : points, and the job that holds them
//

#pragma once

// A surveyed point.
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

	CString ToText(TCHAR chSeparator) const;

	virtual void Serialize(CArchive& ar);
#ifdef _DEBUG
	virtual void AssertValid() const;
	virtual void Dump(CDumpContext& dc) const;
#endif
};

typedef CTypedPtrList<CObList, CSurveyPoint*> CPointList;

class CSurveyJob : public CObject
{
	DECLARE_SERIAL(CSurveyJob)

public:
	virtual ~CSurveyJob();

	CPointList m_points;

	void Add(CSurveyPoint* pPoint);
	void Remove(CSurveyPoint* pPoint);
	void RemoveAll();

	// Text, one point a line.
	void Export(LPCTSTR lpszPath) const;

	virtual void Serialize(CArchive& ar);
};
