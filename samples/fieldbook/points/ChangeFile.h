/// @file
/// CChangeFile: keeps each change on the disk until the points file has it.
#pragma once

#include "points/ChangeLog.h"

#include <memory>
#include <optional>

/// Changes that an earlier run has left.
struct CLeftChanges {
    std::string bytes;  ///< Of the record, as far as it is whole.
    size_t nPlace = 0;  ///< Where it was found.
    bool bFits = false; ///< Whether they are changes to the content that the points file has.
    std::vector<CPointChange> changes;
};

/// The record of changes to one points file, ".changes" behind its name. Where that cannot be
/// written, because the card is full or gone, the record goes on in the program's own folder.
///
/// Nothing is on the disk while there is nothing to record.
class CChangeFile {
public:
    /// @param strOwnFolder the program's
    explicit CChangeFile(const CString& strOwnFolder) : m_strOwnFolder(strOwnFolder) {}
    ~CChangeFile() { Close(); }
    CChangeFile(const CChangeFile&) = delete;
    CChangeFile& operator=(const CChangeFile&) = delete;

    /// Turns to the record of a points file, and forgets the changes to the one before, if that was
    /// another one.
    /// @param strPointsPath empty for points that are in no file yet
    /// @return false, with nothing changed, if another program works on that file
    bool Claim(const CString& strPointsPath);

    /// Whether no other program works on a points file.
    bool IsFree(const CString& strPointsPath) const;

    /// What an earlier run has left of changes to a points file: the longest record that fits to the
    /// content, else any. It stays on the disk. Nothing if there are no changes that the content has
    /// not got.
    /// @throw CFileException* with the record's name if it cannot be read
    std::optional<CLeftChanges> FindLeft(const CString& strPointsPath, std::uint64_t nHash,
                                         const Progress& progress = {});
    /// Goes on with a record that was found and fits.
    void Resume(const CLeftChanges& left);
    /// Puts what was found aside, with ".old" behind its name.
    void PutAside();
    /// Forgets all changes: the points file has them, or nobody wants them.
    /// @param nHash of the points file from now on
    void Begin(std::uint64_t nHash);

    /// Writes changes down. When it returns, they are on the disk.
    /// @throw CFileException* if they are in no place; the next call tries again to write all. For
    ///        want of memory what `new` throws; then they do not belong to the record.
    void Append(const std::vector<CPointChange>& changes);
    /// The points file is about to get this content.
    /// If that cannot be written it costs a question only, should the program end just then.
    void AppendSaving(std::uint64_t nHash);

private:
    struct CCloseHandle {
        void operator()(void* hHandle) const { ::CloseHandle(hHandle); }
    };
    using Lock = std::unique_ptr<void, CCloseHandle>;
    static Lock LockOf(const CString& strPath);
    CString FirstPlaceOf(const CString& strPointsPath) const;
    std::vector<CString> PlacesOf(const CString& strPointsPath) const;
    bool IsOwn(const CString& strPlace) const;

    void Write(const std::string& lines);
    void WriteSomewhere();
    void WriteTo(size_t nPlace);
    void Close();

    CString m_strOwnFolder;
    std::vector<CString> m_places; ///< Paths of the record, the first one is preferred.
    Lock m_lock;
    std::string m_record; ///< All lines since Begin.
    size_t m_nPlace = 0;  ///< Where the record is.
    CFile m_file;         ///< Open while it has all that was written so far.
    size_t m_nWritten = 0;
    std::uint64_t m_nBase = 0;
};
