#include "screens/JournalGroups.h"

#include <algorithm>

namespace {

bool Mentions(const CJournalEntry& entry, const CString& strPartInCapitals) {
    return std::any_of(entry.lines.begin(), entry.lines.end(), [&](const CString& strLine) {
        return CString(strLine).MakeUpper().Find(strPartInCapitals) >= 0;
    });
}

} // namespace

std::vector<CJournalGroup> GroupByTitle(const std::vector<CJournalEntry>& entries, const CString& strPart) {
    const CString strCapitals = CString(strPart).MakeUpper();
    std::vector<CJournalGroup> groups;
    for (size_t i = 0; i < entries.size(); ++i) {
        if (!strCapitals.IsEmpty() && !Mentions(entries[i], strCapitals))
            continue;
        const CString& strTitle = entries[i].strTitle;
        auto it = std::find_if(groups.begin(), groups.end(),
                               [&](const CJournalGroup& group) { return group.strTitle == strTitle; });
        if (it == groups.end())
            it = groups.insert(it, CJournalGroup{strTitle, {}});
        it->entries.push_back(i);
    }
    return groups;
}

std::pair<CString, CString> SplitLine(const CString& strLine) {
    CString strItem = strLine;
    strItem.Trim();
    CString strValue;
    const int nGap = strItem.Find(L"  ");
    if (nGap >= 0) {
        strValue = strItem.Mid(nGap);
        strValue.Trim();
        strItem = strItem.Left(nGap);
    }
    return {strItem, strValue};
}
