#include "screens/MainMenu.h"

#include "compute/Compute.h"
#include "screens/ComputeDlg.h"
#include "screens/ExportCommand.h"
#include "points/FilePath.h"
#include "screens/JobFile.h"
#include "screens/JournalDlg.h"
#include "screens/PlanDlg.h"
#include "screens/PointEntryDlg.h"
#include "screens/PointListDlg.h"
#include "screens/ProgressWindow.h"
#include "screens/Resource.h"
#include "screens/SettingsSheet.h"
#include "screens/Text.h"

namespace {

constexpr UINT WM_OPEN_FIRST = WM_APP;
constexpr UINT WM_IN_FRONT = WM_APP + 1;

constexpr UINT kEntryCount = IDS_MENU_LAST - IDS_MENU_FIRST + 1;

} // namespace

// clang-format off
BEGIN_MESSAGE_MAP(CMainMenu, CButtonMenuDlg)
    ON_MESSAGE(WM_OPEN_FIRST, &CMainMenu::OnOpenFirst)
    ON_MESSAGE(WM_IN_FRONT, &CMainMenu::OnInFront)
    ON_WM_ACTIVATEAPP()
    ON_WM_QUERYENDSESSION()
    ON_WM_ENDSESSION()
END_MESSAGE_MAP()
// clang-format on

CMainMenu::CMainMenu(CJob& job, const CString& strPath)
    : CButtonMenuDlg(IDS_TITLE, &m_entries, nullptr), m_job(job), m_strFirstPath(strPath),
      m_files(job, *this) {
    for (UINT nEntry = 0; nEntry < kEntryCount; ++nEntry)
        m_entries.Add(IDS_MENU_FIRST + nEntry);
    // A main window that a stray Enter or Escape closes would be a nuisance.
    SetOption(OptionSwallowKeys);
}

BOOL CMainMenu::OnInitDialog() {
    CButtonMenuDlg::OnInitDialog();
    ShowTitle();
    PostMessage(WM_OPEN_FIRST);
    return TRUE;
}

LRESULT CMainMenu::OnOpenFirst(WPARAM, LPARAM) {
    if (!OpenPointsFile(m_job, m_strFirstPath, *this))
        BeginWithoutFile(m_job, *this);
    KeepSettings(m_job.settings); // which file was used last
    ShowTitle();
    return 0;
}

/// Nothing may be asked while windows change places.
void CMainMenu::OnActivateApp(BOOL bActive, DWORD dwThreadID) {
    CButtonMenuDlg::OnActivateApp(bActive, dwThreadID);
    if (bActive)
        PostMessage(WM_IN_FRONT);
}

LRESULT CMainMenu::OnInFront(WPARAM, LPARAM) {
    LookAtFile();
    return 0;
}

/// Not while a screen is open: then it is done when that is closed.
void CMainMenu::LookAtFile() {
    if (IsWindowEnabled() && HasNewsOutside(m_job))
        AnswerNewsOutside(m_job, *this);
    ShowTitle();
}

void CMainMenu::ShowTitle() {
    const CString strName = m_job.strPath.IsEmpty() ? Text(IDS_UNTITLED) : FileNameOf(m_job.strPath);
    const wchar_t* const pszUnsaved = m_job.book.IsModified() ? L"*" : L"";
    SetWindowText(Text(IDS_TITLE_POINTS, m_job.book.GetCount(), pszUnsaved, strName.GetString()));
}

/// Without the base class, which would close the menu.
void CMainMenu::OnOK() {
    using Command = void (CMainMenu::*)();
    static constexpr Command kCommands[] = {
        &CMainMenu::OnPointEntry, &CMainMenu::OnPointList, &CMainMenu::OnCompute, &CMainMenu::OnPlan,
        &CMainMenu::OnJournal,    &CMainMenu::OnFile,      &CMainMenu::OnExport,  &CMainMenu::OnSettings,
    };
    static_assert(std::size(kCommands) == kEntryCount);
    if (GetMenuIndex() < 0)
        return;
    (this->*kCommands[GetMenuIndex()])();
    LookAtFile();
}

void CMainMenu::OnCancel() {
    if (CProgressWindow::StopCurrent())
        return;
    if (!m_files.MayGiveUpPoints()) {
        LookAtFile();
        return;
    }
    GiveUpChanges(m_job);
    CButtonMenuDlg::OnCancel();
}

/// Changes that are on the disk are left to the next start by No, and by work that is under way.
BOOL CMainMenu::OnQueryEndSession() {
    if (CProgressWindow::StopCurrent())
        return m_job.bRecorded;
    if (!m_job.bRecorded)
        return m_files.MayGiveUpPoints();
    m_files.OfferToSave();
    return TRUE;
}

/// Nothing behind DoModal is reached any more.
void CMainMenu::OnEndSession(BOOL bEnding) {
    if (bEnding)
        m_job.history.Save();
}

void CMainMenu::OnPointEntry() {
    CPointEntryDlg dialog(m_job, this);
    dialog.DoModal();
}

void CMainMenu::OnPointList() {
    CPointListDlg dialog(m_job, this);
    dialog.DoModal();
}

void CMainMenu::OnCompute() {
    CComputeDlg dialog(m_job, this);
    dialog.DoModal();
}

void CMainMenu::OnPlan() {
    const CDrawing drawing = DrawingOf(m_job.book.GetPoints());
    CPlanDlg dialog(drawing, Text(IDS_MENU_FIRST + 3), this);
    dialog.DoModal();
}

void CMainMenu::OnJournal() {
    CJournalDlg dialog(m_job.journal, this);
    dialog.DoModal();
}

void CMainMenu::OnFile() {
    m_files.RunMenu();
    KeepSettings(m_job.settings); // which file was used last
}

void CMainMenu::OnExport() {
    RunExport(m_job, *this);
}

void CMainMenu::OnSettings() {
    CSettingsSheet sheet(m_job.settings, m_nSettingsPage, this);
    sheet.DoModal();
}
