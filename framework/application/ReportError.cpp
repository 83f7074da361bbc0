// What an exception tells the user.
#include "afxwin.h"

int CException::ReportError(UINT nType, UINT nMessageID) {
    constexpr UINT kMaxText = 512;
    TCHAR szText[kMaxText];
    if (GetErrorMessage(szText, kMaxText))
        return AfxMessageBox(szText, nType);
    CString strText;
    if (nMessageID == 0 || !strText.LoadString(nMessageID))
        strText = _T("An unknown error occurred.");
    return AfxMessageBox(strText, nType);
}
