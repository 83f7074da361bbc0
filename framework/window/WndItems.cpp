// CWnd: the items of dialogs and their data.
#include "DialogKeys.h"
#include "Resources.h"
#include "Uncaught.h"
#include "WndProc.h"

#include <utility>

using namespace fieldkit::detail;

void CWnd::SetDlgItemText(int nID, LPCTSTR lpszString) {
    ::SetDlgItemText(m_hWnd, nID, lpszString);
}
int CWnd::GetDlgItemText(int nID, LPTSTR lpStr, int nMaxCount) const {
    return static_cast<int>(::GetDlgItemText(m_hWnd, nID, lpStr, nMaxCount));
}
int CWnd::GetDlgItemText(int nID, CString& rString) const {
    rString.Empty();
    if (const CWnd* pItem = GetDlgItem(nID))
        pItem->GetWindowText(rString);
    return rString.GetLength();
}
void CWnd::SetDlgItemInt(int nID, UINT nValue, BOOL bSigned) {
    ::SetDlgItemInt(m_hWnd, nID, nValue, bSigned);
}
UINT CWnd::GetDlgItemInt(int nID, BOOL* lpTrans, BOOL bSigned) const {
    return ::GetDlgItemInt(m_hWnd, nID, lpTrans, bSigned);
}
LRESULT CWnd::SendDlgItemMessage(int nID, UINT message, WPARAM wParam, LPARAM lParam) {
    return ::SendDlgItemMessage(m_hWnd, nID, message, wParam, lParam);
}
void CWnd::CheckDlgButton(int nIDButton, UINT nCheck) {
    ::CheckDlgButton(m_hWnd, nIDButton, nCheck);
}
UINT CWnd::IsDlgButtonChecked(int nIDButton) const {
    return ::IsDlgButtonChecked(m_hWnd, nIDButton);
}
void CWnd::CheckRadioButton(int nIDFirst, int nIDLast, int nIDCheckButton) {
    ::CheckRadioButton(m_hWnd, nIDFirst, nIDLast, nIDCheckButton);
}
int CWnd::GetCheckedRadioButton(int nIDFirst, int nIDLast) const {
    for (int nID = nIDFirst; nID <= nIDLast; ++nID)
        if (IsDlgButtonChecked(nID) != 0)
            return nID;
    return 0;
}
BOOL CWnd::IsDialogMessage(LPMSG lpMsg) {
    CDialogKeys::Prepare(lpMsg);
    return ::IsDialogMessage(m_hWnd, lpMsg);
}

namespace {

// Messages as dialog editors write them into RT_DLGINIT, whatever the control's own are.
constexpr WORD kInitLbAddstring = 0x0401;
constexpr WORD kInitCbAddstring = 0x0403;

#pragma pack(push, 1)
struct CInitEntry {
    WORD nID; ///< 0 ends the data.
    WORD nMessage;
    DWORD dwLength;
};
#pragma pack(pop)

} // namespace

BOOL CWnd::ExecuteDlgInit(LPCTSTR lpszResourceName) {
    const std::span<const BYTE> resource = AfxFindResource(lpszResourceName, MAKEINTRESOURCE(240));
    if (resource.empty())
        return TRUE; // most dialogs have none
    return ExecuteDlgInit(resource.data(), resource.size());
}

BOOL CWnd::ExecuteDlgInit(const void* lpResource, size_t nSize) {
    const auto* p = static_cast<const BYTE*>(lpResource);
    while (nSize >= sizeof(CInitEntry)) {
        const auto* pEntry = reinterpret_cast<const CInitEntry*>(p);
        if (pEntry->nID == 0)
            return TRUE;
        p += sizeof(CInitEntry);
        nSize -= sizeof(CInitEntry);
        if (pEntry->dwLength > nSize)
            return FALSE;
        nSize -= pEntry->dwLength;
        const UINT message = pEntry->nMessage == kInitLbAddstring   ? LB_ADDSTRING
                             : pEntry->nMessage == kInitCbAddstring ? CB_ADDSTRING
                                                                    : 0U;
        if (message != 0) // the texts are 8-bit
            ::SendDlgItemMessageA(m_hWnd, pEntry->nID, message, 0, reinterpret_cast<LPARAM>(p));
        p += pEntry->dwLength;
    }
    return TRUE;
}

// --- Data exchange ---------------------------------------------------------------------------

void CWnd::DoDataExchange(CDataExchange*) {}

namespace {

/// Lets the control be another one while it exists.
class CLockout {
public:
    CLockout(HWND& hLockout, HWND hWnd) : m_hLockout(hLockout), m_hOuter(std::exchange(hLockout, hWnd)) {}
    ~CLockout() { m_hLockout = m_hOuter; }
    CLockout(const CLockout&) = delete;
    CLockout& operator=(const CLockout&) = delete;

private:
    HWND& m_hLockout;
    HWND m_hOuter;
};

} // namespace

BOOL CWnd::UpdateData(BOOL bSaveAndValidate) {
    // While values are written, the controls' own change notifications are not the user's.
    HWND& hLockout = CThreadState::Get().m_hLockoutNotifyWindow;
    if (hLockout == m_hWnd)
        return FALSE; // an exchange that is under way may not be started again from inside
    const CLockout lockout(hLockout, m_hWnd);
    BOOL bOk = FALSE;
    CDataExchange dx(this, bSaveAndValidate);
    try {
        DoDataExchange(&dx);
        bOk = TRUE;
    } catch (CException* e) {
        AfxTellException(e);
    }
    return bOk;
}
