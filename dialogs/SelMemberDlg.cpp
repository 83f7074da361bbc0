#include "dialogs/SelMemberDlg.h"

#include "Tesuvo.h"

#include <memory>

#include "dialogs/detail/RedrawPause.h"
#include "resources/ResourceIds.h"

using namespace fieldkit::detail;

namespace {

constexpr int kAtEnd = -1; // also what a list box says when nothing is selected

void Insert(CListBox& box, int nIndex, const CSelMemberItem& item) {
    box.SetItemData(box.InsertString(nIndex, item.m_strText), item.m_dwData);
}

CSelMemberItem ItemAt(const CListBox& box, int nIndex) {
    CSelMemberItem item;
    box.GetText(nIndex, item.m_strText);
    item.m_dwData = static_cast<unsigned long>(box.GetItemData(nIndex));
    return item;
}

void Show(const CPtrList& list, CListBox& box) {
    const RedrawPause pause(box);
    for (POSITION pos = list.GetHeadPosition(); pos != nullptr;)
        Insert(box, kAtEnd, *static_cast<const CSelMemberItem*>(list.GetNext(pos)));
}

void TakeBack(const CListBox& box, CPtrList& list) {
    for (int i = 0, nCount = box.GetCount(); i < nCount; ++i) {
        const CSelMemberItem item = ItemAt(box, i);
        CSelMemberDlg::AddSelMemberItemToList(list, item.m_strText, item.m_dwData);
    }
}

} // namespace

// clang-format off
BEGIN_MESSAGE_MAP(CSelMemberDlg, CnDialog)
    ON_BN_CLICKED(IDC_FK_MEMBER_ADD, &CSelMemberDlg::OnBtnAdd)
    ON_BN_CLICKED(IDC_FK_MEMBER_DELETE, &CSelMemberDlg::OnBtnDel)
    ON_BN_CLICKED(IDC_FK_MEMBER_UP, &CSelMemberDlg::OnBtnUp)
    ON_BN_CLICKED(IDC_FK_MEMBER_DOWN, &CSelMemberDlg::OnBtnDown)
    ON_MESSAGE(WM_NCCALCSIZE, &CSelMemberDlg::OnNcCalcSize)
    ON_MESSAGE(WM_DPICHANGED, &CSelMemberDlg::OnDpiChanged)
END_MESSAGE_MAP()
// clang-format on

CSelMemberDlg::CSelMemberDlg(const CString& strTitle, CWnd* pParent)
    : CnDialog(IDD_FK_SELECT_MEMBER, pParent), m_strTitle(strTitle) {
    SetOption(OptionPopup);
}

CSelMemberDlg::~CSelMemberDlg() = default;

void CSelMemberDlg::DoDataExchange(CDataExchange* pDX) {
    CnDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_FK_MEMBER_AVAILABLE, m_lbAvailable);
    DDX_Control(pDX, IDC_FK_MEMBER_CURRENT, m_lbCurrent);
}

/// In the device's font the template is as wide as the screen, less a frame that is a pixel too
/// wide. What is over goes from the frame; the controls have their room.
void CSelMemberDlg::FitToScreen() {
    CRect window;
    GetWindowRect(window);
    const int nOver = window.Width() - ::GetSystemMetrics(SM_CXSCREEN);
    if (nOver <= 0 || nOver > ::GetSystemMetrics(SM_CXFIXEDFRAME))
        return;
    m_nFrameCut = nOver;
    SetWindowPos(nullptr, 0, 0, window.Width() - nOver, window.Height(),
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
}

LRESULT CSelMemberDlg::OnNcCalcSize(WPARAM, LPARAM lParam) {
    const LRESULT lResult = Default();
    // The first rectangle of either form of lParam is the client area.
    reinterpret_cast<RECT*>(lParam)->right += m_nFrameCut;
    return lResult;
}

BOOL CSelMemberDlg::OnInitDialog() {
    m_nFrameCut = 0;
    m_btnUp.Attach(IDC_FK_MEMBER_UP, this, TVGetCommonIcon(TVICON_UP), 0);
    m_btnDown.Attach(IDC_FK_MEMBER_DOWN, this, TVGetCommonIcon(TVICON_DOWN), 0);
    CnDialog::OnInitDialog();
    SetWindowText(m_strTitle);
    Show(m_listAvailable, m_lbAvailable);
    Show(m_listCurrent, m_lbCurrent);
    FitToScreen();
    CenterWindow();
    ShowWindow(SW_SHOW);
    return TRUE;
}

LRESULT CSelMemberDlg::OnDpiChanged(WPARAM, LPARAM) {
    const LRESULT lResult = Default();
    m_btnUp.SetIcon(TVGetCommonIcon(TVICON_UP));
    m_btnDown.SetIcon(TVGetCommonIcon(TVICON_DOWN));
    return lResult;
}

void CSelMemberDlg::OnOK() {
    FlashSelMemberList(m_listAvailable);
    FlashSelMemberList(m_listCurrent);
    TakeBack(m_lbAvailable, m_listAvailable);
    TakeBack(m_lbCurrent, m_listCurrent);
    CnDialog::OnOK();
}

// --- Moving ----------------------------------------------------------------------------------

void CSelMemberDlg::OnBtnAdd() {
    const int nSelected = m_lbAvailable.GetCurSel();
    if (nSelected == LB_ERR)
        return;
    const CSelMemberItem item = ItemAt(m_lbAvailable, nSelected);
    Insert(m_lbCurrent, m_lbCurrent.GetCurSel(), item); // above the selected one
    if (item.m_dwData != CSelMemberItem::BLANK)
        m_lbAvailable.DeleteString(static_cast<UINT>(nSelected));
}

void CSelMemberDlg::OnBtnDel() {
    const int nSelected = m_lbCurrent.GetCurSel();
    if (nSelected == LB_ERR)
        return;
    const CSelMemberItem item = ItemAt(m_lbCurrent, nSelected);
    if (item.m_dwData != CSelMemberItem::BLANK)
        Insert(m_lbAvailable, kAtEnd, item);
    m_lbCurrent.DeleteString(static_cast<UINT>(nSelected));
}

void CSelMemberDlg::OnBtnUp() {
    if (const int nSelected = m_lbCurrent.GetCurSel(); nSelected > 0)
        MoveCurrent(nSelected, nSelected - 1);
}

void CSelMemberDlg::OnBtnDown() {
    const int nSelected = m_lbCurrent.GetCurSel();
    if (nSelected != LB_ERR && nSelected < m_lbCurrent.GetCount() - 1)
        MoveCurrent(nSelected, nSelected + 1);
}

void CSelMemberDlg::MoveCurrent(int nFrom, int nTo) {
    const CSelMemberItem item = ItemAt(m_lbCurrent, nFrom);
    m_lbCurrent.DeleteString(static_cast<UINT>(nFrom));
    Insert(m_lbCurrent, nTo, item);
    m_lbCurrent.SetCurSel(nTo);
}

// --- Items -----------------------------------------------------------------------------------

void CSelMemberDlg::FlashSelMemberList(CPtrList& list) {
    while (!list.IsEmpty())
        delete static_cast<CSelMemberItem*>(list.RemoveHead());
}

CSelMemberItem* CSelMemberDlg::AddSelMemberItemToList(CPtrList& list, const wchar_t* pszText,
                                                      unsigned long dwData) {
    auto pItem = std::make_unique<CSelMemberItem>();
    pItem->m_dwData = dwData;
    pItem->m_strText = pszText;
    list.AddTail(pItem.get());
    return pItem.release();
}
