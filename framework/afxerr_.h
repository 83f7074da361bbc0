/// @file
/// The framework's exceptions. They are thrown and caught by pointer; who catches one
/// for good calls Delete(). Included by afx.h.
#pragma once

#include "afxobj_.h"
#include "afxstr.h"

/// The base of everything that the framework throws.
class AFX_CORE CException : public CObject {
    DECLARE_DYNAMIC(CException)
public:
    CException() = default;
    /// @param bAutoDelete FALSE for an object that is not on the heap.
    explicit CException(BOOL bAutoDelete) : m_bAutoDelete(bAutoDelete) {}

    /// Frees the object if it is on the heap.
    void Delete();
    /// A text for the user.
    /// @param lpszError receives the text, cut to `nMaxError` characters with its NUL.
    /// @param pnHelpContext receives 0 if given.
    /// @return zero, with an empty text, if there is no text for this exception.
    virtual BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, UINT* pnHelpContext = nullptr) const;
#ifdef _WIN32
    /// Tells the user in a message box.
    /// @param nType style of the box @param nMessageID text for an exception that has none; 0 for a
    ///   general one @return the button
    virtual int ReportError(UINT nType = MB_OK, UINT nMessageID = 0);
#endif

private:
    BOOL m_bAutoDelete = TRUE;
};

/// The base of exceptions that say no more than their class.
class AFX_CORE CSimpleException : public CException {
    DECLARE_DYNAMIC(CSimpleException)
public:
    CSimpleException() = default;
    /// @copydoc CException(BOOL)
    explicit CSimpleException(BOOL bAutoDelete) : CException(bAutoDelete) {}
};

/// No memory left.
class AFX_CORE CMemoryException : public CSimpleException {
    DECLARE_DYNAMIC(CMemoryException)
public:
    CMemoryException() = default;
    /// @copydoc CException(BOOL)
    explicit CMemoryException(BOOL bAutoDelete) : CSimpleException(bAutoDelete) {}
    BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, UINT* pnHelpContext = nullptr) const override;
};

/// The object does not offer the requested function.
class AFX_CORE CNotSupportedException : public CSimpleException {
    DECLARE_DYNAMIC(CNotSupportedException)
public:
    CNotSupportedException() = default;
    /// @copydoc CException(BOOL)
    explicit CNotSupportedException(BOOL bAutoDelete) : CSimpleException(bAutoDelete) {}
    BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, UINT* pnHelpContext = nullptr) const override;
};

/// A resource could not be found or made.
class AFX_CORE CResourceException : public CSimpleException {
    DECLARE_DYNAMIC(CResourceException)
public:
    CResourceException() = default;
    /// @copydoc CException(BOOL)
    explicit CResourceException(BOOL bAutoDelete) : CSimpleException(bAutoDelete) {}
    BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, UINT* pnHelpContext = nullptr) const override;
};

/// Stops an operation whose failure the user has been told already; so it has no text.
class AFX_CORE CUserException : public CSimpleException {
    DECLARE_DYNAMIC(CUserException)
public:
    CUserException() = default;
    /// @copydoc CException(BOOL)
    explicit CUserException(BOOL bAutoDelete) : CSimpleException(bAutoDelete) {}
};

/// An argument outside of what the function takes.
class AFX_CORE CInvalidArgException : public CSimpleException {
    DECLARE_DYNAMIC(CInvalidArgException)
public:
    CInvalidArgException() = default;
    /// @copydoc CException(BOOL)
    explicit CInvalidArgException(BOOL bAutoDelete) : CSimpleException(bAutoDelete) {}
    BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, UINT* pnHelpContext = nullptr) const override;
};

/// A file operation failed.
class AFX_CORE CFileException : public CException {
    DECLARE_DYNAMIC(CFileException)
public:
    enum {
        none,
        genericException,
        fileNotFound,
        badPath,
        tooManyOpenFiles,
        accessDenied,
        invalidFile,
        removeCurrentDir,
        directoryFull,
        badSeek,
        hardIO,
        sharingViolation,
        lockViolation,
        diskFull,
        endOfFile
    };

    /// @param lOsError the system's error number; -1 if there is none
    /// @param lpszArchiveName the file's name; copied
    explicit CFileException(int cause = none, LONG lOsError = -1, LPCTSTR lpszArchiveName = nullptr)
        : m_cause(cause), m_lOsError(lOsError), m_strFileName(lpszArchiveName) {}

    BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, UINT* pnHelpContext = nullptr) const override;
    /// The cause for an error of the operating system: GetLastError on Windows, errno elsewhere.
    static int AFXAPI OsErrorToException(LONG lOsErr);
    /// Throws for a system error; returns if `lOsError` is 0.
    static void AFXAPI ThrowOsError(LONG lOsError, LPCTSTR lpszFileName = nullptr);

    int m_cause;           ///< The kind of failure, one of the enumeration.
    LONG m_lOsError;       ///< -1 if the system reported none
    CString m_strFileName; ///< The file's name, if it is known.
};

/// An archive could not be read or written.
class AFX_CORE CArchiveException : public CException {
    DECLARE_DYNAMIC(CArchiveException)
public:
    enum {
        none,
        genericException,
        readOnly,  ///< stored into an archive opened for loading
        endOfFile, ///< the file ends too early
        writeOnly, ///< loaded from an archive opened for storing
        badIndex,  ///< the file's format is wrong
        badClass,  ///< an object of a wrong or unknown class
        badSchema, ///< an object of another version of its class
        bufferFull
    };

    /// @param lpszArchiveName the file's name; copied
    explicit CArchiveException(int cause = none, LPCTSTR lpszArchiveName = nullptr)
        : m_cause(cause), m_strFileName(lpszArchiveName) {}

    BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, UINT* pnHelpContext = nullptr) const override;

    int m_cause;           ///< The kind of failure, one of the enumeration.
    CString m_strFileName; ///< The file's name, if it is known.
};

// The first five throw objects that exist from the start and so need no memory.
/// Throw the exception of their name. Those without arguments throw objects that exist from the
/// start, so they need no memory.
///@{
[[noreturn]] AFX_CORE void AFXAPI AfxThrowMemoryException();
[[noreturn]] AFX_CORE void AFXAPI AfxThrowNotSupportedException();
[[noreturn]] AFX_CORE void AFXAPI AfxThrowResourceException();
[[noreturn]] AFX_CORE void AFXAPI AfxThrowUserException();
[[noreturn]] AFX_CORE void AFXAPI AfxThrowInvalidArgException();
[[noreturn]] AFX_CORE void AFXAPI AfxThrowFileException(int cause, LONG lOsError = -1,
                                                        LPCTSTR lpszFileName = nullptr);
[[noreturn]] AFX_CORE void AFXAPI AfxThrowArchiveException(int cause, LPCTSTR lpszArchiveName = nullptr);

///@}