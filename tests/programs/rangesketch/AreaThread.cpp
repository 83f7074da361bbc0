// AreaThread.cpp : the area of a sketch, computed beside the user's work
//

#include "stdafx.h"
#include "AreaThread.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#undef THIS_FILE
static char THIS_FILE[] = __FILE__;
#endif

static const int nSteps = 400;

CAreaJob::CAreaJob() : m_pThread(NULL), m_hWndNotify(NULL), m_eventStop(FALSE, TRUE), m_dDone(0.0)
{
}

CAreaJob::~CAreaJob()
{
	Stop();
}

BOOL CAreaJob::Start(const CPointArray& points, HWND hWndNotify)
{
	Stop();
	if (points.GetSize() < 3)
		return FALSE;
	m_points.Copy(points);
	m_hWndNotify = hWndNotify;
	m_dDone = 0.0;
	m_eventStop.ResetEvent();
	m_pThread = AfxBeginThread(ThreadProc, this, THREAD_PRIORITY_BELOW_NORMAL, 0, CREATE_SUSPENDED);
	if (m_pThread == NULL)
		return FALSE;
	// the object stays until its end has been waited for
	m_pThread->m_bAutoDelete = FALSE;
	m_pThread->ResumeThread();
	return TRUE;
}

void CAreaJob::Stop()
{
	if (m_pThread == NULL)
		return;
	m_eventStop.SetEvent();
	::WaitForSingleObject(m_pThread->m_hThread, INFINITE);
	delete m_pThread;
	m_pThread = NULL;
}

double CAreaJob::GetDone() const
{
	CSingleLock lock(&m_lock, TRUE);
	return m_dDone;
}

UINT CAreaJob::ThreadProc(LPVOID pParam)
{
	return ((CAreaJob*)pParam)->Run();
}

// Odd or even number of sides to the right.
BOOL CAreaJob::IsInside(double x, double y) const
{
	BOOL bInside = FALSE;
	int nCount = m_points.GetSize();
	for (int i = 0, j = nCount - 1; i < nCount; j = i++)
	{
		const CPoint& a = m_points[i];
		const CPoint& b = m_points[j];
		if ((a.y > y) != (b.y > y) && x < (double)(b.x - a.x) * (y - a.y) / (b.y - a.y) + a.x)
			bInside = !bInside;
	}
	return bInside;
}

// A fine grid over the points' rectangle is tested, line by line.
UINT CAreaJob::Run()
{
	CRect rect(m_points[0], m_points[0]);
	for (int i = 1; i < m_points.GetSize(); i++)
	{
		rect.left = min(rect.left, m_points[i].x);
		rect.top = min(rect.top, m_points[i].y);
		rect.right = max(rect.right, m_points[i].x);
		rect.bottom = max(rect.bottom, m_points[i].y);
	}
	int nInside = 0;
	for (int nRow = 0; nRow < nSteps; nRow++)
	{
		if (::WaitForSingleObject(m_eventStop, 0) == WAIT_OBJECT_0)
			return 1;
		double y = rect.top + (nRow + 0.5) * rect.Height() / nSteps;
		for (int nColumn = 0; nColumn < nSteps; nColumn++)
		{
			if (IsInside(rect.left + (nColumn + 0.5) * rect.Width() / nSteps, y))
				nInside++;
		}
		m_lock.Lock();
		m_dDone = (nRow + 1.0) / nSteps;
		m_lock.Unlock();
		if (nRow % (nSteps / 20) == 0)
			::PostMessage(m_hWndNotify, WM_AREA_PROGRESS, nRow * 100 / nSteps, 0);
	}
	AREA_RESULT* pResult = new AREA_RESULT;
	pResult->nSamples = nSteps * nSteps;
	pResult->dArea = (double)nInside / pResult->nSamples * rect.Width() * rect.Height();
	if (!::PostMessage(m_hWndNotify, WM_AREA_DONE, 100, (LPARAM)pResult))
		delete pResult;
	return 0;
}
