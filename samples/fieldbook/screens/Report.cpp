#include "screens/Report.h"

#include "screens/Resource.h"
#include "screens/Text.h"

CReport MakeReport(UINT nTitleId, UINT nPointId, const CResult& result) {
    CReport report;
    report.nTitleId = nTitleId;
    if (result.verdict != Verdict::Found) {
        const UINT nVerdict = static_cast<UINT>(result.verdict) - static_cast<UINT>(Verdict::SamePoint);
        report.strMessage = Text(IDS_NOT_FOUND);
        report.notes.push_back(Text(IDS_VERDICT_FIRST + nVerdict));
        return report;
    }
    report.strMessage = Text(IDS_FOUND, static_cast<int>(result.points.size()));
    for (const CCoordinate& point : result.points) {
        CString strName = Text(nPointId);
        if (result.points.size() > 1)
            strName.AppendFormat(L"%d", static_cast<int>(report.points.size()) + 1);
        report.points.push_back({strName, point});
        report.drawing.AddPoint(strName, point, Role::Result);
    }
    return report;
}

std::vector<CString> LinesOf(const CNamedPoint& point) {
    return {point.strName, L"  N  " + point.point.GetNString(), L"  E  " + point.point.GetEString()};
}

std::vector<CString> LinesOf(const CReport& report) {
    std::vector<CString> lines;
    for (const CNamedPoint& point : report.points)
        for (const CString& strLine : LinesOf(point))
            lines.push_back(strLine);
    lines.insert(lines.end(), report.notes.begin(), report.notes.end());
    return lines;
}
