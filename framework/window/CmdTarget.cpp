#include "MessageMap.h"
#include "ThreadState.h"

using namespace fieldkit::detail;

IMPLEMENT_DYNAMIC(CCmdTarget, CObject)

const AFX_MSGMAP* CCmdTarget::GetThisMessageMap() {
    static const AFX_MSGMAP_ENTRY entries[] = {{0, 0, 0, 0, nullptr, nullptr, nullptr}};
    static const AFX_MSGMAP map = {nullptr, entries};
    return &map;
}

const AFX_MSGMAP* CCmdTarget::GetMessageMap() const {
    return GetThisMessageMap();
}

BOOL CCmdTarget::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pInfo) {
    const bool bUpdate = nCode == CN_UPDATE_COMMAND_UI;
    const auto* pNotify = bUpdate ? nullptr : static_cast<const AFX_NOTIFY*>(pExtra);
    const UINT message = pNotify != nullptr ? WM_NOTIFY : WM_COMMAND;
    const AFX_MSGMAP_ENTRY* pEntry = FindMapEntry(GetMessageMap(), message, nCode, nID);
    if (pEntry == nullptr)
        return FALSE;
    if (pInfo != nullptr) {
        *pInfo = {this, pEntry->pfn};
        return TRUE;
    }
    LRESULT lResult = 0;
    const void* const pParam = pNotify != nullptr ? pNotify->pNMHDR : pExtra;
    const AFX_MSG_CALL call = {0, reinterpret_cast<LPARAM>(pParam), nID,
                               pNotify != nullptr ? pNotify->pResult : &lResult};
    const BOOL bHandled = pEntry->pfnDispatch(this, pEntry->pfn, call);
    return bHandled && !(bUpdate && static_cast<const CCmdUI*>(pExtra)->m_bContinueRouting);
}

const AFX_MSGMAP_ENTRY* fieldkit::detail::FindMapEntry(const AFX_MSGMAP* pMap, UINT message, int nCode,
                                                       UINT nID) {
    return CThreadState::Get().m_mapCache.Find(pMap, message, nCode, nID);
}
