#include "screens/ComputeDlg.h"

#include "screens/PolarDlg.h"
#include "screens/ReportDlg.h"
#include "screens/Resource.h"

// clang-format off
BEGIN_MESSAGE_MAP(CComputeDlg, CnDialog)
    ON_COMMAND_RANGE(IDC_COMPUTATION_FIRST, IDC_COMPUTATION_LAST, &CComputeDlg::OnComputation)
    ON_BN_CLICKED(IDC_POLAR, &CComputeDlg::OnPolar)
END_MESSAGE_MAP()
// clang-format on

CComputeDlg::CComputeDlg(CJob& job, CWnd* pParent)
    : CnDialog(IDD_COMPUTE, pParent), m_job(job), m_computations(*this, job) {
    SetOption(OptionOkButton);
}

BOOL CComputeDlg::OnInitDialog() {
    CnDialog::OnInitDialog();
    for (const UINT nId : {IDC_LINES, IDC_CIRCLES, IDC_COMBINED, IDC_ARC_CENTRE, IDC_POLAR, IDC_EXTENT})
        Anchor(nId, 0, 0, 50, 0);
    for (const UINT nId : {IDC_LINE_CIRCLE, IDC_BEARINGS, IDC_FOOT, IDC_CURVE, IDC_INVERSE, IDC_AREA})
        Anchor(nId, 50, 0, 100, 0);
    return TRUE;
}

void CComputeDlg::OnComputation(UINT nID) {
    using Computation = std::optional<CReport> (CComputations::*)();
    static constexpr Computation kComputations[] = {
        &CComputations::Lines,     &CComputations::LineCircle, &CComputations::Circles,
        &CComputations::Bearings,  &CComputations::Combined,   &CComputations::Foot,
        &CComputations::ArcCentre, &CComputations::Curve,      &CComputations::Inverse,
        &CComputations::Extent,    &CComputations::Area,
    };
    static_assert(std::size(kComputations) == IDC_COMPUTATION_LAST - IDC_COMPUTATION_FIRST + 1);
    const Computation computation = kComputations[nID - IDC_COMPUTATION_FIRST];
    if (const std::optional<CReport> report = (m_computations.*computation)())
        ShowReport(m_job, *report, *this);
}

void CComputeDlg::OnPolar() {
    CPolarDlg dialog(m_job, this);
    dialog.DoModal();
}
