#include "FileSystem.h"

#include <memory>

using namespace fieldkit::detail;

IMPLEMENT_DYNAMIC(CFile, CObject)

const HANDLE CFile::hFileNull = reinterpret_cast<HANDLE>(static_cast<INT_PTR>(-1));

namespace {

CString NameOf(const CString& path) {
    int start = path.GetLength();
    while (start > 0 && !filesystem::IsSeparator(path[start - 1]))
        --start;
    return path.Mid(start);
}

} // namespace

CFile::CFile(HANDLE hFile) : m_hFile(hFile) {}

CFile::CFile(LPCTSTR lpszFileName, UINT nOpenFlags) {
    CFileException error;
    if (!CFile::Open(lpszFileName, nOpenFlags, &error))
        AfxThrowFileException(error.m_cause, error.m_lOsError, error.m_strFileName);
}

CFile::~CFile() {
    if (m_bCloseOnDelete)
        CFile::Abort();
}

BOOL CFile::Open(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError) {
    const CString path = filesystem::FullPath(lpszFileName != nullptr ? lpszFileName : L"");
    if (m_bCloseOnDelete)
        Abort();
    m_hFile = hFileNull;
    m_strFileName = path; // while there is no open file that want of memory could lose

    HANDLE file = hFileNull;
    if (const filesystem::Error error = filesystem::Open(path, nOpenFlags, file); error != 0) {
        m_strFileName.Empty();
        if (pError != nullptr) {
            pError->m_cause = CFileException::OsErrorToException(error);
            pError->m_lOsError = error;
            pError->m_strFileName = path;
        }
        return FALSE;
    }
    m_hFile = file;
    m_bCloseOnDelete = TRUE;
    SetFilePath(path); // the same text, so it asks for no memory
    return TRUE;
}

CFile* CFile::Duplicate() const {
    auto pFile = std::make_unique<CFile>();
    pFile->m_strFileName = m_strFileName;
    HANDLE copy = hFileNull;
    CFileException::ThrowOsError(filesystem::Duplicate(m_hFile, copy), m_strFileName);
    pFile->m_hFile = copy;
    pFile->m_bCloseOnDelete = TRUE;
    return pFile.release();
}

ULONGLONG CFile::GetPosition() const {
    ULONGLONG position = 0;
    CFileException::ThrowOsError(filesystem::Seek(m_hFile, 0, current, position), m_strFileName);
    return position;
}

ULONGLONG CFile::Seek(LONGLONG lOff, UINT nFrom) {
    ULONGLONG position = 0;
    CFileException::ThrowOsError(filesystem::Seek(m_hFile, lOff, nFrom, position), m_strFileName);
    return position;
}

ULONGLONG CFile::GetLength() const {
    ULONGLONG length = 0;
    CFileException::ThrowOsError(filesystem::GetLength(m_hFile, length), m_strFileName);
    return length;
}

void CFile::SetLength(ULONGLONG dwNewLen) {
    CFileException::ThrowOsError(filesystem::SetEndOfFile(m_hFile, dwNewLen), m_strFileName);
}

UINT CFile::Read(void* lpBuf, UINT nCount) {
    if (nCount == 0)
        return 0;
    UINT read = 0;
    CFileException::ThrowOsError(filesystem::Read(m_hFile, lpBuf, nCount, read), m_strFileName);
    return read;
}

void CFile::Write(const void* lpBuf, UINT nCount) {
    if (nCount == 0)
        return;
    UINT written = 0;
    CFileException::ThrowOsError(filesystem::Write(m_hFile, lpBuf, nCount, written), m_strFileName);
    if (written != nCount)
        AfxThrowFileException(CFileException::diskFull, -1, m_strFileName);
}

void CFile::LockRange(ULONGLONG dwPos, ULONGLONG dwCount) {
    CFileException::ThrowOsError(filesystem::Lock(m_hFile, dwPos, dwCount, true), m_strFileName);
}

void CFile::UnlockRange(ULONGLONG dwPos, ULONGLONG dwCount) {
    CFileException::ThrowOsError(filesystem::Lock(m_hFile, dwPos, dwCount, false), m_strFileName);
}

void CFile::Flush() {
    if (m_hFile != hFileNull)
        CFileException::ThrowOsError(filesystem::Flush(m_hFile), m_strFileName);
}

void CFile::Close() {
    const CString name = m_strFileName;
    const HANDLE file = m_hFile;
    m_hFile = hFileNull;
    m_bCloseOnDelete = FALSE;
    m_strFileName.Empty();
    if (file != hFileNull)
        CFileException::ThrowOsError(filesystem::Close(file), name);
}

void CFile::Abort() {
    if (m_hFile != hFileNull)
        filesystem::Close(m_hFile);
    m_hFile = hFileNull;
    m_bCloseOnDelete = FALSE;
    m_strFileName.Empty();
}

CString CFile::GetFileName() const {
    return NameOf(m_strFileName);
}

CString CFile::GetFileTitle() const {
    const CString name = NameOf(m_strFileName);
    const int dot = name.ReverseFind(L'.');
    return dot > 0 ? name.Left(dot) : name;
}

void AFXAPI CFile::Rename(LPCTSTR lpszOldName, LPCTSTR lpszNewName) {
    if (lpszOldName == nullptr || lpszNewName == nullptr)
        AfxThrowInvalidArgException();
    CFileException::ThrowOsError(filesystem::Rename(lpszOldName, lpszNewName), lpszOldName);
}

void AFXAPI CFile::Remove(LPCTSTR lpszFileName) {
    if (lpszFileName == nullptr)
        AfxThrowInvalidArgException();
    CFileException::ThrowOsError(filesystem::Remove(lpszFileName), lpszFileName);
}
