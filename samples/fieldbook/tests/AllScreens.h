/// @file
/// Every screen of the application, ready to be opened.
#pragma once

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

#include <functional>
#include <ostream>

/// A job of two points at the root of the current drive.
struct CTestJob : CJob {
    CTestJob() : CJob(L"\\history.dat") {
        book.Add({L"T1", CCoordinate(13225, -35345, 24, 3)});
        book.Add({L"T2", CCoordinate(13265, -35315, 24, 3)});
        history.Add(L"T1");
        report = MakeReport(IDS_LINES, IDS_INTERSECTION, {Verdict::Found, {CCoordinate(1, 2, 0, 1)}});
        settings.strFolder = L"\\";
    }
    CReport report;
};

struct AppScreen {
    const char* pszName;
    std::function<void(CTestJob&, CWnd*)> open; ///< Gets a job as it is in the morning.
};

/// For messages of tests.
inline void PrintTo(const AppScreen& screen, std::ostream* os) {
    *os << screen.pszName;
}

inline const AppScreen SCREENS[] = {
    {"Settings",
     [nPage = 0U](CTestJob& job, CWnd* p) mutable { CSettingsSheet(job.settings, nPage, p).DoModal(); }},
    {"MainMenu", [](CTestJob& job, CWnd*) { CMainMenu(job, L"\\points.csv").DoModal(); }},
    {"PointList", [](CTestJob& job, CWnd* p) { CPointListDlg(job, p).DoModal(); }},
    {"PointEntry", [](CTestJob& job, CWnd* p) { CPointEntryDlg(job, p).DoModal(); }},
    {"PointEdit", [](CTestJob& job, CWnd* p) { CPointEditDlg(job, L"T1", p).DoModal(); }},
    {"Name", [](CTestJob& job, CWnd* p) { CNameDlg(L"?", L"", job.history, p).DoModal(); }},
    {"Pick", [](CTestJob& job, CWnd* p) { CPickDlg(job, p).DoModal(); }},
    {"Compute", [](CTestJob& job, CWnd* p) { CComputeDlg(job, p).DoModal(); }},
    {"Polar", [](CTestJob& job, CWnd* p) { CPolarDlg(job, p).DoModal(); }},
    {"Report", [](CTestJob& job, CWnd* p) { CReportDlg(job, job.report, p).DoModal(); }},
    {"Plan", [](CTestJob& job, CWnd* p) { CPlanDlg(job.report.drawing, L"", p).DoModal(); }},
    {"Journal",
     [](CTestJob& job, CWnd* p) {
         job.journal.Append(L"T", {L"1"});
         CJournalDlg(job.journal, p).DoModal();
     }},
    {"Columns", [](CTestJob& job, CWnd* p) { ChooseColumns(*p, job.settings.columns); }},
    {"Files", [](CTestJob& job, CWnd* p) { CFileCommands(job, *p).RunMenu(); }},
    {"Export", [](CTestJob& job, CWnd* p) { RunExport(job, *p); }},
    {"BadLines",
     [](CTestJob&, CWnd* p) {
         ShowBadLines(*p, {{3, LineFault::TooFewFields}});
     }},
};
