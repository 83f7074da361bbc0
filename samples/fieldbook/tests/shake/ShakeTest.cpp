// Every screen under random input, see the library's tests/shake.
#include "shake/Shake.h"

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
#include "support/TestDrive.h"

namespace {

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

/// @param open gets a job as it is in the morning
void ShakeJob(const std::function<void(CShakenJob&, CWnd*)>& open) {
    const TestDrive drive;
    const auto panel = [](int nMode) { nMode == 3 ? TVCloseSIP() : TVShowSIP(nMode); };
    const auto openJob = [&](CWnd* pOwner) {
        CShakenJob job;
        open(job, pOwner);
    };
    shake::Shake(openJob, panel);
}

TEST(FieldbookShake, Settings) {
    UINT nPage = 0;
    ShakeJob([&](CShakenJob& job, CWnd* pOwner) { CSettingsSheet(job.settings, nPage, pOwner).DoModal(); });
}

TEST(FieldbookShake, MainMenu) {
    ShakeJob([](CShakenJob& job, CWnd*) { CMainMenu(job, L"\\points.csv").DoModal(); });
}

TEST(FieldbookShake, PointList) {
    ShakeJob([](CShakenJob& job, CWnd* pOwner) { CPointListDlg(job, pOwner).DoModal(); });
}

TEST(FieldbookShake, PointEntry) {
    ShakeJob([](CShakenJob& job, CWnd* pOwner) { CPointEntryDlg(job, pOwner).DoModal(); });
}

TEST(FieldbookShake, PointEdit) {
    ShakeJob([](CShakenJob& job, CWnd* pOwner) { CPointEditDlg(job, L"T1", pOwner).DoModal(); });
}

TEST(FieldbookShake, Name) {
    ShakeJob([](CShakenJob& job, CWnd* pOwner) { CNameDlg(L"?", L"", job.history, pOwner).DoModal(); });
}

TEST(FieldbookShake, Pick) {
    ShakeJob([](CShakenJob& job, CWnd* pOwner) { CPickDlg(job, pOwner).DoModal(); });
}

TEST(FieldbookShake, Compute) {
    ShakeJob([](CShakenJob& job, CWnd* pOwner) { CComputeDlg(job, pOwner).DoModal(); });
}

TEST(FieldbookShake, Polar) {
    ShakeJob([](CShakenJob& job, CWnd* pOwner) { CPolarDlg(job, pOwner).DoModal(); });
}

TEST(FieldbookShake, Report) {
    ShakeJob([](CShakenJob& job, CWnd* pOwner) { CReportDlg(job, job.report, pOwner).DoModal(); });
}

TEST(FieldbookShake, Plan) {
    ShakeJob([](CShakenJob& job, CWnd* pOwner) { CPlanDlg(job.report.drawing, L"", pOwner).DoModal(); });
}

TEST(FieldbookShake, Journal) {
    ShakeJob([](CShakenJob& job, CWnd* pOwner) {
        job.journal.Append(L"T", {L"1"});
        CJournalDlg(job.journal, pOwner).DoModal();
    });
}

TEST(FieldbookShake, Columns) {
    ShakeJob([](CShakenJob& job, CWnd* pOwner) { ChooseColumns(*pOwner, job.settings.columns); });
}

TEST(FieldbookShake, Files) {
    ShakeJob([](CShakenJob& job, CWnd* pOwner) { CFileCommands(job, *pOwner).RunMenu(); });
}

TEST(FieldbookShake, Export) {
    ShakeJob([](CShakenJob& job, CWnd* pOwner) { RunExport(job, *pOwner); });
}

TEST(FieldbookShake, BadLines) {
    ShakeJob([](CShakenJob&, CWnd* pOwner) { ShowBadLines(*pOwner, {{3, LineFault::TooFewFields}}); });
}

} // namespace
