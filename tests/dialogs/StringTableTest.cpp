#include "support/FrameworkEnvironment.h"

#include "dialogs/InputDlg.h" // links the library, whose texts are looked for

namespace {

TEST(StringTable, HoldsTheLibrarysTexts) {
    struct Row {
        UINT id;
        const wchar_t* text;
    };
    const Row rows[] = {
        {1500, L"エラー"},
        {1501, L"警告"},
        {1502, L"[ブランク]"},
        {1503, L"インフォメーション"},
        {1510, L"ファイル名"},
        {1511, L"更新日時"},
        {1512, L"サイズ"},
        {1513, L"ファイルを開く"},
        {1514, L"ファイル名を付けて保存"},
        {1515, L"新規作成"},
        {1516, L"%sは既に存在します。\n上書きしますか？"},
    };
    const CInputDlg dlg(L"", L"", nullptr);
    for (const Row& row : rows) {
        CString str;
        EXPECT_TRUE(str.LoadString(row.id)) << row.id;
        EXPECT_EQ(str, row.text) << row.id;
    }
}

} // namespace
