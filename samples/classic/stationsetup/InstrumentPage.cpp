// InstrumentPage.cpp : model, prism and the air that is measured through
//

#include "stdafx.h"
#include "StationSetup.h"
#include "InstrumentPage.h"

// Tenths of a millimetre, in the order of the box.
static const int aConstants[] = { 0, -175, -300, 344 };

IMPLEMENT_DYNCREATE(CInstrumentPage, CPropertyPage)

CInstrumentPage::CInstrumentPage() : CPropertyPage(CInstrumentPage::IDD)
{
	m_psp.dwFlags &= ~PSP_HASHELP;
}

void CInstrumentPage::DoDataExchange(CDataExchange* pDX)
{
	SETTINGS& settings = theApp.m_settings;
	CPropertyPage::DoDataExchange(pDX);
	DDX_Control(pDX, IDC_MODEL, m_wndModel);
	DDX_Control(pDX, IDC_PRISM, m_wndPrism);
	DDX_Control(pDX, IDC_PRESSURE_SPIN, m_wndPressure);
	DDX_CBString(pDX, IDC_MODEL, settings.strModel);
	DDV_MaxChars(pDX, settings.strModel, 12);
	DDX_Text(pDX, IDC_SERIAL, settings.strSerial);
	DDV_MaxChars(pDX, settings.strSerial, 10);
	DDX_Text(pDX, IDC_PRESSURE, settings.nPressure);
	DDV_MinMaxInt(pDX, settings.nPressure, 500, 1100);
	DDX_CBIndex(pDX, IDC_PRISM, settings.nPrism);
	DDX_Text(pDX, IDC_CONSTANT, settings.nConstant);
	DDV_MinMaxInt(pDX, settings.nConstant, -999, 999);
}

BEGIN_MESSAGE_MAP(CInstrumentPage, CPropertyPage)
	ON_CBN_SELCHANGE(IDC_MODEL, &CInstrumentPage::OnChange)
	ON_CBN_EDITCHANGE(IDC_MODEL, &CInstrumentPage::OnChange)
	ON_CBN_SELCHANGE(IDC_PRISM, &CInstrumentPage::OnSelchangePrism)
	ON_EN_CHANGE(IDC_PRESSURE, &CInstrumentPage::OnChange)
	ON_NOTIFY(UDN_DELTAPOS, IDC_PRESSURE_SPIN, &CInstrumentPage::OnDeltaposPressure)
	ON_EN_CHANGE(IDC_CONSTANT, &CInstrumentPage::OnChange)
	ON_EN_CHANGE(IDC_SERIAL, &CInstrumentPage::OnChange)
END_MESSAGE_MAP()

BOOL CInstrumentPage::OnInitDialog()
{
	CPropertyPage::OnInitDialog();
	ASSERT(m_wndPrism.GetCount() == (int)_countof(aConstants));
	m_wndModel.LimitText(12);
	m_wndPressure.SetRange(500, 1100);
	UDACCEL accel[2] = { { 0, 1 }, { 2, 10 } };
	m_wndPressure.SetAccel(2, accel);
	((CEdit*)GetDlgItem(IDC_SERIAL))->SetLimitText(10);
	m_tips.Create(this);
	m_tips.AddTool(GetDlgItem(IDC_PRESSURE), IDS_TIP_PRESSURE);
	m_tips.AddTool(&m_wndPrism, IDS_TIP_PRISM);
	m_tips.Activate(TRUE);
	SetModified(FALSE);
	return TRUE;
}

BOOL CInstrumentPage::PreTranslateMessage(MSG* pMsg)
{
	if (m_tips.GetSafeHwnd() != NULL)
		m_tips.RelayEvent(pMsg);
	return CPropertyPage::PreTranslateMessage(pMsg);
}

void CInstrumentPage::OnChange()
{
	SetModified();
}

void CInstrumentPage::OnSelchangePrism()
{
	int nSel = m_wndPrism.GetCurSel();
	if (nSel != CB_ERR)
		SetDlgItemInt(IDC_CONSTANT, aConstants[nSel], TRUE);
	SetModified();
}

void CInstrumentPage::OnDeltaposPressure(NMHDR* pNMHDR, LRESULT* pResult)
{
	LPNMUPDOWN pNMUpDown = reinterpret_cast<LPNMUPDOWN>(pNMHDR);
	*pResult = pNMUpDown->iPos + pNMUpDown->iDelta > 1100 ? 1 : 0;
}

BOOL CInstrumentPage::OnApply()
{
	theApp.m_settings.Save();
	return CPropertyPage::OnApply();
}

void CInstrumentPage::OnReset()
{
	// what was not applied is forgotten
	theApp.m_settings.Load();
	CPropertyPage::OnReset();
}
