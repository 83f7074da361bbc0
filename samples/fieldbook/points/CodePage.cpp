#include "points/CodePage.h"

#include <vector>

bool SurvivesCodePage(const CString& strText) {
    constexpr int kMaxBytes = 4; // of a character, in any code page
    const int nSize = strText.GetLength() + 1;
    std::vector<char> bytes(static_cast<size_t>(nSize) * kMaxBytes);
    std::vector<wchar_t> back(static_cast<size_t>(nSize));
    return ::WideCharToMultiByte(CP_OEMCP, 0, strText, -1, bytes.data(), nSize * kMaxBytes, nullptr,
                                 nullptr) != 0 &&
           ::MultiByteToWideChar(CP_OEMCP, 0, bytes.data(), -1, back.data(), nSize) != 0 &&
           strText == back.data();
}
