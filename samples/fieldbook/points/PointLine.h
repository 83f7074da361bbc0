/// @file
/// One line of a points file.
#pragma once

#include "points/PointBook.h"

/// How the lines of a points file are written.
struct CLineFormat {
    wchar_t chSeparator = L','; ///< Comma or semicolon.
    bool bHeader = false;       ///< The columns' titles stand above the points.
};

/// Why a line of a points file gave no point.
enum class LineFault {
    None,
    TooFewFields,
    TooManyFields,
    NoName,
    BadNumber, ///< Not a number, or beyond what a file can hold; see ParsePoint.
    DuplicateName,
    TooLong,       ///< Longer than the reader takes; the whole line is left out.
    NotTerminated, ///< The last line, without CR at its end.
    BadName,       ///< A name of more than 64 characters, or with some that files cannot hold.
};

/// Tells how a file is written from one of its lines.
/// @param format written, separator and header, if the result is true only
/// @return false for a line of fewer than three fields, which tells nothing
bool RecogniseFormat(const CString& strLine, CLineFormat& format);

/// Reads "name,N,E,Z". The height may be left out together with its comma.
/// @param chSeparator comma or semicolon
/// @param point written if the result is LineFault::None only
LineFault ParsePointLine(const CString& strLine, wchar_t chSeparator, CNamedPoint& point);

/// Takes a point from its parts. The name loses what no name in a file can have: blanks,
/// commas and semicolons.
///
/// N, E and Z may each be blank. Of N and E, one alone is kept as it was typed, although such a
/// point counts as one with both; the other is the null value then. Commas may group the
/// thousands of a number with a decimal point. Without the point a comma might be meant as one:
/// such a number is refused.
/// @param point written if the result is LineFault::None only
LineFault ParsePoint(const CString& strName, const CString& strN, const CString& strE, const CString& strZ,
                     CNamedPoint& point);

/// Whether a file can hold a point as it is.
/// @return NoName; BadName; BadNumber from 1,000,000,000 on and for what is no number
LineFault CheckPoint(const CNamedPoint& point);
