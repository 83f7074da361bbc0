#include "MainDlg.h"

#include "ComputeDlg.h"
#include "JournalDlg.h"
#include "PointEntryDlg.h"
#include "PointListDlg.h"
#include "PolarDlg.h"
#include "Resource.h"
#include "SettingsSheet.h"
#include "ShowResult.h"
#include "Text.h"

#include <algorithm>

static constexpr UINT WM_REPORT = WM_APP;

// clang-format off
BEGIN_MESSAGE_MAP(CMainDlg, CnDialog)
    ON_BN_CLICKED(IDC_COMPUTE, &CMainDlg::OnCompute)
    ON_BN_CLICKED(IDC_POLAR, &CMainDlg::OnPolar)
    ON_BN_CLICKED(IDC_POINT_LIST, &CMainDlg::OnPointList)
    ON_BN_CLICKED(IDC_POINT_ENTRY, &CMainDlg::OnPointEntry)
    ON_BN_CLICKED(IDC_JOURNAL, &CMainDlg::OnJournal)
    ON_BN_CLICKED(IDC_SETTINGS, &CMainDlg::OnSettings)
    ON_MESSAGE(WM_REPORT, &CMainDlg::OnReport)
END_MESSAGE_MAP()
// clang-format on

CMainDlg::CMainDlg(const CString& strPath) : CnDialog(IDD_MAIN, nullptr), m_job(strPath) {
    // A main window that a stray Enter or Escape closes would be a nuisance.
    SetOption(OptionSwallowKeys);
}

BOOL CMainDlg::OnInitDialog() {
    CnDialog::OnInitDialog();
    m_job.settings = LoadSettings(*AfxGetApp());
    ApplySettings(m_job.settings);
    SetDlgItemText(IDC_FILE_NAME, FileName());
    LoadPoints();
    ShowPointCount();
    PostMessage(WM_REPORT); // posted, so that it comes when the window is on the screen
    return TRUE;
}

void CMainDlg::ShowPointCount() {
    SetDlgItemText(IDC_POINT_COUNT, Text(IDS_POINT_COUNT, m_job.book.GetCount()));
}

CString CMainDlg::FileName() const {
    return m_job.strPath.Mid(std::max(m_job.strPath.ReverseFind(L'\\'), m_job.strPath.ReverseFind(L'/')) + 1);
}

void CMainDlg::LoadPoints() {
    try {
        CAsciiFile file;
        CFileException error;
        if (!file.Open(m_job.strPath, CFile::modeRead | CFile::shareDenyWrite, &error))
            AfxThrowFileException(error.m_cause, error.m_lOsError, m_job.strPath);
        m_badLines = ReadPoints(file, m_job.book);
    } catch (CFileException* e) {
        const int nCause = e->m_cause;
        e->Delete();
        const bool bMissing = nCause == CFileException::fileNotFound || nCause == CFileException::badPath;
        const CString strName = FileName();
        AfxMessageBox(bMissing ? Text(IDS_NO_FILE, strName.GetString())
                               : Text(IDS_NOT_READ, nCause, strName.GetString()));
    }
}

LRESULT CMainDlg::OnReport(WPARAM, LPARAM) {
    ShowBadLines(*this, m_badLines);
    return 0;
}

void CMainDlg::OnCompute() {
    CComputeDlg dialog(m_job, this);
    dialog.DoModal();
}

void CMainDlg::OnPolar() {
    CPolarDlg dialog(m_job, this);
    dialog.DoModal();
}

void CMainDlg::OnPointList() {
    CPointListDlg dialog(m_job.book, this);
    dialog.DoModal();
}

void CMainDlg::OnPointEntry() {
    CPointEntryDlg dialog(m_job, this);
    dialog.DoModal();
    ShowPointCount();
}

void CMainDlg::OnJournal() {
    CJournalDlg dialog(m_job.journal, this);
    dialog.DoModal();
}

void CMainDlg::OnSettings() {
    CSettingsSheet sheet(m_job.settings, m_nSettingsPage, this);
    sheet.DoModal();
}
