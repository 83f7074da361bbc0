#include "points/CodePage.h"

#include <algorithm>

namespace {

/// Bytes that mean nothing come out as control characters or in the private area behind it.
bool IsNoCharacter(wchar_t ch) {
    return (ch >= 0x80 && ch <= 0xA0) || (ch >= 0xF8F0 && ch <= 0xF8F3);
}

bool IsAscii(const CString& strText) {
    const wchar_t* const pszText = strText;
    return std::all_of(pszText, pszText + strText.GetLength(), [](wchar_t ch) { return ch < 0x80; });
}

} // namespace

bool OemToWide(const std::string& bytes, std::wstring& text) {
    if (bytes.empty()) {
        text.clear();
        return true;
    }
    const auto nBytes = static_cast<int>(bytes.size());
    std::wstring wide(bytes.size(), L'\0'); // no character has fewer bytes than one
    const int nWide =
        ::MultiByteToWideChar(CP_OEMCP, MB_ERR_INVALID_CHARS, bytes.data(), nBytes, wide.data(), nBytes);
    if (nWide == 0)
        return false;
    wide.resize(static_cast<size_t>(nWide));
    if (std::any_of(wide.begin(), wide.end(), IsNoCharacter))
        return false;
    text = std::move(wide);
    return true;
}

bool AppendOem(const CString& strText, std::string& bytes) {
    const wchar_t* const pszText = strText;
    if (IsAscii(strText)) {
        bytes.append(pszText, pszText + strText.GetLength());
        return true;
    }
    const int nSize =
        ::WideCharToMultiByte(CP_OEMCP, 0, pszText, strText.GetLength(), nullptr, 0, nullptr, nullptr);
    std::string oem(static_cast<size_t>(nSize), '\0');
    ::WideCharToMultiByte(CP_OEMCP, 0, pszText, strText.GetLength(), oem.data(), nSize, nullptr, nullptr);
    // What is like a character is not the same: only the way back tells.
    std::wstring back;
    if (nSize == 0 || !OemToWide(oem, back) || strText != back.c_str())
        return false;
    bytes += oem;
    return true;
}

CString SpellForOem(const CString& strText) {
    std::string bytes;
    if (AppendOem(strText, bytes))
        return strText;
    CString strSpelled;
    for (int i = 0; i < strText.GetLength(); ++i) {
        const bool bPair = i + 1 < strText.GetLength() && IS_SURROGATE_PAIR(strText[i], strText[i + 1]);
        if (!bPair && AppendOem(CString(strText[i]), bytes)) {
            strSpelled += strText[i];
            continue;
        }
        const unsigned nCode =
            bPair ? 0x10000U + ((strText[i] - 0xD800U) << 10) + (strText[i + 1] - 0xDC00U) : strText[i];
        strSpelled.AppendFormat(L"<U+%04X>", nCode);
        i += bPair ? 1 : 0;
    }
    return strSpelled;
}
