#include "dialogs/ButtonMenuDlg.h"

#include "Tesuvo.h"

#include <utility>

#include "dialogs/detail/LoadText.h"
#include "resources/ResourceIds.h"

using namespace fieldkit::detail;

namespace {

constexpr int kButtonHeight = 36; ///< Pixels at AFX_DESIGN_DPI, for a finger.
constexpr int kNothingChosen = -1;

} // namespace

// clang-format off
BEGIN_MESSAGE_MAP(CButtonMenuDlg, CnDialog)
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
    m_buttons.RemoveAll();
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
    SetClientHeight(static_cast<int>(m_pEntryIds->GetSize()) * AfxScale(m_hWnd, kButtonHeight));
    CreateButtons();
    SetWindowText(LoadText(m_nTitleId));
    CenterWindow();
    ShowWindow(SW_SHOW);
    return TRUE;
}

void CButtonMenuDlg::SetClientHeight(int nHeight) {
    CRect rect;
    GetClientRect(rect);
    rect.bottom = rect.top + nHeight;
    CalcWindowRect(rect, adjustOutside);
    SetWindowPos(nullptr, 0, 0, rect.Width(), rect.Height(), SWP_NOMOVE | SWP_NOZORDER);
}

void CButtonMenuDlg::CreateButtons() {
    DeleteButtons();
    m_buttons.RemoveAll();
    CRect rect;
    GetClientRect(rect);
    rect.bottom = rect.top + AfxScale(m_hWnd, kButtonHeight);
    for (INT_PTR i = 0; i < m_pEntryIds->GetSize(); ++i) {
        m_buttons.Add(nullptr); // the place first: without memory for it there must be no button
        auto* const pButton = m_buttons[i] = new CIconButton;
        pButton->Create(LoadText(static_cast<int>(m_pEntryIds->GetAt(i))), BS_OWNERDRAW | WS_VISIBLE, rect,
                        this, static_cast<UINT>(IDC_FK_MENU_FIRST + i));
        pButton->SetIcon(TVGetCommonIcon(TVICON_MENU_ENTRY));
        pButton->SetButtonStyle(CIconButton::StyleText);
        rect.OffsetRect(0, AfxScale(m_hWnd, kButtonHeight));
    }
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
