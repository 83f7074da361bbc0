// Where there is no such code page: that of Western Europe.
#include "points/CodePage.h"

bool OemToWide(const std::string& bytes, std::wstring& text) {
    text.clear();
    for (const char ch : bytes)
        text += static_cast<wchar_t>(static_cast<unsigned char>(ch));
    return true;
}

bool AppendOem(const CString& strText, std::string& bytes) {
    std::string oem;
    for (int i = 0; i < strText.GetLength(); ++i) {
        if (static_cast<char32_t>(strText[i]) >= 0x100)
            return false;
        oem += static_cast<char>(strText[i]);
    }
    bytes += oem;
    return true;
}
