// SurveyJob.cpp : points, groups of points, and the job that holds them
//

#include "stdafx.h"
#include "SurveyJob.h"

#ifdef _DEBUG
#undef THIS_FILE
static char THIS_FILE[]=__FILE__;
#define new DEBUG_NEW
#endif

IMPLEMENT_SERIAL(CSurveyPoint, CObject, VERSIONABLE_SCHEMA | 2)
IMPLEMENT_SERIAL(CPointGroup, CObject, 1)
IMPLEMENT_SERIAL(CSurveyJob, CObject, 1)

/////////////////////////////////////////////////////////////////////////////
// CSurveyPoint

CSurveyPoint::CSurveyPoint()
{
	m_dEast = m_dNorth = m_dHeight = 0.0;
	m_time = CTime::GetCurrentTime();
	m_pGroup = NULL;
}

CSurveyPoint::CSurveyPoint(LPCTSTR lpszName, double dEast, double dNorth, double dHeight)
	: m_strName(lpszName), m_dEast(dEast), m_dNorth(dNorth), m_dHeight(dHeight)
{
	m_time = CTime::GetCurrentTime();
	m_pGroup = NULL;
}

// "name,east,north,height", with blanks anywhere; what follows is a remark
BOOL CSurveyPoint::Parse(const CString& strLine)
{
	CString strField;
	double* apValues[3] = { &m_dEast, &m_dNorth, &m_dHeight };
	if (!AfxExtractSubString(m_strName, strLine, 0, _T(',')))
		return FALSE;
	m_strName.TrimLeft();
	m_strName.TrimRight();
	if (m_strName.IsEmpty() || m_strName[0] == _T('#'))
		return FALSE;
	for (int i = 0; i < 3; i++)
	{
		if (!AfxExtractSubString(strField, strLine, i + 1, _T(',')))
			return FALSE;
		strField.TrimLeft();
		strField.TrimRight();
		LPTSTR lpszEnd = NULL;
		*apValues[i] = _tcstod(strField, &lpszEnd);
		if (strField.IsEmpty() || *lpszEnd != _T('\0'))
			return FALSE;
	}
	return TRUE;
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
		ar << m_pGroup;
	}
	else
	{
		UINT nSchema = ar.GetObjectSchema();
		ar >> m_strName >> m_dEast >> m_dNorth >> m_dHeight;
		if (nSchema >= 2)
			ar >> m_time;
		ar >> m_pGroup;
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
// CPointGroup

CPointGroup::CPointGroup()
{
	m_crText = RGB(0, 0, 0);
}

CPointGroup::CPointGroup(LPCTSTR lpszName, COLORREF crText) : m_strName(lpszName)
{
	m_crText = crText;
}

void CPointGroup::Serialize(CArchive& ar)
{
	CObject::Serialize(ar);
	if (ar.IsStoring())
		ar << m_strName << (DWORD)m_crText;
	else
	{
		DWORD dwColor;
		ar >> m_strName >> dwColor;
		m_crText = dwColor;
	}
	m_points.Serialize(ar);
}

/////////////////////////////////////////////////////////////////////////////
// CSurveyJob

CSurveyJob::CSurveyJob()
{
	m_names.InitHashTable(257);
}

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
	for (int i = 0; i < m_groups.GetSize(); i++)
		delete m_groups.GetAt(i);
	m_groups.RemoveAll();
	m_names.RemoveAll();
}

CSurveyPoint* CSurveyJob::Add(CSurveyPoint* pPoint, CPointGroup* pGroup)
{
	ASSERT_VALID(pPoint);
	if (Lookup(pPoint->m_strName) != NULL)
		return NULL;
	m_points.AddTail(pPoint);
	m_names.SetAt(pPoint->m_strName, pPoint);
	pPoint->m_pGroup = pGroup;
	if (pGroup != NULL)
		pGroup->m_points.AddTail(pPoint);
	return pPoint;
}

void CSurveyJob::Remove(CSurveyPoint* pPoint)
{
	POSITION pos = m_points.Find(pPoint);
	if (pos == NULL)
		return;
	m_points.RemoveAt(pos);
	m_names.RemoveKey(pPoint->m_strName);
	if (pPoint->m_pGroup != NULL)
	{
		pos = pPoint->m_pGroup->m_points.Find(pPoint);
		ASSERT(pos != NULL);
		pPoint->m_pGroup->m_points.RemoveAt(pos);
	}
	delete pPoint;
}

CSurveyPoint* CSurveyJob::Lookup(LPCTSTR lpszName) const
{
	void* pFound = NULL;
	return m_names.Lookup(lpszName, pFound) ? (CSurveyPoint*)pFound : NULL;
}

int CSurveyJob::Import(LPCTSTR lpszPath, CUIntArray& badLines)
{
	int nPoints = 0;
	UINT nLine = 0;
	CStdioFile file;
	CFileException* pError = new CFileException;
	if (!file.Open(lpszPath, CFile::modeRead | CFile::typeText, pError))
		throw pError;
	pError->Delete();

	CString strLine;
	CSurveyPoint* pPoint = new CSurveyPoint;
	while (file.ReadString(strLine))
	{
		nLine++;
		if (strLine.IsEmpty())
			continue;
		if (!pPoint->Parse(strLine) || Add(pPoint, GetGroupCount() > 0 ? GetGroup(0) : NULL) == NULL)
		{
			badLines.Add(nLine);
			continue;
		}
		nPoints++;
		pPoint = new CSurveyPoint;
	}
	delete pPoint;
	file.Close();
	return nPoints;
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
	m_groups.Serialize(ar);
	m_points.Serialize(ar);
	if (!ar.IsStoring())
	{
		POSITION pos = m_points.GetHeadPosition();
		while (pos != NULL)
		{
			CSurveyPoint* pPoint = m_points.GetNext(pos);
			m_names[pPoint->m_strName] = pPoint;
		}
	}
}
