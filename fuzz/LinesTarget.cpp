// Lines of a text file, beside a reader of a few lines that works on the bytes.
#include "GivenFile.h"
#include "Targets.h"

#include <string>

namespace {

constexpr std::size_t kBuffer = 512;

struct Expected {
    bool line = false;
    std::wstring text;
    std::size_t end = 0; ///< where the file stands afterwards
};

Expected LineFrom(const std::uint8_t* pData, std::size_t nSize, std::size_t at) {
    Expected expected;
    for (; at < nSize && pData[at] != '\r'; ++at) {
        if (pData[at] > ' ')
            expected.text += static_cast<wchar_t>(pData[at]);
        if (expected.text.size() == kBuffer) {
            expected.end = at + 1;
            return expected;
        }
    }
    expected.line = at < nSize;
    expected.end = expected.line ? at + 1 : nSize;
    return expected;
}

void CheckWriting(const CString& strLine) {
    CGivenFile file(nullptr, 0);
    file.WriteString(strLine);
    file.Seek(0, CFile::begin);
    CString strAgain;
    Promise(file.ReadString(strAgain) != 0 && strAgain == strLine, "a line is read as it was written");
    Promise(file.GetPosition() + 1 == file.GetLength(), "CR LF ends it");
}

} // namespace

void FuzzLines(const std::uint8_t* pData, std::size_t nSize) {
    CGivenFile file(pData, nSize);
    for (std::size_t at = 0; at < nSize;) {
        const Expected expected = LineFrom(pData, nSize, at);
        CString strLine = L"untouched";
        const bool bLine = file.ReadString(strLine) != 0;
        Promise(bLine == expected.line, "a line is one that CR ends and that has room");
        Promise(file.GetPosition() == expected.end, "nothing is read ahead");
        Promise(strLine == (bLine ? expected.text.c_str() : L"untouched"), "a line has what the file has");
        if (bLine)
            CheckWriting(strLine);
        at = expected.end;
    }
}
