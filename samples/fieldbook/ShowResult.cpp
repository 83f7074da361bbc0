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

void AddPoints(CResultDlg& dialog, UINT nPointId, const std::vector<CCoordinate>& points) {
    const CString strPoint = Text(nPointId);
    int nNumber = 0;
    for (const CCoordinate& point : points) {
        ++nNumber;
        CString strHeading = strPoint;
        if (points.size() > 1)
            strHeading.AppendFormat(L"%d", nNumber);
        dialog.AddString(strHeading);
        dialog.AddString(L"  N  " + point.GetNString());
        dialog.AddString(L"  E  " + point.GetEString());
    }
}

} // namespace

void ShowResult(CWnd& parent, UINT nTitleId, UINT nPointId, const CResult& result,
                const std::vector<CString>& notes) {
    const bool bFound = result.verdict == Verdict::Found;
    const CString strMessage =
        bFound ? Text(IDS_FOUND, static_cast<int>(result.points.size())) : Text(IDS_NOT_FOUND);
    CResultDlg dialog(strMessage, Text(nTitleId), &parent);
    if (!bFound)
        dialog.AddString(Text(TextId(IDS_VERDICT_FIRST, Verdict::SamePoint, result.verdict)));
    AddPoints(dialog, nPointId, result.points);
    for (const CString& strNote : notes)
        dialog.AddString(strNote);
    dialog.DoModal();
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
        const CString strFault = Text(TextId(IDS_FAULT_FIRST, LineFault::TooFewFields, bad.fault));
        dialog.AddString(Text(IDS_BAD_LINE, bad.nLine, strFault.GetString()));
    }
    if (nShown < nCount)
        dialog.AddString(Text(IDS_MORE_BAD_LINES, nCount - nShown));
    dialog.DoModal();
}
