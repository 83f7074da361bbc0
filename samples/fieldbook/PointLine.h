/// @file
/// One line of a points file.
#pragma once

#include "PointBook.h"

/// Why a line of a points file gave no point.
enum class LineFault {
    None,
    TooFewFields,
    TooManyFields,
    NoName,
    BadNumber,
    DuplicateName,
    TooLong,       ///< Longer than the reader takes; the whole line is left out.
    NotTerminated, ///< The last line, without CR at its end.
};

/// The line that may stand at the top of a file.
bool IsHeaderLine(const CString& strLine);

/// Takes a point from its parts. The name loses what no name in a file can have: blanks and
/// commas.
/// @param strZ  blank for a point without height
/// @param point written if the result is LineFault::None only
LineFault ParsePoint(const CString& strName, const CString& strN, const CString& strE, const CString& strZ,
                     CNamedPoint& point);

/// A point as a line of a file, with six decimals, so that no digit that matters is lost.
CString FormatPointLine(const CNamedPoint& point);

/// Reads "name,N,E,Z". The height may be blank or left out together with its comma.
/// @param point written if the result is LineFault::None only
LineFault ParsePointLine(const CString& strLine, CNamedPoint& point);
