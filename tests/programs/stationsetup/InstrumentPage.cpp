// InstrumentPage.cpp : model, height and prism
//

#include "stdafx.h"
#include "StationSetup.h"
#include "InstrumentPage.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#endif

// Tenths of a millimetre, in the order of the box.
static const int aConstants[] = { 0, -175, -300, 344 };

IMPLEMENT_DYNCREATE(CInstrumentPage, CPropertyPage)

CInstrumentPage::CInstrumentPage() : CPropertyPage(CInstrumentPage::IDD)
{
}

CInstrumentPage::~CInstrumentPage()
{
}

void CInstrumentPage::DoDataExchange(CDataExchange* pDX)
{
	SETTINGS& settings = theApp.m_settings;
	CPropertyPage::DoDataExchange(pDX);
	DDX_Control(pDX, IDC_MODEL, m_wndModel);
	DDX_Control(pDX, IDC_PRISM, m_wndPrism);
	DDX_CBString(pDX, IDC_MODEL, settings.strModel);
	DDV_MaxChars(pDX, settings.strModel, 12);
	DDX_Text(pDX, IDC_SERIAL, settings.strSerial);
	DDV_MaxChars(pDX, settings.strSerial, 10);
	DDX_Text(pDX, IDC_HEIGHT, settings.dHeight);
	DDV_MinMaxDouble(pDX, settings.dHeight, 0.1, 3.0);
	DDX_CBIndex(pDX, IDC_PRISM, settings.nPrism);
	DDX_Text(pDX, IDC_CONSTANT, settings.nConstant);
	DDV_MinMaxInt(pDX, settings.nConstant, -999, 999);
	DDX_Check(pDX, IDC_TRACKING, settings.bTracking);
}

BEGIN_MESSAGE_MAP(CInstrumentPage, CPropertyPage)
	ON_CBN_SELCHANGE(IDC_MODEL, &CInstrumentPage::OnChange)
	ON_CBN_EDITCHANGE(IDC_MODEL, &CInstrumentPage::OnChange)
	ON_CBN_SELCHANGE(IDC_PRISM, &CInstrumentPage::OnSelchangePrism)
	ON_EN_CHANGE(IDC_HEIGHT, &CInstrumentPage::OnChange)
	ON_EN_CHANGE(IDC_CONSTANT, &CInstrumentPage::OnChange)
	ON_EN_CHANGE(IDC_SERIAL, &CInstrumentPage::OnChange)
	ON_BN_CLICKED(IDC_TRACKING, &CInstrumentPage::OnChange)
END_MESSAGE_MAP()

BOOL CInstrumentPage::OnInitDialog()
{
	CPropertyPage::OnInitDialog();
	ASSERT(m_wndPrism.GetCount() == (int)_countof(aConstants));
	m_wndModel.LimitText(12);
	((CEdit*)GetDlgItem(IDC_SERIAL))->SetLimitText(10);
	m_tips.Create(this);
	m_tips.AddTool(GetDlgItem(IDC_HEIGHT), IDS_TIP_HEIGHT);
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

BOOL CInstrumentPage::OnApply()
{
	theApp.m_settings.Save();
	return CPropertyPage::OnApply();
}
