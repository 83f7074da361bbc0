// Settings of the application: in the user's registry, or in a file if no key has been set.
#include "IniFile.h"
#include "afxwin.h"

#include <cstdlib>
#include <cwchar>
#include <memory>

using namespace fieldkit::detail;

namespace {

/// Closes a registry key.
struct CKeyCloser {
    void operator()(HKEY hKey) const { ::RegCloseKey(hKey); }
};
using CKey = std::unique_ptr<std::remove_pointer_t<HKEY>, CKeyCloser>;

/// Bytes stand in a settings file as two letters each, the lower half first.
constexpr WCHAR kFirstLetter = L'A';
constexpr UINT kLetters = 16;

CString ToLetters(const BYTE* pData, UINT nBytes) {
    CString strText;
    LPTSTR psz = strText.GetBuffer(static_cast<int>(nBytes) * 2);
    for (UINT i = 0; i < nBytes; ++i) {
        *psz++ = static_cast<WCHAR>(kFirstLetter + pData[i] % kLetters);
        *psz++ = static_cast<WCHAR>(kFirstLetter + pData[i] / kLetters);
    }
    strText.ReleaseBuffer(static_cast<int>(nBytes) * 2);
    return strText;
}

/// @return false if the text is not one of ToLetters
bool FromLetters(const CString& strText, BYTE* pData) {
    for (int i = 0; i < strText.GetLength(); ++i) {
        const auto nHalf = static_cast<UINT>(strText[i] - kFirstLetter);
        if (nHalf >= kLetters)
            return false;
        pData[i / 2] = static_cast<BYTE>(i % 2 == 0 ? nHalf : pData[i / 2] + nHalf * kLetters);
    }
    return true;
}

} // namespace

// --- Where -------------------------------------------------------------------------------------

void CWinApp::SetProfileName(LPCTSTR lpszName) {
    std::free(const_cast<LPTSTR>(m_pszProfileName));
    m_pszProfileName = ::_tcsdup(lpszName);
}

void CWinApp::SetRegistryKey(LPCTSTR lpszRegistryKey) {
    std::free(const_cast<LPTSTR>(m_pszRegistryKey));
    m_pszRegistryKey = ::_tcsdup(lpszRegistryKey);
    SetProfileName(m_pszAppName);
}

void CWinApp::SetRegistryKey(UINT nIDRegistryKey) {
    CString strKey;
    strKey.LoadString(nIDRegistryKey);
    SetRegistryKey(strKey);
}

namespace {

/// Opens a key of the user. Looking must not leave an empty key behind.
HKEY OpenKey(const CString& strPath, bool bWrite) {
    HKEY hKey = nullptr;
    if (bWrite)
        ::RegCreateKeyEx(HKEY_CURRENT_USER, strPath, 0, nullptr, 0, KEY_READ | KEY_WRITE, nullptr, &hKey,
                         nullptr);
    else
        ::RegOpenKeyEx(HKEY_CURRENT_USER, strPath, 0, KEY_READ, &hKey);
    return hKey;
}

CString PathOf(const CWinApp& app) {
    return CString(L"Software\\") + app.m_pszRegistryKey + L'\\' + app.m_pszProfileName;
}

CKey SectionKey(const CWinApp& app, LPCTSTR lpszSection, bool bWrite) {
    return CKey(OpenKey(PathOf(app) + L'\\' + lpszSection, bWrite));
}

} // namespace

HKEY CWinApp::GetAppRegistryKey() {
    return m_pszRegistryKey != nullptr ? OpenKey(PathOf(*this), true) : nullptr;
}

HKEY CWinApp::GetSectionKey(LPCTSTR lpszSection) {
    return m_pszRegistryKey != nullptr ? SectionKey(*this, lpszSection, true).release() : nullptr;
}

// --- Numbers -----------------------------------------------------------------------------------

UINT CWinApp::GetProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nDefault) {
    if (m_pszRegistryKey == nullptr) {
        const auto strValue = CIniFile(m_pszProfileName).Read(lpszSection, lpszEntry);
        LPTSTR pszEnd = nullptr;
        const long nValue = strValue ? std::wcstol(*strValue, &pszEnd, 10) : 0;
        return strValue && pszEnd != strValue->GetString() ? static_cast<UINT>(nValue)
                                                           : static_cast<UINT>(nDefault);
    }
    const CKey key = SectionKey(*this, lpszSection, false);
    DWORD dwValue = 0;
    DWORD dwType = 0;
    DWORD dwSize = sizeof dwValue;
    const LONG lResult = ::RegQueryValueEx(key.get(), lpszEntry, nullptr, &dwType,
                                           reinterpret_cast<LPBYTE>(&dwValue), &dwSize);
    return lResult == ERROR_SUCCESS && dwType == REG_DWORD ? dwValue : static_cast<UINT>(nDefault);
}

BOOL CWinApp::WriteProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nValue) {
    if (m_pszRegistryKey == nullptr) {
        CString strValue;
        strValue.Format(L"%d", nValue);
        return CIniFile(m_pszProfileName).Write(lpszSection, lpszEntry, strValue);
    }
    const CKey key = SectionKey(*this, lpszSection, true);
    return ::RegSetValueEx(key.get(), lpszEntry, 0, REG_DWORD, reinterpret_cast<const BYTE*>(&nValue),
                           sizeof nValue) == ERROR_SUCCESS;
}

// --- Texts -------------------------------------------------------------------------------------

CString CWinApp::GetProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszDefault) {
    if (m_pszRegistryKey == nullptr)
        return CIniFile(m_pszProfileName).Read(lpszSection, lpszEntry).value_or(CString(lpszDefault));
    const CKey key = SectionKey(*this, lpszSection, false);
    DWORD dwType = 0;
    DWORD dwSize = 0;
    if (::RegQueryValueEx(key.get(), lpszEntry, nullptr, &dwType, nullptr, &dwSize) != ERROR_SUCCESS ||
        dwType != REG_SZ)
        return lpszDefault;
    CString strValue;
    const auto nLength = static_cast<int>(dwSize / sizeof(TCHAR));
    auto* pBuffer = reinterpret_cast<LPBYTE>(strValue.GetBuffer(nLength + 1));
    const LONG lResult = ::RegQueryValueEx(key.get(), lpszEntry, nullptr, &dwType, pBuffer, &dwSize);
    reinterpret_cast<LPTSTR>(pBuffer)[lResult == ERROR_SUCCESS ? nLength : 0] = 0;
    strValue.ReleaseBuffer();
    return lResult == ERROR_SUCCESS ? strValue : CString(lpszDefault);
}

BOOL CWinApp::WriteProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszValue) {
    if (m_pszRegistryKey == nullptr)
        return CIniFile(m_pszProfileName).Write(lpszSection, lpszEntry, lpszValue);
    if (lpszEntry == nullptr) {
        const CKey key = SectionKey(*this, L"", true);
        return ::RegDeleteKey(key.get(), lpszSection) == ERROR_SUCCESS;
    }
    const CKey key = SectionKey(*this, lpszSection, true);
    if (lpszValue == nullptr)
        return ::RegDeleteValue(key.get(), lpszEntry) == ERROR_SUCCESS;
    const auto nBytes = static_cast<DWORD>((std::wcslen(lpszValue) + 1) * sizeof(TCHAR));
    return ::RegSetValueEx(key.get(), lpszEntry, 0, REG_SZ, reinterpret_cast<const BYTE*>(lpszValue),
                           nBytes) == ERROR_SUCCESS;
}

// --- Bytes -------------------------------------------------------------------------------------

BOOL CWinApp::GetProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE* ppData, UINT* pBytes) {
    *ppData = nullptr;
    *pBytes = 0;
    std::unique_ptr<BYTE[]> data;
    DWORD dwSize = 0;
    if (m_pszRegistryKey == nullptr) {
        const auto strValue = CIniFile(m_pszProfileName).Read(lpszSection, lpszEntry);
        if (!strValue || strValue->GetLength() % 2 != 0)
            return FALSE;
        dwSize = static_cast<DWORD>(strValue->GetLength()) / 2;
        data = std::make_unique<BYTE[]>(dwSize);
        if (!FromLetters(*strValue, data.get()))
            return FALSE;
    } else {
        const CKey key = SectionKey(*this, lpszSection, false);
        DWORD dwType = 0;
        if (::RegQueryValueEx(key.get(), lpszEntry, nullptr, &dwType, nullptr, &dwSize) != ERROR_SUCCESS ||
            dwType != REG_BINARY)
            return FALSE;
        data = std::make_unique<BYTE[]>(dwSize);
        if (::RegQueryValueEx(key.get(), lpszEntry, nullptr, &dwType, data.get(), &dwSize) != ERROR_SUCCESS)
            return FALSE;
    }
    *ppData = data.release();
    *pBytes = dwSize;
    return TRUE;
}

BOOL CWinApp::WriteProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE pData, UINT nBytes) {
    if (m_pszRegistryKey == nullptr)
        return CIniFile(m_pszProfileName).Write(lpszSection, lpszEntry, ToLetters(pData, nBytes));
    const CKey key = SectionKey(*this, lpszSection, true);
    return ::RegSetValueEx(key.get(), lpszEntry, 0, REG_BINARY, pData, nBytes) == ERROR_SUCCESS;
}
