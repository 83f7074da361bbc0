#include "afxstr.h"
#include "TextConvert.h"

#include <algorithm>
#include <string_view>

using namespace fieldkit::detail;

namespace {

// The C library's own answer differs between systems and locales, above all for the
// ideographic space U+3000, so the white space that Trim removes is listed here.
constexpr wchar_t kWhiteSpace[] =
    L"\t\n\v\f\r \x85\xA0\x1680\x2000\x2001\x2002\x2003\x2004\x2005\x2006\x2007\x2008\x2009\x200A"
    L"\x2028\x2029\x202F\x205F\x3000";

std::size_t ClampIndex(int nIndex, std::size_t length) noexcept {
    return nIndex > 0 ? std::min(static_cast<std::size_t>(nIndex), length) : 0;
}

LPCTSTR OrEmpty(LPCTSTR lpsz) noexcept {
    return lpsz != nullptr ? lpsz : L"";
}

// Copied first: callers may pass a piece of the very text that is about to change.
std::wstring CopyOf(LPCTSTR lpsz) {
    return OrEmpty(lpsz);
}

} // namespace

CString& CString::MakeUpper() {
    std::transform(m_text.begin(), m_text.end(), m_text.begin(), AfxToUpper);
    return *this;
}

CString& CString::MakeLower() {
    std::transform(m_text.begin(), m_text.end(), m_text.begin(), AfxToLower);
    return *this;
}

CString& CString::MakeReverse() {
    std::reverse(m_text.begin(), m_text.end());
    return *this;
}

int CString::Replace(TCHAR chOld, TCHAR chNew) {
    if (chOld == chNew)
        return 0;
    const auto count = std::count(m_text.begin(), m_text.end(), chOld);
    std::replace(m_text.begin(), m_text.end(), chOld, chNew);
    return static_cast<int>(count);
}

int CString::Replace(LPCTSTR lpszOld, LPCTSTR lpszNew) {
    const std::wstring from = CopyOf(lpszOld);
    const std::wstring to = CopyOf(lpszNew);
    if (from.empty())
        return 0;
    std::wstring result;
    std::size_t done = 0;
    int count = 0;
    for (std::size_t at = m_text.find(from); at != std::wstring::npos; at = m_text.find(from, done)) {
        result.append(m_text, done, at - done).append(to);
        done = at + from.size();
        ++count;
    }
    if (count > 0)
        m_text = result.append(m_text, done);
    return count;
}

int CString::Remove(TCHAR chRemove) {
    return static_cast<int>(std::erase(m_text, chRemove));
}

int CString::Insert(int nIndex, TCHAR ch) {
    m_text.insert(ClampIndex(nIndex, m_text.size()), 1, ch);
    return GetLength();
}

int CString::Insert(int nIndex, LPCTSTR lpsz) {
    m_text.insert(ClampIndex(nIndex, m_text.size()), CopyOf(lpsz));
    return GetLength();
}

int CString::Delete(int nIndex, int nCount) {
    if (nCount > 0)
        m_text.erase(ClampIndex(nIndex, m_text.size()), static_cast<std::size_t>(nCount));
    return GetLength();
}

CString& CString::TrimLeft() {
    return TrimLeft(kWhiteSpace);
}

CString& CString::TrimLeft(TCHAR chTarget) {
    m_text.erase(0, m_text.find_first_not_of(chTarget));
    return *this;
}

CString& CString::TrimLeft(LPCTSTR lpszTargets) {
    m_text.erase(0, m_text.find_first_not_of(OrEmpty(lpszTargets)));
    return *this;
}

// npos + 1 is 0: a text of nothing but targets goes entirely.
CString& CString::TrimRight() {
    return TrimRight(kWhiteSpace);
}

CString& CString::TrimRight(TCHAR chTarget) {
    m_text.erase(m_text.find_last_not_of(chTarget) + 1);
    return *this;
}

CString& CString::TrimRight(LPCTSTR lpszTargets) {
    m_text.erase(m_text.find_last_not_of(OrEmpty(lpszTargets)) + 1);
    return *this;
}

CString& CString::Trim(LPCTSTR lpszTargets) {
    // Both ends are known before the text changes, of which the targets may be a piece.
    const std::size_t end = m_text.find_last_not_of(OrEmpty(lpszTargets)) + 1;
    const std::size_t first = std::min(m_text.find_first_not_of(OrEmpty(lpszTargets)), end);
    m_text.erase(end).erase(0, first);
    return *this;
}
