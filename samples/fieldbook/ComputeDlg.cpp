#include "ComputeDlg.h"

#include "Resource.h"
#include "ShowResult.h"
#include "Text.h"

#include <cmath>

// clang-format off
BEGIN_MESSAGE_MAP(CComputeDlg, CnDialog)
    ON_BN_CLICKED(IDC_LINES, &CComputeDlg::OnLines)
    ON_BN_CLICKED(IDC_LINE_CIRCLE, &CComputeDlg::OnLineCircle)
    ON_BN_CLICKED(IDC_CIRCLES, &CComputeDlg::OnCircles)
    ON_BN_CLICKED(IDC_ARC_CENTRE, &CComputeDlg::OnArcCentre)
    ON_BN_CLICKED(IDC_TANGENTS, &CComputeDlg::OnTangents)
END_MESSAGE_MAP()
// clang-format on

CComputeDlg::CComputeDlg(CJob& job, CWnd* pParent)
    : CnDialog(IDD_COMPUTE, pParent), m_job(job), m_questions(*this, job.book) {
    SetOption(OptionOkButton);
}

void CComputeDlg::Show(UINT nTitleId, UINT nPointId, const CResult& result,
                       const std::vector<CString>& notes) {
    for (const CString& strName : m_questions.GetPointNames())
        m_job.book.MarkUsed(strName);
    ShowResult(*this, m_job.journal, nTitleId, nPointId, result, notes);
}

void CComputeDlg::OnLines() {
    m_questions.Begin(IDS_LINES);
    CCoordinate a1, a2, b1, b2;
    if (!m_questions.AskPoint(IDS_LINE1_START, a1) || !m_questions.AskPoint(IDS_LINE1_END, a2) ||
        !m_questions.AskPoint(IDS_LINE2_START, b1) || !m_questions.AskPoint(IDS_LINE2_END, b2))
        return;
    Show(IDS_LINES, IDS_INTERSECTION, IntersectLines(a1, a2, b1, b2));
}

void CComputeDlg::OnLineCircle() {
    m_questions.Begin(IDS_LINE_CIRCLE);
    CCoordinate p1, p2, centre;
    double dRadius = 0;
    if (!m_questions.AskPoint(IDS_LINE_START, p1) || !m_questions.AskPoint(IDS_LINE_END, p2) ||
        !m_questions.AskPoint(IDS_CIRCLE_CENTRE, centre) ||
        !m_questions.AskRadius(IDS_CIRCLE_RADIUS, dRadius))
        return;
    Show(IDS_LINE_CIRCLE, IDS_INTERSECTION, IntersectLineCircle(p1, p2, centre, dRadius));
}

void CComputeDlg::OnCircles() {
    m_questions.Begin(IDS_CIRCLES);
    CCoordinate c1, c2;
    double dRadius1 = 0;
    double dRadius2 = 0;
    if (!m_questions.AskPoint(IDS_CIRCLE1_CENTRE, c1) ||
        !m_questions.AskRadius(IDS_CIRCLE1_RADIUS, dRadius1) ||
        !m_questions.AskPoint(IDS_CIRCLE2_CENTRE, c2) || !m_questions.AskRadius(IDS_CIRCLE2_RADIUS, dRadius2))
        return;
    Show(IDS_CIRCLES, IDS_INTERSECTION, IntersectCircles(c1, dRadius1, c2, dRadius2));
}

void CComputeDlg::OnArcCentre() {
    m_questions.Begin(IDS_ARC_CENTRE);
    CCoordinate start, end;
    double dAngle = 0;
    if (!m_questions.AskPoint(IDS_ARC_START, start) || !m_questions.AskPoint(IDS_ARC_END, end) ||
        !m_questions.AskAngle(IDS_ARC_ANGLE, dAngle))
        return;
    const CResult result = FindArcCentre(start, end, dAngle);
    std::vector<CString> notes;
    if (result.verdict == Verdict::Found)
        notes.push_back(Text(IDS_RADIUS_LINE, Distance(result.points[0], start)));
    Show(IDS_ARC_CENTRE, IDS_CENTRE, result, notes);
}

void CComputeDlg::OnTangents() {
    m_questions.Begin(IDS_TANGENTS);
    CCoordinate start, centre, end;
    if (!m_questions.AskPoint(IDS_CURVE_START, start) || !m_questions.AskPoint(IDS_CURVE_CENTRE, centre) ||
        !m_questions.AskPoint(IDS_CURVE_END, end))
        return;
    const double dStart = Distance(centre, start);
    const double dEnd = Distance(centre, end);
    std::vector<CString> notes{Text(IDS_RADIUS_START, dStart), Text(IDS_RADIUS_END, dEnd)};
    constexpr double RADIUS_LIMIT = 0.010; // metres
    if (std::fabs(dStart - dEnd) > RADIUS_LIMIT)
        notes.push_back(Text(IDS_RADII_DIFFER));
    Show(IDS_TANGENTS, IDS_CORNER, FindTangentCorners(start, centre, end), notes);
}
