#include "Settings.h"

#include "Tesuvo.h"

#include <cwchar>
#include <iterator>

namespace {

constexpr wchar_t SECTION[] = L"Settings";
constexpr wchar_t TENTHS[] = L"Tenths";
constexpr wchar_t TOLERANCE[] = L"Tolerance";
constexpr wchar_t FOLDER[] = L"Folder";
constexpr wchar_t COLUMNS[] = L"Columns";

/// The letters of the columns, in the order of Column.
constexpr wchar_t COLUMN_LETTERS[] = L"PNEZ-";

// All applications of the device read the decimals of coordinates here: their number minus one.
constexpr wchar_t SHARED_SETTINGS[] = L"Software\\Tesuvo\\Common";
constexpr wchar_t SHARED_DECIMALS[] = L"1280";
constexpr int SHARED_DECIMALS_ID = 1280;

int LoadIndex(CWinApp& app, const wchar_t* pszName, size_t nCount) {
    const UINT nIndex = app.GetProfileInt(SECTION, pszName, 0);
    return nIndex < nCount ? static_cast<int>(nIndex) : 0;
}

CString LettersOf(const std::vector<Column>& columns) {
    CString strLetters;
    for (const Column column : columns)
        strLetters += COLUMN_LETTERS[static_cast<size_t>(column)];
    return strLetters;
}

/// @return the columns of letters that mean something
std::vector<Column> ColumnsOf(const CString& strLetters) {
    std::vector<Column> columns;
    for (int i = 0; i < strLetters.GetLength(); ++i)
        if (const wchar_t* const pszFound = std::wcschr(COLUMN_LETTERS, strLetters[i]))
            columns.push_back(static_cast<Column>(pszFound - COLUMN_LETTERS));
    return columns;
}

bool SaveDecimals(int nDecimals) {
    const auto dwValue = static_cast<DWORD>(nDecimals - 1);
    return ::RegSetKeyValue(HKEY_CURRENT_USER, SHARED_SETTINGS, SHARED_DECIMALS, REG_DWORD, &dwValue,
                            sizeof dwValue) == ERROR_SUCCESS;
}

} // namespace

CSettings LoadSettings(CWinApp& app) {
    CSettings settings;
    settings.nDecimals = TVGetCommonRegInt(SHARED_DECIMALS_ID) + 1;
    settings.bTenths = LoadIndex(app, TENTHS, 2);
    settings.nTolerance = LoadIndex(app, TOLERANCE, std::size(TOLERANCES));
    settings.strFolder = app.GetProfileString(SECTION, FOLDER);
    const std::vector<Column> columns = ColumnsOf(app.GetProfileString(SECTION, COLUMNS));
    if (!columns.empty())
        settings.columns = columns;
    return settings;
}

bool SaveSettings(CWinApp& app, const CSettings& settings) {
    const bool bShared = SaveDecimals(settings.nDecimals);
    return app.WriteProfileInt(SECTION, TENTHS, settings.bTenths) &&
           app.WriteProfileInt(SECTION, TOLERANCE, settings.nTolerance) &&
           app.WriteProfileString(SECTION, FOLDER, settings.strFolder) &&
           app.WriteProfileString(SECTION, COLUMNS, LettersOf(settings.columns)) && bShared;
}
