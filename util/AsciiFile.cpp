#include "util/AsciiFile.h"

#include "util/detail/OemText.h"

#include <cstring>
#include <memory>

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
    const int nSize = nLen * 2 + 1;
    // Clearing it would take longer than the conversion of a usual line.
    const auto buffer = std::make_unique_for_overwrite<wchar_t[]>(static_cast<size_t>(nSize));
    const int n = OemToWide(reinterpret_cast<LPCSTR>(pszAscii), buffer.get(), nSize);
    if (n < 1) {
        str.Empty();
        return;
    }
    buffer[static_cast<size_t>(n - 1)] = L'\0'; // whatever the system has put there
    str = buffer.get();
}

unsigned char* CAsciiFile::StringToAscii(const wchar_t* psz, unsigned char* pBuf, int nBufSize) {
    return WideToOem(psz, reinterpret_cast<LPSTR>(pBuf), nBufSize) != 0 ? pBuf : nullptr;
}
