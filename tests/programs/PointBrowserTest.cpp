#include "About.h"
#include "../../samples/classic/pointbrowser/resource.h"

#include "afxres.h"

#include <commctrl.h>

#include <fstream>
#include <string>

using namespace testkit;

TEST(ProgramsTest, PointBrowserFindsSavesAndLoads) {
    const std::wstring job = OwnFolder() + L"survey.job";
    ::DeleteFileW(job.c_str());
    for (const LRESULT nPoints :
         {5, 4}) { // a point is deleted and the job saved; the second run has what is left
        const Program program(L"PointBrowser", L"点ブラウザー", L"\"" + job + L"\"");
        EXPECT_EQ(nPoints, ::SendMessage(program.Item(IDC_POINTS), LVM_GETITEMCOUNT, 0, 0));
        program.Fill(IDC_FIND, nPoints == 5 ? L"t" : L"b");
        program.ExpectText(IDC_COUNT, nPoints == 5 ? L"5 点  基準点: T1" : L"4 点  基準点: B7");
        if (nPoints == 5) {
            program.Command(ID_POINT_DELETE);
            const HWND hQuestion = program.Window(L"PointBrowser");
            ::PostMessage(hQuestion, WM_COMMAND, IDYES, 0);
            program.ExpectText(IDC_COUNT, L"4 点  ");
            program.Command(ID_FILE_SAVE);
            // Not posted: the program cannot write the file while the test reads it.
            ::SendMessage(program.Main(), WM_COMMAND, ID_FILE_EXPORT, 0);
            std::ifstream file((job + L".csv").c_str(), std::ios::binary);
            std::string line;
            std::getline(file, line);
            EXPECT_EQ("T2,1043.215,2011.870,35.940\r", line);
        }
        ShowAbout(program, L"点ブラウザーについて");
        ::PostMessage(program.Main(), WM_CLOSE, 0, 0);
        EXPECT_EQ(0U, program.End());
    }
}
