#include "PointEntryDlg.h"

#include "PointFile.h"
#include "Resource.h"
#include "ShowResult.h"
#include "Tesuvo.h"
#include "Text.h"

#include <iterator>

namespace {

constexpr int ICON_UP = 4;

/// What the names of a kind of points begin with, in the order of their texts.
constexpr const wchar_t* KIND_PREFIXES[] = {L"T", L"K", L"BM", L"P"};

} // namespace

// clang-format off
BEGIN_MESSAGE_MAP(CPointEntryDlg, CnDialog)
    ON_BN_CLICKED(IDC_ADD, &CPointEntryDlg::OnAdd)
    ON_BN_CLICKED(IDC_NO_HEIGHT, &CPointEntryDlg::OnNoHeight)
    ON_CBN_SELCHANGE(IDC_KIND, &CPointEntryDlg::OnKind)
END_MESSAGE_MAP()
// clang-format on

CPointEntryDlg::CPointEntryDlg(CJob& job, CWnd* pParent) : CnDialog(IDD_POINT_ENTRY, pParent), m_job(job) {
    SetOption(OptionOkButton);
}

BOOL CPointEntryDlg::OnInitDialog() {
    CnDialog::OnInitDialog();
    AttachControls();
    for (UINT nKind = 0; nKind < std::size(KIND_PREFIXES); ++nKind)
        m_kind.AddString(Text(IDS_KIND_FIRST + nKind));
    m_kind.SetCurSel(0);
    OnKind();
    m_message.SetWindowText(Text(IDS_ENTER_POINT));
    return TRUE;
}

void CPointEntryDlg::AttachControls() {
    constexpr DWORD NO_PANEL = 0;
    m_kind.Attach(IDC_KIND, this, NO_PANEL);
    m_name.Attach(IDC_NAME, this, SipOptionMode0);
    m_n.Attach(IDC_N, this, SipOptionMode1);
    m_e.Attach(IDC_E, this, SipOptionMode1);
    m_z.Attach(IDC_Z, this, SipOptionMode1);
    m_noHeight.Attach(IDC_NO_HEIGHT, this, TVGetCommonIcon(ICON_UP),
                      CIconButton::StyleToggle | CIconButton::StyleText);
    m_message.SubclassDlgItem(IDC_MESSAGE, this);
}

CString CPointEntryDlg::TextOf(const CWnd& control) const {
    CString strText;
    control.GetWindowText(strText);
    return strText;
}

void CPointEntryDlg::OnKind() {
    m_name.SetWindowText(m_job.book.NextName(KIND_PREFIXES[m_kind.GetCurSel()]));
}

void CPointEntryDlg::OnNoHeight() {
    m_z.EnableWindow(!m_noHeight.GetPush());
}

void CPointEntryDlg::OnAdd() {
    CNamedPoint point;
    const CString strZ = m_noHeight.GetPush() ? CString() : TextOf(m_z);
    const LineFault fault = ParsePoint(TextOf(m_name), TextOf(m_n), TextOf(m_e), strZ, point);
    if (fault != LineFault::None)
        AfxMessageBox(Text(FaultTextId(fault)));
    else if (!m_job.book.Add(point))
        AfxMessageBox(Text(IDS_NAME_TAKEN, point.strName.GetString()));
    else
        Take(point);
}

/// The point is in the book already; the file follows, and the fields are made ready for the next.
void CPointEntryDlg::Take(const CNamedPoint& point) {
    try {
        AppendPoint(m_job.strPath, point);
    } catch (CFileException* e) {
        e->Delete();
        AfxMessageBox(Text(IDS_NOT_WRITTEN));
    }
    m_message.SetWindowText(Text(IDS_ADDED, point.strName.GetString(), m_job.book.GetCount()));
    m_name.SetWindowText(m_job.book.NextName(point.strName));
    for (CNumberEdit* pField : {&m_n, &m_e, &m_z})
        pField->SetWindowText(L"");
    GetDlgItem(IDC_ADD)->SetFocus(); // the panel goes, and the message can be read
}
