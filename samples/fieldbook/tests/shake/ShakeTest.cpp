// Every screen under random input, see docs/testkit.md of the library.
#include "testkit/Application.h"
#include "testkit/GTest.h"
#include "testkit/Shake.h"

#include "screens/BadLines.h"
#include "screens/ColumnChoice.h"
#include "screens/ComputeDlg.h"
#include "screens/ExportCommand.h"
#include "screens/JournalDlg.h"
#include "screens/MainMenu.h"
#include "screens/NameDlg.h"
#include "screens/PickDlg.h"
#include "screens/PlanDlg.h"
#include "screens/PointEditDlg.h"
#include "screens/PointListDlg.h"
#include "screens/PolarDlg.h"
#include "screens/ReportDlg.h"
#include "screens/Resource.h"
#include "screens/SettingsSheet.h"
#include "Tesuvo.h"
#include "testkit/Drive.h"

using namespace testkit;

namespace {

testkit::Application g_app(L"test");

/// A job of two points on a drive of its own: random names are saved, nothing else may be reached.
struct CShakenJob : CJob {
    CShakenJob() : CJob(L"\\history.dat") {
        book.Add({L"T1", CCoordinate(13225, -35345, 24, 3)});
        book.Add({L"T2", CCoordinate(13265, -35315, 24, 3)});
        history.Add(L"T1");
        report = MakeReport(IDS_LINES, IDS_INTERSECTION, {Verdict::Found, {CCoordinate(1, 2, 0, 1)}});
        settings.strFolder = L"\\";
    }
    CReport report;
};

struct Screen {
    const char* pszName;
    std::function<void(CShakenJob&, CWnd*)> open; ///< Gets a job as it is in the morning.
};

const Screen SCREENS[] = {
    {"Settings",
     [nPage = 0U](CShakenJob& job, CWnd* p) mutable { CSettingsSheet(job.settings, nPage, p).DoModal(); }},
    {"MainMenu", [](CShakenJob& job, CWnd*) { CMainMenu(job, L"\\points.csv").DoModal(); }},
    {"PointList", [](CShakenJob& job, CWnd* p) { CPointListDlg(job, p).DoModal(); }},
    {"PointEntry", [](CShakenJob& job, CWnd* p) { CPointEntryDlg(job, p).DoModal(); }},
    {"PointEdit", [](CShakenJob& job, CWnd* p) { CPointEditDlg(job, L"T1", p).DoModal(); }},
    {"Name", [](CShakenJob& job, CWnd* p) { CNameDlg(L"?", L"", job.history, p).DoModal(); }},
    {"Pick", [](CShakenJob& job, CWnd* p) { CPickDlg(job, p).DoModal(); }},
    {"Compute", [](CShakenJob& job, CWnd* p) { CComputeDlg(job, p).DoModal(); }},
    {"Polar", [](CShakenJob& job, CWnd* p) { CPolarDlg(job, p).DoModal(); }},
    {"Report", [](CShakenJob& job, CWnd* p) { CReportDlg(job, job.report, p).DoModal(); }},
    {"Plan", [](CShakenJob& job, CWnd* p) { CPlanDlg(job.report.drawing, L"", p).DoModal(); }},
    {"Journal",
     [](CShakenJob& job, CWnd* p) {
         job.journal.Append(L"T", {L"1"});
         CJournalDlg(job.journal, p).DoModal();
     }},
    {"Columns", [](CShakenJob& job, CWnd* p) { ChooseColumns(*p, job.settings.columns); }},
    {"Files", [](CShakenJob& job, CWnd* p) { CFileCommands(job, *p).RunMenu(); }},
    {"Export", [](CShakenJob& job, CWnd* p) { RunExport(job, *p); }},
    {"BadLines",
     [](CShakenJob&, CWnd* p) {
         ShowBadLines(*p, {{3, LineFault::TooFewFields}});
     }},
};

class FieldbookShake : public testing::TestWithParam<Screen> {};

TEST_P(FieldbookShake, Of) {
    const Drive drive;
    const auto openJob = [open = GetParam().open](CWnd* pOwner) {
        CShakenJob job;
        open(job, pOwner);
    };
    testkit::ShakeOptions options;
    options.pszName = GetParam().pszName;
    testkit::Shake(openJob, options);
}

INSTANTIATE_TEST_SUITE_P(All, FieldbookShake, testing::ValuesIn(SCREENS),
                         [](const auto& test) { return std::string(test.param.pszName); });

} // namespace
