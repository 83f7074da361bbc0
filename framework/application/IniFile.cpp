#include "IniFile.h"

#include <shlobj.h>

using namespace fieldkit::detail;

namespace {

constexpr WCHAR kByteOrderMark = 0xFEFF;
/// Answer of the system for an entry that is not there; no value can be this.
constexpr LPCTSTR kMissing = L"\r\n";

bool IsPath(const CString& strName) {
    return strName.FindOneOf(L"\\/:") >= 0;
}

/// The system takes blanks and one pair of quotes off a value.
CString Quoted(LPCTSTR lpszValue) {
    CString strValue(lpszValue);
    CString strBare(strValue);
    strBare.Trim(L" \t\"'");
    if (strBare != strValue)
        strValue = L'"' + strValue + L'"';
    return strValue;
}

} // namespace

CIniFile::CIniFile(LPCTSTR lpszName) : m_strPath(lpszName) {
    WCHAR szFolder[MAX_PATH];
    if (IsPath(m_strPath))
        return;
    if (SUCCEEDED(::SHGetFolderPath(nullptr, CSIDL_APPDATA | CSIDL_FLAG_CREATE, nullptr, 0, szFolder)))
        m_strPath = CString(szFolder) + L'\\' + m_strPath;
}

std::optional<CString> CIniFile::Read(LPCTSTR lpszSection, LPCTSTR lpszEntry) const {
    CString strValue;
    for (DWORD nSize = 256;; nSize *= 2) {
        LPTSTR pszBuffer = strValue.GetBuffer(static_cast<int>(nSize));
        const DWORD nLength =
            ::GetPrivateProfileString(lpszSection, lpszEntry, kMissing, pszBuffer, nSize, m_strPath);
        strValue.ReleaseBuffer(static_cast<int>(nLength));
        if (strValue == kMissing)
            return {};
        if (nLength + 1 < nSize)
            return strValue;
    }
}

BOOL CIniFile::Write(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszValue) const {
    if (lpszEntry == nullptr || lpszValue == nullptr)
        return ::WritePrivateProfileString(lpszSection, lpszEntry, nullptr, m_strPath);
    if (CString(lpszValue).FindOneOf(L"\r\n") >= 0)
        return FALSE;
    CreateUnicode();
    return ::WritePrivateProfileString(lpszSection, lpszEntry, Quoted(lpszValue), m_strPath);
}

/// The system writes the ANSI code page into a file of its own making, and loses characters.
void CIniFile::CreateUnicode() const {
    const HANDLE hFile = ::CreateFile(m_strPath, GENERIC_WRITE, 0, nullptr, CREATE_NEW, 0, nullptr);
    if (hFile == INVALID_HANDLE_VALUE)
        return; // it is there
    DWORD nWritten = 0;
    ::WriteFile(hFile, &kByteOrderMark, sizeof kByteOrderMark, &nWritten, nullptr);
    ::CloseHandle(hFile);
}
