// SurveyJob.cpp : points, and the job that holds them
//

#include "stdafx.h"
#include "SurveyJob.h"

#ifdef _DEBUG
#undef THIS_FILE
static char THIS_FILE[]=__FILE__;
#define new DEBUG_NEW
#endif

IMPLEMENT_SERIAL(CSurveyPoint, CObject, VERSIONABLE_SCHEMA | 2)
IMPLEMENT_SERIAL(CSurveyJob, CObject, 1)

/////////////////////////////////////////////////////////////////////////////
// CSurveyPoint

CSurveyPoint::CSurveyPoint()
{
	m_dEast = m_dNorth = m_dHeight = 0.0;
	m_time = CTime::GetCurrentTime();
}

CSurveyPoint::CSurveyPoint(LPCTSTR lpszName, double dEast, double dNorth, double dHeight)
	: m_strName(lpszName), m_dEast(dEast), m_dNorth(dNorth), m_dHeight(dHeight)
{
	m_time = CTime::GetCurrentTime();
}

CString CSurveyPoint::ToText(TCHAR chSeparator) const
{
	CString strText;
	strText.Format(_T("%s%c%.3f%c%.3f%c%.3f"), m_strName, chSeparator, m_dEast, chSeparator,
		m_dNorth, chSeparator, m_dHeight);
	return strText;
}

void CSurveyPoint::Serialize(CArchive& ar)
{
	CObject::Serialize(ar);
	if (ar.IsStoring())
	{
		ar << m_strName << m_dEast << m_dNorth << m_dHeight << m_time;
	}
	else
	{
		UINT nSchema = ar.GetObjectSchema();
		ar >> m_strName >> m_dEast >> m_dNorth >> m_dHeight;
		if (nSchema >= 2)
			ar >> m_time;
	}
}

#ifdef _DEBUG
void CSurveyPoint::AssertValid() const
{
	CObject::AssertValid();
	ASSERT(!m_strName.IsEmpty());
}

void CSurveyPoint::Dump(CDumpContext& dc) const
{
	CObject::Dump(dc);
	dc << _T("point ") << m_strName << _T(" at ") << m_dEast << _T(", ") << m_dNorth << _T("\n");
}
#endif

/////////////////////////////////////////////////////////////////////////////
// CSurveyJob

CSurveyJob::~CSurveyJob()
{
	RemoveAll();
}

void CSurveyJob::RemoveAll()
{
	POSITION pos = m_points.GetHeadPosition();
	while (pos != NULL)
		delete m_points.GetNext(pos);
	m_points.RemoveAll();
}

void CSurveyJob::Add(CSurveyPoint* pPoint)
{
	ASSERT_VALID(pPoint);
	m_points.AddTail(pPoint);
}

void CSurveyJob::Remove(CSurveyPoint* pPoint)
{
	POSITION pos = m_points.Find(pPoint);
	ASSERT(pos != NULL);
	m_points.RemoveAt(pos);
	delete pPoint;
}

void CSurveyJob::Export(LPCTSTR lpszPath) const
{
	CStdioFile file(lpszPath, CFile::modeCreate | CFile::modeWrite | CFile::typeText);
	POSITION pos = m_points.GetHeadPosition();
	while (pos != NULL)
	{
		const CSurveyPoint* pPoint = m_points.GetNext(pos);
		file.WriteString(pPoint->ToText(_T(',')) + _T("\n"));
	}
}

void CSurveyJob::Serialize(CArchive& ar)
{
	CObject::Serialize(ar);
	if (!ar.IsStoring())
		RemoveAll();
	m_points.Serialize(ar);
}
