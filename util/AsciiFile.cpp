#include "util/AsciiFile.h"

#include "util/detail/OemText.h"

#include <algorithm>
#include <cstring>
#include <iterator>

using namespace fieldkit::detail;

namespace {

constexpr int kLineBufferSize = 512;
constexpr unsigned char kCr = 13;
constexpr unsigned char kLastSkipped = 32; ///< The blank and everything below it.
constexpr char kLineEnd[] = {'\r', '\n'};

} // namespace

int CAsciiFile::ReadString(CString& str) {
    unsigned char line[kLineBufferSize];
    int nCount = 0;
    for (;;) {
        unsigned char ch = 0;
        if (Read(&ch, 1) == 0)
            return 0;
        if (ch == kCr) {
            line[nCount] = 0;
            AsciiToString(line, kLineBufferSize, str);
            return 1;
        }
        if (ch <= kLastSkipped)
            continue;
        line[nCount++] = ch;
        if (nCount == kLineBufferSize)
            return 0;
    }
}

void CAsciiFile::WriteString(const wchar_t* psz) {
    unsigned char line[kLineBufferSize];
    if (StringToAscii(psz, line, kLineBufferSize) == nullptr)
        line[0] = 0;
    Write(line, static_cast<UINT>(std::strlen(reinterpret_cast<const char*>(line))));
    Write(kLineEnd, sizeof kLineEnd);
}

void CAsciiFile::AsciiToString(const unsigned char* pszAscii, int nLen, CString& str) {
    wchar_t buffer[kLineBufferSize * 2 + 1];
    const int n = OemToWide(reinterpret_cast<LPCSTR>(pszAscii), buffer,
                            std::min(nLen * 2 + 1, static_cast<int>(std::size(buffer))));
    if (n < 1) {
        str.Empty();
        return;
    }
    buffer[n - 1] = L'\0'; // whatever the system has put there
    str = buffer;
}

unsigned char* CAsciiFile::StringToAscii(const wchar_t* psz, unsigned char* pBuf, int nBufSize) {
    return WideToOem(psz, reinterpret_cast<LPSTR>(pBuf), nBufSize) != 0 ? pBuf : nullptr;
}
