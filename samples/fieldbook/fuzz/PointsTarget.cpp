// Points files of the sample application in any encoding, its record of changes, and what is typed.
#include "fuzz/Targets.h"

#include "compute/PackedAngle.h"
#include "points/ChangeLog.h"
#include "points/PointFile.h"
#include "points/PointSaving.h"
#include "Tesuvo.h"

#include <cmath>

namespace {

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
    if (ParsePackedAngle(strText, dRadians) == AngleFault::None)
        Promise(std::fabs(dRadians) <= kTurn, "an angle is one turn at the most");
}

/// What was read can be saved, and what was saved is read as it was.
void CheckFile(const std::string& bytes) {
    const CFileText text = DecodeText(bytes);
    Promise(text.unreadable.empty() || text.lines.empty(), "a file is text or it is not");
    for (const CString& strLine : text.lines) {
        CheckNumber(strLine);
        CheckAngle(strLine);
    }
    CPointBook book;
    const CReadReport report = ReadPoints(text, book);
    Promise(report.badLines.size() + book.GetPoints().size() <= text.lines.size(), "a line is one point");
    std::string saved;
    CString strBad;
    CLineFormat format = report.format;
    Promise(FormatFile(book.GetPoints(), format, saved, strBad), "what was read can be saved");
    CPointBook again;
    ReadPoints(DecodeText(saved), again);
    Promise(again.GetCount() == book.GetCount(), "all points are in the file");
    CLineFormat all;
    all.columns.push_back(Column::Code);
    for (const CNamedPoint& point : book.GetPoints()) {
        Promise(book.Find(book.NextName(point.strName)) == nullptr, "the next name is free");
        const CNamedPoint* const pAgain = again.FindPoint(point.strName);
        Promise(pAgain != nullptr && FormatPointLine(*pAgain, all) == FormatPointLine(point, all),
                "a point is read as it was saved");
    }
}

/// What stands behind the good bytes does not count, and they are read alike without it.
void CheckRecord(const std::string& bytes) {
    const CChangeRecord record = ReadChanges(bytes);
    Promise(record.nGoodBytes <= bytes.size(), "no more than there is");
    const CChangeRecord good = ReadChanges(bytes.substr(0, record.nGoodBytes));
    Promise(good.changes.size() == record.changes.size(), "the good part is whole");
    CPointBook book;
    for (const CPointChange& change : record.changes)
        book.Apply(change);
}

} // namespace

void FuzzPoints(const std::uint8_t* pData, std::size_t nSize) {
    const std::string bytes(reinterpret_cast<const char*>(pData), nSize);
    CheckFile(bytes);
    CheckRecord(bytes);
}
