/// @file
/// A01 records, in which survey programs of the country exchange points: number, name, X, Y, Z.
#pragma once

#include "points/Column.h"
#include "points/PointBook.h"

/// The columns of a record. Most programs write nothing behind its last comma.
extern const std::vector<Column> kRecordColumns;

bool IsRecord(const CString& strLine);
/// Whether one of the lines is one that stands before or behind the records of a file.
bool HasBorder(const std::vector<CString>& lines);
/// Whether the lines of a file are records and what stands around them. A point of another file may
/// be called A01, too, but not two of them.
bool AreRecords(const std::vector<CString>& lines);

/// The points with a number of their own each, those that are new among records behind the last one.
std::vector<CNamedPoint> WithRecordNumbers(std::vector<CNamedPoint> points);
