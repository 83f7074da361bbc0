/// @file
/// Points written out with chosen columns.
#pragma once

#include "points/PointLine.h"

#include <vector>

/// What stands in a column.
enum class Column { Name, N, E, Z, Blank /* an empty field */ };

/// A point as a line of a file. Numbers have six decimals, so that no digit that matters is
/// lost; what a point has not got is an empty field.
/// @param chSeparator comma or semicolon
CString FormatExportLine(const CNamedPoint& point, const std::vector<Column>& columns, wchar_t chSeparator);

/// Writes a file of points in place of the one that may be there, which stays whole until the
/// new one is complete.
/// @throw CFileException* if it cannot be written, or holds a point that is not good by
///        CheckPoint (genericException); the old file is as it was
void ExportPoints(const CString& strPath, const std::vector<CNamedPoint>& points,
                  const std::vector<Column>& columns, const CLineFormat& format);
