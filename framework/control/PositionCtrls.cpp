// Progress bars, sliders, hot keys, addresses, animations.
#include "DrawnByOwner.h"
#include "window/WndProc.h"

using namespace fieldkit::detail;

IMPLEMENT_DYNAMIC(CProgressCtrl, CWnd)
IMPLEMENT_DYNAMIC(CSliderCtrl, CWnd)
IMPLEMENT_DYNAMIC(CHotKeyCtrl, CWnd)
IMPLEMENT_DYNAMIC(CIPAddressCtrl, CWnd)
IMPLEMENT_DYNAMIC(CAnimateCtrl, CWnd)

void CProgressCtrl::GetRange(int& nLower, int& nUpper) const {
    PBRANGE range = {};
    AfxSendPointer(m_hWnd, PBM_GETRANGE, TRUE, &range);
    nLower = range.iLow;
    nUpper = range.iHigh;
}

// --- Sliders ------------------------------------------------------------------------------

CWnd* CSliderCtrl::GetBuddy(BOOL fLocation) const {
    return AskForWindow<CWnd>(m_hWnd, TBM_GETBUDDY, static_cast<WPARAM>(fLocation));
}
CWnd* CSliderCtrl::SetBuddy(CWnd* pWndBuddy, BOOL fLocation) {
    return CWnd::FromHandle(
        AfxSendHandle(m_hWnd, TBM_SETBUDDY, static_cast<WPARAM>(fLocation), HandleOf(pWndBuddy)));
}
CToolTipCtrl* CSliderCtrl::GetToolTips() const {
    return AskForWindow<CToolTipCtrl>(m_hWnd, TBM_GETTOOLTIPS);
}
void CSliderCtrl::SetToolTips(CToolTipCtrl* pWndTip) {
    SendMessage(TBM_SETTOOLTIPS, reinterpret_cast<WPARAM>(HandleOf(pWndTip)));
}

// --- Hot keys -----------------------------------------------------------------------------

CString CHotKeyCtrl::GetKeyName(UINT vk, BOOL fExtended) {
    constexpr LONG kExtended = 1L << 24;
    constexpr int kLongest = 64;
    LONG lScan = static_cast<LONG>(::MapVirtualKey(vk, MAPVK_VK_TO_VSC)) << 16;
    if (fExtended)
        lScan |= kExtended;
    CString strName;
    ::GetKeyNameText(lScan, strName.GetBuffer(kLongest), kLongest);
    strName.ReleaseBuffer();
    return strName;
}

CString CHotKeyCtrl::GetHotKeyName() const {
    static constexpr struct {
        WORD wModifier;
        UINT vk;
    } modifiers[] = {{HOTKEYF_CONTROL, VK_CONTROL}, {HOTKEYF_SHIFT, VK_SHIFT}, {HOTKEYF_ALT, VK_MENU}};
    WORD wKey = 0;
    WORD wModifiers = 0;
    GetHotKey(wKey, wModifiers);
    CString strName;
    if (wKey == 0)
        return strName;
    for (const auto& modifier : modifiers)
        if (wModifiers & modifier.wModifier)
            strName += GetKeyName(modifier.vk, FALSE) + _T(" + ");
    return strName + GetKeyName(wKey, wModifiers & HOTKEYF_EXT);
}

// --- Addresses ----------------------------------------------------------------------------

int CIPAddressCtrl::GetAddress(BYTE& nField0, BYTE& nField1, BYTE& nField2, BYTE& nField3) const {
    DWORD dwAddress = 0;
    const int nFields = GetAddress(dwAddress);
    nField0 = static_cast<BYTE>(FIRST_IPADDRESS(dwAddress));
    nField1 = static_cast<BYTE>(SECOND_IPADDRESS(dwAddress));
    nField2 = static_cast<BYTE>(THIRD_IPADDRESS(dwAddress));
    nField3 = static_cast<BYTE>(FOURTH_IPADDRESS(dwAddress));
    return nFields;
}
