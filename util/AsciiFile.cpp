#include "util/AsciiFile.h"

#include "util/detail/CodePage.h"

#include <cstring>
#include <memory>

namespace {

constexpr int LINE_BUFFER_SIZE = 512;
constexpr unsigned char CR = 13;
constexpr unsigned char LAST_SKIPPED = 32; ///< The blank and everything below it.
constexpr char LINE_END[] = {'\r', '\n'};

} // namespace

int CAsciiFile::ReadString(CString& str) {
    unsigned char line[LINE_BUFFER_SIZE];
    int nCount = 0;
    for (;;) {
        unsigned char ch = 0;
        if (Read(&ch, 1) == 0)
            return 0;
        if (ch == CR) {
            line[nCount] = 0;
            AsciiToString(line, LINE_BUFFER_SIZE, str);
            return 1;
        }
        if (ch <= LAST_SKIPPED)
            continue;
        line[nCount++] = ch;
        if (nCount == LINE_BUFFER_SIZE)
            return 0;
    }
}

void CAsciiFile::WriteString(const wchar_t* psz) {
    unsigned char line[LINE_BUFFER_SIZE];
    if (StringToAscii(psz, line, LINE_BUFFER_SIZE) == nullptr)
        line[0] = 0;
    Write(line, static_cast<UINT>(std::strlen(reinterpret_cast<const char*>(line))));
    Write(LINE_END, sizeof LINE_END);
}

void CAsciiFile::AsciiToString(const unsigned char* pszAscii, int nLen, CString& str) {
    const int nSize = nLen * 2 + 1;
    // Clearing it would take longer than the conversion of a usual line.
    const auto buffer = std::make_unique_for_overwrite<wchar_t[]>(static_cast<size_t>(nSize));
    const int n =
        ::MultiByteToWideChar(CP_OEMCP, 0, reinterpret_cast<LPCSTR>(pszAscii), -1, buffer.get(), nSize);
    if (n < 1) {
        str.Empty();
        return;
    }
    buffer[static_cast<size_t>(n - 1)] = L'\0'; // whatever the system has put there
    str = buffer.get();
}

unsigned char* CAsciiFile::StringToAscii(const wchar_t* psz, unsigned char* pBuf, int nBufSize) {
    const int n = ::WideCharToMultiByte(CP_OEMCP, 0, psz, -1, reinterpret_cast<LPSTR>(pBuf), nBufSize,
                                        nullptr, nullptr);
    return n != 0 ? pBuf : nullptr;
}
