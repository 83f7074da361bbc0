#include "util/StringStack.h"

#include <cwchar>
#include <string_view>

// Versionable: files of an older or newer schema are left to Serialize, not refused.
IMPLEMENT_SERIAL(CStringStack, CObject, VERSIONABLE_SCHEMA | 0)

namespace {

constexpr auto kDigits = L"0123456789";

/// The characters before the digits at the end.
std::size_t HeaderLength(std::wstring_view text) {
    return text.find_last_not_of(kDigits) + 1; // npos + 1 is 0
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
    const int nHeader = static_cast<int>(HeaderLength(str.GetString()));
    strHeader = str.Left(nHeader);
    strParam = str.Mid(nHeader);
}

/// The first entry with the key of this text; null if there is none. A key is the beginning of its
/// text, so keys are compared where they stand, and what stands behind decides.
POSITION CStringStack::FindSameKey(const wchar_t* psz) const {
    const std::wstring_view text(psz);
    const std::wstring_view key = m_nMode == ModeHeader ? text.substr(0, HeaderLength(text)) : text;
    const wchar_t* const pszBehind = m_nMode == ModeHeader ? kDigits : L"";
    for (POSITION pos = m_list.GetHeadPosition(); pos != nullptr;) {
        const POSITION posEntry = pos;
        const CString& strEntry = m_list.GetNext(pos);
        const std::wstring_view entry(strEntry, static_cast<std::size_t>(strEntry.GetLength()));
        if (entry.starts_with(key)) {
            const wchar_t* const pszRest = entry.data() + key.size();
            if (pszRest[std::wcsspn(pszRest, pszBehind)] == L'\0')
                return posEntry;
        }
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
