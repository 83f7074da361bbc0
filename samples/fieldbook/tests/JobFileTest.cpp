// What becomes of the user's files, with the answers that a pen gives.
#include "PenSteps.h"
#include "TestFile.h"
#include "points/FilePath.h"
#include "points/FileReplacement.h"
#include "points/PointSaving.h"
#include "screens/JobFile.h"
#include "screens/NameDlg.h"
#include "screens/PointEntryDlg.h"
#include "screens/PointListDlg.h"
#include "screens/ProgressWindow.h"
#include "screens/SecondTap.h"
#include "screens/Resource.h"

#include "testkit/Application.h"
#include "testkit/Rows.h"

#include <sstream>

using namespace testkit;

namespace {

constexpr char FILE_OF_OURS[] = "name,N,E,Z\r\nA,1.000000,2.000000,3.000000\r\nB,4.000000,5.000000,\r\n";
constexpr char FILE_OF_OTHERS[] = "\xE7\x82\xB9;N;E\nA;1;2\n";
constexpr char FILE_WITH_BAD_LINES[] = "name,N,E,Z\r\nA,1,2,3\r\nB,4\r\n";

struct JobFile : testing::Test {
    void TearDown() override { GiveUpChanges(*m_pJob); }

    void Restart() {
        m_pJob.reset();
        m_pJob = std::make_unique<CJob>(L"no-history.dat");
    }
    /// @param steps what the user does while it opens
    bool Open(std::initializer_list<Step> steps = {}) {
        return Play([&] { return OpenPointsFile(*m_pJob, m_file.GetPath(), m_parent) ? 1 : 0; }, steps) == 1;
    }
    bool Save(std::initializer_list<Step> steps = {}) {
        return Play([&] { return SavePointsFile(*m_pJob, L".\\fieldbook-JOB.csv") ? 1 : 0; }, steps) == 1;
    }
    bool HasBackup() const { return CTestFile::Exists(m_file.GetPath() + L".bak"); }

    Frame m_parent{CSize(1, 1), WS_POPUP};
    const CTestFile m_file{L"fieldbook-job.csv"};
    std::unique_ptr<CJob> m_pJob = std::make_unique<CJob>(L"no-history.dat");
};

TEST_F(JobFile, FirstSaveKeepsWhatSomethingElseHasWritten) {
    // Lists of initialisers live as long as the members of a struct, but not in Rows.
    const struct {
        const char *pszFile, *pszSaved;
        bool bBackup;
        std::initializer_list<Step> opening, saving;
    } cases[] = {
        {FILE_OF_OURS, FILE_OF_OURS, false, {}, {}},
        {FILE_OF_OTHERS, "\xE7\x82\xB9;N;E\nA;1.000000;2.000000\n", true, {}, {}},
        {FILE_WITH_BAD_LINES,
         "name,N,E,Z\r\nA,1.000000,2.000000,3.000000\r\n",
         true,
         {Answer(IDOK)},
         {Answer(IDOK)}},
    };
    for (const auto& [pszFile, pszSaved, bBackup, opening, saving] : cases) {
        SCOPED_TRACE(pszFile);
        m_file.Write(pszFile);
        ASSERT_TRUE(Open(opening));
        ASSERT_TRUE(Save(saving));
        EXPECT_EQ(pszSaved, m_file.Read());
        EXPECT_EQ(bBackup, HasBackup());
        EXPECT_TRUE(!bBackup || CTestFile::ReadFrom(m_file.GetPath() + L".bak") == pszFile);
        ::DeleteFile(m_file.GetPath() + L".bak");
        EXPECT_TRUE(Save());
        EXPECT_FALSE(HasBackup()) << "it is ours now";
    }
}

TEST_F(JobFile, FileThatWasChangedOutsideIsAskedAbout) {
    m_file.Write(FILE_OF_OURS);
    ASSERT_TRUE(Open());
    m_pJob->book.Remove(L"B");
    EXPECT_FALSE(HasNewsOutside(*m_pJob));
    m_file.Write(FILE_OF_OTHERS);
    EXPECT_TRUE(HasNewsOutside(*m_pJob));
    EXPECT_FALSE(HasNewsOutside(*m_pJob)) << "each change once";
    EXPECT_FALSE(Save({Keys({VK_RETURN})})) << "Enter loses nothing";
    EXPECT_EQ(FILE_OF_OTHERS, m_file.Read());
    EXPECT_TRUE(m_pJob->book.IsModified());
    EXPECT_TRUE(Save({Answer(IDYES)}));
    EXPECT_EQ("name,N,E,Z\r\nA,1.000000,2.000000,3.000000\r\n", m_file.Read());
    EXPECT_TRUE(HasBackup());
    EXPECT_FALSE(HasNewsOutside(*m_pJob));

    // Read again, with the change that was not saved.
    m_pJob->book.Add({L"C", CCoordinate(2, 1, 0, 1)});
    m_file.Write(FILE_OF_OURS);
    Play([&] { return AnswerNewsOutside(*m_pJob, m_parent), 1; },
         {Answer(IDYES), Answer(IDYES), Answer(IDOK)});
    EXPECT_EQ(3, m_pJob->book.GetCount());
    EXPECT_NE(nullptr, m_pJob->book.Find(L"B"));
    EXPECT_TRUE(m_pJob->book.IsModified());
    ::DeleteFile(m_file.GetPath() + L".changes.old");

    // Gone: its points are here still, and leaving without a save asks.
    for (const int nAnswer : {IDYES, IDNO}) {
        ::DeleteFile(m_file.GetPath());
        EXPECT_TRUE(HasNewsOutside(*m_pJob));
        EXPECT_FALSE(HasNewsOutside(*m_pJob));
        Play([&] { return AnswerNewsOutside(*m_pJob, m_parent), 1; }, {Answer(nAnswer)});
        EXPECT_EQ(nAnswer == IDYES, CTestFile::Exists(m_file.GetPath()));
        EXPECT_EQ(nAnswer == IDNO, m_pJob->book.IsModified());
    }
}

TEST_F(JobFile, LongWorkThatIsStoppedLeavesEverythingAsItWas) {
    constexpr int MANY = 400000; // seconds of work
    m_file.Write(FILE_OF_OTHERS);
    ASSERT_TRUE(Open());
    CString strName;
    for (int i = 1; i <= MANY; ++i) {
        strName.Format(L"K%d", i);
        m_pJob->book.AddRead({strName, CCoordinate(i % 1000, i, 0, 1)});
    }
    m_pJob->book.Remove(L"A");
    const Step close = [] { ::PostMessage(::GetActiveWindow(), WM_CLOSE, 0, 0); };
    const Step endOfSession = [] { EXPECT_TRUE(CProgressWindow::StopCurrent()); };
    for (const Step& stop : {TapIn(IDCANCEL), close, endOfSession}) {
        EXPECT_FALSE(Save({stop}));
        EXPECT_EQ(FILE_OF_OTHERS, m_file.Read());
        EXPECT_TRUE(m_pJob->book.IsModified());
        EXPECT_FALSE(HasBackup());
        EXPECT_FALSE(CTestFile::Exists(m_file.GetPath() + L".new"));
    }
}

TEST_F(JobFile, QuickSecondTapDoesNothingTwice) {
    const CSecondTapFilter filter;
    for (const wchar_t* pszName : {L"A", L"B", L"C"})
        m_pJob->book.Add({pszName, CCoordinate(2, 1, 0, 1)});
    CPointListDlg list(*m_pJob, nullptr);
    const auto twice = [](int nId) {
        return [nId] {
            for (int i = 0; i < 2; ++i)
                pen::Tap(*CWnd::FromHandle(::GetDlgItem(::GetActiveWindow(), nId)));
        };
    };
    Play(list, {twice(IDC_UNDO), Close(list)});
    EXPECT_EQ(2, m_pJob->book.GetCount());
    CPointEntryDlg entry(*m_pJob, nullptr);
    Play(entry, {Keys({'1', VK_RETURN, '2'}), NoPanel(), twice(IDC_ADD), Close(entry)});
    EXPECT_EQ(3, m_pJob->book.GetCount());
}

TEST_F(JobFile, WhatWasNotSavedComesBackWithOneLineThatSaysSo) {
    m_file.Write(FILE_OF_OURS);
    ASSERT_TRUE(Open());
    m_pJob->book.Remove(L"A");
    m_pJob->book.Add({L"C", CCoordinate(2, 1, 0, 1), L"STONE"});
    Restart();
    ASSERT_TRUE(Open({Answer(IDOK)}));
    EXPECT_TRUE(m_pJob->book.IsModified());
    EXPECT_EQ(2, m_pJob->book.GetCount());
    ASSERT_NE(nullptr, m_pJob->book.FindPoint(L"C"));
    EXPECT_STREQ(L"STONE", m_pJob->book.FindPoint(L"C")->strCode);
    ASSERT_TRUE(Save());
    Restart();
    EXPECT_TRUE(Open()) << "without any line";

    // The file is another one when the changes come: the user decides.
    for (const int nAnswer : {IDYES, IDNO}) {
        m_pJob->book.Add({L"D", CCoordinate(2, 1, 0, 1)});
        m_file.Write(nAnswer == IDYES ? FILE_OF_OURS : FILE_OF_OTHERS);
        Restart();
        ASSERT_TRUE(nAnswer == IDYES ? Open({Answer(IDYES), Answer(IDOK)}) : Open({Answer(IDNO)}));
        EXPECT_EQ(nAnswer == IDYES ? 3 : 1, m_pJob->book.GetCount());
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
        return Play([&] { return OpenPointsFile(job, strPath, m_parent) ? 1 : 0; }, {Answer(IDOK)});
    };
    EXPECT_EQ(0, open(*m_pJob, other.GetPath())) << "bytes that are no text";
    EXPECT_EQ(0, open(*m_pJob, L"fieldbook-no-such.csv"));
    CJob second(L"no-history.dat");
    EXPECT_EQ(0, open(second, m_file.GetPath())) << "a second program is told";
    EXPECT_EQ(0, second.book.GetCount());
    EXPECT_EQ(0, Play([&] { return SavePointsFile(*m_pJob, L"no folder\\p.csv") ? 1 : 0; }, {Answer(IDOK)}));
    EXPECT_EQ(0, Play([&] { return MakePointsFile(*m_pJob, L"no folder\\p.csv") ? 1 : 0; }, {Answer(IDOK)}));
    EXPECT_TRUE(m_pJob->strPath == m_file.GetPath());
    EXPECT_EQ(1, m_pJob->book.GetCount());
    EXPECT_TRUE(m_pJob->book.IsModified());
    EXPECT_EQ("A,1,2\r\n\x83,1,2\r\n", other.Read());
    Restart();
    EXPECT_TRUE(Open({Answer(IDOK)})) << "the change is recorded still";
    other.Write(FILE_OF_OURS);
    ASSERT_TRUE(OpenPointsFile(*m_pJob, other.GetPath(), m_parent));
    EXPECT_TRUE(Open()) << "who opens another file gives the change up";
    EXPECT_TRUE(IsSamePath(m_pJob->settings.strPrevious, other.GetPath()));
}

TEST_F(JobFile, ResultThatCouldNotBeWrittenComesWithTheNext) {
    const CTestFile results(L"fieldbook-job_results.txt");
    ASSERT_TRUE(::CreateDirectory(results.GetPath(), nullptr));
    CJournal journal(m_file.GetPath());
    const auto appendTwo = [&] {
        journal.Append(L"A", {L"1"});
        journal.Append(L"B", {});
        return 1;
    };
    Play(appendTwo, {Answer(IDOK)}); // told once
    ::RemoveDirectory(results.GetPath());
    journal.Append(L"C", {});
    const std::string text = results.Read();
    const size_t nA = text.find("  A\r\n1\r\n"), nB = text.find("  B\r\n"), nC = text.find("  C\r\n");
    EXPECT_LT(nA, nB);
    EXPECT_LT(nB, nC);
    EXPECT_EQ(text.size(), nC + 5);
}

// --- Entry, edit and list by pen ------------------------------------------------------------------

/// "N" and "E" tap a field, digits, "-" and "!" for Enter are typed, "+" stores, "x" closes, "end" ends the
/// session, "yes" and "no" answer.
Step Action(CPointEntryDlg& dialog, const std::string& action) {
    if (action == "N" || action == "E")
        return Tap(dialog, action == "N" ? IDC_N : IDC_E);
    if (action == "x")
        return Close(dialog);
    if (action == "end")
        return [&dialog] { EXPECT_EQ(FALSE, dialog.SendMessage(WM_QUERYENDSESSION)) << "the answer is No"; };
    if (action == "yes" || action == "no")
        return Answer(action == "yes" ? IDYES : IDNO);
    return [&dialog, action] {
        for (const char ch : action)
            if (ch == '+')
                pen::Tap(*dialog.GetDlgItem(IDC_ADD));
            else
                TypeKeys({static_cast<WORD>(ch == '!' ? VK_RETURN : ch == '-' ? VK_OEM_MINUS : ch)});
    };
}

TEST_F(JobFile, EntryStoresWhatIsMeantAndNothingElse) {
    // The points are as in a file without heading.
    const Rows<const char*, std::string, std::string> cases = {
        {"Enter goes on and stores from the last field", "N 1! 2! 3! x", "T1,1.000000,2.000000,3.000000\r\n"},
        {"the next point begins by itself", "1!2!! 3!4!! x",
         "T1,1.000000,2.000000,\r\nT2,3.000000,4.000000,\r\n"},
        {"a minus behind digits begins the next number", "-1-2-3! 4- x yes",
         "T1,-1.000000,-2.000000,-3.000000\r\n"},
        {"typing replaces what is there", "N 1! 2! N 7 + x", "T1,7.000000,2.000000,\r\n"},
        {"no coordinate, and Enter in the question", "+ ! + yes x", "T1,,,\r\n"},
        {"closing with typed values", "N 1 x ! E 2 + N 9 x yes", "T1,1.000000,2.000000,\r\n"},
        {"the system's session ends with typed values", "N 1 end no x yes", ""}};
    for (const auto& [pszCase, actions, points] : cases) {
        SCOPED_TRACE(pszCase);
        Restart();
        CPointEntryDlg dialog(*m_pJob, nullptr);
        Script script;
        std::istringstream words(actions);
        for (std::string action; words >> action;) {
            if (action[0] == '+')
                script.Until(NoPanel());
            script.Until(Action(dialog, action));
        }
        script.Run([&] { return dialog.DoModal(); });
        std::string bytes;
        CString strBad;
        FormatPoints(m_pJob->book.GetPoints(), {}, bytes, strBad);
        EXPECT_EQ(points, bytes);
    }
}

TEST_F(JobFile, PointIsChosenFromListAndPlan) {
    for (const wchar_t* pszName : {L"境界1", L"Ab", L"abc"})
        m_pJob->book.Add({pszName, CCoordinate(m_pJob->book.GetCount() * 10.0, 1, 0, 1)});
    const struct {
        const char* pszCase;
        std::initializer_list<Step> steps;
        const wchar_t* pszName;
    } cases[] = {
        {"a tap on a row", {TapIn(IDC_PICK_LIST), TapRow(0)}, L"境界1"},
        {"part of the name", {TapIn(IDC_PICK_LIST), TapIn(IDC_PART), Keys({'B', 'C'}), TapRow(0)}, L"abc"},
        // The three lie from the west to the east in the middle of the plan.
        {"a tap on the plan", {TapIn(IDC_PICK_PLAN), TapIn(IDC_PLAN)}, L"Ab"},
    };
    for (const auto& [pszCase, steps, pszName] : cases) {
        SCOPED_TRACE(pszCase);
        CNameDlg dialog(L"?", L"", m_pJob->history, nullptr);
        dialog.OfferPoints(*m_pJob);
        EXPECT_EQ(IDOK, Play(dialog, steps));
        EXPECT_STREQ(pszName, dialog.GetName());
    }
}

TEST_F(JobFile, RemovedPointComesBackToItsPlace) {
    for (const wchar_t* pszName : {L"A", L"B", L"C"})
        m_pJob->book.Add({pszName, CCoordinate(2, 1, 0, 1)});
    m_pJob->book.BeginHere();
    CPointListDlg dialog(*m_pJob, nullptr);
    const auto count = [&](int nExpected) {
        return [&, nExpected] { EXPECT_EQ(nExpected, m_pJob->book.GetCount()); };
    };
    Play(dialog, {TapRow(1), Tap(dialog, IDC_REMOVE), Keys({VK_RETURN}), count(3), Tap(dialog, IDC_REMOVE),
                  Answer(IDYES), count(2), Tap(dialog, IDC_UNDO), count(3), Close(dialog)});
    EXPECT_STREQ(L"B", m_pJob->book.GetPoints()[1].strName);
    EXPECT_FALSE(m_pJob->book.CanUndo());
}

} // namespace
