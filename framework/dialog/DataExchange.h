// What the parts of data exchange share.
#pragma once

#include "afxwin.h"
#include "afxres.h"

namespace fieldkit::detail {

/// Tells the user why, with %1 and %2 of the text replaced, and fails.
[[noreturn]] void AfxRefuse(CDataExchange* pDX, UINT nIDPrompt, LPCTSTR lpszFirst = nullptr,
                            LPCTSTR lpszSecond = nullptr);
CString AfxControlText(HWND hWndCtrl);
/// Leaves a control alone that shows this text already.
void AfxSetControlText(HWND hWndCtrl, const CString& str);

} // namespace fieldkit::detail
