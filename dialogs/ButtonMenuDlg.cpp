#include "dialogs/ButtonMenuDlg.h"

#include "Tesuvo.h"

#include <algorithm>
#include <utility>

#include "dialogs/detail/LoadText.h"
#include "resources/ResourceIds.h"

using namespace fieldkit::detail;

namespace {

// Pixels at AFX_DESIGN_DPI.
constexpr int kButtonHeight = 36; // for a finger
constexpr int kLowestButton = 24;
constexpr int kDeviceHeight = 320;
constexpr int kNothingChosen = -1;

} // namespace

// clang-format off
BEGIN_MESSAGE_MAP(CButtonMenuDlg, CnDialog)
    ON_WM_SHOWWINDOW()
    ON_MESSAGE(WM_DPICHANGED, &CButtonMenuDlg::OnDpiChanged)
    ON_COMMAND_RANGE(IDC_FK_MENU_FIRST, IDC_FK_MENU_LAST, &CButtonMenuDlg::OnBtnMenu)
END_MESSAGE_MAP()
// clang-format on

CButtonMenuDlg::CButtonMenuDlg(int nTitleId, CUIntArray* pEntryIds, CWnd* pParent)
    : CnDialog(IDD_FK_BUTTON_MENU, pParent), m_pEntryIds(pEntryIds), m_nTitleId(nTitleId),
      m_nMenuIndex(kNothingChosen) {
    SetOption(OptionPopup);
}

CButtonMenuDlg::~CButtonMenuDlg() {
    DeleteButtons(); // a dialog that was ended by neither OK nor cancel has them still
}

int CButtonMenuDlg::GetMenuIndex() const {
    return m_nMenuIndex;
}

void CButtonMenuDlg::DoDataExchange(CDataExchange* pDX) {
    CnDialog::DoDataExchange(pDX);
}

// --- Opening ---------------------------------------------------------------------------------

BOOL CButtonMenuDlg::OnInitDialog() {
    CnDialog::OnInitDialog();
    m_nMenuIndex = kNothingChosen; // a second run of the same dialog object
    FitToEntries();
    CreateButtons();
    SetWindowText(LoadText(m_nTitleId));
    CenterWindow();
    ShowWindow(SW_SHOW);
    return TRUE;
}

/// A column of entries. On a screen that is lower than the device's they are as low as a pen can
/// do with, and if that is not enough, they stand in several columns.
void CButtonMenuDlg::FitToEntries() {
    const int nCount = static_cast<int>(m_pEntryIds->GetSize());
    const CRect area = AfxGetWorkArea(m_hWnd);
    CRect frame;
    CalcWindowRect(frame, adjustOutside);
    CRect client;
    GetClientRect(client);
    m_sizeButton = CSize(client.Width(), AfxScale(m_hWnd, kButtonHeight));
    int nColumns = 1;
    if (area.Height() < AfxScale(m_hWnd, kDeviceHeight)) {
        const int nRoom = area.Height() - frame.Height();
        m_sizeButton.cy =
            std::clamp<int>(nRoom / std::max(nCount, 1), AfxScale(m_hWnd, kLowestButton), m_sizeButton.cy);
        const int nFitting = std::max<int>(nRoom / m_sizeButton.cy, 1);
        nColumns = std::max((nCount + nFitting - 1) / nFitting, 1);
    }
    m_nRows = (nCount + nColumns - 1) / nColumns; // columns of like height
    if (nColumns > 1)
        m_sizeButton.cx = std::min<int>(m_sizeButton.cx, (area.Width() - frame.Width()) / nColumns);
    SetWindowPos(nullptr, 0, 0, nColumns * m_sizeButton.cx + frame.Width(),
                 m_nRows * m_sizeButton.cy + frame.Height(), SWP_NOMOVE | SWP_NOZORDER);
}

void CButtonMenuDlg::CreateButtons() {
    DeleteButtons();
    m_buttons.RemoveAll();
    for (INT_PTR i = 0; i < m_pEntryIds->GetSize(); ++i) {
        const auto nEntry = static_cast<int>(i);
        const CRect rect(CPoint(nEntry / m_nRows * m_sizeButton.cx, nEntry % m_nRows * m_sizeButton.cy),
                         m_sizeButton);
        m_buttons.Add(nullptr); // the place first: without memory for it there must be no button
        auto* const pButton = m_buttons[i] = new CIconButton;
        pButton->Create(LoadText(static_cast<int>(m_pEntryIds->GetAt(i))), BS_OWNERDRAW | WS_VISIBLE, rect,
                        this, static_cast<UINT>(IDC_FK_MENU_FIRST + i));
        pButton->SetIcon(TVGetCommonIcon(TVICON_MENU_ENTRY));
        pButton->SetButtonStyle(CIconButton::StyleText);
    }
}

void CButtonMenuDlg::OnShowWindow(BOOL bShow, UINT nStatus) {
    if (nStatus != 0) // its owner is minimized or comes back
        CnDialog::OnShowWindow(bShow, nStatus);
}

LRESULT CButtonMenuDlg::OnDpiChanged(WPARAM, LPARAM) {
    const LRESULT lResult = Default();
    for (INT_PTR i = 0; i < m_buttons.GetSize(); ++i)
        if (m_buttons[i] != nullptr)
            m_buttons[i]->SetIcon(TVGetCommonIcon(TVICON_MENU_ENTRY));
    return lResult;
}

// --- Ending ----------------------------------------------------------------------------------

void CButtonMenuDlg::OnBtnMenu(unsigned int nID) {
    m_nMenuIndex = static_cast<int>(nID) - IDC_FK_MENU_FIRST;
    OnOK();
}

/// The button with the focus; that is the one which Enter means.
int CButtonMenuDlg::FocusedEntry() const {
    const CWnd* const pFocus = GetFocus();
    const int nID = pFocus != nullptr && IsChild(pFocus) ? pFocus->GetDlgCtrlID() : 0;
    const bool bEntry = nID >= IDC_FK_MENU_FIRST && nID <= IDC_FK_MENU_LAST;
    return bEntry ? nID - IDC_FK_MENU_FIRST : kNothingChosen;
}

void CButtonMenuDlg::OnOK() {
    if (m_nMenuIndex == kNothingChosen)
        m_nMenuIndex = FocusedEntry();
    if (m_nMenuIndex == kNothingChosen)
        return;
    DeleteButtons();
    CnDialog::OnOK();
}

void CButtonMenuDlg::OnCancel() {
    DeleteButtons();
    CnDialog::OnCancel();
}

void CButtonMenuDlg::DeleteButtons() {
    for (INT_PTR i = 0; i < m_buttons.GetSize(); ++i)
        delete std::exchange(m_buttons[i], nullptr);
}
