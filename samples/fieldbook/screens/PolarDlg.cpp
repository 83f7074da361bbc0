#include "screens/PolarDlg.h"

#include "screens/PickDlg.h"
#include "screens/ReportDlg.h"
#include "screens/Messages.h"
#include "screens/Resource.h"
#include "Tesuvo.h"
#include "screens/Text.h"

// clang-format off
BEGIN_MESSAGE_MAP(CPolarDlg, CnDialog)
    ON_BN_CLICKED(IDC_COMPUTE, &CPolarDlg::OnCompute)
    ON_BN_CLICKED(IDC_PICK_LIST, &CPolarDlg::OnList)
    ON_BN_CLICKED(IDC_PICK_PLAN, &CPolarDlg::OnPlan)
END_MESSAGE_MAP()
// clang-format on

CPolarDlg::CPolarDlg(CJob& job, CWnd* pParent) : CnDialog(IDD_POLAR, pParent), m_job(job) {
    SetOption(OptionOkButton);
}

BOOL CPolarDlg::OnInitDialog() {
    CnDialog::OnInitDialog();
    Anchor(IDC_FROM, 0, 0, 100, 0);
    Anchor(IDC_PICK_LIST, 100, 0, 100, 0);
    Anchor(IDC_PICK_PLAN, 100, 0, 100, 0);
    Anchor(IDC_COMPUTE, 0, 0, 100, 0);
    AttachControls();
    m_job.history.GetStack().SetupList(&m_from);
    if (m_from.GetCount() > 0)
        m_from.SetCurSel(0); // the name entered last
    m_direction.SetAngle(0);
    m_turn.SetAngle(0);
    GetDlgItem(IDC_COMPUTE)->SetFocus(); // the panel comes with the first field that is tapped
    return FALSE;
}

void CPolarDlg::AttachControls() {
    constexpr int kTenths = 4; // any mode but that of whole seconds
    const int nMode = m_job.settings.bTenths ? kTenths : CAngleEdit::WHOLE_SECONDS;
    m_from.Attach(IDC_FROM, this, SipOptionMode0);
    m_direction.Attach(IDC_DIRECTION, this, nMode, SipOptionMode1);
    m_turn.Attach(IDC_TURN, this, nMode, SipOptionMode1);
    m_distance.Attach(IDC_DISTANCE, this, SipOptionMode1);
}

void CPolarDlg::OnList() {
    CPickDlg dialog(m_job, this);
    if (dialog.DoModal() == IDOK)
        m_from.SetWindowText(dialog.GetName());
}

void CPolarDlg::OnPlan() {
    const CString strName = PickFromPlan(m_job, *this);
    if (!strName.IsEmpty())
        m_from.SetWindowText(strName);
}

void CPolarDlg::OnCompute() {
    // An angle is taken over when its field loses the focus.
    GetDlgItem(IDC_COMPUTE)->SetFocus();
    CString strName;
    m_from.GetWindowText(strName);
    const CCoordinate* const pFrom = m_job.book.Find(strName);
    if (pFrom == nullptr || !HasPosition(*pFrom)) {
        const UINT nTextId = pFrom == nullptr ? IDS_UNKNOWN_POINT : IDS_POINT_WITHOUT_NE;
        TellError(Text(nTextId, strName.GetString()));
        return;
    }
    for (CDirectionEdit* const pField : {&m_direction, &m_turn})
        if (pField->GetFault() != AngleFault::None) {
            TellError(AngleProblem(pField->GetFault()));
            pField->SetFocus();
            return;
        }
    CString strDistance;
    m_distance.GetWindowText(strDistance);
    double dDistance = 0;
    if (!TVString2Double(&strDistance, &dDistance) || dDistance < 0) {
        TellError(Text(IDS_BAD_DISTANCE));
        return;
    }
    m_job.book.MarkUsed(strName);
    m_job.history.Add(strName);
    ShowReport(m_job, Report({strName, *pFrom}, dDistance), *this);
}

CReport CPolarDlg::Report(const CNamedPoint& from, double dDistance) {
    const double dDirection =
        m_direction.GetAngle() + (IsDlgButtonChecked(IDC_TURN_LEFT) ? -1 : 1) * m_turn.GetAngle();
    const CCoordinate point = FindPolarPoint(from.point, dDirection, dDistance);
    CReport report = MakeReport(IDS_POLAR, IDS_NEW_POINT, {Verdict::Found, {point}});
    report.notes.push_back({IDS_DIRECTION_LINE, CReportLine::Unit::Direction, dDirection});
    const auto typed = [this](int nId) {
        CString strText;
        GetDlgItemText(nId, strText);
        return strText;
    };
    const bool bLeft = IsDlgButtonChecked(IDC_TURN_LEFT) != 0;
    report.inputs = {
        {IDS_POLAR_FROM, 0, from.strName, from.point},
        {IDS_POLAR_DIRECTION, 0, typed(IDC_DIRECTION), {}},
        {static_cast<UINT>(bLeft ? IDS_POLAR_TURN_LEFT : IDS_POLAR_TURN), 0, typed(IDC_TURN), {}},
        {IDS_POLAR_DISTANCE, 0, typed(IDC_DISTANCE), {}}};
    report.drawing.AddPoint(from.strName, from.point, Role::Given);
    report.drawing.AddLine(from.point, point, false, Role::Given);
    return report;
}
