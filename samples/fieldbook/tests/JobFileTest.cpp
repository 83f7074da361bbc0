// What becomes of the user's files, with the answers that a pen gives.
#include "support/ModalScript.h"
#include "support/PanelPen.h"
#include "Tesuvo.h"
#include "TestFile.h"
#include "points/FileReplacement.h"
#include "points/PointSaving.h"
#include "screens/JobFile.h"
#include "screens/NameDlg.h"
#include "screens/PointEntryDlg.h"
#include "screens/PointListDlg.h"
#include "screens/Resource.h"

namespace {

constexpr char FILE_OF_OURS[] = "name,N,E,Z\r\nA,1.000000,2.000000,3.000000\r\nB,4.000000,5.000000,\r\n";
constexpr char FILE_OF_OTHERS[] = "\xE7\x82\xB9;N;E\nA;1;2\n";
constexpr char FILE_WITH_BAD_LINES[] = "name,N,E,Z\r\nA,1,2,3\r\nB,4\r\n";

/// Taps a button of the message box that is on the screen.
fx::Step Answer(int nButton) {
    return [nButton] {
        if (panel::IsVisible())
            return false; // it goes with the focus, but not at once
        const HWND hButton = ::GetDlgItem(::GetActiveWindow(), nButton);
        EXPECT_NE(hButton, nullptr) << "no such question";
        pen::Tap(*CWnd::FromHandle(hButton));
        return true;
    };
}

fx::Step Keys(std::initializer_list<WORD> keys) {
    const std::vector<WORD> copy = keys;
    return [copy] {
        for (const WORD key : copy)
            pen::TypeKeys({key});
    };
}

fx::Step Tap(const CDialog& dialog, UINT nId) {
    return [&dialog, nId] { pen::Tap(*dialog.GetDlgItem(static_cast<int>(nId))); };
}

/// Of the dialog that is on the screen then.
fx::Step TapIn(int nId) {
    return [nId] { pen::Tap(*CWnd::FromHandle(::GetDlgItem(::GetActiveWindow(), nId))); };
}

fx::Step TapRow(int nRow) {
    return [nRow] {
        auto& list =
            *static_cast<CListCtrl*>(CWnd::FromHandle(::GetDlgItem(::GetActiveWindow(), IDC_POINTS)));
        CRect row;
        list.GetItemRect(nRow, row, LVIR_LABEL);
        list.ClientToScreen(row);
        pen::Tap(row.CenterPoint());
    };
}

/// The panel lies on the lower buttons while a field has the focus.
fx::Step NoPanel() {
    return [] {
        TVCloseSIP();
        return !panel::IsVisible();
    };
}

fx::Step Close(CDialog& dialog) {
    return [&dialog] { dialog.PostMessage(WM_CLOSE); };
}

class JobFile : public testing::Test {
protected:
    void SetUp() override { m_parent.CreateEx(0, L"STATIC", L"", WS_POPUP, CRect(0, 0, 1, 1), nullptr, 0); }
    void TearDown() override {
        GiveUpChanges(*m_pJob);
        m_parent.DestroyWindow();
    }

    void Restart() {
        m_pJob.reset();
        m_pJob = std::make_unique<CJob>(L"no-history.dat");
    }
    /// @param steps what the user does while it opens
    bool Open(std::initializer_list<fx::Step> steps = {}) {
        return fx::Play([&] { return OpenPointsFile(*m_pJob, m_file.GetPath(), m_parent) ? 1 : 0; }, steps) ==
               1;
    }
    bool Save(std::initializer_list<fx::Step> steps = {}) {
        return fx::Play([&] { return SavePointsFile(*m_pJob, L".\\fieldbook-JOB.csv") ? 1 : 0; }, steps) == 1;
    }
    bool HasBackup() const { return CTestFile::Exists(m_file.GetPath() + L".bak"); }

    CWnd m_parent;
    const CTestFile m_file{L"fieldbook-job.csv"};
    std::unique_ptr<CJob> m_pJob = std::make_unique<CJob>(L"no-history.dat");
};

TEST_F(JobFile, FirstSaveKeepsWhatSomethingElseHasWritten) {
    const struct {
        const char* pszFile;
        const char* pszSaved;
        bool bBackup;
        std::initializer_list<fx::Step> opening;
        std::initializer_list<fx::Step> saving;
    } cases[] = {
        {FILE_OF_OURS, FILE_OF_OURS, false, {}, {}},
        {FILE_OF_OTHERS, "\xE7\x82\xB9;N;E\nA;1.000000;2.000000\n", true, {}, {}},
        {FILE_WITH_BAD_LINES,
         "name,N,E,Z\r\nA,1.000000,2.000000,3.000000\r\n",
         true,
         {Answer(IDOK)},
         {Answer(IDOK)}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.pszFile);
        m_file.Write(c.pszFile);
        ASSERT_TRUE(Open(c.opening));
        ASSERT_TRUE(Save(c.saving));
        EXPECT_EQ(m_file.Read(), c.pszSaved);
        EXPECT_EQ(HasBackup(), c.bBackup);
        EXPECT_TRUE(!c.bBackup || CTestFile::ReadFrom(m_file.GetPath() + L".bak") == c.pszFile);
        ::DeleteFile(m_file.GetPath() + L".bak");
        EXPECT_TRUE(Save());
        EXPECT_FALSE(HasBackup()) << "it is ours now";
    }
}

TEST_F(JobFile, FileThatWasChangedOutsideIsAskedAbout) {
    m_file.Write(FILE_OF_OURS);
    ASSERT_TRUE(Open());
    m_pJob->book.Remove(L"B");
    m_file.Write(FILE_OF_OTHERS);
    EXPECT_FALSE(Save({Keys({VK_RETURN})})) << "Enter loses nothing";
    EXPECT_EQ(m_file.Read(), FILE_OF_OTHERS);
    EXPECT_TRUE(m_pJob->book.IsModified());
    EXPECT_TRUE(Save({Answer(IDYES)}));
    EXPECT_EQ(m_file.Read(), "name,N,E,Z\r\nA,1.000000,2.000000,3.000000\r\n");
    EXPECT_TRUE(HasBackup());
}

TEST_F(JobFile, WhatWasNotSavedComesBackWithOneLineThatSaysSo) {
    m_file.Write(FILE_OF_OURS);
    ASSERT_TRUE(Open());
    m_pJob->book.Remove(L"A");
    m_pJob->book.Add({L"C", CCoordinate(2, 1, 0, 1), L"STONE"});
    Restart();
    ASSERT_TRUE(Open({Answer(IDOK)}));
    EXPECT_TRUE(m_pJob->book.IsModified());
    EXPECT_EQ(m_pJob->book.GetCount(), 2);
    ASSERT_NE(m_pJob->book.FindPoint(L"C"), nullptr);
    EXPECT_TRUE(m_pJob->book.FindPoint(L"C")->strCode == L"STONE");
    ASSERT_TRUE(Save());
    Restart();
    EXPECT_TRUE(Open()) << "without any line";

    // The file is another one when the changes come: the user decides.
    for (const int nAnswer : {IDYES, IDNO}) {
        m_pJob->book.Add({L"D", CCoordinate(2, 1, 0, 1)});
        m_file.Write(nAnswer == IDYES ? FILE_OF_OURS : FILE_OF_OTHERS);
        Restart();
        ASSERT_TRUE(nAnswer == IDYES ? Open({Answer(IDYES), Answer(IDOK)}) : Open({Answer(IDNO)}));
        EXPECT_EQ(m_pJob->book.GetCount(), nAnswer == IDYES ? 3 : 1);
        EXPECT_TRUE(CTestFile::Exists(m_file.GetPath() + L".changes.old"));
        GiveUpChanges(*m_pJob);
        ::DeleteFile(m_file.GetPath() + L".changes.old");
        ASSERT_TRUE(Open());
    }
}

TEST_F(JobFile, FileThatCannotBeUsedLeavesTheJobAsItWas) {
    m_file.Write(FILE_OF_OURS);
    ASSERT_TRUE(Open());
    m_pJob->book.Remove(L"A");
    const CTestFile other(L"fieldbook-other.csv", "A,1,2\r\n\x83,1,2\r\n");
    const auto open = [&](CJob& job, const CString& strPath) {
        return fx::Play([&] { return OpenPointsFile(job, strPath, m_parent) ? 1 : 0; }, {Answer(IDOK)});
    };
    EXPECT_EQ(open(*m_pJob, other.GetPath()), 0) << "bytes that are no text";
    EXPECT_EQ(open(*m_pJob, L"fieldbook-no-such.csv"), 0);
    CJob second(L"no-history.dat");
    EXPECT_EQ(open(second, m_file.GetPath()), 0) << "a second program is told";
    EXPECT_EQ(second.book.GetCount(), 0);
    EXPECT_EQ(fx::Play([&] { return SavePointsFile(*m_pJob, L"no folder\\p.csv") ? 1 : 0; }, {Answer(IDOK)}),
              0);
    EXPECT_EQ(fx::Play([&] { return MakePointsFile(*m_pJob, L"no folder\\p.csv") ? 1 : 0; }, {Answer(IDOK)}),
              0);
    EXPECT_TRUE(m_pJob->strPath == m_file.GetPath());
    EXPECT_EQ(m_pJob->book.GetCount(), 1);
    EXPECT_TRUE(m_pJob->book.IsModified());
    EXPECT_EQ(other.Read(), "A,1,2\r\n\x83,1,2\r\n");
    Restart();
    EXPECT_TRUE(Open({Answer(IDOK)})) << "the change is recorded still";
    other.Write(FILE_OF_OURS);
    ASSERT_TRUE(OpenPointsFile(*m_pJob, other.GetPath(), m_parent));
    EXPECT_TRUE(Open()) << "who opens another file gives the change up";
}

// --- Entry, edit and list by pen ------------------------------------------------------------------

TEST_F(JobFile, EntryStoresWhatIsMeantAndNothingElse) {
    struct Case {
        const char* pszCase;
        std::vector<fx::Step> (*steps)(CPointEntryDlg&);
        const char* pszPoints; ///< As a file without heading.
    };
    const Case cases[] = {
        {"Enter goes on and stores from the last field",
         [](CPointEntryDlg& d) -> std::vector<fx::Step> {
             return {Tap(d, IDC_N), Keys({'1', VK_RETURN}), Keys({'2', VK_RETURN}), Keys({'3', VK_RETURN}),
                     Close(d)};
         },
         "T1,1.000000,2.000000,3.000000\r\n"},
        {"typing replaces what is there",
         [](CPointEntryDlg& d) -> std::vector<fx::Step> {
             return {Tap(d, IDC_N),
                     Keys({'1', VK_RETURN}),
                     Keys({'2', VK_RETURN}),
                     Tap(d, IDC_N),
                     Keys({'7'}),
                     NoPanel(),
                     Tap(d, IDC_ADD),
                     Close(d)};
         },
         "T1,7.000000,2.000000,\r\n"},
        {"two quick taps",
         [](CPointEntryDlg& d) -> std::vector<fx::Step> {
             return {Tap(d, IDC_N),
                     Keys({'1'}),
                     Tap(d, IDC_E),
                     Keys({'2'}),
                     NoPanel(),
                     [&d] {
                         pen::Tap(*d.GetDlgItem(IDC_ADD));
                         pen::Tap(*d.GetDlgItem(IDC_ADD));
                     },
                     Close(d)};
         },
         "T1,1.000000,2.000000,\r\n"},
        {"no coordinate, and Enter in the question",
         [](CPointEntryDlg& d) -> std::vector<fx::Step> {
             return {Tap(d, IDC_ADD), Keys({VK_RETURN}), Tap(d, IDC_ADD), Answer(IDYES), Close(d)};
         },
         "T1,,,\r\n"},
        {"closing with typed values",
         [](CPointEntryDlg& d) -> std::vector<fx::Step> {
             return {Tap(d, IDC_N), Keys({'1'}), Close(d),  Keys({VK_RETURN}),
                     Tap(d, IDC_E), Keys({'2'}), NoPanel(), Tap(d, IDC_ADD),
                     Tap(d, IDC_N), Keys({'9'}), Close(d),  Answer(IDYES)};
         },
         "T1,1.000000,2.000000,\r\n"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.pszCase);
        Restart();
        CPointEntryDlg dialog(*m_pJob, nullptr);
        fx::ModalScript script;
        for (const fx::Step& step : c.steps(dialog))
            script.Until(step.run);
        script.Run([&] { return dialog.DoModal(); });
        std::string bytes;
        CString strBad;
        FormatPoints(m_pJob->book.GetPoints(), {}, bytes, strBad);
        EXPECT_EQ(bytes, c.pszPoints);
    }
}

TEST_F(JobFile, PointIsChosenFromListAndPlan) {
    for (const wchar_t* pszName : {L"境界1", L"Ab", L"abc"})
        m_pJob->book.Add({pszName, CCoordinate(m_pJob->book.GetCount() * 10.0, 1, 0, 1)});
    const struct {
        const char* pszCase;
        std::initializer_list<fx::Step> steps;
        const wchar_t* pszName;
    } cases[] = {
        {"a tap on a row", {TapIn(IDC_PICK_LIST), TapRow(0)}, L"境界1"},
        {"part of the name", {TapIn(IDC_PICK_LIST), TapIn(IDC_PART), Keys({'B', 'C'}), TapRow(0)}, L"abc"},
        // The three lie from the west to the east in the middle of the plan.
        {"a tap on the plan", {TapIn(IDC_PICK_PLAN), TapIn(IDC_PLAN)}, L"Ab"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.pszCase);
        CNameDlg dialog(L"?", L"", m_pJob->history, nullptr);
        dialog.OfferPoints(*m_pJob);
        EXPECT_EQ(fx::Play(dialog, c.steps), IDOK);
        EXPECT_TRUE(dialog.GetName() == c.pszName);
    }
}

TEST_F(JobFile, RemovedPointComesBackToItsPlace) {
    for (const wchar_t* pszName : {L"A", L"B", L"C"})
        m_pJob->book.Add({pszName, CCoordinate(2, 1, 0, 1)});
    m_pJob->book.BeginHere();
    CPointListDlg dialog(*m_pJob, nullptr);
    const auto count = [&](int nExpected) {
        return [&, nExpected] { EXPECT_EQ(m_pJob->book.GetCount(), nExpected); };
    };
    fx::Play(dialog,
             {TapRow(1), Tap(dialog, IDC_REMOVE), Keys({VK_RETURN}), count(3), Tap(dialog, IDC_REMOVE),
              Answer(IDYES), count(2), Tap(dialog, IDC_UNDO), count(3), Close(dialog)});
    EXPECT_TRUE(m_pJob->book.GetPoints()[1].strName == L"B");
    EXPECT_FALSE(m_pJob->book.CanUndo());
}

} // namespace
