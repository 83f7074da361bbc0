#include "MessageText.h"

#ifdef _WIN32

#include "afxwin.h"

void fieldkit::detail::AfxMessageText(UINT nID, LPTSTR lpszText, UINT nMaxText) {
    if (AfxFindStringResourceHandle(nID) != nullptr)
        AfxLoadString(nID, lpszText, nMaxText);
}

#else

void fieldkit::detail::AfxMessageText(UINT, LPTSTR, UINT) {}

#endif
