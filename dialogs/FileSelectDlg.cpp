#include "dialogs/FileSelectDlg.h"

#include "Tesuvo.h"
#include "dialogs/BrowseFolderDlg.h"
#include "dialogs/ResMsgBox.h"
#include "dialogs/detail/FileName.h"
#include "dialogs/detail/FolderSearch.h"
#include "dialogs/detail/LoadText.h"
#include "dialogs/detail/RedrawPause.h"
#include "resources/ResourceIds.h"

#include <algorithm>

using namespace fieldkit::detail;

namespace {

enum Column { ColumnName, ColumnTime, ColumnSize };

struct Heading {
    int nText;
    int nWidth; ///< Pixels at AFX_DESIGN_DPI; of the name at least.
};
constexpr Heading kHeadings[] = {{IDS_FK_FILE_NAME, 100}, {IDS_FK_DATE_MODIFIED, 119}, {IDS_FK_SIZE, 100}};

/// Text of a column. Made for each of thousands of files, so it asks for no memory.
using ShortText = wchar_t[32];

/// The time of a file on the clock of the user.
void WriteTime(const FILETIME& time, ShortText& szText) {
    FILETIME local = {};
    SYSTEMTIME t = {};
    ::FileTimeToLocalFileTime(&time, &local);
    ::FileTimeToSystemTime(&local, &t);
    ::wsprintf(szText, L"%d/%02d/%02d %2d:%02d", t.wYear, t.wMonth, t.wDay, t.wHour, t.wMinute);
}

void WriteSize(DWORD nBytes, ShortText& szText) {
    ::wsprintf(szText, L"%ld", static_cast<long>(nBytes));
}

/// The text that tells the user about a fault.
UINT ReasonOf(NameFault fault) {
    switch (fault) {
    case NameFault::Ending:
        return IDS_FK_NAME_ENDING;
    case NameFault::Device:
        return IDS_FK_NAME_OF_DEVICE;
    default:
        return IDS_FK_NAME_CHARACTER;
    }
}

} // namespace

// clang-format off
BEGIN_MESSAGE_MAP(CFileSelectDlg, CnDialog)
    ON_NOTIFY(NM_CLICK, IDC_FK_FILE_LIST, &CFileSelectDlg::OnClickLstFiles)
    ON_BN_CLICKED(IDC_FK_FILE_BROWSE, &CFileSelectDlg::OnBtnFile)
    ON_WM_SIZE()
    ON_MESSAGE(WM_DPICHANGED, &CFileSelectDlg::OnDpiChanged)
END_MESSAGE_MAP()
// clang-format on

CFileSelectDlg::CFileSelectDlg(CWnd* pParent) : CnDialog(IDD_FK_FILE_SELECT, pParent) {
    SetOption(OptionOkButton | OptionBarButtonSize);
}

// --- What the caller sets and gets -----------------------------------------------------------

void CFileSelectDlg::SetMode(int nMode) {
    m_nMode = nMode;
}

void CFileSelectDlg::SetCurrentName(CString strName) {
    m_strCurrentName = strName;
}

void CFileSelectDlg::SetFileFolder(CString strFolder) {
    m_strFolder = strFolder;
    ProposeName();
    if (m_hWnd == nullptr)
        return;
    ShowFolder();
    SetCurrentFileToList();
    UpdateData(FALSE);
}

void CFileSelectDlg::SetSubName(CString strSubName) {
    m_strSubName = strSubName;
    ProposeName();
    if (m_hWnd == nullptr)
        return;
    ShowSubName();
    SetCurrentFileToList();
    UpdateData(FALSE);
}

CString CFileSelectDlg::GetFileFolder() const {
    return m_strFolder;
}

CString CFileSelectDlg::GetSubName() const {
    return m_strSubName;
}

CString CFileSelectDlg::GetFilePath() {
    if (m_hWnd != nullptr)
        UpdateItems();
    m_strFilePath = m_strName.IsEmpty() ? CString() : PathIn(m_strFolder, m_strName);
    return m_strFilePath;
}

// --- Names -----------------------------------------------------------------------------------

CString CFileSelectDlg::WithExtension(const CString& strName) const {
    return strName + L"." + m_strSubName;
}

void CFileSelectDlg::ProposeName() {
    if (!m_strCurrentName.IsEmpty())
        m_strName = WithExtension(GetSafeName(m_strCurrentName));
}

CString CFileSelectDlg::GetSafeName(CString strName) {
    while (TVCheckFileExist(PathIn(m_strFolder, WithExtension(strName))))
        TVIncrementName(strName);
    return strName;
}

void CFileSelectDlg::UpdateItems() {
    UpdateData(TRUE);
    if (m_strName.IsEmpty())
        return;
    const int nDot = m_strName.ReverseFind(L'.');
    if (nDot != -1 && nDot != m_strName.GetLength() - 1)
        return; // any extension will do
    m_strName = WithExtension(m_strName.TrimRight(L'.'));
    UpdateData(FALSE);
}

// --- The dialog ------------------------------------------------------------------------------

void CFileSelectDlg::DoDataExchange(CDataExchange* pDX) {
    CnDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_FK_FILE_LIST, m_lstFiles);
    DDX_Control(pDX, IDC_FK_FILE_BROWSE, m_btnFile);
    DDX_Text(pDX, IDC_FK_FILE_NAME, m_strName);
}

BOOL CFileSelectDlg::OnInitDialog() {
    m_btnFile.Attach(IDC_FK_FILE_BROWSE, this, TVGetCommonIcon(TVICON_FOLDER_BUTTON), 0);
    CnDialog::OnInitDialog();
    ShowTitle();
    ShowFolder();
    const RedrawPause pause(m_lstFiles);
    InitColumns();
    AnchorControls();
    ChooseListFont();
    m_lstFiles.SetExtendedStyle(m_lstFiles.GetExtendedStyle() | LVS_EX_FULLROWSELECT);
    ShowSubName();
    AddFiles();
    return TRUE;
}

void CFileSelectDlg::AnchorControls() {
    Anchor(IDC_FK_FILE_NAME, 0, 0, 100, 0);
    Anchor(IDC_FK_FILE_FOLDER, 0, 0, 100, 0);
    Anchor(IDC_FK_FILE_BROWSE, 100, 0, 100, 0);
    Anchor(IDC_FK_FILE_LIST, 0, 0, 100, 100);
    Anchor(IDC_FK_FILE_EXTENSION_LABEL, 0, 100, 0, 100);
    Anchor(IDC_FK_FILE_EXTENSION, 0, 100, 100, 100);
    FitColumns();
}

void CFileSelectDlg::ShowTitle() {
    constexpr int kTitles[] = {IDS_FK_OPEN_FILE, IDS_FK_SAVE_AS, IDS_FK_CREATE_NEW};
    if (m_nMode >= ModeOpen && m_nMode <= ModeNew)
        SetWindowText(LoadText(kTitles[m_nMode]));
}

void CFileSelectDlg::ShowFolder() {
    SetDlgItemText(IDC_FK_FILE_FOLDER, m_strFolder);
}

void CFileSelectDlg::ShowSubName() {
    SetDlgItemText(IDC_FK_FILE_EXTENSION, m_strSubName);
}

void CFileSelectDlg::OnOK() {
    if (!IsWindowEnabled())
        return; // an OK that came twice, while the first one's question is open
    if ((m_nMode == ModeSave || m_nMode == ModeNew) && !(IsNameUsable() && MayOverwrite()))
        return;
    CnDialog::OnOK();
}

/// Whether a file of the name can be made; if not, the user is told why.
bool CFileSelectDlg::IsNameUsable() {
    GetFilePath(); // with the extension
    const NameFault fault = m_strName.IsEmpty() ? NameFault::None : FaultOf(m_strName.GetString());
    if (fault == NameFault::None)
        return true;
    CString strReason;
    strReason.Format(ReasonOf(fault), m_strName.GetString());
    CResMsgBox().ErrorMsgBox(strReason);
    GotoDlgCtrl(GetDlgItem(IDC_FK_FILE_NAME));
    return false;
}

/// Whether there is no file of the name, or the user gives it away.
bool CFileSelectDlg::MayOverwrite() {
    const CString strPath = GetFilePath();
    if (!TVCheckFileExist(strPath))
        return true;
    CString strQuestion;
    strQuestion.Format(IDS_FK_ASK_OVERWRITE, strPath.GetString());
    return CResMsgBox().WarningMsgBox(strQuestion) == IDYES;
}

void CFileSelectDlg::OnBtnFile() {
    CBrowseFolderDlg dlg(m_strFolder, this);
    if (dlg.DoModal() != IDOK || dlg.GetSelectedFolder() == m_strFolder)
        return;
    m_strFolder = dlg.GetSelectedFolder();
    ShowFolder();
    SetCurrentFileToList();
}

// --- The list --------------------------------------------------------------------------------

void CFileSelectDlg::InitColumns() {
    for (int nColumn = ColumnName; nColumn <= ColumnSize; ++nColumn)
        m_lstFiles.InsertColumn(nColumn, LoadText(kHeadings[nColumn].nText), LVCFMT_LEFT,
                                AfxScale(m_hWnd, kHeadings[nColumn].nWidth), nColumn);
}

/// A wide screen is for long names.
void CFileSelectDlg::FitColumns() {
    CRect list;
    m_lstFiles.GetClientRect(list);
    int nRest = list.Width() - ::GetSystemMetrics(SM_CXVSCROLL);
    for (int nColumn = ColumnSize; nColumn >= ColumnName; --nColumn) {
        const int nWidth = AfxScale(m_hWnd, kHeadings[nColumn].nWidth);
        m_lstFiles.SetColumnWidth(nColumn, nColumn == ColumnName ? std::max(nWidth, nRest) : nWidth);
        nRest -= nWidth;
    }
}

void CFileSelectDlg::OnSize(UINT nType, int cx, int cy) {
    CnDialog::OnSize(nType, cx, cy);
    if (m_lstFiles.GetSafeHwnd() != nullptr)
        FitColumns();
}

LRESULT CFileSelectDlg::OnDpiChanged(WPARAM, LPARAM) {
    const LRESULT lResult = Default();
    m_btnFile.SetIcon(TVGetCommonIcon(TVICON_FOLDER_BUTTON));
    ChooseListFont();
    return lResult;
}

/// In a wide font the end of the time would be cut off. The list then gets the widest form of the
/// dialog's font in which any time fits its column; the height stays, so that it can be read.
void CFileSelectDlg::ChooseListFont() {
    constexpr LPCTSTR kWidestTime = L"2000/00/00 00:00";
    constexpr int kCellMargins = 12;
    const int nRoom = m_lstFiles.GetColumnWidth(ColumnTime) - AfxScale(m_hWnd, kCellMargins);
    CFont* const pDialogFont = GetFont();
    LOGFONT look = {};
    if (pDialogFont == nullptr || !pDialogFont->GetLogFont(&look))
        return;
    CClientDC dc(&m_lstFiles);
    const AfxSavedDC saved(dc);
    dc.SelectObject(pDialogFont);
    TEXTMETRIC metrics = {};
    dc.GetTextMetrics(&metrics);
    look.lfWidth = metrics.tmAveCharWidth;
    m_lstFiles.SetFont(pDialogFont, FALSE);
    m_fontList.DeleteObject(); // of another run
    while (dc.GetTextExtent(kWidestTime).cx > nRoom && --look.lfWidth > 0) {
        dc.SelectObject(pDialogFont);
        m_fontList.DeleteObject();
        m_fontList.CreateFontIndirect(&look);
        dc.SelectObject(&m_fontList);
    }
    if (m_fontList.GetSafeHandle() != nullptr)
        m_lstFiles.SetFont(&m_fontList);
}

void CFileSelectDlg::SetCurrentFileToList() {
    const RedrawPause pause(m_lstFiles);
    m_lstFiles.DeleteAllItems();
    AddFiles();
}

void CFileSelectDlg::AddFiles() {
    const QuietDrives quiet;
    int nItem = 0;
    for (FolderSearch search(SystemPath(m_strFolder)); search.Next();)
        if (!search.IsFolder() && IsWanted(search.Name()))
            AddFile(nItem++, search.Entry());
}

bool CFileSelectDlg::IsWanted(LPCTSTR pszFileName) const {
    CString strExtension;
    TVResolveFilePath(pszFileName, nullptr, nullptr, &strExtension);
    return !strExtension.IsEmpty() && m_strSubName.Find(strExtension.MakeLower()) != -1;
}

void CFileSelectDlg::AddFile(int nItem, const WIN32_FIND_DATA& file) {
    ShortText szText;
    m_lstFiles.InsertItem(nItem, file.cFileName);
    WriteTime(file.ftLastWriteTime, szText);
    m_lstFiles.SetItemText(nItem, ColumnTime, szText);
    WriteSize(file.nFileSizeLow, szText);
    m_lstFiles.SetItemText(nItem, ColumnSize, szText);
}

void CFileSelectDlg::OnClickLstFiles(NMHDR* pNMHDR, LRESULT* pResult) {
    *pResult = 0;
    const int nItem = reinterpret_cast<const NMLISTVIEW*>(pNMHDR)->iItem;
    if (nItem == -1)
        return;
    m_strName = m_lstFiles.GetItemText(nItem, ColumnName);
    if (m_nMode == ModeNew) {
        // The loose match lets shorter extensions pass, too: there may be less to cut off.
        const int nExtension = m_strSubName.GetLength() + 1;
        const CString strName = m_strName.Left(std::max(0, m_strName.GetLength() - nExtension));
        m_strName = WithExtension(GetSafeName(strName));
    }
    UpdateData(FALSE);
}
