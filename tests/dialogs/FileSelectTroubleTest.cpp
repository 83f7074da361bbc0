// The file dialog on folders and cards that make trouble.
#include "FileSelectStage.h"

#include "FillWatch.h"
#include "LockedFolder.h"
#include "companion/PanelPen.h"

namespace {

using namespace file_select;

TEST(FileSelectTrouble, FilesComeInOneGo) {
    constexpr int FILES = 1000;
    const TestDrive drive;
    drive.MakeMany(TestDrive::Files, L"", "%03.0f.csv", FILES);
    CsvDlg dlg;
    FillWatch watch(WC_LISTVIEW);
    const auto expectOneGo = [&] {
        EXPECT_EQ(watch.nInserted, FILES);
        EXPECT_EQ(watch.nInsertedWithRedraw, 0);
        EXPECT_LE(watch.nDrawings, 2);
        watch.nInserted = watch.nDrawings = 0;
    };
    fx::ModalScript script;
    script.Then([&] {
        expectOneGo();
        dlg.SetFileFolder(L"\\");
    });
    script.Then([&] {
        expectOneGo();
        dlg.EndDialog(IDCANCEL);
    });
    script.Run([&] { return dlg.DoModal(); });
}

TEST(FileSelectTrouble, LastOfTwentyThousandFilesCanBePicked) {
    constexpr int FILES = 20000;
    const TestDrive drive;
    drive.MakeMany(TestDrive::Files, L"", "%05.0f.csv", FILES);
    CsvDlg dlg;
    CString strLast;
    fx::ModalScript script;
    script.Then([&] {
        ASSERT_EQ(List(dlg).GetItemCount(), FILES);
        List(dlg).EnsureVisible(FILES - 1, FALSE);
        strLast = List(dlg).GetItemText(FILES - 1, 0);
        TapFile(dlg, strLast);
    });
    script.Then([&] { fx::TapOk(dlg); });
    EXPECT_EQ(script.Run([&] { return dlg.DoModal(); }), IDOK);
    EXPECT_EQ(dlg.GetFilePath(), L"\\" + strLast);
}

TEST(FileSelectTrouble, FolderThatMayNotBeReadIsEmptyAndCanBeLeft) {
    const TestDrive drive;
    drive.MakeFolder(L"\\locked");
    drive.MakeFile(L"\\locked\\in.csv");
    drive.MakeFile(L"\\top.csv");
    const LockedFolder locked(L"\\locked");
    CsvDlg dlg(CFileSelectDlg::ModeOpen, L"\\locked");
    WhileOpen(dlg, [&] {
        EXPECT_EQ(Names(dlg), Texts());
        dlg.SetFileFolder(L"\\");
        EXPECT_EQ(Names(dlg), Texts{L"top.csv"});
    });
}

TEST(FileSelectTrouble, CardMayBeTakenOutWhileItsFilesAreShown) {
    const TestDrive drive;
    drive.MakeFile(L"\\a.csv");
    CsvDlg dlg(CFileSelectDlg::ModeNew);
    fx::ModalScript script;
    script.Then([&] {
        drive.Remove();
        TapFile(dlg, L"a.csv");
    });
    script.Then([&] {
        EXPECT_EQ(Text(dlg, NAME), L"a.csv");
        pen::Tap(*dlg.GetDlgItem(FOLDER_BUTTON));
    });
    script.Then([&] {
        CWnd& browse = *CWnd::GetActiveWindow();
        ASSERT_NE(&browse, &dlg);
        const auto& tree = *static_cast<CTreeCtrl*>(browse.GetDlgItem(1100));
        EXPECT_EQ(tree.GetCount(), 1U) << "the root alone";
        fx::TapClose(browse);
    });
    script.Then([&] {
        dlg.SetFileFolder(L"\\");
        EXPECT_EQ(Names(dlg), Texts());
        fx::TapOk(dlg);
    });
    EXPECT_EQ(script.Run([&] { return dlg.DoModal(); }), IDOK);
    EXPECT_EQ(dlg.GetFilePath(), L"\\a.csv");
}

/// What the file system takes for the same file must not get past the question.
TEST(FileSelectTrouble, EveryWayToWriteAnExistingNameIsAskedAbout) {
    const TestDrive drive;
    CString strDeep = L"\\deep";
    drive.MakeFolder(strDeep);
    for (int i = 0; i < 6; ++i) {
        strDeep += L"\\" + CString(static_cast<wchar_t>(L'a' + i), 60);
        drive.MakeFolder(strDeep);
    }
    drive.MakeFolder(L"\\locked");
    for (const CString& strFolder : {strDeep, CString(L"\\locked")})
        drive.MakeFile(strFolder + L"\\old.csv");
    ::SetFileAttributes(L"\\locked\\old.csv", FILE_ATTRIBUTE_READONLY);
    ::SetFileAttributes(L"\\locked", FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_READONLY);
    struct Row {
        CString folder;
        const wchar_t* typed;
    };
    const Row rows[] = {
        {L"\\locked", L"old"},
        {L"\\locked", L"old.csv"},
        {L"\\locked", L"old...."},
        {L"\\locked", L"OLD.Csv"},
        {L"\\locked\\", L"old"},
        {drive.Letter() + L"\\locked", L"old"},
        {L"\\\\?\\" + drive.Letter() + L"\\locked", L"old"},
        {strDeep, L"old"},
    };
    for (const Row& row : rows) {
        CsvDlg dlg(CFileSelectDlg::ModeSave, row.folder);
        fx::ModalScript script;
        script.Then([&] {
            EXPECT_EQ(Names(dlg), Texts{L"old.csv"});
            dlg.SetDlgItemText(NAME, row.typed);
            fx::TapOk(dlg);
        });
        script.Then([&] {
            ASSERT_NE(CWnd::GetActiveWindow(), &dlg) << "no question";
            pen::Tap(*CWnd::GetActiveWindow()->GetDlgItem(IDNO));
        });
        script.Then([&] { fx::TapClose(dlg); });
        EXPECT_EQ(script.Run([&] { return dlg.DoModal(); }), IDCANCEL)
            << fx::Utf8(row.folder) << " " << fx::Utf8(row.typed);
    }
    ::SetFileAttributes(L"\\locked", FILE_ATTRIBUTE_DIRECTORY);
    ::SetFileAttributes(L"\\locked\\old.csv", FILE_ATTRIBUTE_NORMAL);
}

TEST(FileSelectTrouble, NamesThatLeadOutOfTheFolderAreNotListed) {
    const TestDrive drive;
    drive.MakeFolder(L"\\data");
    if (!drive.MakeForeignFiles(L"\\data", {"..\\\\up.csv", "c:x.csv", "in\\\\x.csv", "good.csv"}))
        GTEST_SKIP() << "only a foreign system makes such names";
    CsvDlg dlg(CFileSelectDlg::ModeOpen, L"\\data");
    WhileOpen(dlg, [&] { EXPECT_EQ(Names(dlg), Texts{L"good.csv"}); });
}

TEST(FileSelectTrouble, NameIsTypedWithThePenOnTheInputPanel) {
    const TestDrive drive;
    CsvDlg dlg(CFileSelectDlg::ModeSave);
    fx::ModalScript script;
    script.Then([&] {
        pen::Tap(*dlg.GetDlgItem(NAME));
        ASSERT_NE(dlg.m_pWndEmptyCB, nullptr);
        const CRect bar = fx::RectOf(*dlg.m_pWndEmptyCB);
        pen::Tap(CPoint(bar.right - 14, bar.CenterPoint().y)); // the switch of the panel
    });
    script.Until([] { return panel::IsVisible(); });
    script.Then([&] {
        EXPECT_LT(fx::RectOf(*dlg.GetDlgItem(NAME)).bottom, panel::Place().top);
        constexpr int ROWS = 5;
        for (const int x : {18, 42, 66})
            pen::Tap(panel::At(1, ROWS, x));
    });
    script.Until([&] { return Text(dlg, NAME).GetLength() == 3; });
    script.Then([&] {
        EXPECT_EQ(Text(dlg, NAME), L"qwe");
        fx::TapOk(dlg);
    });
    EXPECT_EQ(script.Run([&] { return dlg.DoModal(); }), IDOK);
    EXPECT_EQ(dlg.GetFilePath(), L"\\qwe.csv");
    panel::Close();
}

} // namespace
