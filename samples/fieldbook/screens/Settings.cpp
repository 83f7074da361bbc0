#include "screens/Settings.h"

#include "Tesuvo.h"

#include <iterator>

namespace {

constexpr wchar_t kSection[] = L"Settings";
constexpr wchar_t kTenths[] = L"Tenths";
constexpr wchar_t kTolerance[] = L"Tolerance";
constexpr wchar_t kFolder[] = L"Folder";
constexpr wchar_t kFile[] = L"File";
constexpr wchar_t kPrevious[] = L"Previous";
constexpr wchar_t kColumns[] = L"Columns";
constexpr wchar_t kOrder[] = L"Order";

// All applications of the device read the decimals of coordinates here: their number minus one.
constexpr wchar_t kSharedSettings[] = L"Software\\Tesuvo\\Common";
constexpr wchar_t kSharedDecimals[] = L"1280";

int LoadIndex(CWinApp& app, const wchar_t* pszName, size_t nCount) {
    const UINT nIndex = app.GetProfileInt(kSection, pszName, 0);
    return nIndex < nCount ? static_cast<int>(nIndex) : 0;
}

bool SaveDecimals(int nDecimals) {
    const auto dwValue = static_cast<DWORD>(nDecimals - 1);
    return ::RegSetKeyValue(HKEY_CURRENT_USER, kSharedSettings, kSharedDecimals, REG_DWORD, &dwValue,
                            sizeof dwValue) == ERROR_SUCCESS;
}

} // namespace

CSettings LoadSettings(CWinApp& app) {
    CSettings settings;
    settings.nDecimals = TVGetCommonRegInt(TVSETTING_DECIMALS) + 1;
    settings.bTenths = LoadIndex(app, kTenths, 2);
    settings.nTolerance = LoadIndex(app, kTolerance, std::size(kTolerances));
    settings.strFolder = app.GetProfileString(kSection, kFolder);
    settings.strFile = app.GetProfileString(kSection, kFile);
    settings.strPrevious = app.GetProfileString(kSection, kPrevious);
    const std::vector<Column> columns = ColumnsOf(app.GetProfileString(kSection, kColumns));
    if (!columns.empty())
        settings.columns = columns;
    const std::vector<Column> order = ColumnsOf(app.GetProfileString(kSection, kOrder));
    if (AreComplete(order))
        settings.order = order;
    return settings;
}

bool SaveSettings(CWinApp& app, const CSettings& settings) {
    const bool bShared = SaveDecimals(settings.nDecimals);
    return app.WriteProfileInt(kSection, kTenths, settings.bTenths) &&
           app.WriteProfileInt(kSection, kTolerance, settings.nTolerance) &&
           app.WriteProfileString(kSection, kFolder, settings.strFolder) &&
           app.WriteProfileString(kSection, kFile, settings.strFile) &&
           app.WriteProfileString(kSection, kPrevious, settings.strPrevious) &&
           app.WriteProfileString(kSection, kColumns, LettersOf(settings.columns)) &&
           app.WriteProfileString(kSection, kOrder, LettersOf(settings.order)) && bShared;
}
