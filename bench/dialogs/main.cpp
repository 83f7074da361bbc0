// Measures the file dialogs and the text file beside the bare calls of the system that they
// cannot do without. Prints one line for each; the exit code is 1 if a goal is missed.
#include "Opening.h"

#include "dialogs/TestDrive.h"
#include "util/AsciiFile.h"

#include <afxext.h>

#include <cstdio>
#include <string>

namespace {

using bench::What;

constexpr double DIALOG_GOAL = 1.3;
constexpr double LINES_GOAL = 1.2;

class BenchApp : public CWinApp {
public:
    BenchApp() : CWinApp(L"bench") {}
};

BenchApp g_app;

bench::Pair CompareOpenings(What bare, What ours, const CString& strFolder) {
    return bench::Compare([&] { return bench::OpenInProcess(bare, strFolder); },
                          [&] { return bench::OpenInProcess(ours, strFolder); });
}

bool MeasureFiles(const TestDrive& drive, int nFiles) {
    CString strFolder;
    strFolder.Format(L"\\files%d", nFiles);
    drive.MakeFolder(strFolder);
    for (int i = 0; i < nFiles; ++i) {
        CString strName;
        strName.Format(L"\\site %05d.csv", i);
        drive.MakeFile(strFolder + strName);
    }
    const bench::Pair pair = CompareOpenings(What::BareFiles, What::Files, strFolder);
    char szWhat[64];
    std::snprintf(szWhat, sizeof szWhat, "file dialog, %d files", nFiles);
    const bool bFast = bench::Report(szWhat, pair, DIALOG_GOAL);
    return bench::ReportMemory(pair, nFiles) && bFast;
}

/// @param nFolders in two levels of about the same width
bool MeasureTree(int nFolders, bool bSelect) {
    const TestDrive drive;
    const int nWidth = nFolders > 10000 ? 140 : 70;
    CString strLast;
    for (int nMade = 0, nOuter = 0; nMade < nFolders; ++nOuter) {
        CString strOuter;
        strOuter.Format(L"\\district %03d", nOuter);
        drive.MakeFolder(strOuter);
        ++nMade;
        for (int nInner = 0; nInner < nWidth && nMade < nFolders; ++nInner, ++nMade) {
            strLast.Format(L"%s\\site %03d", strOuter.GetString(), nInner);
            drive.MakeFolder(strLast);
        }
    }
    const bench::Pair pair = CompareOpenings(What::BareTree, What::Tree, bSelect ? strLast : CString());
    char szWhat[64];
    std::snprintf(szWhat, sizeof szWhat, "tree, %d folders%s", nFolders, bSelect ? ", one selected" : "");
    const bool bFast = bench::Report(szWhat, pair, DIALOG_GOAL);
    return bench::ReportMemory(pair, nFolders) && bFast;
}

bool MeasureLines(const char* pszWhat, const char* pszLine) {
    constexpr int LINES = 100000;
    const CString strPath = L"\\lines.txt";
    {
        CFile file(strPath, CFile::modeCreate | CFile::modeWrite);
        std::string bytes;
        for (int i = 0; i < LINES; ++i)
            bytes += pszLine;
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
    return bench::Report(pszWhat, bench::Compare([&] { return timed(bare); }, [&] { return timed(lines); }),
                         LINES_GOAL);
}

} // namespace

int main(int argc, char** argv) {
    AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), SW_SHOWNORMAL);
    if (bench::RunOpening(argc, argv))
        return 0;
    bool bGood = true;
    {
        const TestDrive drive;
        bGood &= MeasureFiles(drive, 10000);
        bGood &= MeasureFiles(drive, 20000);
        bGood &= MeasureLines("100000 lines of 4 characters", "P123\r\n");
        bGood &=
            MeasureLines("100000 lines of 40 characters", "P12345,-35367.1234,13245.6789,102.345,BM\r\n");
    }
    bGood &= MeasureTree(5000, false);
    bGood &= MeasureTree(5000, true);
    bGood &= MeasureTree(20000, true);
    return bGood ? 0 : 1;
}
