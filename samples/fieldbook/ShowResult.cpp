#include "ShowResult.h"

#include "Resource.h"
#include "Text.h"
#include "dialogs/ResultDlg.h"

#include <algorithm>

namespace {

/// The string id for a value of an enumeration whose texts begin at nFirstId with `first`.
template <class Enum>
UINT TextId(UINT nFirstId, Enum first, Enum value) {
    return nFirstId + static_cast<UINT>(value) - static_cast<UINT>(first);
}

/// The points as lines; several are numbered.
std::vector<CString> PointLines(UINT nPointId, const std::vector<CCoordinate>& points) {
    const CString strPoint = Text(nPointId);
    std::vector<CString> lines;
    int nNumber = 0;
    for (const CCoordinate& point : points) {
        ++nNumber;
        CString strHeading = strPoint;
        if (points.size() > 1)
            strHeading.AppendFormat(L"%d", nNumber);
        lines.push_back(strHeading);
        lines.push_back(L"  N  " + point.GetNString());
        lines.push_back(L"  E  " + point.GetEString());
    }
    return lines;
}

} // namespace

void ShowResult(CWnd& parent, CJournal& journal, UINT nTitleId, UINT nPointId, const CResult& result,
                const std::vector<CString>& notes) {
    const bool bFound = result.verdict == Verdict::Found;
    std::vector<CString> lines = PointLines(nPointId, result.points);
    if (!bFound)
        lines.push_back(Text(TextId(IDS_VERDICT_FIRST, Verdict::SamePoint, result.verdict)));
    lines.insert(lines.end(), notes.begin(), notes.end());

    const CString strTitle = Text(nTitleId);
    journal.Append(strTitle, lines);
    const CString strMessage =
        bFound ? Text(IDS_FOUND, static_cast<int>(result.points.size())) : Text(IDS_NOT_FOUND);
    CResultDlg dialog(strMessage, strTitle, &parent);
    for (const CString& strLine : lines)
        dialog.AddString(strLine);
    dialog.DoModal();
}

UINT FaultTextId(LineFault fault) {
    return TextId(IDS_FAULT_FIRST, LineFault::TooFewFields, fault);
}

void ShowBadLines(CWnd& parent, const std::vector<CBadLine>& badLines) {
    if (badLines.empty())
        return;
    const auto nCount = static_cast<int>(badLines.size());
    constexpr int MOST_SHOWN = 100; // nobody reads more, and a file of another kind has thousands
    const int nShown = std::min(nCount, MOST_SHOWN);
    CResultDlg dialog(Text(IDS_BAD_LINES, nCount), Text(IDS_BAD_LINES_TITLE), &parent);
    for (int i = 0; i < nShown; ++i) {
        const CBadLine& bad = badLines[static_cast<size_t>(i)];
        const CString strFault = Text(FaultTextId(bad.fault));
        dialog.AddString(Text(IDS_BAD_LINE, bad.nLine, strFault.GetString()));
    }
    if (nShown < nCount)
        dialog.AddString(Text(IDS_MORE_BAD_LINES, nCount - nShown));
    dialog.DoModal();
}
