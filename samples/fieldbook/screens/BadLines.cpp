#include "screens/BadLines.h"

#include "screens/Resource.h"
#include "screens/Text.h"
#include "dialogs/ResultDlg.h"

#include <algorithm>

static_assert(IDS_FAULT_LAST - IDS_FAULT_FIRST + 1 == static_cast<int>(LineFault::BadCode),
              "a text for each fault but None");

UINT FaultTextId(LineFault fault) {
    return IDS_FAULT_FIRST + static_cast<UINT>(fault) - static_cast<UINT>(LineFault::TooFewFields);
}

namespace {

/// @param textOf a line of the list
template <class Line, class TextOf>
void ShowLines(CWnd& parent, UINT nTitleId, const std::vector<Line>& lines, TextOf textOf) {
    const auto nCount = static_cast<int>(lines.size());
    constexpr int kMostShown = 100; // nobody reads more, and a file of another kind has thousands
    const int nShown = std::min(nCount, kMostShown);
    CResultDlg dialog(Text(nTitleId, nCount), Text(IDS_BAD_LINES_TITLE), &parent);
    for (int i = 0; i < nShown; ++i)
        dialog.AddString(textOf(lines[static_cast<size_t>(i)]));
    if (nShown < nCount)
        dialog.AddString(Text(IDS_MORE_BAD_LINES, nCount - nShown));
    dialog.DoModal();
}

} // namespace

void ShowUnreadableLines(CWnd& parent, const std::vector<int>& lines) {
    ShowLines(parent, IDS_NO_TEXT, lines,
              [](int nLine) { return Text(IDS_BAD_LINE, nLine, Text(IDS_FAULT_NO_TEXT).GetString()); });
}

void ShowBadLines(CWnd& parent, const std::vector<CBadLine>& badLines) {
    if (!badLines.empty())
        ShowLines(parent, IDS_BAD_LINES, badLines, [](const CBadLine& bad) {
            return Text(IDS_BAD_LINE, bad.nLine, Text(FaultTextId(bad.fault)).GetString());
        });
}
