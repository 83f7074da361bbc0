/// @file
/// The two forms of ReadString, over whatever hands out characters: `next(ch)` sets the next one, or
/// returns false at the end of the file.
#pragma once

#include "afxstr.h"

namespace fieldkit::detail {

/// A line with its end, or `nMax` - 1 characters. @return NULL at the end of the file
template <class Next>
LPTSTR AfxReadString(LPTSTR lpsz, UINT nMax, Next next) {
    if (lpsz == nullptr || nMax == 0)
        AfxThrowInvalidArgException();
    UINT nDone = 0;
    while (nDone + 1 < nMax && next(lpsz[nDone]))
        if (lpsz[nDone++] == L'\n')
            break;
    if (nDone == 0)
        return nullptr;
    lpsz[nDone] = L'\0';
    return lpsz;
}

/// A line without its end. @return zero at the end of the file
template <class Next>
BOOL AfxReadString(CString& rString, Next next) {
    CString strLine;
    wchar_t ch = L'\0';
    BOOL bAny = FALSE;
    for (; ch != L'\n' && next(ch); bAny = TRUE)
        if (ch != L'\n')
            strLine += ch;
    rString = std::move(strLine);
    return bAny;
}

} // namespace fieldkit::detail
