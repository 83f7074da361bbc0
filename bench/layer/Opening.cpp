#include "Opening.h"

#include "BareDialogs.h"
#include "dialogs/BrowseFolderDlg.h"
#include "dialogs/FileSelectDlg.h"
#include "testkit/DialogTemplate.h"

#include <cstring>
#include <stdexcept>
#include <string>

using namespace testkit;

namespace bench {

namespace {

/// Where the process leaves its result, on the drive that is measured.
constexpr LPCTSTR kResult = L"\\result";

/// A dialog that ends when it has been opened and drawn.
template <class Dialog>
class Opened : public Dialog {
public:
    using Dialog::Dialog;

    Cost Open() {
        const size_t nBytes = HeapBytes();
        const double start = Now();
        this->DoModal();
        return {m_end - start, static_cast<double>(m_nBytes) - static_cast<double>(nBytes)};
    }

protected:
    BOOL OnInitDialog() override {
        const BOOL bResult = Dialog::OnInitDialog();
        this->RedrawWindow(nullptr, nullptr, RDW_ALLCHILDREN | RDW_UPDATENOW);
        m_end = Now();
        m_nBytes = HeapBytes();
        this->EndDialog(IDCANCEL);
        return bResult;
    }

private:
    double m_end = 0;
    size_t m_nBytes = 0;
};

Cost OpenFiles(const CString& strFolder) {
    Opened<CFileSelectDlg> dlg(nullptr);
    dlg.SetSubName(L"csv");
    dlg.SetFileFolder(strFolder);
    return dlg.Open();
}

DialogTemplate SmallDialog() {
    DialogTemplate small(100, 150);
    for (int nID = 100; nID < 110; ++nID)
        nID % 2 == 0 ? small.Edit(nID) : small.Button(nID, L"button");
    return small;
}

Cost Open(What what, const CString& strFolder) {
    switch (what) {
    case What::BareFiles:
        return FillBareList(strFolder);
    case What::Files:
        return OpenFiles(strFolder);
    case What::BareTree:
        return FillBareTree(L"");
    case What::Tree:
        return Opened<CBrowseFolderDlg>(strFolder).Open();
    case What::BareDialog:
        return OpenBareDialog(SmallDialog().Get());
    case What::Dialog: {
        const DialogTemplate small = SmallDialog();
        return Opened<TemplateDialog>(small).Open();
    }
    }
    return {};
}

/// The first windows of a process load fonts and drawing code, whoever makes them. The pause lets
/// the desktop repaint what they covered, which would go on beside the measured one.
void WarmUp() {
    constexpr DWORD kPause = 300; // ms
    constexpr LPCTSTR kNowhere = L"\\nowhere";
    FillBareList(kNowhere);
    FillBareTree(kNowhere);
    OpenFiles(kNowhere);
    ::Sleep(kPause);
}

} // namespace

Cost OpenInProcess(What what, const CString& strFolder) {
    wchar_t szProgram[MAX_PATH];
    ::GetModuleFileName(nullptr, szProgram, MAX_PATH);
    CString strLine;
    strLine.Format(L"\"%s\" open %d \"%s\"", szProgram, static_cast<int>(what), strFolder.GetString());
    STARTUPINFO startup = {};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process = {};
    if (!::CreateProcess(szProgram, strLine.GetBuffer(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                         &startup, &process))
        throw std::runtime_error("cannot start this program again");
    ::WaitForSingleObject(process.hProcess, INFINITE);
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
    Cost cost;
    {
        CFile file(kResult, CFile::modeRead);
        if (file.Read(&cost, sizeof cost) != sizeof cost)
            throw std::runtime_error("no result");
    }
    CFile::Remove(kResult);
    return cost;
}

bool RunOpening(int argc, char** argv) {
    if (argc != 4 || std::strcmp(argv[1], "open") != 0)
        return false;
    const auto what = static_cast<What>(std::stoi(argv[2]));
    if (what < What::BareDialog) // the small dialog is to be the first window
        WarmUp();
    ::GetFocus(); // the first question to the window server waits until it has cleared away the process
                  // before
    const Cost cost = Open(what, CString(argv[3]));
    CFile file(kResult, CFile::modeCreate | CFile::modeWrite);
    file.Write(&cost, sizeof cost);
    return true;
}

} // namespace bench
