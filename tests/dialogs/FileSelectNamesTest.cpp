// How the file dialog makes names, and how it ends.
#include "FileSelectStage.h"

#include "dialogs/detail/FileName.h"

using namespace testkit;

using namespace fieldkit::detail;

namespace {

using namespace file_select;

TEST(FileSelectNames, TypedNameGetsTheExtensionUnlessItHasOne) {
    Drive drive;
    const std::pair<CString, CString> rows[] = {
        {L"report", L"report.csv"},
        {L"report...", L"report.csv"},
        {L"report.txt", L"report.txt"},
        {L"a.b.", L"a.b.csv"},
        {L".x", L".x"},
        {L"...", L".csv"},
        {L"", L""},
        {L"𠮷．", L"𠮷．.csv"}, // a full-width stop is no dot
    };
    Dialog dlg(CFileSelectDlg::ModeSave);
    WhileOpen(dlg, [&] {
        for (const auto& [typed, completed] : rows) {
            dlg.SetDlgItemText(NAME, typed);
            EXPECT_EQ(completed.IsEmpty() ? CString() : L"\\" + completed, dlg.GetFilePath());
            EXPECT_EQ(completed, Text(dlg, NAME));
        }
    });
    EXPECT_EQ(IDOK, Play(dlg, {dlg.Enter(L"report.")}));
    EXPECT_EQ(L"\\report.csv", dlg.GetFilePath());
}

TEST(FileSelectNames, ProposalIsTheFirstNumberThatIsFree) {
    Drive drive;
    for (const wchar_t* pszName : {L"\\data.csv", L"\\data1.csv", L"\\data2.csv", L"\\P009.csv", L"\\x.txt"})
        drive.MakeFile(pszName);
    drive.MakeFolder(L"\\folder.csv"); // is not a file
    const std::pair<CString, CString> rows[] = {
        {L"data", L"data3"}, {L"data1", L"data3"}, {L"data7", L"data7"},  {L"P009", L"P010"},
        {L"x", L"x"},        {L"a?b", L"a?b"},     {L"folder", L"folder"}};
    for (const auto& [name, safe] : rows) {
        Dialog dlg;
        dlg.SetCurrentName(name);
        dlg.SetSubName(L"csv");
        EXPECT_EQ(safe, dlg.GetSafeName(name));
        EXPECT_EQ(L"\\" + safe + L".csv", dlg.GetFilePath()) << "before the dialog";
    }
    Dialog dlg(CFileSelectDlg::ModeNew);
    WhileOpen(dlg, [&] { EXPECT_EQ(L"", Text(dlg, NAME)); });
    EXPECT_EQ(L"", dlg.GetFilePath()) << "nothing is proposed";
    dlg.SetCurrentName(L"data");
    dlg.SetFileFolder(L"\\");
    const auto close = [&] {
        EXPECT_EQ(L"data3.csv", Text(dlg, NAME));
        dlg.SetDlgItemText(NAME, L"other");
        TapClose(dlg);
    };
    EXPECT_EQ(IDCANCEL, Play(dlg, {close}));
    EXPECT_EQ(L"\\data3.csv", dlg.GetFilePath()) << "what is typed counts after OK only";
}

TEST(FileSelectNames, TapTakesTheNameAndModeNewTheNextFreeOne) {
    Drive drive;
    for (const wchar_t* pszName : {L"\\data.csv", L"\\data1.csv", L"\\abc.c", L"\\a.c"})
        drive.MakeFile(pszName);
    const Rows<int, const wchar_t*, const wchar_t*> rows = {
        {CFileSelectDlg::ModeOpen, L"data.csv", L"data.csv"},
        {CFileSelectDlg::ModeSave, L"data.csv", L"data.csv"},
        {CFileSelectDlg::ModeNew, L"data1.csv", L"data2.csv"},
        {CFileSelectDlg::ModeNew, L"abc.c", L"a.csv"},
        {CFileSelectDlg::ModeNew, L"a.c", L".csv"}, // cut by the length of ".csv", as far as it goes
    };
    for (const auto& [mode, tapped, name] : rows) {
        Dialog dlg(mode);
        const auto tapBeside = [&] {
            EXPECT_EQ(name, Text(dlg, NAME));
            const CRect rect = RectOf(dlg.List());
            pen::Tap(CPoint(rect.left + 20, rect.bottom - 30)); // below the last file
        };
        const auto look = [&] {
            EXPECT_EQ(name, Text(dlg, NAME)) << "a tap beside the files changes nothing";
            dlg.EndDialog(IDCANCEL);
        };
        Play(dlg, {[&] { dlg.TapFile(tapped); }, tapBeside, look});
    }
}

/// What the file system takes for the same file must not get past the question.
TEST(FileSelectNames, ExistingFileIsGivenAwayWithYesOnlyHoweverItIsWritten) {
    Drive drive;
    CString strDeep = L"\\deep";
    drive.MakeFolder(strDeep);
    for (int i = 0; i < 6; ++i)
        drive.MakeFolder(strDeep += L"\\" + CString(static_cast<wchar_t>(L'a' + i), 60));
    drive.MakeFolder(L"\\data");
    for (const CString& strFolder : {strDeep, CString(L"\\data")})
        drive.MakeFile(strFolder + L"\\old.csv");
    ::SetFileAttributes(L"\\data\\old.csv", FILE_ATTRIBUTE_READONLY);
    const Rows<int, CString, const wchar_t*> rows = {
        {1, L"\\data", L"old"},
        {2, L"\\data", L"old...."},
        {1, L"\\data", L"OLD.Csv"},
        {1, L"\\data\\", L"old"},
        {1, L"\\\\?\\" + drive.Letter() + L"\\data", L"old"},
        {2, strDeep, L"old"},
    };
    for (const auto& [mode, folder, typed] : rows) {
        Dialog dlg(mode, folder);
        const auto look = [&] {
            CString strQuestion = MessageText();
            strQuestion.Remove(L'\n'); // it may have been broken into more lines
            EXPECT_EQ(dlg.GetFilePath() + L"は既に存在します。上書きしますか？", strQuestion);
            EXPECT_EQ(&dlg, CWnd::GetActiveWindow()->GetWindow(GW_OWNER));
        };
        const auto again = [&] {
            EXPECT_EQ(&dlg, CWnd::GetActiveWindow()) << "No leaves the dialog open";
            TapOk(dlg);
        };
        EXPECT_EQ(IDOK, Play(dlg, {dlg.Enter(typed), look, Answer(IDNO), again, Answer(IDYES)}))
            << Utf8(typed);
    }
    ::SetFileAttributes(L"\\data\\old.csv", FILE_ATTRIBUTE_NORMAL);
    Dialog dlg(CFileSelectDlg::ModeSave, L"\\data");
    const auto twice = [&] {
        dlg.SetDlgItemText(NAME, L"old");
        dlg.PostMessage(WM_COMMAND, IDOK);
        dlg.PostMessage(WM_COMMAND, IDOK);
    };
    const auto close = [&] {
        EXPECT_EQ(&dlg, CWnd::GetActiveWindow()) << "no other question";
        ::PostMessage(CWnd::GetActiveWindow()->m_hWnd, WM_COMMAND, IDCANCEL, 0);
    };
    EXPECT_EQ(IDCANCEL, Play(dlg, {twice, Answer(IDNO), close}));
}

TEST(FileSelectNames, NameThatNoFileOfTheFolderCanHaveIsRefused) {
    const std::pair<NameFault, std::vector<const wchar_t*>> faults[] = {
        {NameFault::Character,
         {L"..\\x.csv", L"../x.csv", L"C:x.csv", L"a.csv:b", L"a?b", L"a*b", L"a<b", L"a>b", L"a|b", L"a\"b",
          L"a\tb"}},
        {NameFault::Ending, {L"a.csv ", L"a."}},
        {NameFault::Device,
         {L"NUL", L"nul.csv", L"Con .b.csv", L"aux", L"PRN.x", L"com1", L"COM9.txt", L"lpt3", L"COM\u00B2",
          L"conin$", L"CONOUT$.x"}},
        {NameFault::None,
         {L"COM0", L"COM10", L"NUL1", L"a.nul", L"CONIN", L"ＮＵＬ", L" a.csv", L"a..b", L"LPT\u00BD",
          L"a. .csv"}},
    };
    for (const auto& [fault, names] : faults)
        for (const wchar_t* const pszName : names)
            EXPECT_EQ(fault, FaultOf(pszName)) << Utf8(pszName);

    Drive drive;
    const std::pair<const wchar_t*, const wchar_t*> rows[] = {
        {L"..\\secret.csv", L"次の文字"}, {L"a.csv ", L"終わり"}, {L"nul", L"装置"}};
    for (const auto& [typed, reason] : rows) {
        Dialog dlg(CFileSelectDlg::ModeNew);
        const auto look = [&reason = reason] { EXPECT_NE(-1, MessageText().Find(reason)); };
        const auto typeAgain = [&] { EXPECT_EQ(dlg.GetDlgItem(NAME), CWnd::GetFocus()); };
        EXPECT_EQ(IDOK, Play(dlg, {[&] { dlg.List().SetFocus(); }, dlg.Enter(typed), look, Answer(IDOK),
                                   typeAgain, dlg.Enter(L"good")}));
        EXPECT_EQ(L"\\good.csv", dlg.GetFilePath());
    }
}

TEST(FileSelectNames, DialogMayBeDestroyedWhileItsMessageIsOpen) {
    Drive drive;
    drive.MakeFile(L"\\old.csv");
    for (const wchar_t* typed : {L"a?b", L"old"}) {
        Dialog dlg(CFileSelectDlg::ModeSave);
        EXPECT_EQ(-1, Play(dlg, {dlg.Enter(typed), [&] { dlg.DestroyWindow(); }})) << Utf8(typed);
    }
}

TEST(FileSelectNames, TitleTellsTheModeAndOpeningEndsAtOnceWithTheNameAsItIs) {
    Drive drive;
    drive.MakeFile(L"\\old.csv");
    const Rows<int, const wchar_t*, const wchar_t*, const wchar_t*> rows = {
        {0, L"ファイルを開く", L"old.csv", L"\\old.csv"}, {0, L"ファイルを開く", L"new", L"\\new"},
        {1, L"ファイル名を付けて保存", L"", L""},         {2, L"新規作成", L"", L""},
        {3, L"ファイルの選択", L"old.csv", L"\\old.csv"}, {-1, L"ファイルの選択", L"", L""}};
    for (const auto& [mode, title, typed, path] : rows) {
        Dialog dlg(mode);
        const auto look = [&dlg, title = title] { EXPECT_EQ(title, TextOf(dlg)); };
        EXPECT_EQ(IDOK, Play(dlg, {look, dlg.Enter(typed)}));
        EXPECT_EQ(path, dlg.GetFilePath());
    }
}

} // namespace
