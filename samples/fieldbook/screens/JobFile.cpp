#include "screens/JobFile.h"

#include "dialogs/ResMsgBox.h"
#include "points/FilePath.h"
#include "points/FileReplacement.h"
#include "points/PointSaving.h"
#include "screens/BadLines.h"
#include "screens/ColumnChoice.h"
#include "screens/Messages.h"
#include "screens/Resource.h"
#include "screens/Text.h"

#include <utility>

namespace {

/// The user is told when changes begin to be on no disk, not at each of them.
void Record(CJob& job, const CPointChange& change) {
    try {
        job.changes.Append(change);
        job.bRecorded = true;
    } catch (CFileException* e) {
        if (std::exchange(job.bRecorded, false))
            TellFileProblem(e, IDS_NOT_RECORDED, job.strPath);
        else
            e->Delete();
    }
}

/// Remembers the file before this one: crews go back and forth between two jobs.
void UseFile(CSettings& settings, const CString& strPath) {
    const CString strFile = FullPathOf(strPath);
    if (strPath.IsEmpty() || IsSamePath(strFile, settings.strFile))
        return;
    settings.strPrevious = settings.strFile;
    settings.strFile = strFile;
}

/// From now on changes are recorded.
void BeginJob(CJob& job, const CString& strPath, std::uint64_t nContent) {
    job.strPath = strPath;
    UseFile(job.settings, strPath);
    job.nContent = nContent;
    job.bRecorded = true;
    job.bWritten = false;
    job.journal = strPath.IsEmpty() ? CJournal() : CJournal(strPath);
    job.book.BeginHere();
    job.book.SetObserver([&job](const CPointChange& change) { Record(job, change); });
}

/// @return how many of the changes do not fit to the points
int Repeat(CPointBook& book, const std::vector<CPointChange>& changes) {
    int nLeftOut = 0;
    for (const CPointChange& change : changes)
        nLeftOut += book.Apply(change) ? 0 : 1;
    return nLeftOut;
}

/// Changes that were made to another content than the file has now: the user decides.
void RepeatForeignChanges(CJob& job, const std::vector<CPointChange>& changes) {
    const auto nCount = static_cast<int>(changes.size());
    const bool bWanted = CResMsgBox().WarningMsgBox(Text(IDS_ASK_REPEAT, nCount)) == IDYES;
    job.changes.PutAside();
    job.changes.Begin(job.nContent);
    if (!bWanted)
        return;
    const int nLeftOut = Repeat(job.book, changes);
    CResMsgBox().InformationMsgBox(Text(IDS_REPEATED, nCount - nLeftOut, nLeftOut));
}

void RepeatChangesLeft(CJob& job) {
    try {
        const std::optional<CLeftChanges> left = job.changes.FindLeft(job.nContent);
        if (!left) {
            job.changes.Begin(job.nContent);
            return;
        }
        if (!left->bFits) {
            RepeatForeignChanges(job, left->changes);
            return;
        }
        job.book.SetObserver({}); // they are recorded already
        Repeat(job.book, left->changes);
        job.changes.Resume(*left);
        job.book.SetObserver([&job](const CPointChange& change) { Record(job, change); });
        CResMsgBox().InformationMsgBox(Text(IDS_RECOVERED, static_cast<int>(left->changes.size())));
    } catch (CFileException* e) {
        TellFileProblem(e, IDS_NOT_READ, job.strPath);
    }
}

bool IsFree(const CJob& job, const CString& strPath) {
    const bool bFree = job.changes.IsFree(strPath);
    if (!bFree)
        CResMsgBox().ErrorMsgBox(Text(IDS_FILE_IN_USE, FileNameOf(strPath).GetString()));
    return bFree;
}

/// What a save would write over.
struct CPresentFile {
    bool bThere = false;
    std::string bytes;
};

CPresentFile ReadPresent(const CString& strPath) {
    if (::GetFileAttributes(strPath) == INVALID_FILE_ATTRIBUTES)
        return {};
    return {true, ReadWholeFile(strPath)};
}

/// Lines that nobody could read may still matter to whoever wrote them, and so may the way in which
/// numbers were written.
bool KeepForeignFile(const CJob& job, const CString& strPath, const CPresentFile& present) {
    const bool bOwn = job.bWritten && HashOf(present.bytes) == job.nContent;
    if (bOwn || IsAsSaved(present.bytes, job.format))
        return true;
    const bool bKept = KeepBackup(strPath);
    const CString strName = FileNameOf(strPath);
    if (!bKept)
        CResMsgBox().ErrorMsgBox(Text(IDS_NO_BACKUP, strName.GetString()));
    else if (!job.badLines.empty())
        CResMsgBox().InformationMsgBox(Text(IDS_BACKUP_KEPT, strName.GetString()));
    return bKept;
}

bool MayReplace(const CJob& job, const CString& strPath) {
    if (job.strPath.IsEmpty() || !IsSamePath(strPath, job.strPath))
        return true; // the file dialog has asked
    const CPresentFile present = ReadPresent(strPath);
    if (!present.bThere)
        return true;
    if (HashOf(present.bytes) != job.nContent &&
        !AskToLose(Text(IDS_ASK_CHANGED_OUTSIDE, FileNameOf(strPath).GetString())))
        return false;
    return KeepForeignFile(job, strPath, present);
}

} // namespace

CJob::CJob(const CString& strHistoryPath)
    : changes(FullPathOf(strHistoryPath).Left(FullPathOf(strHistoryPath).ReverseFind(L'\\'))),
      history(strHistoryPath) {}

void BeginWithoutFile(CJob& job) {
    BeginJob(job, CString(), HashOf({}));
    job.format = NewFormat();
    if (job.changes.Claim(CString()))
        RepeatChangesLeft(job);
    else
        job.book.SetObserver({}); // another program without a file has the record
}

bool OpenPointsFile(CJob& job, const CString& strPath, CWnd& parent) {
    CPointBook book; // a file that breaks off must not cost the points that are there
    CReadReport report;
    std::string bytes;
    if (!IsFree(job, strPath))
        return false;
    try {
        bytes = ReadWholeFile(strPath);
        const CFileText text = DecodeText(bytes);
        if (!text.unreadable.empty()) {
            ShowUnreadableLines(parent, text.unreadable);
            return false;
        }
        report = ReadPoints(text, book, HelpFor(job.settings, parent));
    } catch (CFileException* e) {
        TellFileProblem(e, IDS_NOT_READ, strPath);
        return false;
    }
    if (!report.bRead)
        return false;
    GiveUpChanges(job);
    job.changes.Claim(strPath);
    job.book = std::move(book);
    job.badLines = std::move(report.badLines);
    job.format = report.format;
    BeginJob(job, strPath, HashOf(bytes));
    ShowBadLines(parent, job.badLines);
    RepeatChangesLeft(job);
    return true;
}

bool MakePointsFile(CJob& job, const CString& strPath) {
    if (!IsFree(job, strPath))
        return false;
    CPointBook book;
    std::string bytes;
    CString strBad;
    FormatPoints(book.GetPoints(), NewFormat(), bytes, strBad);
    try {
        RewriteFile(strPath, bytes);
    } catch (CFileException* e) {
        TellFileProblem(e, IDS_NOT_WRITTEN, strPath);
        return false;
    }
    GiveUpChanges(job);
    job.changes.Claim(strPath);
    job.changes.Begin(HashOf(bytes));
    job.book = std::move(book);
    job.badLines.clear();
    job.format = NewFormat();
    BeginJob(job, strPath, HashOf(bytes));
    return true;
}

bool SavePointsFile(CJob& job, const CString& strPath) {
    std::string bytes;
    CString strBad;
    CLineFormat format = job.format;
    if (!FormatFile(job.book.GetPoints(), format, bytes, strBad)) {
        CResMsgBox().ErrorMsgBox(Text(IDS_POINT_NOT_WRITABLE, strBad.GetString()));
        return false;
    }
    try {
        if (!IsFree(job, strPath) || !MayReplace(job, strPath))
            return false;
        job.changes.AppendSaving(HashOf(bytes));
        RewriteFile(strPath, bytes);
    } catch (CFileException* e) {
        TellFileProblem(e, IDS_NOT_WRITTEN, strPath);
        return false;
    }
    job.changes.Begin(HashOf(bytes)); // the record of the file before: its changes are in this one
    job.changes.Claim(strPath);
    job.changes.Begin(HashOf(bytes));
    if (job.book.GetCount() != 0) // a file without points is of no kind; the next ones get theirs back
        job.format = format;
    job.strPath = strPath;
    UseFile(job.settings, strPath);
    job.nContent = HashOf(bytes);
    job.bRecorded = true;
    job.bWritten = true;
    job.journal.SetPointsPath(strPath);
    job.badLines.clear();
    job.book.SetModified(false);
    return true;
}

void GiveUpChanges(CJob& job) {
    job.changes.Begin(job.nContent);
}
