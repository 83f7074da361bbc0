#include "MainDlg.h"

#include "PointListDlg.h"
#include "Resource.h"
#include "ShowResult.h"
#include "Tesuvo.h"
#include "Text.h"

#include <algorithm>
#include <cmath>

static constexpr UINT WM_REPORT = WM_APP;

// clang-format off
BEGIN_MESSAGE_MAP(CMainDlg, CnDialog)
    ON_BN_CLICKED(IDC_LINES, &CMainDlg::OnLines)
    ON_BN_CLICKED(IDC_LINE_CIRCLE, &CMainDlg::OnLineCircle)
    ON_BN_CLICKED(IDC_CIRCLES, &CMainDlg::OnCircles)
    ON_BN_CLICKED(IDC_ARC_CENTRE, &CMainDlg::OnArcCentre)
    ON_BN_CLICKED(IDC_TANGENTS, &CMainDlg::OnTangents)
    ON_BN_CLICKED(IDC_POINT_LIST, &CMainDlg::OnPointList)
    ON_MESSAGE(WM_REPORT, &CMainDlg::OnReport)
END_MESSAGE_MAP()
// clang-format on

CMainDlg::CMainDlg(const CString& strPath)
    : CnDialog(IDD_MAIN, nullptr), m_strPath(strPath), m_journal(strPath), m_questions(*this, m_book) {
    // A main window that a stray Enter or Escape closes would be a nuisance.
    SetOption(OptionSwallowKeys);
}

BOOL CMainDlg::OnInitDialog() {
    CnDialog::OnInitDialog();
    SetDlgItemText(IDC_FILE_NAME, FileName());
    LoadPoints();
    SetDlgItemText(IDC_POINT_COUNT, Text(IDS_POINT_COUNT, m_book.GetCount()));
    PostMessage(WM_REPORT); // posted, so that it comes when the window is on the screen
    return TRUE;
}

CString CMainDlg::FileName() const {
    return m_strPath.Mid(std::max(m_strPath.ReverseFind(L'\\'), m_strPath.ReverseFind(L'/')) + 1);
}

void CMainDlg::LoadPoints() {
    try {
        CAsciiFile file;
        CFileException error;
        if (!file.Open(m_strPath, CFile::modeRead | CFile::shareDenyWrite, &error))
            AfxThrowFileException(error.m_cause, error.m_lOsError, m_strPath);
        m_badLines = ReadPoints(file, m_book);
    } catch (CFileException* e) {
        const int nCause = e->m_cause;
        e->Delete();
        const bool bMissing = nCause == CFileException::fileNotFound || nCause == CFileException::badPath;
        const CString strName = FileName();
        AfxMessageBox(bMissing ? Text(IDS_NO_FILE, strName.GetString())
                               : Text(IDS_NOT_READ, nCause, strName.GetString()));
    }
}

LRESULT CMainDlg::OnReport(WPARAM, LPARAM) {
    ShowBadLines(*this, m_badLines);
    return 0;
}

void CMainDlg::OnLines() {
    m_questions.SetTitle(IDS_LINES);
    CCoordinate a1, a2, b1, b2;
    if (!m_questions.AskPoint(IDS_LINE1_START, a1) || !m_questions.AskPoint(IDS_LINE1_END, a2) ||
        !m_questions.AskPoint(IDS_LINE2_START, b1) || !m_questions.AskPoint(IDS_LINE2_END, b2))
        return;
    ShowResult(*this, m_journal, IDS_LINES, IDS_INTERSECTION, IntersectLines(a1, a2, b1, b2));
}

void CMainDlg::OnLineCircle() {
    m_questions.SetTitle(IDS_LINE_CIRCLE);
    CCoordinate p1, p2, centre;
    double dRadius = 0;
    if (!m_questions.AskPoint(IDS_LINE_START, p1) || !m_questions.AskPoint(IDS_LINE_END, p2) ||
        !m_questions.AskPoint(IDS_CIRCLE_CENTRE, centre) ||
        !m_questions.AskRadius(IDS_CIRCLE_RADIUS, dRadius))
        return;
    ShowResult(*this, m_journal, IDS_LINE_CIRCLE, IDS_INTERSECTION,
               IntersectLineCircle(p1, p2, centre, dRadius));
}

void CMainDlg::OnCircles() {
    m_questions.SetTitle(IDS_CIRCLES);
    CCoordinate c1, c2;
    double dRadius1 = 0;
    double dRadius2 = 0;
    if (!m_questions.AskPoint(IDS_CIRCLE1_CENTRE, c1) ||
        !m_questions.AskRadius(IDS_CIRCLE1_RADIUS, dRadius1) ||
        !m_questions.AskPoint(IDS_CIRCLE2_CENTRE, c2) || !m_questions.AskRadius(IDS_CIRCLE2_RADIUS, dRadius2))
        return;
    ShowResult(*this, m_journal, IDS_CIRCLES, IDS_INTERSECTION, IntersectCircles(c1, dRadius1, c2, dRadius2));
}

void CMainDlg::OnArcCentre() {
    m_questions.SetTitle(IDS_ARC_CENTRE);
    CCoordinate start, end;
    double dAngle = 0;
    if (!m_questions.AskPoint(IDS_ARC_START, start) || !m_questions.AskPoint(IDS_ARC_END, end) ||
        !m_questions.AskAngle(IDS_ARC_ANGLE, dAngle))
        return;
    const CResult result = FindArcCentre(start, end, dAngle);
    std::vector<CString> notes;
    if (result.verdict == Verdict::Found)
        notes.push_back(Text(IDS_RADIUS_LINE, Distance(result.points[0], start)));
    ShowResult(*this, m_journal, IDS_ARC_CENTRE, IDS_CENTRE, result, notes);
}

void CMainDlg::OnTangents() {
    m_questions.SetTitle(IDS_TANGENTS);
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
    ShowResult(*this, m_journal, IDS_TANGENTS, IDS_CORNER, FindTangentCorners(start, centre, end), notes);
}

void CMainDlg::OnPointList() {
    CPointListDlg dialog(m_book, this);
    dialog.DoModal();
}
