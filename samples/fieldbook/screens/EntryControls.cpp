#include "screens/EntryControls.h"

#include "screens/Resource.h"
#include "screens/Settings.h"
#include "screens/Text.h"
#include "Tesuvo.h"

#include <cwchar>

namespace {

// Pixels at AFX_DESIGN_DPI.
constexpr int kFieldHeight = 22; // within the frame: 28 with it
constexpr int kSpinSize = 42;

constexpr int kLongestName = 16;
constexpr int kLongestNumber = 20;
constexpr COLORREF kResultColor = RGB(255, 255, 224);

/// @return false if the field has the focus already: then the tap shall move the caret
bool EnterSelected(CEdit& edit) {
    if (CWnd::GetFocus() == &edit)
        return false;
    edit.SetFocus();
    edit.SetSel(0, -1);
    return true;
}

/// Backspace and the like come as characters as well.
bool IsControlCharacter(UINT nChar) {
    return nChar < L' ';
}

} // namespace

static_assert(IDS_ANGLE_LAST - IDS_ANGLE_FIRST + 1 == static_cast<int>(AngleFault::BadSixties),
              "a text for each fault but None");

CString AngleProblem(AngleFault fault) {
    return fault == AngleFault::None ? CString() : Text(IDS_ANGLE_FIRST + static_cast<UINT>(fault) - 1);
}

// clang-format off
BEGIN_MESSAGE_MAP(CSelectEdit, CnEdit)
    ON_WM_SETFOCUS()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONDBLCLK()
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(CDirectionEdit, CAngleEdit)
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
    ON_WM_LBUTTONDOWN()
    ON_WM_CHAR()
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(CChoiceCombo, CnComboBox)
    ON_CONTROL_REFLECT(CBN_DROPDOWN, &CChoiceCombo::OnDropDown)
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(CNameCombo, CChoiceCombo)
    ON_CONTROL_REFLECT(CBN_EDITCHANGE, &CNameCombo::OnEditChange)
    ON_CONTROL_REFLECT_EX(CBN_SETFOCUS, &CNameCombo::OnFocus)
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(CNoHeightButton, CIconButton)
    ON_CONTROL_REFLECT_EX(BN_CLICKED, &CNoHeightButton::OnClicked)
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(CResultLine, CInfoStatic)
    ON_MESSAGE(WM_SETTEXT, &CResultLine::OnSetText)
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(CDecimalsSpin, CnSpinButtonCtrl)
    ON_NOTIFY_REFLECT_EX(UDN_DELTAPOS, &CDecimalsSpin::OnDeltaPos)
END_MESSAGE_MAP()
// clang-format on

void CNumberEdit::PreSubclassWindow() {
    CSelectEdit::PreSubclassWindow();
    LimitText(kLongestNumber);
}

void CCodeEdit::PreSubclassWindow() {
    CSelectEdit::PreSubclassWindow();
    LimitText(kLongestName);
    ModifyStyle(0, ES_UPPERCASE);
}

void CSelectEdit::OnSetFocus(CWnd* pOldWnd) {
    CnEdit::OnSetFocus(pOldWnd);
    SetSel(0, -1);
}

void CSelectEdit::OnLButtonDown(UINT nFlags, CPoint point) {
    if (!EnterSelected(*this))
        CnEdit::OnLButtonDown(nFlags, point);
}

/// A hand that trembles enters the field as well.
void CSelectEdit::OnLButtonDblClk(UINT nFlags, CPoint point) {
    if (!EnterSelected(*this))
        CnEdit::OnLButtonDblClk(nFlags, point);
}

void CDirectionEdit::PreSubclassWindow() {
    CAngleEdit::PreSubclassWindow();
    LimitText(kLongestNumber);
}

/// The number to edit is put in now, behind what the dialog has selected. The base class would
/// work it out from the angle and lose what is behind the tenths.
void CDirectionEdit::OnSetFocus(CWnd* pOldWnd) {
    CAngleEdit::OnSetFocus(pOldWnd);
    if (!m_strTyped.IsEmpty())
        SetWindowText(m_strTyped);
    SetSel(0, -1);
}

void CDirectionEdit::OnKillFocus(CWnd* pNewWnd) {
    GetWindowText(m_strTyped);
    double dAngle = 0;
    m_fault = ParsePackedAngle(m_strTyped, dAngle);
    SetConvActive(0); // the base class would take anything
    CAngleEdit::OnKillFocus(pNewWnd);
    SetConvActive(1);
    if (m_fault == AngleFault::None)
        SetAngle(dAngle);
}

void CDirectionEdit::OnLButtonDown(UINT nFlags, CPoint point) {
    if (!EnterSelected(*this))
        CAngleEdit::OnLButtonDown(nFlags, point);
}

void CDirectionEdit::OnChar(UINT nChar, UINT nRepCnt, UINT nFlags) {
    if (IsControlCharacter(nChar) || std::wcschr(L"0123456789.", static_cast<wchar_t>(nChar)) != nullptr)
        CAngleEdit::OnChar(nChar, nRepCnt, nFlags);
    else
        ::MessageBeep(MB_OK);
}

void CChoiceCombo::PreSubclassWindow() {
    CnComboBox::PreSubclassWindow();
    LimitText(kLongestName);
    SetItemHeight(-1, AfxScale(m_hWnd, kFieldHeight));
    SetItemHeight(0, AfxScale(m_hWnd, kFieldHeight));
}

void CChoiceCombo::OnDropDown() {
    TVCloseSIP();
}

void CNameCombo::OnEditChange() {
    CString strText;
    GetWindowText(strText);
    CString strName = strText;
    if (strName.Remove(L' ') + strName.Remove(L',') > 0)
        ::MessageBeep(MB_OK);
    strName.MakeUpper();
    if (strName == strText)
        return;
    const int nCaret = HIWORD(GetEditSel()) - (strText.GetLength() - strName.GetLength());
    SetWindowText(strName);
    SetEditSel(nCaret, nCaret);
}

/// Behind the tap that brought the focus, which puts the caret where the pen is.
BOOL CNameCombo::OnFocus() {
    CnComboBox::OnSetfocus();
    PostMessage(CB_SETEDITSEL, 0, MAKELPARAM(0, -1));
    return TRUE;
}

void CNoHeightButton::DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) {
    CIconButton::DrawItem(lpDrawItemStruct);
    if (!GetPush())
        return;
    // In bright sun the sunken edge alone is hard to see.
    RECT rect = lpDrawItemStruct->rcItem;
    ::FrameRect(lpDrawItemStruct->hDC, &rect, static_cast<HBRUSH>(::GetStockObject(BLACK_BRUSH)));
    ::InflateRect(&rect, -1, -1);
    ::FrameRect(lpDrawItemStruct->hDC, &rect, static_cast<HBRUSH>(::GetStockObject(BLACK_BRUSH)));
}

BOOL CNoHeightButton::OnClicked() {
    SetIcon(TVGetCommonIcon(GetPush() ? TVICON_DOWN : TVICON_UP));
    return FALSE; // the dialog wants to know as well
}

void CResultLine::PreSubclassWindow() {
    CInfoStatic::PreSubclassWindow();
    SetOption(OptionIcon);
    SetBkColor(kResultColor);
}

/// A static control draws a new text by itself, in its own way: the line is drawn again.
LRESULT CResultLine::OnSetText(WPARAM, LPARAM) {
    const LRESULT lResult = Default();
    Invalidate();
    return lResult;
}

void CDecimalsSpin::PreSubclassWindow() {
    CnSpinButtonCtrl::PreSubclassWindow();
    // The system makes it as narrow as a scroll bar, whatever the template says.
    const int nSize = AfxScale(m_hWnd, kSpinSize);
    SetWindowPos(nullptr, 0, 0, nSize, nSize, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    SetRange(kMinDecimals, kMaxDecimals);
}

BOOL CDecimalsSpin::OnDeltaPos(NMHDR* pNMHDR, LRESULT* pResult) {
    const auto* pUpDown = reinterpret_cast<const NMUPDOWN*>(pNMHDR);
    const int nNew = pUpDown->iPos + pUpDown->iDelta;
    if (nNew < kMinDecimals || nNew > kMaxDecimals)
        ::MessageBeep(MB_OK);
    *pResult = 0; // let it count, as far as it goes
    return FALSE;
}
