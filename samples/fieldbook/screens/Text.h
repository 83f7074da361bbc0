/// @file
/// Texts from the string table.
#pragma once

#include <afx.h>

/// The string resource of an id; with arguments it is the format for them.
template <class... Args>
CString Text(UINT nId, Args... args) {
    CString strText;
    strText.LoadString(nId);
    if constexpr (sizeof...(args) > 0) {
        CString strFormatted;
        strFormatted.Format(strText, args...);
        return strFormatted;
    } else {
        return strText;
    }
}
