#include "afx.h"
#include "TextConvert.h"

#include <algorithm>
#include <cwchar>
#include <string_view>

using namespace fieldkit::detail;

namespace {

LPCTSTR OrEmpty(LPCTSTR lpsz) noexcept {
    return lpsz != nullptr ? lpsz : L"";
}

std::string_view OrEmpty(LPCSTR lpsz) noexcept {
    return lpsz != nullptr ? lpsz : "";
}

std::size_t Count(int n) noexcept {
    return n > 0 ? static_cast<std::size_t>(n) : 0;
}

} // namespace

CString::CString(TCHAR ch, int nRepeat) : m_text(Count(nRepeat), ch) {}

CString::CString(LPCTSTR lpsz) : m_text(OrEmpty(lpsz)) {}

CString::CString(LPCTSTR lpch, int nLength) : m_text(OrEmpty(lpch), lpch != nullptr ? Count(nLength) : 0) {}

CString::CString(LPCSTR lpsz) : m_text(AfxWiden(OrEmpty(lpsz))) {}

CString::CString(LPCSTR lpch, int nLength)
    : m_text(lpch != nullptr ? AfxWiden({lpch, Count(nLength)}) : std::wstring()) {}

CString& CString::operator=(LPCTSTR lpsz) {
    m_text = OrEmpty(lpsz);
    return *this;
}

CString& CString::operator=(LPCSTR lpsz) {
    m_text = AfxWiden(OrEmpty(lpsz));
    return *this;
}

CString& CString::operator=(TCHAR ch) {
    m_text.assign(1, ch);
    return *this;
}

CString& CString::operator=(char ch) {
    m_text = AfxWiden({&ch, 1});
    return *this;
}

void CString::Empty() noexcept {
    std::wstring().swap(m_text);
}

TCHAR CString::GetAt(int nIndex) const {
    if (nIndex < 0 || nIndex > GetLength())
        AfxThrowInvalidArgException();
    return m_text[Count(nIndex)];
}

void CString::SetAt(int nIndex, TCHAR ch) {
    if (nIndex < 0 || nIndex >= GetLength())
        AfxThrowInvalidArgException();
    m_text[Count(nIndex)] = ch;
}

CString& CString::operator+=(const CString& string) {
    m_text += string.m_text;
    return *this;
}

CString& CString::operator+=(LPCTSTR lpsz) {
    m_text += OrEmpty(lpsz);
    return *this;
}

CString& CString::operator+=(LPCSTR lpsz) {
    m_text += AfxWiden(OrEmpty(lpsz));
    return *this;
}

CString& CString::operator+=(TCHAR ch) {
    m_text += ch;
    return *this;
}

CString& CString::operator+=(char ch) {
    m_text += AfxWiden({&ch, 1});
    return *this;
}

void CString::Append(LPCTSTR lpch, int nLength) {
    if (lpch != nullptr)
        m_text.append(lpch, Count(nLength));
}

int CString::Compare(LPCTSTR lpsz) const noexcept {
    return std::wcscmp(m_text.c_str(), OrEmpty(lpsz));
}

int CString::CompareNoCase(LPCTSTR lpsz) const noexcept {
    LPCTSTR pThis = m_text.c_str();
    for (LPCTSTR pOther = OrEmpty(lpsz);; ++pThis, ++pOther) {
        const wchar_t a = AfxToLower(*pThis);
        const wchar_t b = AfxToLower(*pOther);
        if (a != b)
            return a < b ? -1 : 1;
        if (a == L'\0')
            return 0;
    }
}

CString CString::Mid(int nFirst) const {
    return Mid(nFirst, GetLength());
}

CString CString::Mid(int nFirst, int nCount) const {
    const std::size_t first = std::min(Count(nFirst), m_text.size());
    const std::size_t count = std::min(Count(nCount), m_text.size() - first);
    return {m_text.data() + first, static_cast<int>(count)};
}

CString CString::Left(int nCount) const {
    return Mid(0, nCount);
}

CString CString::Right(int nCount) const {
    return Mid(GetLength() - std::clamp(nCount, 0, GetLength()));
}

CString CString::SpanIncluding(LPCTSTR lpszCharSet) const {
    return Left(static_cast<int>(std::wcsspn(m_text.c_str(), OrEmpty(lpszCharSet))));
}

CString CString::SpanExcluding(LPCTSTR lpszCharSet) const {
    return Left(static_cast<int>(std::wcscspn(m_text.c_str(), OrEmpty(lpszCharSet))));
}

CString CString::Tokenize(LPCTSTR lpszTokens, int& iStart) const {
    const std::wstring_view tokens = OrEmpty(lpszTokens);
    const std::size_t first =
        iStart < 0 ? std::wstring::npos : m_text.find_first_not_of(tokens, Count(iStart));
    if (first == std::wstring::npos) {
        iStart = -1;
        return {};
    }
    const std::size_t end = std::min(m_text.find_first_of(tokens, first), m_text.size());
    iStart = static_cast<int>(std::min(end + 1, m_text.size()));
    return {m_text.data() + first, static_cast<int>(end - first)};
}

int CString::Find(TCHAR ch, int nStart) const noexcept {
    return nStart < 0 ? -1 : static_cast<int>(m_text.find(ch, Count(nStart)));
}

int CString::Find(LPCTSTR lpszSub, int nStart) const noexcept {
    if (lpszSub == nullptr || nStart < 0)
        return -1;
    return static_cast<int>(m_text.find(lpszSub, Count(nStart)));
}

int CString::ReverseFind(TCHAR ch) const noexcept {
    return static_cast<int>(m_text.rfind(ch));
}

int CString::FindOneOf(LPCTSTR lpszCharSet) const noexcept {
    return static_cast<int>(m_text.find_first_of(OrEmpty(lpszCharSet)));
}

LPTSTR CString::GetBuffer(int nMinBufLength) {
    m_text.resize(std::max(m_text.size(), Count(nMinBufLength)));
    return m_text.data();
}

LPTSTR CString::GetBufferSetLength(int nNewLength) {
    m_text.resize(Count(nNewLength));
    return m_text.data();
}

void CString::ReleaseBuffer(int nNewLength) {
    const std::size_t length = nNewLength < 0 ? std::wcslen(m_text.c_str()) : Count(nNewLength);
    m_text.resize(std::min(length, m_text.size()));
}

namespace {

template <class Left, class Right>
CString Join(const Left& left, const Right& right) {
    CString joined(left);
    joined += right;
    return joined;
}

} // namespace

CString AFXAPI operator+(const CString& string1, const CString& string2) {
    return Join(string1, string2);
}
CString AFXAPI operator+(const CString& string, LPCTSTR lpsz) {
    return Join(string, lpsz);
}
CString AFXAPI operator+(LPCTSTR lpsz, const CString& string) {
    return Join(lpsz, string);
}
CString AFXAPI operator+(const CString& string, LPCSTR lpsz) {
    return Join(string, lpsz);
}
CString AFXAPI operator+(LPCSTR lpsz, const CString& string) {
    return Join(lpsz, string);
}
CString AFXAPI operator+(const CString& string, TCHAR ch) {
    return Join(string, ch);
}
CString AFXAPI operator+(TCHAR ch, const CString& string) {
    return Join(ch, string);
}
CString AFXAPI operator+(const CString& string, char ch) {
    return Join(string, ch);
}
CString AFXAPI operator+(char ch, const CString& string) {
    return Join(std::string(1, ch).c_str(), string);
}
