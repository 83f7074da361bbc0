#include "points/PointLine.h"

#include "Tesuvo.h"

#include <algorithm>
#include <cmath>

using fieldkit::survey::kNull;

namespace {

constexpr int kMaxName = 64;
constexpr int kMaxTexts = 511;              // of a point together
constexpr double kNumberLimit = 1e9 - 1e-6; // below 1e9 as it is written, too
constexpr wchar_t kQuote = L'"';

bool IsBlank(wchar_t ch) {
    return ch <= L' ';
}

CString Trimmed(const CString& strText, int nStart, int nEnd) {
    while (nStart < nEnd && IsBlank(strText[nStart]))
        ++nStart;
    while (nEnd > nStart && IsBlank(strText[nEnd - 1]))
        --nEnd;
    return strText.Mid(nStart, nEnd - nStart);
}

CString Trimmed(const CString& strText) {
    return Trimmed(strText, 0, strText.GetLength());
}

CString CleanName(const CString& strName) {
    CString strClean;
    for (int i = 0; i < strName.GetLength(); ++i)
        if (!IsBlank(strName[i]))
            strClean += strName[i];
    return strClean;
}

/// @param dValue the null value for a blank text; written on success only
bool ParseNumber(CString strText, double& dValue) {
    if (strText.Trim().IsEmpty()) {
        dValue = kNull;
        return true;
    }
    if (strText.FindOneOf(L",，") >= 0 && strText.FindOneOf(L".．") < 0)
        return false;
    return TVString2Double(&strText, &dValue) != FALSE;
}

CString NumberField(double dMember) {
    CString strField;
    if (dMember != kNull)
        strField.Format(L"%.6f", dMember);
    return strField == L"-0.000000" ? strField.Mid(1) : strField;
}

/// Reads a field in quotation marks. @param i at the first mark; moved behind the last one
bool TakeQuoted(const CString& strLine, int& i, CString& strField) {
    strField.Empty();
    for (++i; i < strLine.GetLength(); ++i) {
        if (strLine[i] != kQuote)
            strField += strLine[i];
        else if (i + 1 < strLine.GetLength() && strLine[i + 1] == kQuote)
            strField += strLine[i++];
        else {
            ++i;
            return true;
        }
    }
    return false;
}

/// The fields of a point by what they are.
struct CPointFields {
    CString strName;
    CString strN;
    CString strE;
    CString strZ;
    CString strCode;
    std::vector<CString> others;

    void Put(Column column, const CString& strField) {
        switch (column) {
        case Column::Name:
            strName = strField;
            break;
        case Column::N:
            strN = strField;
            break;
        case Column::E:
            strE = strField;
            break;
        case Column::Z:
            strZ = strField;
            break;
        case Column::Code:
            strCode = strField;
            break;
        case Column::Other:
            others.push_back(strField);
            break;
        case Column::Blank:
            break;
        }
    }
};

CString FieldOf(const CNamedPoint& point, Column column, size_t& nOther) {
    switch (column) {
    case Column::Name:
        return point.strName;
    case Column::N:
        return NumberField(point.point.GetN());
    case Column::E:
        return NumberField(point.point.GetE());
    case Column::Z:
        return NumberField(point.point.GetZ());
    case Column::Code:
        return Trimmed(point.strCode);
    case Column::Other:
        return nOther < point.others.size() ? Trimmed(point.others[nOther++]) : CString();
    default:
        return CString();
    }
}

} // namespace

bool SplitFields(const CString& strLine, wchar_t chSeparator, std::vector<CString>& fields, bool& bQuoted) {
    fields.clear();
    bQuoted = false;
    for (int i = 0; i <= strLine.GetLength(); ++i) {
        int nStart = i;
        while (nStart < strLine.GetLength() && IsBlank(strLine[nStart]) && strLine[nStart] != chSeparator)
            ++nStart;
        const bool bQuote = nStart < strLine.GetLength() && strLine[nStart] == kQuote;
        CString strField;
        if (bQuote) {
            i = nStart;
            if (!TakeQuoted(strLine, i, strField))
                return false;
        }
        const int nRest = i;
        i = strLine.Find(chSeparator, i);
        if (i < 0)
            i = strLine.GetLength();
        const CString strRest = Trimmed(strLine, nRest, i);
        if (bQuote && !strRest.IsEmpty())
            return false;
        fields.push_back(bQuote ? Trimmed(strField) : strRest);
        bQuoted = bQuoted || bQuote;
    }
    return true;
}

CString JoinField(const CString& strField, bool bQuoted) {
    // Any separator: the first line tells which one the file has.
    const bool bNeeded = strField.FindOneOf(L",;\t") >= 0 || (!strField.IsEmpty() && strField[0] == kQuote);
    if (!bQuoted && !bNeeded)
        return strField;
    CString strInside = strField;
    strInside.Replace(L"\"", L"\"\"");
    return CString(kQuote) + strInside + CString(kQuote);
}

LineFault ParsePointLine(const CString& strLine, const CLineFormat& format, CNamedPoint& point) {
    std::vector<CString> fields;
    bool bQuoted = false;
    if (!SplitFields(strLine, format.chSeparator, fields, bQuoted))
        return LineFault::BadQuotes;
    const std::vector<Column>& columns = format.columns;
    while (fields.size() > columns.size() && fields.back().IsEmpty())
        fields.pop_back();
    if (fields.size() > columns.size())
        return LineFault::TooManyFields;
    const auto isNeeded = [](Column c) { return c == Column::Name || c == Column::N || c == Column::E; };
    const auto lastNeeded = std::find_if(columns.rbegin(), columns.rend(), isNeeded);
    if (fields.size() < static_cast<size_t>(columns.rend() - lastNeeded))
        return LineFault::TooFewFields;
    CPointFields parts;
    for (size_t i = 0; i < fields.size(); ++i)
        parts.Put(columns[i], fields[i]);
    CNamedPoint candidate;
    LineFault fault = ParsePoint(parts.strName, parts.strN, parts.strE, parts.strZ, candidate);
    if (fault != LineFault::None)
        return fault;
    candidate.strCode = parts.strCode;
    candidate.others = std::move(parts.others);
    fault = CheckPoint(candidate, Encoding::Utf8);
    if (fault == LineFault::None)
        point = std::move(candidate);
    return fault;
}

CString FormatPointLine(const CNamedPoint& point, const CLineFormat& format) {
    CString strLine;
    size_t nOther = 0;
    for (size_t i = 0; i < format.columns.size(); ++i) {
        const Column column = format.columns[i];
        if (i != 0)
            strLine += format.chSeparator;
        const bool bQuoted = format.bQuoted && column == Column::Name;
        strLine += JoinField(FieldOf(point, column, nOther), bQuoted);
    }
    return strLine;
}

LineFault ParsePoint(const CString& strName, const CString& strN, const CString& strE, const CString& strZ,
                     CNamedPoint& point) {
    CNamedPoint candidate{CleanName(strName), CCoordinate()};
    if (candidate.strName.IsEmpty())
        return LineFault::NoName;
    double dN = 0;
    double dE = 0;
    double dZ = 0;
    if (!ParseNumber(strN, dN) || !ParseNumber(strE, dE) || !ParseNumber(strZ, dZ))
        return LineFault::BadNumber;
    candidate.point.SetN(dN);
    candidate.point.SetE(dE);
    candidate.point.SetZ(dZ);
    // What was read can be written in the encoding in which it came; who types looks himself.
    const LineFault fault = CheckPoint(candidate, Encoding::Utf8);
    if (fault == LineFault::None)
        point = candidate;
    return fault;
}

LineFault CheckPoint(const CNamedPoint& point, Encoding encoding) {
    if (point.strName.IsEmpty())
        return LineFault::NoName;
    if (point.strName.GetLength() > kMaxName || !CanEncode(point.strName, encoding))
        return LineFault::BadName;
    for (const double dMember : {point.point.GetN(), point.point.GetE(), point.point.GetZ()})
        if (!(std::fabs(dMember) < kNumberLimit))
            return LineFault::BadNumber;
    int nTexts = point.strName.GetLength() + point.strCode.GetLength();
    for (const CString& strOther : point.others) {
        nTexts += strOther.GetLength();
        if (!CanEncode(strOther, encoding))
            return LineFault::BadCode;
    }
    // Quotation marks and digits do not count: they may be more when the line is written.
    if (nTexts > kMaxTexts)
        return LineFault::TooLong;
    return CanEncode(point.strCode, encoding) ? LineFault::None : LineFault::BadCode;
}
