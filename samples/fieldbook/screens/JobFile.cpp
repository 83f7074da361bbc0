#include "screens/JobFile.h"

#include "screens/BadLines.h"
#include "points/FilePath.h"
#include "screens/Resource.h"
#include "screens/Text.h"
#include "dialogs/ResMsgBox.h"

#include <utility>

namespace {

void TellProblem(CFileException* e, UINT nTextId, const CString& strPath) {
    const int nCause = e->m_cause;
    e->Delete();
    const bool bMissing = nCause == CFileException::fileNotFound || nCause == CFileException::badPath;
    const CString strName = FileNameOf(strPath);
    CResMsgBox().ErrorMsgBox(bMissing ? Text(IDS_NO_FILE, strName.GetString())
                                      : Text(nTextId, nCause, strName.GetString()));
}

CReadReport ReadBook(const CString& strPath, CPointBook& book) {
    CAsciiFile file;
    CFileException error;
    if (!file.Open(strPath, CFile::modeRead | CFile::shareDenyWrite, &error))
        AfxThrowFileException(error.m_cause, error.m_lOsError, strPath);
    return ReadPoints(file, book);
}

void BeginJob(CJob& job, const CString& strPath) {
    job.strPath = strPath;
    job.journal = CJournal(strPath);
    job.book.SetModified(false);
}

/// Lines that nobody could read may still matter to whoever wrote them.
bool KeepUnreadLines(const CJob& job, const CString& strPath) {
    if (job.badLines.empty() || !IsSamePath(strPath, job.strPath))
        return true;
    const bool bKept = KeepBackup(strPath);
    const CString strName = FileNameOf(strPath);
    if (bKept)
        CResMsgBox().InformationMsgBox(Text(IDS_BACKUP_KEPT, strName.GetString()));
    else
        CResMsgBox().ErrorMsgBox(Text(IDS_NO_BACKUP, strName.GetString()));
    return bKept;
}

} // namespace

bool OpenPointsFile(CJob& job, const CString& strPath, CWnd& parent) {
    CPointBook book; // a file that breaks off must not cost the points that are there
    CReadReport report;
    try {
        report = ReadBook(strPath, book);
    } catch (CFileException* e) {
        TellProblem(e, IDS_NOT_READ, strPath);
        return false;
    }
    job.book = std::move(book);
    job.badLines = std::move(report.badLines);
    job.format = report.format;
    BeginJob(job, strPath);
    ShowBadLines(parent, job.badLines);
    return true;
}

bool MakePointsFile(CJob& job, const CString& strPath) {
    try {
        SavePoints(strPath, CPointBook(), CLineFormat());
    } catch (CFileException* e) {
        TellProblem(e, IDS_NOT_WRITTEN, strPath);
        return false;
    }
    job.book = CPointBook();
    job.badLines.clear();
    job.format = CLineFormat();
    BeginJob(job, strPath);
    return true;
}

bool SavePointsFile(CJob& job, const CString& strPath) {
    if (!KeepUnreadLines(job, strPath))
        return false;
    try {
        SavePoints(strPath, job.book, job.format);
    } catch (CFileException* e) {
        TellProblem(e, IDS_NOT_WRITTEN, strPath);
        return false;
    }
    job.strPath = strPath;
    job.journal.SetPointsPath(strPath);
    job.badLines.clear();
    job.book.SetModified(false);
    return true;
}
