// Long lists are filled in one go: neither laid out nor drawn item by item.
#include "FileSelectStage.h"

#include "dialogs/BrowseFolderDlg.h"

using namespace testkit;

namespace {

/// Counts, while it exists, the items that come into one window class of this thread.
struct FillWatch {
    explicit FillWatch(LPCTSTR pszClass) : m_strClass(pszClass) {
        s_pCurrent = this;
        m_hHook = ::SetWindowsHookEx(WH_CALLWNDPROC, OnMessage, nullptr, ::GetCurrentThreadId());
    }
    ~FillWatch() { ::UnhookWindowsHookEx(m_hHook); }

    int nInserted = 0;
    int nInsertedWithRedraw = 0; ///< Each of them makes the control lay itself out and draw.
    int nDrawings = 0;           ///< Of all that shows.

private:
    static LRESULT CALLBACK OnMessage(int nCode, WPARAM wParam, LPARAM lParam) {
        const auto& message = *reinterpret_cast<const CWPSTRUCT*>(lParam);
        if (nCode == HC_ACTION && ClassOf(message.hwnd) == s_pCurrent->m_strClass.GetString())
            s_pCurrent->Count(message);
        return ::CallNextHookEx(nullptr, nCode, wParam, lParam);
    }

    void Count(const CWPSTRUCT& message) {
        const bool bInsert = message.message == LVM_INSERTITEM || message.message == TVM_INSERTITEM;
        if (message.message == WM_SETREDRAW)
            m_bPaused = message.wParam == FALSE;
        nInserted += bInsert;
        nInsertedWithRedraw += bInsert && !m_bPaused;
        nDrawings += message.message == WM_ERASEBKGND;
    }

    static inline FillWatch* s_pCurrent = nullptr;

    CString m_strClass;
    HHOOK m_hHook;
    bool m_bPaused = false;
};

TEST(Filling, FilesAndFoldersComeInOneGo) {
    constexpr int COUNT = 200;
    Drive drive;
    drive.MakeMany(Drive::Files, L"", "%03.0f.csv", COUNT);
    drive.MakeMany(Drive::Folders, L"", "%03.0f", COUNT);
    file_select::Dialog files;
    CBrowseFolderDlg folders(L"\\150");
    const Rows<CnDialog&, LPCTSTR, int> rows = {{files, WC_LISTVIEW, COUNT},
                                                {folders, WC_TREEVIEW, COUNT + 1}};
    for (const auto& [dlg, pszClass, nItems] : rows) {
        FillWatch watch(pszClass);
        WhileOpen(dlg, [&, nWanted = nItems] {
            EXPECT_EQ(nWanted, watch.nInserted);
            EXPECT_EQ(0, watch.nInsertedWithRedraw);
            EXPECT_LE(watch.nDrawings, 2);
        });
    }
}

} // namespace
