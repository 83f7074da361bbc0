#include "points/Column.h"

#include <algorithm>
#include <cwchar>

namespace {

struct CTitle {
    const wchar_t* pszTitle;
    Column column;
};

// As they come out of Normalised.
constexpr CTitle kTitles[] = {
    {L"点名", Column::Name},
    {L"点番", Column::Name},
    {L"点番号", Column::Name},
    {L"測点", Column::Name},
    {L"測点名", Column::Name},
    {L"名称", Column::Name},
    {L"名前", Column::Name},
    {L"NAME", Column::Name},
    {L"POINT", Column::Name},
    {L"POINTNAME", Column::Name},
    {L"PT", Column::Name},
    {L"ID", Column::Name},
    {L"POINTID", Column::Name},
    {L"N", Column::N},
    {L"X", Column::N},
    {L"X座標", Column::N},
    {L"N座標", Column::N},
    {L"NORTH", Column::N},
    {L"NORTHING", Column::N},
    {L"北", Column::N},
    {L"E", Column::E},
    {L"Y", Column::E},
    {L"Y座標", Column::E},
    {L"E座標", Column::E},
    {L"EAST", Column::E},
    {L"EASTING", Column::E},
    {L"東", Column::E},
    {L"Z", Column::Z},
    {L"H", Column::Z},
    {L"Z座標", Column::Z},
    {L"標高", Column::Z},
    {L"高さ", Column::Z},
    {L"HEIGHT", Column::Z},
    {L"ELEV", Column::Z},
    {L"ELEVATION", Column::Z},
    {L"コード", Column::Code},
    {L"CODE", Column::Code},
    {L"種別", Column::Code},
    {L"備考", Column::Code},
    {L"DESC", Column::Code},
    {L"DESCRIPTION", Column::Code},
};

/// Capitals of half width without blanks and without what stands in brackets.
CString Normalised(const CString& strTitle) {
    constexpr wchar_t kFullWidthFirst = 0xFF01; // of the letters that ASCII has too
    constexpr wchar_t kFullWidthLast = 0xFF5E;
    constexpr wchar_t kToHalfWidth = 0xFF01 - L'!';
    CString strNormal;
    for (int i = 0; i < strTitle.GetLength(); ++i) {
        wchar_t ch = strTitle[i];
        if (ch >= kFullWidthFirst && ch <= kFullWidthLast)
            ch = static_cast<wchar_t>(ch - kToHalfWidth);
        if (ch == L'(' || ch == L'[')
            break;
        if (ch > L' ' && ch != L'_' && ch != L'.')
            strNormal += ch;
    }
    return strNormal.MakeUpper();
}

Column ColumnOfTitle(const CString& strTitle) {
    const CString strNormal = Normalised(strTitle);
    for (const CTitle& title : kTitles)
        if (strNormal == title.pszTitle)
            return title.column;
    return Column::Other;
}

/// Begins like a number, or is nothing.
bool HasNoWords(const CString& strField) {
    return strField.IsEmpty() || std::wcschr(L"0123456789+-.", strField[0]) != nullptr;
}

} // namespace

CString LettersOf(const std::vector<Column>& columns) {
    CString strLetters;
    for (const Column column : columns)
        strLetters += kColumnLetters[static_cast<size_t>(column)];
    return strLetters;
}

std::vector<Column> ColumnsOf(const CString& strLetters) {
    std::vector<Column> columns;
    for (int i = 0; i < strLetters.GetLength(); ++i)
        if (const wchar_t* const pszFound = std::wcschr(kColumnLetters, strLetters[i]))
            columns.push_back(static_cast<Column>(pszFound - kColumnLetters));
    return columns;
}

bool HasColumn(const std::vector<Column>& columns, Column column) {
    return std::find(columns.begin(), columns.end(), column) != columns.end();
}

bool AreComplete(const std::vector<Column>& columns) {
    const auto count = [&](Column column) { return std::count(columns.begin(), columns.end(), column); };
    return count(Column::Name) == 1 && count(Column::N) == 1 && count(Column::E) == 1 &&
           count(Column::Z) <= 1 && count(Column::Code) <= 1;
}

Heading ReadHeading(const std::vector<CString>& fields, std::vector<Column>& columns) {
    columns.clear();
    for (const CString& strField : fields)
        columns.push_back(ColumnOfTitle(strField));
    // A first column without a known title has the names, whatever they are called.
    if (!HasColumn(columns, Column::Name) && columns.front() == Column::Other)
        columns.front() = Column::Name;
    if (AreComplete(columns))
        return Heading::Known;
    // The name may be a number; what stands behind it is none in a line of titles.
    return std::any_of(fields.begin() + 1, fields.end(), HasNoWords) ? Heading::None : Heading::Unknown;
}

CString TitleInFile(Column column) {
    switch (column) {
    case Column::Name:
        return L"name";
    case Column::N:
        return L"N";
    case Column::E:
        return L"E";
    case Column::Z:
        return L"Z";
    case Column::Code:
        return L"code";
    default:
        return CString();
    }
}
