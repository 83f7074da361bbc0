#include "screens/JobFile.h"

#include "points/FilePath.h"
#include "points/FileReplacement.h"
#include "points/PointSaving.h"
#include "screens/BadLines.h"
#include "screens/ColumnChoice.h"
#include "screens/Messages.h"
#include "screens/ProgressWindow.h"
#include "screens/Resource.h"
#include "screens/Text.h"

#include <utility>

namespace {

constexpr size_t kSavingParts = 4; // the bytes, those that are there, how they compare, the disk

/// In the middle of a change nobody can be told.
void Record(CJob& job, const std::vector<CPointChange>& changes) {
    try {
        job.changes.Append(changes);
        job.bRecorded = true;
    } catch (CFileException* e) {
        if (std::exchange(job.bRecorded, false))
            job.nUntold = CauseTextId(*e);
        e->Delete();
    }
}

/// The user is told when changes begin to be on no disk, not at each of them.
void TellNotRecorded(CJob& job) {
    const UINT nCauseId = std::exchange(job.nUntold, 0);
    const CString strName = job.strPath.IsEmpty() ? Text(IDS_UNTITLED) : FileNameOf(job.strPath);
    if (nCauseId != 0)
        TellError(Text(IDS_NOT_RECORDED, strName.GetString(), Text(nCauseId).GetString()));
}

/// Remembers the file before this one: crews go back and forth between two jobs.
void UseFile(CSettings& settings, const CString& strPath) {
    const CString strFile = FullPathOf(strPath);
    if (strPath.IsEmpty() || IsSamePath(strFile, settings.strFile))
        return;
    settings.strPrevious = settings.strFile;
    settings.strFile = strFile;
}

/// The points file and the job have the same points.
void Meet(CJob& job, const CString& strPath, std::uint64_t nContent, const CFileStamp& stamp) {
    job.strPath = strPath;
    UseFile(job.settings, strPath);
    job.nContent = job.nSeen = nContent;
    job.stamp = stamp;
}

/// From now on changes are recorded.
void BeginJob(CJob& job, const CString& strPath, std::uint64_t nContent, const CFileStamp& stamp) {
    Meet(job, strPath, nContent, stamp);
    job.bRecorded = true;
    job.nUntold = 0;
    job.bWritten = false;
    job.journal = strPath.IsEmpty() ? CJournal() : CJournal(strPath);
    job.book.SetObserver([&job](const CPointChange& change) { Record(job, {change}); });
    job.book.SetFollower([&job] { TellNotRecorded(job); });
}

void TellInUse(const CString& strPath) {
    TellError(Text(IDS_FILE_IN_USE, FileNameOf(strPath).GetString()));
}

bool IsFree(const CJob& job, const CString& strPath) {
    const bool bFree = job.changes.IsFree(strPath);
    if (!bFree)
        TellInUse(strPath);
    return bFree;
}

/// What a save would write over.
struct CPresentFile {
    bool bThere = false;
    std::string bytes;
};

CPresentFile ReadPresent(const CString& strPath, const Progress& progress) {
    if (::GetFileAttributes(strPath) == INVALID_FILE_ATTRIBUTES)
        return {};
    return {true, ReadWholeFile(strPath, progress)};
}

/// Lines that nobody could read may still matter to whoever wrote them, and so may the way in which
/// numbers were written.
bool IsForeign(const CJob& job, const CPresentFile& present, const Progress& progress) {
    const bool bOwn = job.bWritten && HashOf(present.bytes) == job.nContent;
    return !bOwn && !IsAsSaved(present.bytes, job.format, progress);
}

bool KeepForeignFile(const CJob& job, const CString& strPath) {
    const bool bKept = KeepBackup(strPath);
    const CString strName = FileNameOf(strPath);
    if (!bKept)
        TellError(Text(IDS_NO_BACKUP, strName.GetString()));
    else if (!job.badLines.empty())
        TellInformation(Text(IDS_BACKUP_KEPT, strName.GetString()));
    return bKept;
}

bool MayReplace(const CJob& job, const CString& strPath, CProgressWindow& window) {
    if (job.strPath.IsEmpty() || !IsSamePath(strPath, job.strPath))
        return true; // the file dialog has asked
    const CPresentFile present = ReadPresent(strPath, PartOf(window.Get(), 1, kSavingParts));
    if (!present.bThere)
        return true;
    const bool bForeign = IsForeign(job, present, PartOf(window.Get(), 2, kSavingParts));
    window.Close();
    if (HashOf(present.bytes) != job.nContent &&
        !AskToLose(Text(IDS_ASK_CHANGED_OUTSIDE, FileNameOf(strPath).GetString())))
        return false;
    return !bForeign || KeepForeignFile(job, strPath);
}

/// A points file before it becomes the job's: work that breaks off must not cost the points that are there.
struct CReadFile {
    CPointBook book; ///< With the changes that were left and are wanted.
    CReadReport report;
    std::uint64_t nContent = 0;
    CFileStamp stamp;
    std::optional<CLeftChanges> left;
    bool bLeftWanted = false;
};

/// Finds the changes that were not saved when the program ended and repeats them. Those that were made to
/// another content than the file has now are asked about.
void RepeatLeft(CJob& job, const CString& strPath, CReadFile& file, CProgressWindow& window,
                const Progress& progress) {
    file.left = job.changes.FindLeft(strPath, file.nContent, PartOf(progress, 0, 2));
    if (!file.left)
        return;
    const std::vector<CPointChange>& changes = file.left->changes;
    if (!file.left->bFits)
        window.Close();
    file.bLeftWanted = file.left->bFits || Ask(Text(IDS_ASK_REPEAT, static_cast<int>(changes.size())));
    if (!file.bLeftWanted)
        return;
    const Progress repeating = PartOf(progress, 1, 2);
    CSteps steps(repeating, changes.size());
    for (const CPointChange& change : changes) {
        steps.Next();
        file.book.Apply(change);
    }
}

/// @param bGiveUp whether changes to the job's points so far are forgotten
/// @return false if it is not to be used; the user knows why
bool Read(CJob& job, const CString& strPath, bool bGiveUp, CWnd& parent, CReadFile& file) {
    constexpr size_t kParts = 4;
    try {
        CProgressWindow window(IDS_READING);
        file.stamp = StampOf(strPath);
        const std::string bytes = ReadWholeFile(strPath, PartOf(window.Get(), 0, kParts));
        const CFileText text = DecodeText(bytes, PartOf(window.Get(), 1, kParts));
        if (!text.unreadable.empty()) {
            window.Close();
            ShowUnreadableLines(parent, text.unreadable);
            return false;
        }
        CReadHelp help = HelpFor(job.settings, parent, window);
        help.progress = PartOf(window.Get(), 2, kParts);
        file.report = ReadPoints(text, file.book, help);
        file.nContent = HashOf(bytes);
        if (file.report.bRead && !(bGiveUp && IsSamePath(strPath, job.strPath)))
            RepeatLeft(job, strPath, file, window, PartOf(window.Get(), 3, kParts));
        return file.report.bRead;
    } catch (CFileException* e) {
        TellFileProblem(e, IDS_NOT_READ, CString(e->m_strFileName));
    } catch (CUserException* e) {
        e->Delete();
    }
    return false;
}

/// The record goes on with the changes that the book has, and without any others.
void GoOnRecording(CJob& job, const CReadFile& file) {
    if (file.left && file.left->bFits) {
        job.changes.Resume(*file.left);
        return;
    }
    if (file.left)
        job.changes.PutAside();
    job.changes.Begin(file.nContent);
    if (job.book.IsModified())
        Record(job, job.book.GetChanges());
}

void TellLeft(const CLeftChanges& left, int nMade) {
    const auto nCount = static_cast<int>(left.changes.size());
    TellInformation(left.bFits ? Text(IDS_RECOVERED, nCount) : Text(IDS_REPEATED, nMade, nCount - nMade));
}

void BeginWith(CJob& job, const CString& strPath, CReadFile& file, CWnd& parent) {
    job.book = std::move(file.book);
    job.badLines = std::move(file.report.badLines);
    job.format = file.report.format;
    BeginJob(job, strPath, file.nContent, file.stamp);
    GoOnRecording(job, file);
    ShowBadLines(parent, job.badLines);
    if (file.bLeftWanted)
        TellLeft(*file.left, static_cast<int>(job.book.GetChanges().size()));
    TellNotRecorded(job);
}

/// @return false, with the job as it was, if another program has begun to work on the file
bool Take(CJob& job, const CString& strPath, CReadFile& file, CWnd& parent) {
    const bool bClaimed = job.changes.Claim(strPath);
    if (bClaimed)
        BeginWith(job, strPath, file, parent);
    else
        TellInUse(strPath);
    return bClaimed;
}

} // namespace

CJob::CJob(const CString& strHistoryPath)
    : changes(FullPathOf(strHistoryPath).Left(FullPathOf(strHistoryPath).ReverseFind(L'\\'))),
      history(strHistoryPath) {}

void BeginWithoutFile(CJob& job, CWnd& parent) {
    CReadFile file;
    file.report.format = NewFormat();
    file.nContent = HashOf({});
    try {
        CProgressWindow window(IDS_READING);
        if (job.changes.Claim(CString())) // else another program without a file has the record
            RepeatLeft(job, CString(), file, window, window.Get());
    } catch (CFileException* e) {
        TellFileProblem(e, IDS_NOT_READ, CString(e->m_strFileName));
        job.changes.PutAside();
    } catch (CUserException* e) {
        e->Delete();
        file.book = CPointBook();
        file.left.reset();
        job.changes.PutAside();
    }
    BeginWith(job, CString(), file, parent);
}

bool OpenPointsFile(CJob& job, const CString& strPath, CWnd& parent) {
    CReadFile file;
    return IsFree(job, strPath) && Read(job, strPath, true, parent, file) && Take(job, strPath, file, parent);
}

bool HasNewsOutside(CJob& job) {
    const CFileStamp stamp = StampOf(job.strPath);
    if (job.strPath.IsEmpty() || stamp == job.stamp)
        return false;
    if (!stamp.bThere) {
        job.stamp = stamp;
        return true;
    }
    try {
        const std::uint64_t nHash = HashOf(ReadWholeFile(job.strPath));
        job.stamp = stamp;
        return std::exchange(job.nSeen, nHash) != nHash && nHash != job.nContent;
    } catch (CFileException* e) {
        e->Delete();
        return false;
    }
}

void AnswerNewsOutside(CJob& job, CWnd& parent) {
    const CString strPath = job.strPath;
    if (!job.stamp.bThere) {
        job.book.SetModified(true);
        if (Ask(Text(IDS_ASK_SAVE_AGAIN, FileNameOf(strPath).GetString())))
            SavePointsFile(job, strPath);
        return;
    }
    CReadFile file;
    const bool bOnDisk = !job.book.IsModified() || job.bRecorded;
    if (Ask(Text(IDS_ASK_RELOAD, FileNameOf(strPath).GetString())) &&
        (bOnDisk || AskToLose(Text(IDS_ASK_GIVE_UP))) && Read(job, strPath, false, parent, file))
        Take(job, strPath, file, parent);
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
    if (!job.changes.Claim(strPath)) {
        TellInUse(strPath);
        return false;
    }
    job.changes.Begin(HashOf(bytes));
    job.book = std::move(book);
    job.badLines.clear();
    job.format = NewFormat();
    BeginJob(job, strPath, HashOf(bytes), StampOf(strPath));
    return true;
}

bool SavePointsFile(CJob& job, const CString& strPath) {
    std::string bytes;
    CLineFormat format = job.format;
    if (!IsFree(job, strPath))
        return false;
    try {
        CProgressWindow window(IDS_SAVING);
        CString strBad;
        if (!FormatFile(job.book.GetPoints(), format, bytes, strBad, PartOf(window.Get(), 0, kSavingParts))) {
            window.Close();
            TellError(Text(IDS_POINT_NOT_WRITABLE, strBad.GetString()));
            return false;
        }
        if (!MayReplace(job, strPath, window))
            return false;
        job.changes.AppendSaving(HashOf(bytes));
        RewriteFile(strPath, bytes, PartOf(window.Get(), 3, kSavingParts));
    } catch (CFileException* e) {
        TellFileProblem(e, IDS_NOT_WRITTEN, strPath);
        return false;
    } catch (CUserException* e) {
        e->Delete();
        return false;
    }
    if (!job.changes.Claim(strPath)) {
        TellInUse(strPath);
        return false;
    }
    job.changes.Begin(HashOf(bytes));
    if (job.book.GetCount() != 0) // a file without points is of no kind; the next ones get theirs back
        job.format = format;
    Meet(job, strPath, HashOf(bytes), StampOf(strPath));
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
