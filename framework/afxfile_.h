/// @file
/// CFile and CMemFile. Included by afx.h.
#pragma once

#include "afxobj_.h"
#include "afxstr.h"

class CFileException;
#ifdef _WIN32
struct CFileStatus;
#endif

/// A binary file of the system, unbuffered. Failures throw CFileException* unless the
/// function says otherwise. On a file that is not open, operations throw invalidFile.
/// After a failed Read or Write the file stays open, its position behind the bytes that were
/// transferred.
class AFX_CORE CFile : public CObject {
    DECLARE_DYNAMIC(CFile)
public:
    /// Combined with | for Open: one mode, one share flag, and the rest as wanted.
    enum OpenFlags : UINT {
        modeRead = 0x00000,
        modeWrite = 0x00001,
        modeReadWrite = 0x00002,
        shareCompat = 0x00000,
        shareExclusive = 0x00010,
        shareDenyWrite = 0x00020,
        shareDenyRead = 0x00030,
        shareDenyNone = 0x00040,
        modeNoInherit = 0x00080,
        modeCreate = 0x01000,     ///< make the file; cut an existing one to nothing
        modeNoTruncate = 0x02000, ///< with modeCreate: keep what exists
        typeText = 0x04000,       ///< for derived classes; CFile itself is always binary
        typeBinary = 0x08000,
        osNoBuffer = 0x10000,
        osWriteThrough = 0x20000,
        osRandomAccess = 0x40000,
        osSequentialScan = 0x80000
    };
    /// Combined with |: what CFileStatus says of a file.
    enum Attribute {
        normal = 0,
        readOnly = 1,
        hidden = 2,
        system = 4,
        volume = 8,
        directory = 16,
        archive = 32
    };
    /// What Seek counts from.
    enum SeekPosition { begin = 0, current = 1, end = 2 };

    static const HANDLE hFileNull; ///< Stands for no file.

    CFile() = default;
    /// Works on an open handle, which stays the caller's: the destructor does not close it.
    explicit CFile(HANDLE hFile);
    /// Opens the file; throws CFileException* if that fails.
    CFile(LPCTSTR lpszFileName, UINT nOpenFlags);
    /// Closes the file if Open opened it.
    ~CFile() override;

    /// The open file's handle, or hFileNull.
    operator HANDLE() const { return m_hFile; }

    /// The position from the beginning in bytes.
    virtual ULONGLONG GetPosition() const;
    /// The name with extension, without folder.
    virtual CString GetFileName() const;
    /// The file name without its extension.
    virtual CString GetFileTitle() const;
    /// The path that the file was opened with; empty for a handle of the caller's.
    virtual CString GetFilePath() const { return m_strFileName; }
    /// Changes only what GetFilePath says.
    virtual void SetFilePath(LPCTSTR lpszNewName) { m_strFileName = lpszNewName; }
    /// Opens a file; one that is open already is closed first. Only what keeps its bytes on disk
    /// is a file: folders are refused (accessDenied), devices, consoles and pipes too (badPath),
    /// for reading as well, where they would let the caller wait. A handle of one that the
    /// caller has opened can be used, see CFile(HANDLE).
    /// @param pError receives cause, system error and name of a failure; throws nothing.
    /// @return zero on failure.
    virtual BOOL Open(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError = nullptr);
    /// A second object for the same open file, with the same position. The caller deletes it.
    virtual CFile* Duplicate() const;
    /// @param nFrom a SeekPosition.
    /// @return the new position from the beginning.
    virtual ULONGLONG Seek(LONGLONG lOff, UINT nFrom);
    /// Cuts or extends the file; the position moves to its new end.
    virtual void SetLength(ULONGLONG dwNewLen);
    /// The file's length in bytes.
    virtual ULONGLONG GetLength() const;
    /// @return the bytes read: fewer than `nCount` only at the end of the file.
    virtual UINT Read(void* lpBuf, UINT nCount);
    /// Writes all of it, or throws: diskFull if there is no room or quota, hardIO for a device
    /// that fails or was pulled out.
    virtual void Write(const void* lpBuf, UINT nCount);
    /// Locks a range of bytes against other users of the file, or releases one; for a locked range
    /// of others lockViolation is thrown.
    ///@{
    virtual void LockRange(ULONGLONG dwPos, ULONGLONG dwCount);
    virtual void UnlockRange(ULONGLONG dwPos, ULONGLONG dwCount);
    ///@}
    /// Closes without regard to errors; throws nothing.
    virtual void Abort();
    /// Hands everything to the disk. Does nothing on a file that is not open.
    virtual void Flush();
    /// Closes the file. Does nothing on a file that is not open. Throws if the system reports
    /// that written data is lost; the file is closed then, too.
    virtual void Close();

    /// Moves to the end. @return the length in bytes
    ULONGLONG SeekToEnd() { return Seek(0, end); }
    /// Moves to the beginning.
    void SeekToBegin() { Seek(0, begin); }

    /// Renames or deletes a file. Throws CFileException* if that fails.
    ///@{
    static void AFXAPI Rename(LPCTSTR lpszOldName, LPCTSTR lpszNewName);
    static void AFXAPI Remove(LPCTSTR lpszFileName);
    ///@}

#ifdef _WIN32
    /// Times, size, attributes and full name of the open file, and of a file by its name.
    /// @return zero, with the status as it was, if there is none.
    ///@{
    BOOL GetStatus(CFileStatus& rStatus) const;
    static BOOL AFXAPI GetStatus(LPCTSTR lpszFileName, CFileStatus& rStatus);
    ///@}
    /// Sets attributes and times of a file; a time that is the default one stays as it is. Throws
    /// CFileException* if that fails.
    static void AFXAPI SetStatus(LPCTSTR lpszFileName, const CFileStatus& status);
#endif

    HANDLE m_hFile = hFileNull; ///< The open file, or hFileNull.

protected:
    BOOL m_bCloseOnDelete = FALSE; ///< Whether the destructor closes the file.
    CString m_strFileName;         ///< What GetFilePath says.
};

/// A file in memory, which grows as it is written.
class AFX_CORE CMemFile : public CFile {
    DECLARE_DYNAMIC(CMemFile)
public:
    /// @param nGrowBytes the step by which the memory grows; 0 for one that cannot grow.
    explicit CMemFile(UINT nGrowBytes = 1024);
    /// @see Attach
    CMemFile(BYTE* lpBuffer, UINT nBufferSize, UINT nGrowBytes = 0);
    ~CMemFile() override;

    /// Works on the caller's memory. With nGrowBytes 0 it holds a file of that size that
    /// cannot grow; otherwise an empty file, and the memory must come from malloc, because
    /// it may be moved. The caller frees it, after Detach if it can have moved.
    void Attach(BYTE* lpBuffer, UINT nBufferSize, UINT nGrowBytes = 0);
    /// Gives the memory to the caller, who frees it with free. The file is empty then.
    BYTE* Detach();

    ULONGLONG GetPosition() const override;
    BOOL Open(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError = nullptr) override;
    CFile* Duplicate() const override;
    ULONGLONG Seek(LONGLONG lOff, UINT nFrom) override;
    void SetLength(ULONGLONG dwNewLen) override;
    ULONGLONG GetLength() const override;
    UINT Read(void* lpBuf, UINT nCount) override;
    void Write(const void* lpBuf, UINT nCount) override;
    /// Not supported: throws CNotSupportedException*.
    ///@{
    void LockRange(ULONGLONG dwPos, ULONGLONG dwCount) override;
    void UnlockRange(ULONGLONG dwPos, ULONGLONG dwCount) override;
    ///@}
    void Abort() override;
    void Flush() override;
    void Close() override;

protected:
    /// The memory's management, malloc and its like here. Derived classes override all four.
    ///@{
    virtual BYTE* Alloc(std::size_t nBytes);
    virtual BYTE* Realloc(BYTE* lpMem, std::size_t nBytes);
    virtual BYTE* Memcpy(BYTE* lpMemTarget, const BYTE* lpMemSource, std::size_t nBytes);
    virtual void Free(BYTE* lpMem);
    ///@}
    /// Makes room for that many bytes; throws CMemoryException* if there is none.
    virtual void GrowFile(std::size_t dwNewLen);

    std::size_t m_nGrowBytes = 0;  ///< Step of growth in bytes; 0: cannot grow.
    std::size_t m_nPosition = 0;   ///< From the beginning, bytes.
    std::size_t m_nBufferSize = 0; ///< Size of the memory, bytes.
    std::size_t m_nFileSize = 0;   ///< Length of the file, bytes.
    BYTE* m_lpBuffer = nullptr;    ///< The memory, or null.
    BOOL m_bAutoDelete = TRUE;     ///< Whether the destructor frees the memory.
};
