#include "points/ChangeFile.h"

#include "points/FilePath.h"
#include "points/FileReplacement.h"
#include "points/FileText.h"

namespace {

CString HashText(const CString& strPath) {
    CString strText;
    strText.Format(L"%016llx",
                   static_cast<unsigned long long>(HashOf(ToUtf8(CString(FullPathOf(strPath)).MakeLower()))));
    return strText;
}

} // namespace

/// The system takes the name away with the program, however that ends.
CChangeFile::Lock CChangeFile::LockOf(const CString& strPath) {
    Lock lock(::CreateMutex(nullptr, FALSE, L"Fieldbook-" + HashText(strPath)));
    if (::GetLastError() == ERROR_ALREADY_EXISTS)
        lock.reset();
    return lock;
}

bool CChangeFile::Claim(const CString& strPointsPath) {
    std::vector<CString> places = PlacesOf(strPointsPath);
    if (!IsOwn(places.front())) {
        Lock lock = LockOf(places.front());
        if (lock == nullptr)
            return false;
        Begin(m_nBase);
        m_lock = std::move(lock);
    }
    Close();
    m_places = std::move(places);
    m_record.clear();
    m_nPlace = 0;
    return true;
}

bool CChangeFile::IsFree(const CString& strPointsPath) const {
    const CString strPlace = FirstPlaceOf(strPointsPath);
    return IsOwn(strPlace) || LockOf(strPlace) != nullptr;
}

CString CChangeFile::FirstPlaceOf(const CString& strPointsPath) const {
    return strPointsPath.IsEmpty() ? PathIn(m_strOwnFolder, L"unsaved.changes") : strPointsPath + L".changes";
}

std::vector<CString> CChangeFile::PlacesOf(const CString& strPointsPath) const {
    std::vector<CString> places = {FirstPlaceOf(strPointsPath)};
    if (!strPointsPath.IsEmpty())
        places.push_back(PathIn(m_strOwnFolder, HashText(strPointsPath) + L".changes"));
    return places;
}

bool CChangeFile::IsOwn(const CString& strPlace) const {
    return !m_places.empty() && IsSamePath(m_places.front(), strPlace);
}

std::optional<CLeftChanges> CChangeFile::FindLeft(const CString& strPointsPath, std::uint64_t nHash,
                                                  const Progress& progress) {
    std::optional<CLeftChanges> best;
    const std::vector<CString> places = PlacesOf(strPointsPath);
    if (IsOwn(places.front()))
        Close(); // nobody reads a file that is being written
    for (size_t nPlace = 0; nPlace < places.size(); ++nPlace) {
        if (::GetFileAttributes(places[nPlace]) == INVALID_FILE_ATTRIBUTES)
            continue;
        std::string bytes = ReadWholeFile(places[nPlace]);
        CChangeRecord record = ReadChanges(bytes, PartOf(progress, nPlace, places.size()));
        bytes.resize(record.nGoodBytes);
        size_t nFirst = 0;
        const bool bFits = record.FitsTo(nHash, nFirst);
        const bool bBetter = !best || (bFits == best->bFits ? bytes.size() > best->bytes.size() : bFits);
        if (nFirst == record.changes.size() || !bBetter)
            continue;
        record.changes.erase(record.changes.begin(),
                             record.changes.begin() + static_cast<std::ptrdiff_t>(nFirst));
        best = {std::move(bytes), nPlace, bFits, std::move(record.changes)};
    }
    return best;
}

void CChangeFile::Resume(const CLeftChanges& left) {
    Close();
    m_record = left.bytes;
    m_nPlace = left.nPlace;
}

void CChangeFile::PutAside() {
    for (const CString& strPlace : m_places)
        ::MoveFileEx(strPlace, strPlace + L".old", MOVEFILE_REPLACE_EXISTING);
}

void CChangeFile::Begin(std::uint64_t nHash) {
    Close();
    m_record.clear();
    m_nPlace = 0;
    m_nBase = nHash;
    for (const CString& strPlace : m_places)
        ::DeleteFile(strPlace);
}

void CChangeFile::AppendSaving(std::uint64_t nHash) {
    if (m_record.empty())
        return;
    try {
        Write(SavedLine(nHash));
    } catch (CFileException* pError) {
        pError->Delete();
    }
}

void CChangeFile::Append(const std::vector<CPointChange>& changes) {
    std::string lines;
    for (const CPointChange& change : changes)
        lines += ChangeLine(change);
    Write(lines);
}

void CChangeFile::Write(const std::string& lines) {
    const size_t nBefore = m_record.size();
    try {
        if (m_record.empty())
            m_record = BaseLine(m_nBase);
        m_record += lines;
        WriteSomewhere();
    } catch (CFileException*) {
        throw;
    } catch (...) {
        m_record.resize(nBefore);
        Close(); // the next time all is written
        throw;
    }
}

void CChangeFile::WriteSomewhere() {
    if (m_places.empty()) // another program has the only one
        AfxThrowFileException(CFileException::sharingViolation);
    const size_t nFirst = m_nPlace;
    try {
        WriteTo(nFirst);
    } catch (CFileException* pError) {
        Close();
        if (m_places.size() == 1)
            throw;
        pError->Delete();
        try {
            WriteTo(m_places.size() - 1 - nFirst);
        } catch (CFileException*) {
            Close();
            throw;
        }
    }
}

/// All of the record into a place that is new or was not to be written the last time: what is there
/// is the same, so that nothing gets lost on the way.
void CChangeFile::WriteTo(size_t nPlace) {
    if (m_file.m_hFile == CFile::hFileNull) {
        CFileException error;
        if (!m_file.Open(m_places[nPlace],
                         CFile::modeCreate | CFile::modeNoTruncate | CFile::modeReadWrite |
                             CFile::shareDenyWrite,
                         &error))
            AfxThrowFileException(error.m_cause, error.m_lOsError, m_places[nPlace]);
        m_nPlace = nPlace;
        m_nWritten = 0;
    }
    m_file.Seek(static_cast<LONGLONG>(m_nWritten), CFile::begin);
    m_file.Write(m_record.data() + m_nWritten, static_cast<UINT>(m_record.size() - m_nWritten));
    m_file.SetLength(m_record.size());
    m_file.Flush();
    m_nWritten = m_record.size();
}

void CChangeFile::Close() {
    m_file.Abort();
    m_nWritten = 0;
}
