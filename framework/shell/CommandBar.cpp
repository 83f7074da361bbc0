#include "Sip.h"
#include "window/Resources.h"

#include <algorithm>
#include <climits>
#include <utility>

using namespace fieldkit::detail;

IMPLEMENT_DYNAMIC(CCeCommandBar, CToolBarCtrl)

// clang-format off
BEGIN_MESSAGE_MAP(CCeCommandBar, CToolBarCtrl)
    ON_WM_DESTROY()
END_MESSAGE_MAP()
// clang-format on

namespace {

constexpr UINT kIdSip = 0xE8E0;
constexpr UINT kIdGap = 0xE8E1;
constexpr UINT kIdPopupFirst = 0xE8F0;
constexpr int kMaxPopups = 15;
constexpr int kIconSize = 16; // of the picture here and of those of programs, at AFX_DESIGN_DPI

// A keyboard: an outlined board, three rows of keys, the space bar. A bit is a pixel, white or, in the
// mask, transparent. Ready as bits, since each full-screen dialog has a bar of its own.
constexpr BYTE kSipPicture[kIconSize][2] = {{0x00, 0x00}, {0x00, 0x00}, {0x00, 0x00}, {0x00, 0x00},
                                            {0x7F, 0xFE}, {0x55, 0x56}, {0x7F, 0xFE}, {0x55, 0x56},
                                            {0x7F, 0xFE}, {0x55, 0x56}, {0x7F, 0xFE}, {0x70, 0x0E},
                                            {0x7F, 0xFE}, {0x00, 0x00}, {0x00, 0x00}, {0x00, 0x00}};
constexpr BYTE kSipMask[kIconSize][2] = {{0xFF, 0xFF}, {0xFF, 0xFF}, {0xFF, 0xFF}, {0x00, 0x00},
                                         {0x00, 0x00}, {0x00, 0x00}, {0x00, 0x00}, {0x00, 0x00},
                                         {0x00, 0x00}, {0x00, 0x00}, {0x00, 0x00}, {0x00, 0x00},
                                         {0x00, 0x00}, {0x00, 0x00}, {0xFF, 0xFF}, {0xFF, 0xFF}};

HIMAGELIST CreateSipImage() {
    CBitmap picture;
    CBitmap mask;
    picture.CreateBitmap(kIconSize, kIconSize, 1, 1, kSipPicture);
    mask.CreateBitmap(kIconSize, kIconSize, 1, 1, kSipMask);
    const HIMAGELIST hImages = ::ImageList_Create(kIconSize, kIconSize, ILC_COLOR24 | ILC_MASK, 1, 1);
    ::ImageList_Add(hImages, picture, mask);
    return hImages;
}

/// A copy whose pictures have another size.
HIMAGELIST Resized(HIMAGELIST hImages, int nSize) {
    const int nCount = ::ImageList_GetImageCount(hImages);
    const HIMAGELIST hResized = ::ImageList_Create(nSize, nSize, ILC_COLOR24 | ILC_MASK, nCount, 1);
    for (int i = 0; i < nCount; ++i) {
        const HICON hIcon = ::ImageList_GetIcon(hImages, i, ILD_TRANSPARENT);
        ::ImageList_ReplaceIcon(hResized, -1, hIcon);
        ::DestroyIcon(hIcon);
    }
    return hResized;
}

CString MenuText(HMENU hMenu, int nPos) {
    CString strText;
    const int nLength = ::GetMenuString(hMenu, static_cast<UINT>(nPos), nullptr, 0, MF_BYPOSITION);
    ::GetMenuString(hMenu, static_cast<UINT>(nPos), strText.GetBuffer(nLength), nLength + 1, MF_BYPOSITION);
    strText.ReleaseBuffer();
    return strText;
}

} // namespace

BOOL CCeCommandBar::Create(CWnd* pParentWnd, DWORD dwStyle, UINT nID) {
    // The low word of the style holds flags of the device's bar; the tool bar has its own there.
    const DWORD dwBarStyle =
        (dwStyle & 0xFFFF0000) | WS_CHILD | CCS_NOPARENTALIGN | CCS_NORESIZE | TBSTYLE_FLAT | TBSTYLE_LIST;
    if (!CreateEx(0, TOOLBARCLASSNAME, nullptr, dwBarStyle, CRect(0, 0, 0, 0), pParentWnd, nID))
        return FALSE;
    SendMessage(TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON));
    AddSipButton();
    Reposition();
    return TRUE;
}

void CCeCommandBar::OnDestroy() {
    CWnd::OnDestroy();
    for (const HIMAGELIST hImages : {m_hImages, m_hResized})
        if (hImages != nullptr)
            ::ImageList_Destroy(hImages);
    if (m_hMenu != nullptr)
        ::DestroyMenu(m_hMenu);
    m_hImages = nullptr;
    m_hResized = nullptr;
    m_hMenu = nullptr;
}

/// Gives the buttons the pictures in the size of the present resolution.
void CCeCommandBar::ShowImages() {
    const int nSize = AfxScale(m_hWnd, kIconSize);
    const HIMAGELIST hResized = nSize != kIconSize ? Resized(m_hImages, nSize) : nullptr;
    SendMessage(TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(hResized != nullptr ? hResized : m_hImages));
    if (const HIMAGELIST hOld = std::exchange(m_hResized, hResized))
        ::ImageList_Destroy(hOld);
    m_nDpi = AfxGetDpi(m_hWnd);
}

void CCeCommandBar::AddButton(int nPos, UINT nID, int iImage, BYTE fsState, LPCTSTR pszText) {
    TBBUTTON button = {};
    button.iBitmap = iImage;
    button.idCommand = static_cast<int>(nID);
    button.fsState = fsState;
    button.fsStyle = nID != kIdGap ? BTNS_BUTTON | BTNS_AUTOSIZE : BTNS_BUTTON;
    button.iString = reinterpret_cast<INT_PTR>(pszText);
    SendMessage(TB_INSERTBUTTON, static_cast<WPARAM>(nPos), reinterpret_cast<LPARAM>(&button));
}

/// A gap that takes the rest of the bar's width, then the switch: it ends up at the right.
void CCeCommandBar::AddSipButton() {
    m_hImages = CreateSipImage();
    ShowImages();
    // A separator would show a line: a disabled button without picture and text shows nothing.
    AddButton(0, kIdGap, I_IMAGENONE, 0, nullptr);
    AddButton(1, kIdSip, 0, TBSTATE_ENABLED, nullptr);
}

BOOL CCeCommandBar::InsertMenuBar(UINT nIDResource) {
    const std::span<const BYTE> resource = AfxFindResource(MAKEINTRESOURCE(nIDResource), RT_MENU);
    const HMENU hMenu = resource.empty() ? nullptr : ::LoadMenuIndirect(resource.data());
    if (hMenu == nullptr)
        return FALSE;
    if (m_hMenu != nullptr) {
        while (SendMessage(TB_COMMANDTOINDEX, kIdGap) > 0)
            SendMessage(TB_DELETEBUTTON, 0);
        ::DestroyMenu(m_hMenu);
    }
    m_hMenu = hMenu;
    const int nCount = std::min(::GetMenuItemCount(hMenu), kMaxPopups);
    for (int i = 0; i < nCount; ++i) {
        const bool bPopup = ::GetSubMenu(hMenu, i) != nullptr;
        const UINT nID = bPopup ? kIdPopupFirst + static_cast<UINT>(i) : ::GetMenuItemID(hMenu, i);
        AddButton(i, nID, I_IMAGENONE, TBSTATE_ENABLED, MenuText(hMenu, i));
    }
    Reposition();
    return TRUE;
}

// --- Buttons of the program -----------------------------------------------------------------

BOOL CCeCommandBar::AddAdornments(DWORD) {
    return TRUE;
}

int CCeCommandBar::AddBitmap(int, UINT nBitmapID) {
    constexpr COLORREF kLightGrey = RGB(192, 192, 192);
    CBitmap bitmap;
    if (!bitmap.LoadBitmap(nBitmapID))
        return -1;
    const int nFirst = ::ImageList_AddMasked(m_hImages, bitmap, kLightGrey);
    ShowImages();
    return nFirst;
}

BOOL CCeCommandBar::InsertButton(int nIndex, LPTBBUTTON lpButton) {
    const int nPos = std::clamp(nIndex, 0, static_cast<int>(CommandToIndex(kIdGap)));
    // Otherwise each would be as wide as the longest text of the menu, and the switch off the screen.
    TBBUTTON button = *lpButton;
    button.fsStyle |= BTNS_AUTOSIZE;
    if (!CToolBarCtrl::InsertButton(nPos, &button))
        return FALSE;
    Reposition();
    return TRUE;
}

BOOL CCeCommandBar::AddButtons(int nNumButtons, LPTBBUTTON lpButtons) {
    for (int i = 0; i < nNumButtons; ++i)
        if (!InsertButton(INT_MAX, lpButtons + i))
            return FALSE;
    return TRUE;
}

BOOL CCeCommandBar::InsertSeparator(int nIndex) {
    TBBUTTON separator = {};
    separator.fsStyle = BTNS_SEP;
    return InsertButton(nIndex, &separator);
}

BOOL CCeCommandBar::LoadToolBar(UINT nIDResource) {
    /// As the resource editor writes it; the identifiers follow, 0 for a separator.
    struct CToolBarData {
        WORD wVersion;
        WORD wWidth;
        WORD wHeight;
        WORD wItemCount;
    };
    const LPCTSTR pszType = MAKEINTRESOURCE(241); // RT_TOOLBAR
    const LPCTSTR pszName = MAKEINTRESOURCE(nIDResource);
    const std::span<const BYTE> resource = AfxFindResource(pszName, pszType);
    if (resource.empty())
        return FALSE;
    const auto* pData = reinterpret_cast<const CToolBarData*>(resource.data());
    const auto* pItems = reinterpret_cast<const WORD*>(pData + 1);
    int nImage = AddBitmap(pData->wItemCount, nIDResource);
    if (nImage < 0)
        return FALSE;
    for (int i = 0; i < pData->wItemCount; ++i) {
        TBBUTTON button = {};
        button.idCommand = pItems[i];
        button.iBitmap = pItems[i] != 0 ? nImage++ : 0;
        button.fsState = TBSTATE_ENABLED;
        button.fsStyle = pItems[i] != 0 ? BTNS_BUTTON : BTNS_SEP;
        InsertButton(INT_MAX, &button);
    }
    return TRUE;
}

void CCeCommandBar::Reposition() {
    if (m_nDpi != AfxGetDpi(m_hWnd))
        ShowImages();
    CRect client;
    GetParent()->GetClientRect(client);
    const int nHeight = AfxScale(m_hWnd, AFX_DEVICE_BAR_HEIGHT);
    SetWindowPos(nullptr, 0, client.bottom - nHeight, client.Width(), nHeight, SWP_NOZORDER | SWP_NOACTIVATE);
    const auto nGap = static_cast<WPARAM>(SendMessage(TB_COMMANDTOINDEX, kIdGap));
    CRect gap;
    CRect sip;
    SendMessage(TB_GETITEMRECT, nGap, reinterpret_cast<LPARAM>(&gap));
    SendMessage(TB_GETITEMRECT, nGap + 1, reinterpret_cast<LPARAM>(&sip));
    TBBUTTONINFO info = {};
    info.cbSize = sizeof info;
    info.dwMask = TBIF_SIZE;
    info.cx = static_cast<WORD>(std::max<LONG>(client.Width() - gap.left - sip.Width(), 0));
    SendMessage(TB_SETBUTTONINFO, kIdGap, reinterpret_cast<LPARAM>(&info));
}

BOOL CCeCommandBar::IsSipSwitchAt(CPoint screenPoint) const {
    CRect rect;
    SendMessage(TB_GETRECT, kIdSip, reinterpret_cast<LPARAM>(&rect));
    ClientToScreen(rect);
    return IsWindowVisible() && rect.PtInRect(screenPoint);
}

void CCeCommandBar::TrackPopup(int nIndex) {
    CRect button;
    SendMessage(TB_GETITEMRECT, static_cast<WPARAM>(nIndex), reinterpret_cast<LPARAM>(&button));
    ClientToScreen(button);
    ::TrackPopupMenu(::GetSubMenu(m_hMenu, nIndex), TPM_LEFTALIGN | TPM_BOTTOMALIGN, button.left, button.top,
                     0, GetParent()->GetSafeHwnd(), nullptr);
}

BOOL CCeCommandBar::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    if (message == WM_COMMAND) {
        const UINT nID = LOWORD(wParam);
        if (nID == kIdSip) {
            CSip::Toggle();
            return TRUE;
        }
        if (nID >= kIdPopupFirst && nID < kIdPopupFirst + kMaxPopups) {
            TrackPopup(static_cast<int>(nID - kIdPopupFirst));
            return TRUE;
        }
    }
    return CWnd::OnChildNotify(message, wParam, lParam, pResult);
}
