// Measures the framework layer, the dialogs and the text files beside the bare calls of the system
// or the standard library's. Prints one line for each, and writes the same as JSON to the file that
// is named on the command line. A second argument picks the rows whose names contain it. The exit
// code is 1 if a goal is missed, 2 if something failed.
#include "Dispatch.h"
#include "Opening.h"
#include "Report.h"
#include "Rows.h"

#include "testkit/Drive.h"
#include "util/AsciiFile.h"

#include <afxext.h>

#include <cstdio>
#include <string>

using namespace testkit;

namespace {

using bench::What;

constexpr double kDialogGoal = 1.3;
constexpr double kSmallDialogGoal = 1.1;
constexpr double kLinesGoal = 1.2;
constexpr int kDialogRounds = 5;
constexpr int kLinesRounds = 5;

class BenchApp : public CWinApp {
public:
    BenchApp() : CWinApp(L"bench") {}
};

BenchApp g_app;

void MeasureOpenings(bench::Report& report, const std::string& name, What bare, What ours,
                     const CString& strFolder, int nItems) {
    if (!report.Wants(name))
        return;
    const bench::Pair pair = bench::Compare(
        kDialogRounds, [&] { return bench::OpenInProcess(bare, strFolder); },
        [&] { return bench::OpenInProcess(ours, strFolder); });
    report.AddTime(name, pair, kDialogGoal);
    report.AddMemory(name, pair, nItems);
}

void MeasureSmallDialog(bench::Report& report) {
    const Drive drive; // for the results
    constexpr auto pszName = "dialog of 10 controls";
    if (report.Wants(pszName))
        report.AddTime(pszName,
                       bench::Compare(
                           kDialogRounds, [] { return bench::OpenInProcess(What::BareDialog, L""); },
                           [] { return bench::OpenInProcess(What::Dialog, L""); }),
                       kSmallDialogGoal);
}

void MeasureFiles(bench::Report& report, int nFiles) {
    Drive drive;
    drive.MakeFolder(L"\\files");
    drive.MakeMany(Drive::Files, L"\\files", "site %05.0f.csv", nFiles);
    MeasureOpenings(report, "list of " + std::to_string(nFiles) + " files", What::BareFiles, What::Files,
                    L"\\files", nFiles);
}

/// Two levels, and the last folder selected.
void MeasureTree(bench::Report& report) {
    constexpr int kOuter = 10;
    constexpr int kInner = 499;
    Drive drive;
    drive.MakeMany(Drive::Folders, L"", "district %.0f", kOuter);
    CString strOuter;
    for (int i = 0; i < kOuter; ++i) {
        strOuter.Format(L"\\district %d", i);
        drive.MakeMany(Drive::Folders, strOuter, "site %03.0f", kInner);
    }
    constexpr int kFolders = kOuter * (kInner + 1);
    MeasureOpenings(report, "tree of " + std::to_string(kFolders) + " folders", What::BareTree, What::Tree,
                    strOuter + L"\\site 498", kFolders);
}

void MeasureLines(bench::Report& report, const std::string& line) {
    constexpr int kLines = 100000;
    const std::string name =
        std::to_string(kLines) + " lines of " + std::to_string(line.size()) + " bytes, one by one";
    if (!report.Wants(name))
        return;
    const Drive drive;
    const CString strPath = L"\\lines.txt";
    {
        CFile file(strPath, CFile::modeCreate | CFile::modeWrite);
        std::string bytes;
        for (int i = 0; i < kLines; ++i)
            bytes += line + "\r\n";
        file.Write(bytes.data(), static_cast<UINT>(bytes.size()));
    }
    const auto timed = [&](auto read) {
        CAsciiFile file;
        file.Open(strPath, CFile::modeRead);
        const double start = bench::Now();
        read(file);
        return bench::Cost{bench::Now() - start};
    };
    const auto bare = [](CFile& file) {
        for (unsigned char ch = 0; file.Read(&ch, 1) != 0;)
            continue;
    };
    const auto lines = [](CAsciiFile& file) {
        for (CString str; file.ReadString(str) != 0;)
            continue;
    };
    report.AddTime(name,
                   bench::Compare(
                       kLinesRounds, [&] { return timed(bare); }, [&] { return timed(lines); }),
                   kLinesGoal);
}

int Run(const char* pszJson, const char* pszOnly) {
    bench::Report report(pszOnly);
    bench::MeasureDispatch(report);
    MeasureRows(report, bench::StringRows());
    MeasureRows(report, bench::CollectionRows());
    MeasureRows(report, bench::ListRows());
    {
        const Drive drive;
        MeasureRows(report, bench::FileRows());
        MeasureRows(report, bench::SampleRows());
    }
    MeasureSmallDialog(report);
    MeasureFiles(report, 10000);
    MeasureFiles(report, 20000);
    MeasureTree(report);
    MeasureLines(report, "P123");
    MeasureLines(report, "P12345,-35367.1234,13245.6789,102.345,BM");
    if (pszJson != nullptr && !report.WriteJson(pszJson)) {
        std::fprintf(stderr, "cannot write %s\n", pszJson);
        return 2;
    }
    return report.AllGoalsMet() ? 0 : 1;
}

} // namespace

int main(int argc, char** argv) {
    AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), SW_SHOWNORMAL);
    try {
        if (bench::RunOpening(argc, argv))
            return 0;
        return Run(argc > 1 ? argv[1] : nullptr, argc > 2 ? argv[2] : "");
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
    } catch (CException* pError) {
        pError->Delete();
        std::fputs("a file of the measurement cannot be read or written\n", stderr);
    }
    return 2;
}
