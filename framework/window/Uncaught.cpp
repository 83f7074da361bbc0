#include "Uncaught.h"

#include "ThreadState.h"

#include <utility>

using namespace fieldkit::detail;

namespace {

constexpr int kMaxText = 512;

/// @return false if the function threw
template <class Function>
bool Succeeds(Function function) noexcept {
    try {
        function();
        return true;
    } catch (CException* e) {
        e->Delete();
    } catch (...) { // of whatever kind: there is nobody left to tell
    }
    return false;
}

/// An exception of the standard library as one of the framework's. Needs no memory.
class CStdException : public CException {
public:
    /// @param pszWhat empty for none
    explicit CStdException(const char* pszWhat) : CException(FALSE) {
        if (::MultiByteToWideChar(CP_ACP, 0, pszWhat, -1, m_szText, kMaxText) == 0 || m_szText[0] == 0)
            AfxLoadString(AFX_IDS_USER_EXCEPTION, m_szText, kMaxText);
    }
    BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, UINT* pnHelpContext) const override {
        if (pnHelpContext != nullptr)
            *pnHelpContext = 0;
        if (lpszError == nullptr || nMaxError == 0)
            return FALSE;
        ::lstrcpyn(lpszError, m_szText, static_cast<int>(nMaxError));
        return TRUE;
    }

private:
    WCHAR m_szText[kMaxText] = {};
};

} // namespace

void fieldkit::detail::AfxTellException(CException* e) noexcept {
    WCHAR szText[kMaxText] = {};
    bool bCancelled = false;
    if (!Succeeds([&] {
            bCancelled = e->IsKindOf(RUNTIME_CLASS(CUserException)) != FALSE; // the user knows already
            if (!e->GetErrorMessage(szText, kMaxText))
                szText[0] = 0;
        }))
        AfxLoadString(AFX_IDS_MEMORY_EXCEPTION, szText, kMaxText);
    e->Delete();
    bool& bTelling = CThreadState::Get().m_bTelling;
    if (bCancelled || bTelling)
        return;
    bTelling = true;
    // The application may show messages in its own way; if that needs more than there is, the system does.
    if (!Succeeds([&] { AfxMessageBox(szText, MB_OK | MB_ICONSTOP); }))
        ::MessageBox(nullptr, szText, AfxGetAppName(), MB_OK | MB_ICONSTOP | MB_TASKMODAL);
    bTelling = false;
}

LRESULT CWinThread::ProcessWndProcException(CException* e, const MSG* pMsg) {
    if (pMsg->message == WM_PAINT)
        ::ValidateRect(pMsg->hwnd, nullptr); // or it would come again for ever
    AfxTellException(e);
    return pMsg->message == WM_CREATE ? -1 : 0;
}

LRESULT AFXAPI AfxProcessException(CException* e, const MSG* pMsg) noexcept {
    LRESULT lResult = pMsg->message == WM_CREATE ? -1 : 0;
    Succeeds([&] {
        if (CWinThread* pThread = AfxGetThread())
            lResult = pThread->ProcessWndProcException(e, pMsg);
        else
            AfxTellException(e);
    });
    return lResult;
}

LRESULT AFXAPI AfxProcessStdException(const char* pszWhat, const MSG* pMsg) noexcept {
    CMemoryException memory(FALSE);
    CStdException other(pszWhat != nullptr ? pszWhat : "");
    return AfxProcessException(pszWhat == nullptr ? static_cast<CException*>(&memory) : &other, pMsg);
}
