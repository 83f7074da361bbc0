// The line reader with what the sample application makes of its lines: points, names, angles.
#include "fuzz/GivenFile.h"
#include "fuzz/Targets.h"

#include "points/LineReader.h"
#include "compute/PackedAngle.h"
#include "points/PointBook.h"
#include "points/PointLine.h"
#include "Tesuvo.h"

#include <cmath>

namespace {

void CheckLine(const CString& strLine) {
    constexpr int kLongest = 511;
    Promise(strLine.GetLength() <= kLongest, "a line is no longer than the reader's buffer");
    for (int i = 0; i < strLine.GetLength(); ++i)
        Promise(strLine[i] > L' ', "a line has no blanks and control characters");
}

void CheckNumber(const CString& strText) {
    double dValue = 0;
    if (!TVString2Double(&strText, &dValue))
        return;
    Promise(std::isfinite(dValue), "a number is finite");
    CString strAgain;
    strAgain.Format(L"%.17g", dValue);
    double dAgain = 0;
    Promise(TVString2Double(&strAgain, &dAgain) && dAgain == dValue, "a number can be read as it is written");
}

void CheckAngle(const CString& strText) {
    constexpr double kTurn = 6.2831853071795865;
    double dRadians = 0;
    if (ParsePackedAngle(strText, dRadians))
        Promise(std::fabs(dRadians) <= kTurn, "an angle is one turn at the most");
}

void AddPoint(CPointBook& book, const CString& strLine) {
    CLineFormat format;
    CNamedPoint point;
    if (!RecogniseFormat(strLine, format) ||
        ParsePointLine(strLine, format.chSeparator, point) != LineFault::None)
        return;
    Promise(CheckPoint(point) == LineFault::None, "a point that was read can be written");
    Promise(book.Find(point.strName) != nullptr || book.Add(point), "a point of a new name can be added");
    Promise(book.Find(book.NextName(point.strName)) == nullptr, "the next name is free");
}

} // namespace

void FuzzPoints(const std::uint8_t* pData, std::size_t nSize) {
    CGivenFile file(pData, nSize);
    CLineReader lines(file);
    CPointBook book;
    CString strLine;
    // Each line, and each one that is too long or not terminated, has a byte of its own.
    for (std::size_t nLine = 0; nLine <= nSize; ++nLine) {
        const CLineReader::Line kind = lines.Next(strLine);
        if (kind == CLineReader::Line::End)
            return;
        if (kind != CLineReader::Line::Text)
            continue;
        CheckLine(strLine);
        CheckNumber(strLine);
        CheckAngle(strLine);
        AddPoint(book, strLine);
    }
    Promise(false, "a file comes to its end");
}
