// AtmospherePage.cpp : temperature and pressure, and what they do to distances
//

#include "stdafx.h"
#include "StationSetup.h"
#include "AtmospherePage.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#endif

IMPLEMENT_DYNCREATE(CAtmospherePage, CPropertyPage)

CAtmospherePage::CAtmospherePage() : CPropertyPage(CAtmospherePage::IDD)
{
	m_psp.dwFlags &= ~PSP_HASHELP;
}

void CAtmospherePage::DoDataExchange(CDataExchange* pDX)
{
	SETTINGS& settings = theApp.m_settings;
	CPropertyPage::DoDataExchange(pDX);
	DDX_Control(pDX, IDC_TEMP_SLIDER, m_wndTemperature);
	DDX_Control(pDX, IDC_PRESSURE_SPIN, m_wndPressure);
	DDX_Control(pDX, IDC_PPM_BAR, m_wndBar);
	DDX_Slider(pDX, IDC_TEMP_SLIDER, settings.nTemperature);
	DDX_Text(pDX, IDC_PRESSURE, settings.nPressure);
	DDV_MinMaxInt(pDX, settings.nPressure, 500, 1100);
	DDX_Check(pDX, IDC_CURVATURE, settings.bCurvature);
}

BEGIN_MESSAGE_MAP(CAtmospherePage, CPropertyPage)
	ON_WM_HSCROLL()
	ON_EN_CHANGE(IDC_PRESSURE, &CAtmospherePage::OnChangePressure)
	ON_NOTIFY(UDN_DELTAPOS, IDC_PRESSURE_SPIN, &CAtmospherePage::OnDeltaposPressure)
	ON_BN_CLICKED(IDC_CURVATURE, &CAtmospherePage::OnCurvature)
END_MESSAGE_MAP()

BOOL CAtmospherePage::OnInitDialog()
{
	CPropertyPage::OnInitDialog();

	m_wndTemperature.SetRange(-30, 50, TRUE);
	m_wndTemperature.SetTicFreq(10);
	m_wndTemperature.SetPageSize(5);
	m_wndTemperature.SetPos(theApp.m_settings.nTemperature);
	m_wndPressure.SetRange(500, 1100);
	UDACCEL accel[2] = { { 0, 1 }, { 2, 10 } };
	m_wndPressure.SetAccel(2, accel);
	m_wndBar.SetRange(0, 200);
	m_wndBar.SetStep(1);

	CString strDate = AfxGetApp()->GetProfileString(_T("Use"), _T("Last"), _T("-"));
	SetDlgItemText(IDC_LAST_USED, strDate);
	ShowPpm();
	return TRUE;
}

BOOL CAtmospherePage::OnSetActive()
{
	ShowPpm();
	return CPropertyPage::OnSetActive();
}

// What the controls hold now, before it is checked.
void CAtmospherePage::ShowPpm()
{
	if (m_wndTemperature.GetSafeHwnd() == NULL)
		return;
	SETTINGS settings;
	settings.nTemperature = m_wndTemperature.GetPos();
	BOOL bTranslated = FALSE;
	settings.nPressure = GetDlgItemInt(IDC_PRESSURE, &bTranslated, FALSE);
	CString strText;
	strText.Format(_T("%d \u00B0C"), settings.nTemperature);
	SetDlgItemText(IDC_TEMPERATURE, strText);
	if (bTranslated)
		strText.Format(IDS_PPM, settings.GetPpm());
	else
		strText.Empty();
	SetDlgItemText(IDC_PPM, strText);
	m_wndBar.SetPos(bTranslated ? (int)settings.GetPpm() : 0);
}

void CAtmospherePage::OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar)
{
	if (pScrollBar != NULL && pScrollBar->GetSafeHwnd() == m_wndTemperature.GetSafeHwnd())
	{
		ShowPpm();
		SetModified();
	}
	CPropertyPage::OnHScroll(nSBCode, nPos, pScrollBar);
}

void CAtmospherePage::OnChangePressure()
{
	ShowPpm();
	SetModified();
}

void CAtmospherePage::OnDeltaposPressure(NMHDR* pNMHDR, LRESULT* pResult)
{
	LPNMUPDOWN pNMUpDown = reinterpret_cast<LPNMUPDOWN>(pNMHDR);
	*pResult = pNMUpDown->iPos + pNMUpDown->iDelta > 1100 ? 1 : 0;
}

void CAtmospherePage::OnCurvature()
{
	SetModified(TRUE);
}

BOOL CAtmospherePage::OnApply()
{
	theApp.m_settings.Save();
	return CPropertyPage::OnApply();
}

void CAtmospherePage::OnReset()
{
	// what was not applied is forgotten
	theApp.m_settings.Load();
	CPropertyPage::OnReset();
}
