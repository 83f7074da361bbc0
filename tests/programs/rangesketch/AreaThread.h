// AreaThread.h : the area of a sketch, computed beside the user's work
//

#pragma once

#include "SketchWnd.h"

// Progress in wParam (0 to 100); at the end the result, which the receiver deletes.
#define WM_AREA_PROGRESS	(WM_APP + 1)
#define WM_AREA_DONE		(WM_APP + 2)

struct AREA_RESULT
{
	double dArea;		// square pixels
	int nSamples;
};

// What the thread works on: a copy of the points, and the way to stop it.
class CAreaJob
{
public:
	CAreaJob();
	~CAreaJob();

	BOOL Start(const CPointArray& points, HWND hWndNotify);
	void Stop();
	BOOL IsRunning() const { return m_pThread != NULL; }
	// How much of the work is done, from 0 to 1.
	double GetDone() const;

protected:
	CWinThread* m_pThread;
	HWND m_hWndNotify;
	CPointArray m_points;
	CEvent m_eventStop;
	mutable CCriticalSection m_lock;
	double m_dDone;

	static UINT ThreadProc(LPVOID pParam);
	UINT Run();
	BOOL IsInside(double x, double y) const;
};
