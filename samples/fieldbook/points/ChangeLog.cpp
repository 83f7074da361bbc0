#include "points/ChangeLog.h"

#include "points/FileText.h"

#include <algorithm>
#include <cstdlib>
#include <cwchar>
#include <utility>

using fieldkit::survey::kNull;

namespace {

constexpr char kBase = 'b';
constexpr char kSaved = 's';
constexpr char kKinds[] = "+=-"; // in the order of CPointChange::Kind
constexpr wchar_t kTab = L'\t';
constexpr size_t kSumDigits = 16;

std::string Hex(std::uint64_t nValue) {
    constexpr char kDigits[] = "0123456789abcdef";
    std::string text;
    for (int nShift = 60; nShift >= 0; nShift -= 4)
        text += kDigits[nValue >> nShift & 0xF];
    return text;
}

std::string Line(const std::string& content) {
    return Hex(HashOf(content)) + ' ' + content + '\n';
}

/// A tab or a line end inside would end the field; no name and no code has one.
void Put(CString& strLine, CString strField) {
    for (const wchar_t ch : {L'\t', L'\r', L'\n'})
        strField.Replace(ch, L' ');
    strLine += CString(kTab) + strField;
}

void PutNumber(CString& strLine, double dValue) {
    CString strNumber;
    if (dValue != kNull)
        strNumber.Format(L"%.17g", dValue);
    Put(strLine, strNumber);
}

void PutPoint(CString& strLine, const CNamedPoint& point) {
    Put(strLine, point.strName);
    PutNumber(strLine, point.point.GetN());
    PutNumber(strLine, point.point.GetE());
    PutNumber(strLine, point.point.GetZ());
    Put(strLine, point.strCode);
    CString strCount;
    strCount.Format(L"%d", static_cast<int>(point.others.size()));
    Put(strLine, strCount);
    for (const CString& strOther : point.others)
        Put(strLine, strOther);
}

/// Takes the fields of a line one after the other.
class CFields {
public:
    explicit CFields(const CString& strLine) : m_strLine(strLine) {}

    CString Next() {
        const wchar_t* const pszField = Take();
        return CString(pszField, m_nLength);
    }
    double NextNumber() {
        const wchar_t* const pszField = Take();
        return m_nLength == 0 ? kNull : std::wcstod(pszField, nullptr);
    }
    size_t NextCount() {
        const wchar_t* const pszField = Take();
        return m_nLength == 0 ? 0 : static_cast<size_t>(std::wcstoul(pszField, nullptr, 10));
    }
    bool IsGood() const { return m_bGood; }

private:
    /// @return the beginning of the next field, behind whose length the line goes on
    const wchar_t* Take() {
        m_nLength = 0;
        m_bGood = m_bGood && m_nStart <= m_strLine.GetLength();
        if (!m_bGood)
            return L"";
        const wchar_t* const pszField = m_strLine.GetString() + m_nStart;
        const int nFound = m_strLine.Find(kTab, m_nStart);
        m_nLength = (nFound < 0 ? m_strLine.GetLength() : nFound) - m_nStart;
        m_nStart += m_nLength + 1;
        return pszField;
    }

    const CString m_strLine;
    int m_nStart = 0;
    int m_nLength = 0; ///< Of the field that was taken.
    bool m_bGood = true;
};

CNamedPoint NextPoint(CFields& fields) {
    CNamedPoint point{fields.Next(), CCoordinate()};
    const double dN = fields.NextNumber();
    const double dE = fields.NextNumber();
    const double dZ = fields.NextNumber();
    point.point.SetN(dN);
    point.point.SetE(dE);
    point.point.SetZ(dZ);
    point.strCode = fields.Next();
    for (size_t nOthers = fields.NextCount(); nOthers > 0 && fields.IsGood(); --nOthers)
        point.others.push_back(fields.Next());
    return point;
}

/// @return false for a line of another kind
bool ReadChange(const std::string& content, CPointChange& change) {
    const size_t nKind = std::string(kKinds).find(content[0]);
    CString strLine;
    if (nKind == std::string::npos || !FromUtf8(content, strLine))
        return false;
    CFields fields(strLine);
    fields.Next();
    change.kind = static_cast<CPointChange::Kind>(nKind);
    change.nPlace = fields.NextCount();
    change.before = NextPoint(fields);
    change.after = NextPoint(fields);
    return fields.IsGood();
}

std::uint64_t HashIn(const std::string& content) {
    return std::strtoull(content.c_str() + 1, nullptr, 16);
}

/// @param nStart moved behind the line
/// @param content receives the line without its check sum
/// @return false at the end and for a line that is not whole
bool NextContent(const std::string& bytes, size_t& nStart, std::string& content) {
    const size_t nEnd = bytes.find('\n', nStart);
    if (nEnd == std::string::npos || nEnd - nStart < kSumDigits + 2)
        return false;
    content = bytes.substr(nStart + kSumDigits + 1, nEnd - nStart - kSumDigits - 1);
    if (bytes.compare(nStart, kSumDigits + 1, Hex(HashOf(content)) + ' ') != 0)
        return false;
    nStart = nEnd + 1;
    return true;
}

} // namespace

std::uint64_t HashOf(const std::string& bytes) {
    constexpr std::uint64_t kOffset = 0xcbf29ce484222325; // FNV-1a
    constexpr std::uint64_t kPrime = 0x100000001b3;
    std::uint64_t nHash = kOffset;
    for (const char ch : bytes)
        nHash = (nHash ^ static_cast<unsigned char>(ch)) * kPrime;
    return nHash;
}

std::string BaseLine(std::uint64_t nHash) {
    return Line(kBase + Hex(nHash));
}

std::string ChangeLine(const CPointChange& change) {
    CString strLine;
    strLine.Format(L"%c\t%u", kKinds[static_cast<size_t>(change.kind)], static_cast<unsigned>(change.nPlace));
    PutPoint(strLine, change.before);
    PutPoint(strLine, change.after);
    return Line(ToUtf8(strLine));
}

std::string SavedLine(std::uint64_t nHash) {
    return Line(kSaved + Hex(nHash));
}

bool CChangeRecord::FitsTo(std::uint64_t nHash, size_t& nFirst) const {
    const auto last =
        std::find_if(saved.rbegin(), saved.rend(), [=](const auto& mark) { return mark.nHash == nHash; });
    const bool bSaved = last != saved.rend();
    nFirst = bSaved ? last->nChanges : 0;
    return bSaved || (nHash == nBase && nGoodBytes > 0);
}

CChangeRecord ReadChanges(const std::string& bytes, const Progress& progress) {
    CChangeRecord record;
    CSteps steps(progress, bytes.size());
    size_t nStart = 0;
    std::string content;
    while (NextContent(bytes, nStart, content)) {
        steps.At(nStart);
        const bool bFirst = record.nGoodBytes == 0;
        CPointChange change{};
        if (bFirst != (content[0] == kBase))
            break;
        if (bFirst)
            record.nBase = HashIn(content);
        else if (content[0] == kSaved)
            record.saved.push_back({HashIn(content), record.changes.size()});
        else if (ReadChange(content, change))
            record.changes.push_back(std::move(change));
        else
            break;
        record.nGoodBytes = nStart;
    }
    return record;
}
