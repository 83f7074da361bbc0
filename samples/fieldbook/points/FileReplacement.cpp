#include "points/FileReplacement.h"

namespace {

constexpr size_t kBlock = 1 << 18; // bytes between two looks at whether to go on

bool IsReadOnly(const CString& strPath) {
    const DWORD dwAttributes = ::GetFileAttributes(strPath);
    return dwAttributes != INVALID_FILE_ATTRIBUTES && (dwAttributes & FILE_ATTRIBUTE_READONLY) != 0;
}

/// The new file, which goes away unless it has taken the old one's place.
class CReplacement {
public:
    explicit CReplacement(const CString& strTarget)
        : m_strTarget(strTarget), m_strTemporary(strTarget + L".new") {
        // Not every system minds that by itself when a file takes the other's place.
        if (IsReadOnly(m_strTarget))
            CFileException::ThrowOsError(ERROR_ACCESS_DENIED, m_strTarget);
        CFileException error;
        if (!m_file.Open(m_strTemporary, CFile::modeCreate | CFile::modeWrite, &error))
            AfxThrowFileException(error.m_cause, error.m_lOsError, m_strTarget);
        m_file.SetFilePath(m_strTarget); // errors shall name the file that the user knows
    }
    ~CReplacement() {
        m_file.Abort();
        if (!m_bInPlace)
            ::DeleteFile(m_strTemporary);
    }
    CReplacement(const CReplacement&) = delete;
    CReplacement& operator=(const CReplacement&) = delete;

    CFile& GetFile() { return m_file; }

    void PutInPlace() {
        m_file.Flush(); // before the name changes: else a power cut could leave an empty file
        m_file.Close();
        m_bInPlace = ::MoveFileEx(m_strTemporary, m_strTarget,
                                  MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != FALSE;
        if (!m_bInPlace)
            CFileException::ThrowOsError(static_cast<LONG>(::GetLastError()), m_strTarget);
    }

private:
    const CString m_strTarget;
    const CString m_strTemporary;
    CFile m_file;
    bool m_bInPlace = false;
};

} // namespace

void RewriteFile(const CString& strPath, const std::function<void(CFile&)>& write) {
    CReplacement replacement(strPath);
    write(replacement.GetFile());
    replacement.PutInPlace();
}

void RewriteFile(const CString& strPath, const std::string& bytes, const Progress& progress) {
    RewriteFile(strPath, [&](CFile& file) {
        for (size_t nDone = 0; nDone < bytes.size(); nDone += kBlock) {
            if (progress)
                progress(nDone, bytes.size());
            file.Write(bytes.data() + nDone, static_cast<UINT>(std::min(kBlock, bytes.size() - nDone)));
        }
    });
}

std::string ReadWholeFile(const CString& strPath, const Progress& progress) {
    constexpr ULONGLONG kLargest = 256 << 20;
    CFile file;
    CFileException error;
    if (!file.Open(strPath, CFile::modeRead | CFile::shareDenyWrite, &error))
        AfxThrowFileException(error.m_cause, error.m_lOsError, strPath);
    if (file.GetLength() > kLargest)
        AfxThrowFileException(CFileException::genericException, ERROR_FILE_TOO_LARGE, strPath);
    std::string bytes(static_cast<size_t>(file.GetLength()), '\0');
    size_t nDone = 0;
    // A read may give less than it was asked for.
    while (nDone < bytes.size()) {
        if (progress)
            progress(nDone, bytes.size());
        const UINT nRead =
            file.Read(bytes.data() + nDone, static_cast<UINT>(std::min(kBlock, bytes.size() - nDone)));
        if (nRead == 0)
            break;
        nDone += nRead;
    }
    bytes.resize(nDone);
    return bytes;
}

bool KeepBackup(const CString& strPath) {
    try {
        RewriteFile(strPath + L".bak", ReadWholeFile(strPath));
        return true;
    } catch (CFileException* pError) {
        pError->Delete();
        return false;
    }
}
