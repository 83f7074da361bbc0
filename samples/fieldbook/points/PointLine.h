/// @file
/// One line of a points file.
#pragma once

#include "points/Column.h"
#include "points/FileText.h"
#include "points/PointBook.h"

/// How a points file is written: what is needed to save it in the form in which it came.
struct CLineFormat {
    CTextForm text;
    wchar_t chSeparator = L','; ///< Comma, semicolon or tab.
    bool bQuoted = false;       ///< Names stand in quotation marks.
    bool bSima = false;         ///< Points are A01 records with a number of their own.
    std::vector<Column> columns = {Column::Name, Column::N, Column::E, Column::Z};
    std::vector<CString> head; ///< Lines above the points: titles, the last of them the heading.
    std::vector<CString> tail; ///< Lines behind the points that are none.
    bool bHeading = false;     ///< The last line of the head names the columns.
};

/// Why a line of a points file gave no point.
enum class LineFault {
    None,
    TooFewFields,
    TooManyFields,
    NoName,
    BadNumber, ///< Not a number, or beyond what a file can hold; see ParsePoint.
    DuplicateName,
    TooLong,       ///< Longer texts than any point has.
    NotTerminated, ///< The last line, without its end.
    BadName,       ///< A name of more than 64 characters, or with some that files cannot hold.
    BadQuotes,     ///< Quotation marks that are not closed, or text behind them.
    BadCode,       ///< A code, or another text, with characters that files cannot hold.
};

/// The fields of a line, without the blanks and quotation marks around them.
/// @param bQuoted receives whether a field stands in quotation marks
/// @return false for a line with bad quotation marks
bool SplitFields(const CString& strLine, wchar_t chSeparator, std::vector<CString>& fields, bool& bQuoted);
/// Writes a field so that SplitFields reads it again.
CString JoinField(const CString& strField, bool bQuoted);

/// Reads a line of points. Columns behind E may be left out at its end.
/// @param point written if the result is LineFault::None only
LineFault ParsePointLine(const CString& strLine, const CLineFormat& format, CNamedPoint& point);

/// A point as a line of a file, without its end. Numbers have six decimals, so that no digit that
/// matters is lost; what a point has not got is an empty field.
CString FormatPointLine(const CNamedPoint& point, const CLineFormat& format);

/// Takes a point from its parts. The name loses blanks, which no name has.
///
/// N, E and Z may each be blank. Of N and E, one alone is kept as it was typed, although such a
/// point counts as one with both; the other is the null value then. Commas may group the
/// thousands of a number with a decimal point. Without the point a comma might be meant as one:
/// such a number is refused.
/// @param point written if the result is LineFault::None only
LineFault ParsePoint(const CString& strName, const CString& strN, const CString& strE, const CString& strZ,
                     CNamedPoint& point);

/// Whether a file can hold a point as it is.
/// @return NoName; BadName; BadNumber from 1,000,000,000 on and for what is no number; TooLong for
///         more than 511 characters in all texts together; BadCode
LineFault CheckPoint(const CNamedPoint& point, Encoding encoding);
