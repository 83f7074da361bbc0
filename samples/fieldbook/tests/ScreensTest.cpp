#include "screens/ComputeDlg.h"
#include "screens/JournalDlg.h"
#include "Leftovers.h"
#include "screens/NameDlg.h"
#include "screens/PlanDlg.h"
#include "screens/PointEditDlg.h"
#include "screens/PointListDlg.h"
#include "screens/PolarDlg.h"
#include "screens/ReportDlg.h"
#include "screens/Resource.h"
#include "WindowCloser.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

/// Opens a screen that is closed as soon as it is there.
void OpenAndClose(CDialog& dialog) {
    const CWindowCloser closer;
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
}

class Screens : public testing::Test {
protected:
    void SetUp() override {
        AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), SW_SHOWNORMAL);
        m_job.book.Add({L"T1", CCoordinate(13225, -35345, 24, 3)});
        m_job.book.Add({L"T2", CCoordinate(13265, -35315, 24, 3)});
        m_job.history.Add(L"T1");
        m_report = MakeReport(IDS_LINES, IDS_INTERSECTION, {Verdict::Found, {CCoordinate(1, 2, 0, 1)}});
    }

    CJob m_job{L"no-history.dat"};
    CReport m_report;
};

TEST_F(Screens, LeaveNothingBehind) {
    const struct {
        const char* pszName;
        std::function<void()> open;
    } cases[] = {
        {"points",
         [&] {
             CPointListDlg dialog(m_job, nullptr);
             OpenAndClose(dialog);
         }},
        {"entry",
         [&] {
             CPointEntryDlg dialog(m_job, nullptr);
             OpenAndClose(dialog);
         }},
        {"edit",
         [&] {
             CPointEditDlg dialog(m_job, L"T1", nullptr);
             OpenAndClose(dialog);
         }},
        {"name",
         [&] {
             CNameDlg dialog(L"?", L"", m_job.history, nullptr);
             OpenAndClose(dialog);
         }},
        {"computations",
         [&] {
             CComputeDlg dialog(m_job, nullptr);
             OpenAndClose(dialog);
         }},
        {"polar",
         [&] {
             CPolarDlg dialog(m_job, nullptr);
             OpenAndClose(dialog);
         }},
        {"report",
         [&] {
             CReportDlg dialog(m_job, m_report, nullptr);
             OpenAndClose(dialog);
         }},
        {"plan",
         [&] {
             CPlanDlg dialog(m_report.drawing, nullptr);
             OpenAndClose(dialog);
         }},
        {"journal",
         [&] {
             CJournalDlg dialog(m_job.journal, nullptr);
             OpenAndClose(dialog);
         }},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.pszName);
        ExpectNothingLeft(c.open);
    }
}

} // namespace
