/// @file
/// Writing of points files, in the form in which they came.
#pragma once

#include "points/PointLine.h"

#include <string>

/// The form of a file that is made here: in the code page, with a heading.
CLineFormat NewFormat();
/// The form of an export: chosen columns, with titles of its own if the format has a heading.
CLineFormat ExportFormat(const std::vector<Column>& columns, const CLineFormat& format);

/// Points as the bytes of a file that somebody else reads.
/// @param bytes  written on success only
/// @param strBad receives the name of the first point that the file cannot hold
/// @return false if there is one
bool FormatPoints(const std::vector<CNamedPoint>& points, const CLineFormat& format, std::string& bytes,
                  CString& strBad, const Progress& progress = {});

/// Points as the bytes of a file that is read as the same points: that is tried before anything is
/// written.
///
/// The form stays as it is as far as it can. Columns that the points need and the format has not got
/// come behind the others; bytes that would be taken for another encoding become UTF-8 with its mark;
/// and what still would not come back gets a heading and quotation marks of its own.
/// @param format receives the form of the bytes. Both are written on success only
/// @param strBad receives the name of the first point that no file can hold
/// @return false if there is one
bool FormatFile(const std::vector<CNamedPoint>& points, CLineFormat& format, std::string& bytes,
                CString& strBad, const Progress& progress = {});

/// Whether a file with these bytes has all that saving its points again would write: then
/// nothing of it gets lost.
bool IsAsSaved(const std::string& bytes, const CLineFormat& format, const Progress& progress = {});
