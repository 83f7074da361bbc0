#include "PolarDlg.h"

#include "AngleText.h"
#include "Compute.h"
#include "Resource.h"
#include "Tesuvo.h"
#include "Text.h"

// clang-format off
BEGIN_MESSAGE_MAP(CPolarDlg, CnDialog)
    ON_BN_CLICKED(IDC_COMPUTE, &CPolarDlg::OnCompute)
END_MESSAGE_MAP()
// clang-format on

CPolarDlg::CPolarDlg(CJob& job, CWnd* pParent) : CnDialog(IDD_POLAR, pParent), m_job(job) {
    SetOption(OptionOkButton);
}

BOOL CPolarDlg::OnInitDialog() {
    CnDialog::OnInitDialog();
    AttachControls();
    for (const CNamedPoint& point : m_job.book.GetPoints())
        m_from.AddString(point.strName);
    m_from.SetCurSel(0);
    m_direction.SetAngle(0);
    m_turn.SetAngle(0);
    return TRUE;
}

void CPolarDlg::AttachControls() {
    constexpr int TENTHS = 4; // any mode but that of whole seconds
    const int nMode = m_job.settings.bTenths ? TENTHS : CAngleEdit::WHOLE_SECONDS;
    m_from.Attach(IDC_FROM, this, SipOptionMode0);
    m_direction.Attach(IDC_DIRECTION, this, nMode, SipOptionMode1);
    m_turn.Attach(IDC_TURN, this, nMode, SipOptionMode1);
    m_distance.Attach(IDC_DISTANCE, this, SipOptionMode1);
    m_result.SubclassDlgItem(IDC_RESULT, this);
    m_resultN.SubclassDlgItem(IDC_RESULT_N, this);
    m_resultE.SubclassDlgItem(IDC_RESULT_E, this);
    m_resultN.SetOption(0);
    m_resultE.SetOption(0);
}

void CPolarDlg::OnCompute() {
    // An angle is taken over when its field loses the focus.
    GetDlgItem(IDC_COMPUTE)->SetFocus();
    CString strName;
    m_from.GetWindowText(strName);
    const CCoordinate* pFrom = m_job.book.Find(strName);
    if (pFrom == nullptr) {
        AfxMessageBox(Text(IDS_UNKNOWN_POINT, strName.GetString()));
        return;
    }
    CString strDistance;
    m_distance.GetWindowText(strDistance);
    double dDistance = 0;
    if (!TVString2Double(&strDistance, &dDistance) || dDistance < 0) {
        AfxMessageBox(Text(IDS_BAD_DISTANCE));
        return;
    }
    const double dDirection = m_direction.GetAngle() + m_turn.GetAngle();
    m_job.book.MarkUsed(strName);
    Show(DirectionText(dDirection, m_job.settings.bTenths != 0),
         FindPolarPoint(*pFrom, dDirection, dDistance));
}

void CPolarDlg::Show(const CString& strDirection, const CCoordinate& point) {
    const CString strLine = Text(IDS_DIRECTION_LINE, strDirection.GetString());
    const CString strN = L"N  " + point.GetNString();
    const CString strE = L"E  " + point.GetEString();
    m_result.SetWindowText(strLine);
    m_resultN.SetWindowText(strN);
    m_resultE.SetWindowText(strE);
    m_job.journal.Append(Text(IDS_POLAR), {strLine, L"  " + strN, L"  " + strE});
}
