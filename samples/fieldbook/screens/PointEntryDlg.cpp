#include "screens/PointEntryDlg.h"

#include "screens/BadLines.h"
#include "screens/Resource.h"
#include "Tesuvo.h"
#include "screens/Text.h"
#include "screens/Messages.h"

#include <iterator>

namespace {

/// What the names of a kind of points begin with, in the order of their texts.
constexpr const wchar_t* kKindPrefixes[] = {L"T", L"K", L"BM", L"P"};

static_assert(IDS_KIND_LAST - IDS_KIND_FIRST + 1 == std::size(kKindPrefixes));

/// A coordinate as it can be typed, with all decimals that the points file keeps; nothing for one
/// that is missing.
CString NumberText(double dValue) {
    CString strText;
    if (dValue == fieldkit::survey::kNull)
        return strText;
    strText.Format(L"%.6f", dValue);
    return strText.TrimRight(L'0').TrimRight(L'.');
}

} // namespace

// clang-format off
BEGIN_MESSAGE_MAP(CPointEntryDlg, CnDialog)
    ON_BN_CLICKED(IDC_ADD, &CPointEntryDlg::OnAdd)
    ON_BN_CLICKED(IDC_NO_HEIGHT, &CPointEntryDlg::OnNoHeight)
    ON_CBN_SELCHANGE(IDC_KIND, &CPointEntryDlg::OnKind)
    ON_WM_QUERYENDSESSION()
END_MESSAGE_MAP()
// clang-format on

CPointEntryDlg::CPointEntryDlg(CJob& job, CWnd* pParent) : CnDialog(IDD_POINT_ENTRY, pParent), m_job(job) {
    SetOption(OptionOkButton);
}

void CPointEntryDlg::DoDataExchange(CDataExchange* pDX) {
    CnDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_MESSAGE, m_message);
}

BOOL CPointEntryDlg::OnInitDialog() {
    CnDialog::OnInitDialog();
    for (const UINT nId : {IDC_CODE, IDC_NAME, IDC_N, IDC_E, IDC_Z, IDC_ADD, IDC_MESSAGE})
        Anchor(nId, 0, 0, 100, 0);
    Anchor(IDC_NO_HEIGHT, 100, 0, 100, 0);
    AttachControls();
    for (UINT nKind = 0; nKind < std::size(kKindPrefixes); ++nKind)
        m_kind.AddString(Text(IDS_KIND_FIRST + nKind));
    m_kind.SetCurSel(0);
    OnKind();
    m_strShown = Typed();
    m_message.SetWindowText(Text(IDS_ENTER_POINT));
    m_n.SetFocus(); // the name is proposed: typing can begin
    return FALSE;
}

void CPointEntryDlg::AttachControls() {
    constexpr DWORD kNoPanel = 0;
    m_kind.Attach(IDC_KIND, this, kNoPanel);
    m_name.Attach(IDC_NAME, this, SipOptionMode0);
    m_job.history.GetStack().SetupList(&m_name);
    m_code.Attach(IDC_CODE, this, SipOptionMode0);
    m_n.Attach(IDC_N, this, SipOptionMode1);
    m_e.Attach(IDC_E, this, SipOptionMode1);
    m_z.Attach(IDC_Z, this, SipOptionMode1);
    m_noHeight.Attach(IDC_NO_HEIGHT, this, TVGetCommonIcon(TVICON_UP),
                      CIconButton::StyleToggle | CIconButton::StyleText);
}

CString CPointEntryDlg::TextOf(const CWnd& control) const {
    CString strText;
    control.GetWindowText(strText);
    return strText;
}

void CPointEntryDlg::OnKind() {
    m_name.SetWindowText(m_job.book.NextName(kKindPrefixes[m_kind.GetCurSel()]));
}

/// Typing goes on where something is missing.
void CPointEntryDlg::OnNoHeight() {
    m_z.EnableWindow(!m_noHeight.GetPush());
    for (CNumberEdit* const pField : {&m_n, &m_e, &m_z})
        if (pField->IsWindowEnabled() && TextOf(*pField).IsEmpty()) {
            pField->SetFocus();
            return;
        }
}

void CPointEntryDlg::ShowPoint(const CNamedPoint& point) {
    m_name.SetWindowText(point.strName);
    m_n.SetWindowText(NumberText(point.point.GetN()));
    m_e.SetWindowText(NumberText(point.point.GetE()));
    m_z.SetWindowText(NumberText(point.point.GetZ()));
    m_code.SetWindowText(point.strCode);
    m_strShown = Typed();
}

CString CPointEntryDlg::Typed() const {
    CString strAll;
    for (const CWnd* const pField : std::initializer_list<const CWnd*>{&m_name, &m_n, &m_e, &m_z, &m_code})
        strAll += TextOf(*pField) + L'\n';
    return strAll;
}

bool CPointEntryDlg::IsBlank() const {
    return TextOf(m_n).IsEmpty() && TextOf(m_e).IsEmpty() && TextOf(m_z).IsEmpty();
}

void CPointEntryDlg::OnOK() {
    if (IsBlank() || Add())
        CnDialog::OnOK();
}

void CPointEntryDlg::OnCancel() {
    if (MayGiveUpTyped())
        CnDialog::OnCancel();
}

bool CPointEntryDlg::MayGiveUpTyped() {
    return Typed() == m_strShown || AskToLose(Text(IDS_ASK_TYPED));
}

BOOL CPointEntryDlg::OnQueryEndSession() {
    return MayGiveUpTyped();
}

/// No panel may come up under the pen.
void CPointEntryDlg::OnAdd() {
    if (Add() && m_hWnd != nullptr) // not closed behind a question
        GetDlgItem(IDC_ADD)->SetFocus();
}

bool CPointEntryDlg::IsOnLastField() const {
    const CWnd* const pFocus = GetFocus();
    return pFocus == &m_z || (pFocus == &m_e && !m_z.IsWindowEnabled());
}

bool CPointEntryDlg::EndsNumber(const MSG& msg) const {
    const CWnd* const pFocus = GetFocus();
    if (msg.message != WM_CHAR || msg.wParam != L'-' || IsOnLastField() || (pFocus != &m_n && pFocus != &m_e))
        return false;
    const CNumberEdit& field = pFocus == &m_n ? m_n : m_e;
    const int nLength = field.GetWindowTextLength();
    int nFirst = 0, nEnd = 0;
    field.GetSel(nFirst, nEnd);
    return nFirst == nLength && TextOf(field).FindOneOf(L"0123456789") >= 0;
}

BOOL CPointEntryDlg::PreTranslateMessage(MSG* pMsg) {
    if (EndsNumber(*pMsg)) {
        NextDlgCtrl();
        pMsg->hwnd = ::GetFocus();
    }
    const CWnd* const pFocus = GetFocus();
    const bool bEnter = pMsg->message == WM_KEYDOWN && pMsg->wParam == VK_RETURN;
    if (!bEnter || pFocus == nullptr || pFocus == GetDlgItem(IDC_ADD) || m_name.GetDroppedState() ||
        m_kind.GetDroppedState())
        return CnDialog::PreTranslateMessage(pMsg);
    if (!IsOnLastField())
        NextDlgCtrl();
    else if (Add() && m_hWnd != nullptr)
        m_n.SetFocus(); // the panel stays for the next point
    return TRUE;
}

bool CPointEntryDlg::Add() {
    CNamedPoint point;
    const CString strZ = m_noHeight.GetPush() ? CString() : TextOf(m_z);
    LineFault fault = ParsePoint(TextOf(m_name), TextOf(m_n), TextOf(m_e), strZ, point);
    if (fault == LineFault::None) {
        point.strCode = TextOf(m_code);
        point.strCode.Trim();
        point.others = m_others;
        fault = CheckPoint(point, m_job.format.text.encoding);
    }
    if (fault != LineFault::None) {
        TellError(Text(FaultTextId(fault)));
        return false;
    }
    const bool bNoCoordinate = !point.point.IsExistNE() && !point.point.IsExistZ();
    if (bNoCoordinate && !AskToLose(Text(IDS_ASK_NO_COORDINATE, point.strName.GetString())))
        return false;
    if (!Take(point)) {
        TellError(Text(IDS_NAME_TAKEN, point.strName.GetString()));
        return false;
    }
    m_job.history.Add(point.strName);
    return true;
}

/// The fields are made ready for the next point.
bool CPointEntryDlg::Take(const CNamedPoint& point) {
    if (!m_job.book.Add(point))
        return false;
    const CString strAdded = Text(IDS_ADDED, point.strName.GetString(), m_job.book.GetCount());
    m_message.SetWindowText(strAdded);
    SetWindowText(strAdded); // the panel may lie over the message
    ShowPoint({m_job.book.NextName(point.strName), CCoordinate(), point.strCode});
    return true;
}
