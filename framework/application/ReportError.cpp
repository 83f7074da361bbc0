// What an exception tells the user.
#include "afxwin.h"

int CException::ReportError(UINT nType, UINT nMessageID) {
    constexpr UINT kMaxText = 512;
    TCHAR szText[kMaxText];
    if (GetErrorMessage(szText, kMaxText))
        return AfxMessageBox(szText, nType);
    CString strText;
    if (nMessageID == 0 || !strText.LoadString(nMessageID))
        strText.LoadString(AFX_IDP_NO_ERROR_AVAILABLE);
    return AfxMessageBox(strText, nType);
}
