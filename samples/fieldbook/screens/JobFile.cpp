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
    const bool bWanted = Ask(Text(IDS_ASK_REPEAT, nCount));
    job.changes.PutAside();
    job.changes.Begin(job.nContent);
    if (!bWanted)
        return;
    const int nLeftOut = Repeat(job.book, changes);
    TellInformation(Text(IDS_REPEATED, nCount - nLeftOut, nLeftOut));
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
        TellInformation(Text(IDS_RECOVERED, static_cast<int>(left->changes.size())));
    } catch (CFileException* e) {
        TellFileProblem(e, IDS_NOT_READ, job.strPath);
    }
}

bool IsFree(const CJob& job, const CString& strPath) {
    const bool bFree = job.changes.IsFree(strPath);
    if (!bFree)
        TellError(Text(IDS_FILE_IN_USE, FileNameOf(strPath).GetString()));
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

/// A points file before it becomes the job's.
struct CReadFile {
    CPointBook book; ///< A file that breaks off must not cost the points that are there.
    CReadReport report;
    std::uint64_t nContent = 0;
    CFileStamp stamp;
};

/// @return false if it is not to be used; the user knows why
bool Read(CJob& job, const CString& strPath, CWnd& parent, CReadFile& file) {
    constexpr size_t kParts = 3;
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
        return file.report.bRead;
    } catch (CFileException* e) {
        TellFileProblem(e, IDS_NOT_READ, strPath);
    } catch (CUserException* e) {
        e->Delete();
    }
    return false;
}

/// @param bGiveUp whether changes to the job's points so far are forgotten
void Take(CJob& job, const CString& strPath, CReadFile& file, bool bGiveUp, CWnd& parent) {
    if (bGiveUp)
        GiveUpChanges(job);
    job.changes.Claim(strPath);
    job.book = std::move(file.book);
    job.badLines = std::move(file.report.badLines);
    job.format = file.report.format;
    BeginJob(job, strPath, file.nContent, file.stamp);
    ShowBadLines(parent, job.badLines);
    RepeatChangesLeft(job);
}

} // namespace

CJob::CJob(const CString& strHistoryPath)
    : changes(FullPathOf(strHistoryPath).Left(FullPathOf(strHistoryPath).ReverseFind(L'\\'))),
      history(strHistoryPath) {}

void BeginWithoutFile(CJob& job) {
    BeginJob(job, CString(), HashOf({}), {});
    job.format = NewFormat();
    if (job.changes.Claim(CString()))
        RepeatChangesLeft(job);
    else
        job.book.SetObserver({}); // another program without a file has the record
}

bool OpenPointsFile(CJob& job, const CString& strPath, CWnd& parent) {
    CReadFile file;
    if (!IsFree(job, strPath) || !Read(job, strPath, parent, file))
        return false;
    Take(job, strPath, file, true, parent);
    return true;
}

bool HasNewsOutside(CJob& job) {
    const CFileStamp stamp = StampOf(job.strPath);
    if (job.strPath.IsEmpty() || !stamp.bThere || stamp == job.stamp)
        return false;
    try {
        const std::uint64_t nHash = HashOf(ReadWholeFile(job.strPath));
        job.stamp = stamp;
        return std::exchange(job.nSeen, nHash) != nHash && nHash != job.nContent;
    } catch (CFileException* e) {
        e->Delete();
        return false;
    }
}

void OfferToReload(CJob& job, CWnd& parent) {
    CReadFile file;
    const bool bOnDisk = !job.book.IsModified() || job.bRecorded;
    if (!Ask(Text(IDS_ASK_RELOAD, FileNameOf(job.strPath).GetString())) ||
        (!bOnDisk && !AskToLose(Text(IDS_ASK_GIVE_UP))) || !Read(job, job.strPath, parent, file))
        return;
    Take(job, CString(job.strPath), file, false, parent);
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
    job.changes.Begin(HashOf(bytes)); // the record of the file before: its changes are in this one
    job.changes.Claim(strPath);
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
