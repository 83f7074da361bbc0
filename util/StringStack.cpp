#include "util/StringStack.h"

#include <cwchar>

// Versionable: files of an older or newer schema are left to Serialize, not refused.
IMPLEMENT_SERIAL(CStringStack, CObject, VERSIONABLE_SCHEMA | 0)

namespace {

/// The characters before the digits at the end.
std::size_t HeaderLength(const wchar_t* psz) {
    std::size_t nHeader = std::wcslen(psz);
    while (nHeader > 0 && psz[nHeader - 1] >= L'0' && psz[nHeader - 1] <= L'9')
        --nHeader;
    return nHeader;
}

} // namespace

CStringStack::CStringStack(int nMode, int nMax) : m_nMode(nMode), m_nMax(nMax) {}

CStringStack::~CStringStack() {
    Reset();
}

void CStringStack::Reset() {
    m_list.RemoveAll();
}

// --- Entries ---------------------------------------------------------------------------------

void CStringStack::SeparateHeaderToParam(const wchar_t* psz, CString& strHeader, CString& strParam) {
    const CString str(psz); // psz may belong to one of the results
    const int nHeader = static_cast<int>(HeaderLength(str));
    strHeader = str.Left(nHeader);
    strParam = str.Mid(nHeader);
}

/// A key is the beginning of its text, so keys are compared where they stand.
std::size_t CStringStack::KeyLength(const wchar_t* psz) const {
    return m_nMode == ModeHeader ? HeaderLength(psz) : std::wcslen(psz);
}

/// The first entry with the key of this text; null if there is none.
POSITION CStringStack::FindSameKey(const wchar_t* psz) const {
    const std::size_t nKey = KeyLength(psz);
    for (POSITION pos = m_list.GetHeadPosition(); pos != nullptr;) {
        const POSITION posEntry = pos;
        const wchar_t* const pszEntry = m_list.GetNext(pos);
        if (std::wcsncmp(pszEntry, psz, nKey) == 0 && KeyLength(pszEntry) == nKey)
            return posEntry;
    }
    return nullptr;
}

void CStringStack::Add(const wchar_t* psz, int bTail) {
    if (psz[0] == L'\0')
        return;
    const POSITION posSame = FindSameKey(psz);
    if (posSame != nullptr && bTail != 0)
        return;
    // First of all, so that want of memory costs no other text.
    const POSITION posNew = bTail != 0 ? m_list.AddTail(psz) : m_list.AddHead(psz);
    if (posSame != nullptr)
        m_list.RemoveAt(posSame);
    if (const INT_PTR nOthers = m_list.GetCount() - 1; nOthers > 0 && nOthers >= m_nMax)
        RemoveLastBut(posNew);
}

void CStringStack::RemoveLastBut(POSITION posNew) {
    POSITION posLast = m_list.GetTailPosition();
    if (posLast == posNew)
        m_list.GetPrev(posLast);
    m_list.RemoveAt(posLast);
}

// --- Archive ---------------------------------------------------------------------------------

void CStringStack::Serialize(CArchive& ar) {
    if (ar.IsStoring())
        Store(ar);
    else
        Load(ar);
}

void CStringStack::Store(CArchive& ar) const {
    ar << static_cast<int>(m_list.GetCount());
    for (POSITION pos = m_list.GetHeadPosition(); pos != nullptr;)
        ar << m_list.GetNext(pos);
    ar << m_nMode << m_nMax;
}

void CStringStack::Load(CArchive& ar) {
    Reset();
    int nCount = 0;
    ar >> nCount;
    if (nCount < 0)
        AfxThrowArchiveException(CArchiveException::badIndex, ar.GetFile()->GetFilePath());
    for (; nCount > 0; --nCount) {
        CString str;
        ar >> str;
        m_list.AddTail(str);
    }
    ar >> m_nMode >> m_nMax;
}
