#include "screens/BadLines.h"

#include "screens/Resource.h"
#include "screens/Text.h"
#include "dialogs/ResultDlg.h"

#include <algorithm>

UINT FaultTextId(LineFault fault) {
    return IDS_FAULT_FIRST + static_cast<UINT>(fault) - static_cast<UINT>(LineFault::TooFewFields);
}

void ShowBadLines(CWnd& parent, const std::vector<CBadLine>& badLines) {
    if (badLines.empty())
        return;
    const auto nCount = static_cast<int>(badLines.size());
    constexpr int kMostShown = 100; // nobody reads more, and a file of another kind has thousands
    const int nShown = std::min(nCount, kMostShown);
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
