/// @file
/// Takes the place of the window header, so that parsers meant for Windows build natively:
/// the declarations that they use, and no more. Included into every source by the build.
#pragma once

#include <afx.h>
#include <afxcoll.h>
#include <afxtempl.h>

#include <vector>

constexpr UINT CP_OEMCP = 1;

/// A code page of one byte a character, whose codes are Unicode's first 256.
int MultiByteToWideChar(UINT nCodePage, DWORD dwFlags, LPCSTR pszSource, int nSource, LPWSTR pszTarget,
                        int nTarget);
int WideCharToMultiByte(UINT nCodePage, DWORD dwFlags, LPCWSTR pszSource, int nSource, LPSTR pszTarget,
                        int nTarget, LPCSTR pszDefault, BOOL* pbUsedDefault);

extern "C" BOOL TVString2Double(const CString* pText, double* pValue);
extern "C" void TVIncrementName(CString& strName);

/// Keeps what it is given.
class CComboBox {
public:
    void GetWindowText(CString& strText) const { strText = m_strText; }
    void SetWindowText(LPCTSTR pszText) { m_strText = pszText; }
    void ResetContent() { m_items.clear(); }
    void AddString(LPCTSTR pszText) { m_items.push_back(pszText); }
    const std::vector<CString>& GetItems() const { return m_items; }

private:
    CString m_strText;
    std::vector<CString> m_items;
};
