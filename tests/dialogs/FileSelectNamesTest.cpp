// How the file dialog makes names, and how it ends.
#include "FileSelectStage.h"

namespace {

using namespace file_select;

class SafeName : public CFileSelectDlg {
public:
    SafeName() : CFileSelectDlg(nullptr) {}
    using CFileSelectDlg::GetSafeName;
};

/// The message box in front.
CWnd& Box() {
    return *CWnd::GetActiveWindow();
}

CString QuestionText() {
    constexpr int BOX_TEXT = 0xFFFF;
    return Text(Box(), BOX_TEXT);
}

TEST(FileSelectNames, TypedNameGetsTheExtensionUnlessItHasOne) {
    const TestDrive drive;
    struct Row {
        const wchar_t* typed;
        const wchar_t* completed;
        const wchar_t* path;
    };
    const Row rows[] = {
        {L"report", L"report.csv", L"\\report.csv"},
        {L"report.", L"report.csv", L"\\report.csv"},
        {L"report...", L"report.csv", L"\\report.csv"},
        {L"report.txt", L"report.txt", L"\\report.txt"},
        {L"a.b.", L"a.b.csv", L"\\a.b.csv"},
        {L".x", L".x", L"\\.x"},
        {L"...", L".csv", L"\\.csv"},
        {L"境界　点", L"境界　点.csv", L"\\境界　点.csv"},
        {L"𠮷か\x3099．", L"𠮷か\x3099．.csv", L"\\𠮷か\x3099．.csv"}, // a full-width stop is no dot
        {L"", L"", L""},
    };
    for (const Row& row : rows) {
        CsvDlg dlg(CFileSelectDlg::ModeSave, L"");
        fx::ModalScript script;
        script.Then([&] {
            dlg.SetDlgItemText(NAME, row.typed);
            EXPECT_EQ(dlg.GetFilePath(), row.path) << "while open";
            EXPECT_EQ(Text(dlg, NAME), row.completed);
            dlg.SetDlgItemText(NAME, row.typed);
            fx::TapOk(dlg);
        });
        EXPECT_EQ(script.Run([&] { return dlg.DoModal(); }), IDOK) << fx::Utf8(row.typed);
        EXPECT_EQ(dlg.GetFilePath(), row.path) << "afterwards";
    }
}

TEST(FileSelectNames, ProposalIsTheFirstNumberThatIsFree) {
    const TestDrive drive;
    for (const wchar_t* pszName : {L"\\data.csv", L"\\data1.csv", L"\\data2.csv", L"\\P009.csv", L"\\x.txt"})
        drive.MakeFile(pszName);
    drive.MakeFolder(L"\\folder.csv");
    struct Row {
        const wchar_t* name;
        const wchar_t* safe;
    };
    const Row rows[] = {{L"data", L"data3"}, {L"data1", L"data3"},  {L"data7", L"data7"},
                        {L"P009", L"P010"},  {L"x", L"x"},          {L"new", L"new"},
                        {L"a?b", L"a?b"},    {L"folder", L"folder"}}; // a folder is not a file
    for (const Row& row : rows) {
        SafeName dlg;
        dlg.SetCurrentName(row.name);
        dlg.SetSubName(L"csv");
        dlg.SetFileFolder(L"\\");
        EXPECT_EQ(dlg.GetSafeName(row.name), row.safe);
        EXPECT_EQ(dlg.GetFilePath(), L"\\" + CString(row.safe) + L".csv") << "before the dialog";
        WhileOpen(dlg, [&] { EXPECT_EQ(Text(dlg, NAME), CString(row.safe) + L".csv"); });
    }
}

TEST(FileSelectNames, WithoutCurrentNameThereIsNoProposal) {
    const TestDrive drive;
    CsvDlg dlg(CFileSelectDlg::ModeNew);
    WhileOpen(dlg, [&] { EXPECT_EQ(Text(dlg, NAME), L""); });
    EXPECT_EQ(dlg.GetFilePath(), L"");
}

TEST(FileSelectNames, TapTakesTheNameAndModeNewTheNextFreeOne) {
    const TestDrive drive;
    for (const wchar_t* pszName : {L"\\data.csv", L"\\data1.csv", L"\\abc.c", L"\\a.c"})
        drive.MakeFile(pszName);
    struct Row {
        int mode;
        const wchar_t* tapped;
        const wchar_t* name;
    };
    const Row rows[] = {
        {CFileSelectDlg::ModeOpen, L"data.csv", L"data.csv"},
        {CFileSelectDlg::ModeSave, L"data.csv", L"data.csv"},
        {CFileSelectDlg::ModeNew, L"data.csv", L"data2.csv"},
        {CFileSelectDlg::ModeNew, L"data1.csv", L"data2.csv"},
        {CFileSelectDlg::ModeNew, L"abc.c", L"a.csv"}, // cut by the length of ".csv"
        {CFileSelectDlg::ModeNew, L"a.c", L".csv"},    // shorter than that
    };
    for (const Row& row : rows) {
        CsvDlg dlg(row.mode);
        fx::ModalScript script;
        script.Then([&] { TapFile(dlg, row.tapped); });
        script.Then([&] {
            EXPECT_EQ(Text(dlg, NAME), row.name);
            const CRect rect = fx::RectOf(List(dlg));
            pen::Tap(CPoint(rect.left + 20, rect.bottom - 30)); // below the last file
        });
        script.Then([&] {
            EXPECT_EQ(Text(dlg, NAME), row.name) << "a tap beside the files changes nothing";
            dlg.EndDialog(IDCANCEL);
        });
        script.Run([&] { return dlg.DoModal(); });
    }
}

TEST(FileSelectNames, FileThatHasVanishedCanStillBeTapped) {
    const TestDrive drive;
    for (const int nMode : {CFileSelectDlg::ModeOpen, CFileSelectDlg::ModeNew}) {
        drive.MakeFile(L"\\gone.csv");
        CsvDlg dlg(nMode);
        fx::ModalScript script;
        script.Then([&] {
            ::DeleteFile(L"\\gone.csv");
            TapFile(dlg, L"gone.csv");
        });
        script.Then([&] { fx::TapOk(dlg); });
        EXPECT_EQ(script.Run([&] { return dlg.DoModal(); }), IDOK);
        EXPECT_EQ(dlg.GetFilePath(), L"\\gone.csv");
    }
}

TEST(FileSelectNames, ExistingFileIsGivenAwayWithYesOnly) {
    const TestDrive drive;
    drive.MakeFolder(L"\\data");
    drive.MakeFile(L"\\data\\old.csv");
    for (const int nMode : {CFileSelectDlg::ModeSave, CFileSelectDlg::ModeNew}) {
        CsvDlg dlg(nMode, L"\\data");
        fx::ModalScript script;
        script.Then([&] {
            dlg.SetDlgItemText(NAME, L"old");
            fx::TapOk(dlg);
        });
        script.Then([&] {
            EXPECT_EQ(QuestionText(), L"\\data\\old.csvは既に存在します。\n上書きしますか？");
            EXPECT_EQ(Box().GetWindow(GW_OWNER), &dlg);
            pen::Tap(*Box().GetDlgItem(IDNO));
        });
        script.Then([&] {
            EXPECT_EQ(CWnd::GetActiveWindow(), &dlg) << "No leaves the dialog open";
            EXPECT_EQ(Text(dlg, NAME), L"old.csv");
            fx::TapOk(dlg);
        });
        script.Then([&] { pen::Tap(*Box().GetDlgItem(IDYES)); });
        EXPECT_EQ(script.Run([&] { return dlg.DoModal(); }), IDOK);
        EXPECT_EQ(dlg.GetFilePath(), L"\\data\\old.csv");
    }
}

TEST(FileSelectNames, OkThatComesTwiceAsksOnce) {
    const TestDrive drive;
    drive.MakeFile(L"\\old.csv");
    CsvDlg dlg(CFileSelectDlg::ModeSave, L"\\");
    fx::ModalScript script;
    script.Then([&] {
        dlg.SetDlgItemText(NAME, L"old");
        dlg.PostMessage(WM_COMMAND, IDOK);
        dlg.PostMessage(WM_COMMAND, IDOK);
    });
    script.Then([&] { pen::Tap(*Box().GetDlgItem(IDNO)); });
    script.Then([&] {
        EXPECT_EQ(CWnd::GetActiveWindow(), &dlg) << "no other question";
        ::PostMessage(CWnd::GetActiveWindow()->m_hWnd, WM_COMMAND, IDCANCEL, 0);
    });
    EXPECT_EQ(script.Run([&] { return dlg.DoModal(); }), IDCANCEL);
}

TEST(FileSelectNames, NameThatNoFileOfTheFolderCanHaveIsRefused) {
    const TestDrive drive;
    drive.MakeFolder(L"\\data");
    drive.MakeFile(L"\\secret.csv");
    constexpr LPCTSTR CHARACTER = L"次の文字";
    constexpr LPCTSTR ENDING = L"終わり";
    constexpr LPCTSTR DEVICE = L"装置";
    struct Row {
        const wchar_t* typed;
        const wchar_t* reason; ///< Part of it; null if the name is good.
    };
    const Row rows[] = {
        {L"..\\secret.csv", CHARACTER},
        {L"../secret.csv", CHARACTER},
        {L"\\secret.csv", CHARACTER},
        {L"C:secret.csv", CHARACTER},
        {L"a.csv:b", CHARACTER},
        {L"a?b", CHARACTER},
        {L"a*b", CHARACTER},
        {L"a<b", CHARACTER},
        {L"a>b", CHARACTER},
        {L"a|b", CHARACTER},
        {L"a\"b", CHARACTER},
        {L"a\tb", CHARACTER},
        {L"a.csv ", ENDING},
        {L"a. .", nullptr}, // becomes "a. .csv"
        {L"NUL", DEVICE},
        {L"nul.csv", DEVICE},
        {L"Con .b.csv", DEVICE},
        {L"aux", DEVICE},
        {L"PRN.", DEVICE},
        {L"com1", DEVICE},
        {L"COM9.txt", DEVICE},
        {L"lpt3", DEVICE},
        {L"COM\u00B2", DEVICE},
        {L"conin$", DEVICE},
        {L"CONOUT$.x", DEVICE},
        {L"COM0", nullptr},
        {L"COM10", nullptr},
        {L"NUL1", nullptr},
        {L"a.nul", nullptr},
        {L"CONIN", nullptr},
        {L"ＮＵＬ", nullptr},
        {L" a.csv", nullptr},
        {L"a..b", nullptr},
        {L"LPT\u00BD", nullptr},
    };
    int nMode = CFileSelectDlg::ModeNew;
    for (const Row& row : rows) {
        nMode = nMode == CFileSelectDlg::ModeNew ? CFileSelectDlg::ModeSave : CFileSelectDlg::ModeNew;
        CsvDlg dlg(nMode, L"\\data");
        fx::ModalScript script;
        script.Then([&] {
            dlg.SetDlgItemText(NAME, row.typed);
            fx::TapOk(dlg);
        });
        if (row.reason != nullptr) {
            script.Then([&] {
                EXPECT_NE(QuestionText().Find(row.reason), -1) << fx::Utf8(row.typed);
                pen::Tap(*Box().GetDlgItem(IDOK));
            });
            script.Then([&] {
                EXPECT_EQ(::GetFocus(), dlg.GetDlgItem(NAME)->m_hWnd) << "to be typed again";
                dlg.SetDlgItemText(NAME, L"good");
                fx::TapOk(dlg);
            });
        }
        EXPECT_EQ(script.Run([&] { return dlg.DoModal(); }), IDOK) << fx::Utf8(row.typed);
        EXPECT_EQ(dlg.GetFilePath() == L"\\data\\good.csv", row.reason != nullptr);
    }
}

TEST(FileSelectNames, DialogMayBeDestroyedWhileItsMessageIsOpen) {
    const TestDrive drive;
    drive.MakeFile(L"\\old.csv");
    for (const wchar_t* typed : {L"a?b", L"old"}) {
        CsvDlg dlg(CFileSelectDlg::ModeSave, L"\\");
        fx::ModalScript script;
        script.Then([&] {
            dlg.SetDlgItemText(NAME, typed);
            fx::TapOk(dlg);
        });
        script.Then([&] {
            EXPECT_FALSE(QuestionText().IsEmpty());
            dlg.DestroyWindow();
        });
        EXPECT_EQ(script.Run([&] { return dlg.DoModal(); }), -1) << fx::Utf8(typed);
    }
}

TEST(FileSelectNames, OpeningEndsAtOnceWithTheNameAsItIs) {
    const TestDrive drive;
    drive.MakeFile(L"\\old.csv");
    struct Row {
        int mode;
        const wchar_t* typed;
        const wchar_t* path;
    };
    for (const Row& row : {Row{0, L"old.csv", L"\\old.csv"}, Row{0, L"new", L"\\new"}, Row{0, L"", L""},
                           Row{3, L"old.csv", L"\\old.csv"}}) {
        CsvDlg dlg(row.mode);
        fx::ModalScript script;
        script.Then([&] {
            dlg.SetDlgItemText(NAME, row.typed);
            fx::TapOk(dlg);
        });
        EXPECT_EQ(script.Run([&] { return dlg.DoModal(); }), IDOK);
        EXPECT_EQ(dlg.GetFilePath(), row.path);
    }
}

TEST(FileSelectNames, CloseButtonCancels) {
    const TestDrive drive;
    drive.MakeFile(L"\\old.csv");
    CsvDlg dlg(CFileSelectDlg::ModeSave, L"");
    dlg.SetCurrentName(L"seed");
    dlg.SetSubName(L"csv"); // proposes it
    fx::ModalScript script;
    script.Then([&] {
        dlg.SetDlgItemText(NAME, L"old.csv");
        fx::TapClose(dlg);
    });
    EXPECT_EQ(script.Run([&] { return dlg.DoModal(); }), IDCANCEL);
    EXPECT_EQ(dlg.GetFilePath(), L"\\seed.csv");
}

TEST(FileSelectNames, FolderButtonChangesTheFolderAndKeepsTheName) {
    const TestDrive drive;
    drive.MakeFolder(L"\\data");
    drive.MakeFile(L"\\data\\in.csv");
    drive.MakeFile(L"\\top.csv");
    struct Row {
        const char* what;
        void (*end)(const CWnd&);
        const wchar_t* folder;
        Texts names;
    };
    for (const Row& row :
         {Row{"OK", fx::TapOk, L"\\data", {L"in.csv"}}, Row{"close", fx::TapClose, L"\\", {L"top.csv"}}}) {
        CsvDlg dlg;
        fx::ModalScript script;
        script.Then([&] {
            dlg.SetDlgItemText(NAME, L"typed");
            pen::Tap(*dlg.GetDlgItem(FOLDER_BUTTON));
        });
        script.Then([] {
            CWnd* pBrowse = CWnd::GetActiveWindow();
            auto* pTree = static_cast<CTreeCtrl*>(pBrowse->GetDlgItem(1100));
            CRect rect;
            pTree->GetItemRect(pTree->GetChildItem(pTree->GetRootItem()), rect, TRUE);
            pTree->ClientToScreen(rect);
            pen::Tap(rect.CenterPoint());
        });
        script.Then([&] { row.end(*CWnd::GetActiveWindow()); });
        script.Then([&] {
            EXPECT_EQ(CWnd::GetActiveWindow(), &dlg);
            EXPECT_EQ(Text(dlg, FOLDER), row.folder) << row.what;
            EXPECT_EQ(Names(dlg), row.names) << row.what;
            EXPECT_EQ(Text(dlg, NAME), L"typed");
            fx::TapOk(dlg);
        });
        EXPECT_EQ(script.Run([&] { return dlg.DoModal(); }), IDOK);
        EXPECT_EQ(dlg.GetFileFolder(), row.folder) << row.what;
    }
}

} // namespace
