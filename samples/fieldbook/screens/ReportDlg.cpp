#include "screens/ReportDlg.h"

#include "screens/BadLines.h"
#include "screens/NameDlg.h"
#include "screens/PlanDlg.h"
#include "screens/Messages.h"
#include "screens/Resource.h"
#include "screens/Text.h"

// clang-format off
BEGIN_MESSAGE_MAP(CReportDlg, CnDialog)
    ON_BN_CLICKED(IDC_SHOW_PLAN, &CReportDlg::OnPlan)
    ON_BN_CLICKED(IDC_KEEP, &CReportDlg::OnKeep)
END_MESSAGE_MAP()
// clang-format on

CReportDlg::CReportDlg(CJob& job, const CReport& report, CWnd* pParent)
    : CnDialog(IDD_REPORT, pParent), m_job(job), m_report(report) {
    SetOption(OptionOkButton);
}

void CReportDlg::DoDataExchange(CDataExchange* pDX) {
    CnDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_MESSAGE, m_message);
    DDX_Control(pDX, IDC_REPORT, m_list);
    DDX_Control(pDX, IDC_LEGEND, m_hint);
}

BOOL CReportDlg::OnInitDialog() {
    CnDialog::OnInitDialog();
    Anchor(IDC_MESSAGE, 0, 0, 100, 0);
    Anchor(IDC_REPORT, 0, 0, 100, 100);
    Anchor(IDC_LEGEND, 0, 100, 100, 100);
    Anchor(IDC_SHOW_PLAN, 0, 100, 50, 100);
    Anchor(IDC_KEEP, 50, 100, 100, 100);
    SetWindowText(Text(m_report.nTitleId));
    m_message.SetWindowText(MessageOf(m_report));
    m_list.Show(m_report, m_job.settings);
    const bool bPoints = !m_report.points.empty();
    m_hint.SetWindowText(bPoints ? Text(IDS_CHOOSE_SOLUTION) : CString());
    m_hint.ShowWindow(bPoints ? SW_SHOW : SW_HIDE);
    GetDlgItem(IDC_KEEP)->EnableWindow(bPoints);
    return TRUE;
}

void CReportDlg::OnPlan() {
    CPlanDlg dialog(m_report.drawing, Text(m_report.nTitleId), this);
    dialog.DoModal();
}

/// Asks until the name is good or the user cancels.
void CReportDlg::OnKeep() {
    CString strName = m_job.book.NextName(L"P");
    do {
        CNameDlg dialog(Text(IDS_NEW_NAME), Text(IDS_KEEP_POINT), m_job.history, this);
        dialog.SetName(strName);
        if (dialog.DoModal() != IDOK)
            return;
        strName = dialog.GetName();
    } while (!Keep(strName));
}

bool CReportDlg::Keep(const CString& strName) {
    const CNamedPoint point{strName, m_report.points[m_list.GetChosen()].point};
    const LineFault fault = CheckPoint(point, m_job.format.text.encoding);
    if (fault != LineFault::None) {
        TellError(Text(FaultTextId(fault)));
        return false;
    }
    if (!m_job.book.Add(point)) {
        TellError(Text(IDS_NAME_TAKEN, strName.GetString()));
        return false;
    }
    m_job.history.Add(strName);
    m_hint.SetWindowText(Text(IDS_ADDED, strName.GetString(), m_job.book.GetCount()));
    return true;
}

void ShowReport(CJob& job, const CReport& report, CWnd& parent) {
    job.journal.Append(Text(report.nTitleId), LinesOf(report, job.settings));
    CReportDlg dialog(job, report, &parent);
    dialog.DoModal();
}
