#ifdef _WIN32

#include "FileSystem.h"

#include <cwchar>

using namespace fieldkit::detail;

IMPLEMENT_DYNAMIC(CFileFind, CObject)

namespace {

struct HandleCloser {
    void operator()(HANDLE h) const noexcept { CloseHandle(h); }
};

// What the file system has no time for stays at its default.
CTime TimeOf(const FILETIME& ft) {
    return ft.dwLowDateTime != 0 || ft.dwHighDateTime != 0 ? CTime(ft) : CTime();
}

FILETIME FileTimeOf(const CTime& time) {
    const LONGLONG nSteps = (time.GetTime() + 11'644'473'600) * 10'000'000;
    return {static_cast<DWORD>(nSteps), static_cast<DWORD>(nSteps >> 32)};
}

// WIN32_FILE_ATTRIBUTE_DATA and BY_HANDLE_FILE_INFORMATION have these members in common.
template <class Data>
void Fill(CFileStatus& status, const Data& data, const CString& path) {
    constexpr DWORD kKnown =
        CFile::readOnly | CFile::hidden | CFile::system | CFile::directory | CFile::archive;
    status.m_ctime = TimeOf(data.ftCreationTime);
    status.m_mtime = TimeOf(data.ftLastWriteTime);
    status.m_atime = TimeOf(data.ftLastAccessTime);
    status.m_size = static_cast<ULONGLONG>(data.nFileSizeHigh) << 32 | data.nFileSizeLow;
    status.m_attribute = static_cast<BYTE>(data.dwFileAttributes & kKnown);
    lstrcpynW(status.m_szFullName, path, MAX_PATH);
}

void ThrowLast(LPCTSTR lpszFileName) {
    CFileException::ThrowOsError(static_cast<LONG>(GetLastError()), lpszFileName);
}

} // namespace

BOOL CFile::GetStatus(CFileStatus& rStatus) const {
    BY_HANDLE_FILE_INFORMATION data{};
    if (m_hFile == hFileNull || !GetFileInformationByHandle(m_hFile, &data))
        return FALSE;
    Fill(rStatus, data, m_strFileName);
    return TRUE;
}

BOOL AFXAPI CFile::GetStatus(LPCTSTR lpszFileName, CFileStatus& rStatus) {
    WIN32_FILE_ATTRIBUTE_DATA data{};
    if (lpszFileName == nullptr || !GetFileAttributesExW(lpszFileName, GetFileExInfoStandard, &data))
        return FALSE;
    Fill(rStatus, data, filesystem::FullPath(lpszFileName));
    return TRUE;
}

void AFXAPI CFile::SetStatus(LPCTSTR lpszFileName, const CFileStatus& status) {
    if (lpszFileName == nullptr)
        AfxThrowInvalidArgException();
    // Times cannot be set while the file is read-only.
    const DWORD dwOld = GetFileAttributesW(lpszFileName);
    if (dwOld == INVALID_FILE_ATTRIBUTES)
        ThrowLast(lpszFileName);
    if ((dwOld & FILE_ATTRIBUTE_READONLY) != 0 &&
        !SetFileAttributesW(lpszFileName, dwOld & ~static_cast<DWORD>(FILE_ATTRIBUTE_READONLY)))
        ThrowLast(lpszFileName);
    const auto time = [](const CTime& t, FILETIME& ft) {
        return t == CTime() ? nullptr : &(ft = FileTimeOf(t));
    };
    FILETIME ft[3];
    const FILETIME* const made = time(status.m_ctime, ft[0]);
    const FILETIME* const read = time(status.m_atime, ft[1]);
    const FILETIME* const written = time(status.m_mtime, ft[2]);
    if (made != nullptr || read != nullptr || written != nullptr) {
        const HANDLE h = CreateFileW(lpszFileName, FILE_WRITE_ATTRIBUTES, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                     nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
        if (h == INVALID_HANDLE_VALUE)
            ThrowLast(lpszFileName);
        const std::unique_ptr<void, HandleCloser> file(h);
        if (!SetFileTime(h, made, read, written))
            ThrowLast(lpszFileName);
    }
    const DWORD dwNew = status.m_attribute & ~static_cast<DWORD>(CFile::directory);
    if (!SetFileAttributesW(lpszFileName, dwNew != 0 ? dwNew : FILE_ATTRIBUTE_NORMAL))
        ThrowLast(lpszFileName);
}

BOOL CFileFind::FindFile(LPCTSTR pstrName, DWORD /*dwUnused*/) {
    Close();
    const CString strPattern = pstrName != nullptr ? pstrName : L"*.*";
    CString strRoot = filesystem::FullPath(strPattern);
    int nName = strRoot.GetLength();
    while (nName > 0 && !filesystem::IsSeparator(strRoot[nName - 1]))
        --nName;
    strRoot.Truncate(nName);
    auto pNext = std::make_unique<WIN32_FIND_DATAW>();
    m_hContext = FindFirstFileW(strPattern, pNext.get());
    if (m_hContext == INVALID_HANDLE_VALUE)
        return FALSE;
    m_strRoot = strRoot;
    m_pNext = std::move(pNext);
    return TRUE;
}

BOOL CFileFind::FindNextFile() {
    if (m_hContext == INVALID_HANDLE_VALUE || m_pNext == nullptr)
        return FALSE;
    auto pNext = std::make_unique<WIN32_FIND_DATAW>();
    m_pFound = std::move(m_pNext);
    if (!::FindNextFileW(m_hContext, pNext.get()))
        return FALSE;
    m_pNext = std::move(pNext);
    return TRUE;
}

void CFileFind::Close() {
    if (m_hContext != INVALID_HANDLE_VALUE)
        FindClose(m_hContext);
    m_hContext = INVALID_HANDLE_VALUE;
    m_pFound.reset();
    m_pNext.reset();
}

const WIN32_FIND_DATAW& CFileFind::Found() const {
    if (m_pFound == nullptr)
        AfxThrowInvalidArgException();
    return *m_pFound;
}

CString CFileFind::GetFileName() const {
    return Found().cFileName;
}

CString CFileFind::GetFilePath() const {
    return m_strRoot + Found().cFileName;
}

CString CFileFind::GetFileTitle() const {
    const CString strName = GetFileName();
    const int nDot = strName.ReverseFind(L'.');
    return nDot > 0 ? strName.Left(nDot) : strName;
}

BOOL CFileFind::IsDots() const {
    const WIN32_FIND_DATAW& found = Found();
    return IsDirectory() &&
                   (std::wcscmp(found.cFileName, L".") == 0 || std::wcscmp(found.cFileName, L"..") == 0)
               ? TRUE
               : FALSE;
}

ULONGLONG CFileFind::GetLength() const {
    return static_cast<ULONGLONG>(Found().nFileSizeHigh) << 32 | Found().nFileSizeLow;
}

BOOL CFileFind::GetLastWriteTime(FILETIME* pTimeStamp) const {
    *pTimeStamp = Found().ftLastWriteTime;
    return TRUE;
}
BOOL CFileFind::GetLastAccessTime(FILETIME* pTimeStamp) const {
    *pTimeStamp = Found().ftLastAccessTime;
    return TRUE;
}
BOOL CFileFind::GetCreationTime(FILETIME* pTimeStamp) const {
    *pTimeStamp = Found().ftCreationTime;
    return TRUE;
}
BOOL CFileFind::GetLastWriteTime(CTime& refTime) const {
    refTime = TimeOf(Found().ftLastWriteTime);
    return TRUE;
}
BOOL CFileFind::GetLastAccessTime(CTime& refTime) const {
    refTime = TimeOf(Found().ftLastAccessTime);
    return TRUE;
}
BOOL CFileFind::GetCreationTime(CTime& refTime) const {
    refTime = TimeOf(Found().ftCreationTime);
    return TRUE;
}

#endif
