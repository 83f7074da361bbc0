/// @file
/// The columns of points files, and the headings that name them.
#pragma once

#include <afx.h>

#include <vector>

/// What stands in a column.
enum class Column {
    Name,
    N,
    E,
    Z,
    Code,
    Other, ///< Something that is kept as it is.
    Blank, ///< An empty field.
};
inline constexpr size_t kColumnCount = 7;

/// A letter for each column, in their order: how a choice of columns is kept.
inline constexpr wchar_t kColumnLetters[] = L"PNEZCO-";
static_assert(std::size(kColumnLetters) == kColumnCount + 1);

CString LettersOf(const std::vector<Column>& columns);
/// @return the columns of those letters that mean something
std::vector<Column> ColumnsOf(const CString& strLetters);

bool HasColumn(const std::vector<Column>& columns, Column column);
/// Whether points can be read: the name and both coordinates are there, and nothing twice that a
/// point has once.
bool AreComplete(const std::vector<Column>& columns);

/// What a line says about the columns.
enum class Heading {
    None,    ///< Nothing: it has numbers.
    Known,   ///< It names the columns.
    Unknown, ///< It has no number, so it is no point; but which column is which cannot be told.
};

/// Reads titles in English or Japanese, in either case, half or full width, with or without a unit
/// in brackets. X is north, as in the country's plane coordinates.
/// @param columns receives a column for each field; those that are not known are Column::Other
Heading ReadHeading(const std::vector<CString>& fields, std::vector<Column>& columns);

/// The title of a column in a file that has no titles of its own.
CString TitleInFile(Column column);
