#include "screens/Report.h"

#include "compute/ValueText.h"
#include "screens/Resource.h"
#include "screens/Text.h"

static_assert(IDS_VERDICT_LAST - IDS_VERDICT_FIRST + 2 == kVerdictCount, "a text for each verdict but Found");

namespace {

CString ValueText(const CReportLine& line, const CSettings& settings) {
    CString strText;
    switch (line.unit) {
    case CReportLine::Unit::Length:
        return LengthText(line.dValue, settings.nDecimals);
    case CReportLine::Unit::Direction:
        return DirectionText(line.dValue, settings.bTenths != 0);
    case CReportLine::Unit::Number:
        strText.Format(L"%.6f", line.dValue);
        return strText;
    case CReportLine::Unit::Percent:
        return LengthText(line.dValue * 100, 3) + L"%";
    case CReportLine::Unit::OneIn:
        strText.Format(L"1:%.1f", 1 / line.dValue);
        return strText;
    default:
        return line.strName;
    }
}

/// A question without its explanations: "円の中心の点名" asks for "円の中心", and
/// "Radius of the circle (m)" for "Radius of the circle".
CString LabelOf(const CReportInput& input) {
    const CString strName = Text(IDS_QUESTION_SUFFIX);
    CString strLabel = Text(input.nQuestionId, input.nNumber);
    const int nEnd = strLabel.FindOneOf(L"\n（(,\x3000");
    strLabel = nEnd < 0 ? strLabel : strLabel.Left(nEnd).TrimRight();
    const int nName = strLabel.GetLength() - strName.GetLength();
    return nName > 0 && strLabel.Mid(nName) == strName ? strLabel.Left(nName) : strLabel;
}

} // namespace

CReport MakeReport(UINT nTitleId, UINT nPointId, const CResult& result) {
    CReport report;
    report.nTitleId = nTitleId;
    if (result.verdict != Verdict::Found) {
        const UINT nVerdict = static_cast<UINT>(result.verdict) - static_cast<UINT>(Verdict::SamePoint);
        report.nMessageId = IDS_NOT_FOUND;
        report.notes.push_back({IDS_VERDICT_FIRST + nVerdict});
        return report;
    }
    report.nMessageId = IDS_FOUND;
    for (const CCoordinate& point : result.points) {
        CString strName = Text(nPointId);
        if (result.points.size() > 1)
            strName.AppendFormat(L"%d", static_cast<int>(report.points.size()) + 1);
        report.points.push_back({strName, point});
        report.drawing.AddPoint(strName, point, Role::Result);
    }
    return report;
}

CReport MakeReport(UINT nTitleId, const std::vector<CReportLine>& notes) {
    CReport report;
    report.nTitleId = nTitleId;
    report.nMessageId = IDS_COMPUTED;
    report.notes = notes;
    return report;
}

CString MessageOf(const CReport& report) {
    return Text(report.nMessageId, static_cast<int>(report.points.size()));
}

CString TextOf(const CReportLine& line, const CSettings& settings) {
    return Text(line.nTextId, ValueText(line, settings).GetString());
}

std::vector<CString> LinesOf(const CNamedPoint& point, const CSettings& settings) {
    return {point.strName, L"  N  " + LengthText(point.point.GetN(), settings.nDecimals),
            L"  E  " + LengthText(point.point.GetE(), settings.nDecimals)};
}

std::vector<CString> LinesOf(const CReport& report, const CSettings& settings) {
    std::vector<CString> lines;
    for (const CNamedPoint& point : report.points)
        for (const CString& strLine : LinesOf(point, settings))
            lines.push_back(strLine);
    for (const CReportLine& note : report.notes)
        lines.push_back(TextOf(note, settings));
    if (!report.inputs.empty())
        lines.push_back(Text(IDS_INPUTS));
    for (const CReportInput& input : report.inputs) {
        lines.push_back(L"  " + LabelOf(input) + L"  " + input.strAnswer);
        if (!input.point)
            continue;
        lines.push_back(L"  N  " + LengthText(input.point->GetN(), settings.nDecimals));
        lines.push_back(L"  E  " + LengthText(input.point->GetE(), settings.nDecimals));
    }
    return lines;
}
