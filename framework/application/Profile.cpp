// Settings of the application in the user's registry.
#include "afxwin.h"

#include <memory>

namespace {

/// Closes a registry key.
struct CKeyCloser {
    void operator()(HKEY hKey) const { ::RegCloseKey(hKey); }
};
using CKey = std::unique_ptr<std::remove_pointer_t<HKEY>, CKeyCloser>;

} // namespace

void CWinApp::SetRegistryKey(LPCTSTR lpszRegistryKey) {
    m_strRegistryKey = lpszRegistryKey;
}

/// The open key of a section; null if no registry key has been set or the system refuses.
HKEY CWinApp::OpenSectionKey(LPCTSTR lpszSection, BOOL bWrite) const {
    if (m_strRegistryKey.IsEmpty())
        return nullptr;
    const CString strPath =
        CString(_T("Software\\")) + m_strRegistryKey + _T("\\") + m_pszProfileName + _T("\\") + lpszSection;
    HKEY hKey = nullptr;
    if (bWrite)
        ::RegCreateKeyEx(HKEY_CURRENT_USER, strPath, 0, nullptr, 0, KEY_READ | KEY_WRITE, nullptr, &hKey,
                         nullptr);
    else // looking must not leave an empty key behind
        ::RegOpenKeyEx(HKEY_CURRENT_USER, strPath, 0, KEY_READ, &hKey);
    return hKey;
}

UINT CWinApp::GetProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nDefault) {
    const CKey key(OpenSectionKey(lpszSection, FALSE));
    DWORD dwValue = 0;
    DWORD dwType = 0;
    DWORD dwSize = sizeof dwValue;
    const LONG lResult = ::RegQueryValueEx(key.get(), lpszEntry, nullptr, &dwType,
                                           reinterpret_cast<LPBYTE>(&dwValue), &dwSize);
    return lResult == ERROR_SUCCESS && dwType == REG_DWORD ? dwValue : static_cast<UINT>(nDefault);
}

BOOL CWinApp::WriteProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nValue) {
    const CKey key(OpenSectionKey(lpszSection, TRUE));
    return ::RegSetValueEx(key.get(), lpszEntry, 0, REG_DWORD, reinterpret_cast<const BYTE*>(&nValue),
                           sizeof nValue) == ERROR_SUCCESS;
}

CString CWinApp::GetProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszDefault) {
    const CKey key(OpenSectionKey(lpszSection, FALSE));
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
    if (lpszEntry == nullptr) {
        const CKey key(OpenSectionKey(_T(""), TRUE));
        return ::RegDeleteKey(key.get(), lpszSection) == ERROR_SUCCESS;
    }
    const CKey key(OpenSectionKey(lpszSection, TRUE));
    if (lpszValue == nullptr)
        return ::RegDeleteValue(key.get(), lpszEntry) == ERROR_SUCCESS;
    const auto nBytes = static_cast<DWORD>((wcslen(lpszValue) + 1) * sizeof(TCHAR));
    return ::RegSetValueEx(key.get(), lpszEntry, 0, REG_SZ, reinterpret_cast<const BYTE*>(lpszValue),
                           nBytes) == ERROR_SUCCESS;
}

BOOL CWinApp::GetProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE* ppData, UINT* pBytes) {
    *ppData = nullptr;
    *pBytes = 0;
    const CKey key(OpenSectionKey(lpszSection, FALSE));
    DWORD dwType = 0;
    DWORD dwSize = 0;
    if (::RegQueryValueEx(key.get(), lpszEntry, nullptr, &dwType, nullptr, &dwSize) != ERROR_SUCCESS ||
        dwType != REG_BINARY)
        return FALSE;
    auto data = std::make_unique<BYTE[]>(dwSize);
    if (::RegQueryValueEx(key.get(), lpszEntry, nullptr, &dwType, data.get(), &dwSize) != ERROR_SUCCESS)
        return FALSE;
    *ppData = data.release();
    *pBytes = dwSize;
    return TRUE;
}

BOOL CWinApp::WriteProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE pData, UINT nBytes) {
    const CKey key(OpenSectionKey(lpszSection, TRUE));
    return ::RegSetValueEx(key.get(), lpszEntry, 0, REG_BINARY, pData, nBytes) == ERROR_SUCCESS;
}
