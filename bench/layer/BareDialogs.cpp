#include "BareDialogs.h"

#include <commctrl.h>

#include <string>

namespace bench {

namespace {

/// A visible control of the dialogs' size, in a plain window.
class Control {
public:
    Control(const wchar_t* pszClass, DWORD dwStyle)
        : m_hParent(::CreateWindow(WC_STATIC, L"", WS_POPUP | WS_VISIBLE, 0, 26, 240, 268, nullptr, nullptr,
                                   nullptr, nullptr)),
          m_hControl(::CreateWindow(pszClass, L"", WS_CHILD | WS_VISIBLE | WS_BORDER | dwStyle, 0, 0, 240,
                                    240, m_hParent, nullptr, nullptr, nullptr)) {}
    ~Control() { ::DestroyWindow(m_hParent); }
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    /// Runs `fill` without redraw, draws once, and measures both.
    template <class Fill>
    Cost Measure(Fill fill) const {
        const size_t nBytes = HeapBytes();
        const double start = Now();
        ::SendMessage(m_hControl, WM_SETREDRAW, FALSE, 0);
        fill(m_hControl);
        ::SendMessage(m_hControl, WM_SETREDRAW, TRUE, 0);
        ::RedrawWindow(m_hControl, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
        const double ms = Now() - start;
        return {ms, static_cast<double>(HeapBytes()) - static_cast<double>(nBytes)};
    }

private:
    HWND m_hParent;
    HWND m_hControl;
};

void SetText(HWND hList, int nItem, int nColumn, const wchar_t* pszFormat, auto... values) {
    wchar_t szText[64];
    ::wsprintf(szText, pszFormat, values...);
    LVITEM item = {};
    item.iSubItem = nColumn;
    item.pszText = szText;
    ::SendMessage(hList, LVM_SETITEMTEXT, static_cast<WPARAM>(nItem), reinterpret_cast<LPARAM>(&item));
}

void InsertFile(HWND hList, int nItem, WIN32_FIND_DATA& file) {
    LVITEM item = {};
    item.mask = LVIF_TEXT;
    item.iItem = nItem;
    item.pszText = file.cFileName;
    ::SendMessage(hList, LVM_INSERTITEM, 0, reinterpret_cast<LPARAM>(&item));
    FILETIME local;
    SYSTEMTIME t;
    ::FileTimeToLocalFileTime(&file.ftLastWriteTime, &local);
    ::FileTimeToSystemTime(&local, &t);
    SetText(hList, nItem, 1, L"%d/%02d/%02d %2d:%02d", t.wYear, t.wMonth, t.wDay, t.wHour, t.wMinute);
    SetText(hList, nItem, 2, L"%ld", file.nFileSizeLow);
}

void InsertFolders(HWND hTree, HTREEITEM hParent, const std::wstring& path) {
    WIN32_FIND_DATA entry;
    const HANDLE hFind = ::FindFirstFile((path + L"\\*.*").c_str(), &entry);
    if (hFind == INVALID_HANDLE_VALUE)
        return;
    do {
        const std::wstring name = entry.cFileName;
        if ((entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0 || name == L"." || name == L"..")
            continue;
        TVINSERTSTRUCT insert = {};
        insert.hParent = hParent;
        insert.hInsertAfter = TVI_LAST;
        insert.item.mask = TVIF_TEXT;
        insert.item.pszText = entry.cFileName;
        const LRESULT nItem = ::SendMessage(hTree, TVM_INSERTITEM, 0, reinterpret_cast<LPARAM>(&insert));
        InsertFolders(hTree, reinterpret_cast<HTREEITEM>(nItem), path + L"\\" + name);
    } while (::FindNextFile(hFind, &entry));
    ::FindClose(hFind);
}

double g_drawn; // when the dialog was

INT_PTR CALLBACK OnDialog(HWND hDlg, UINT message, WPARAM, LPARAM) {
    if (message != WM_INITDIALOG)
        return FALSE;
    ::RedrawWindow(hDlg, nullptr, nullptr, RDW_ALLCHILDREN | RDW_UPDATENOW);
    g_drawn = Now();
    ::EndDialog(hDlg, IDCANCEL);
    return TRUE;
}

} // namespace

Cost OpenBareDialog(LPCDLGTEMPLATE pTemplate) {
    const double start = Now();
    ::DialogBoxIndirectParam(::GetModuleHandle(nullptr), pTemplate, nullptr, OnDialog, 0);
    return {g_drawn - start};
}

Cost FillBareList(const wchar_t* pszFolder) {
    const Control control(WC_LISTVIEW, LVS_REPORT);
    return control.Measure([&](HWND hList) {
        LVCOLUMN column = {};
        column.mask = LVCF_WIDTH;
        column.cx = 100;
        for (WPARAM i = 0; i < 3; ++i)
            ::SendMessage(hList, LVM_INSERTCOLUMN, i, reinterpret_cast<LPARAM>(&column));
        WIN32_FIND_DATA file;
        int nItem = 0;
        const HANDLE hFind = ::FindFirstFile((std::wstring(pszFolder) + L"\\*.*").c_str(), &file);
        for (BOOL bMore = hFind != INVALID_HANDLE_VALUE; bMore; bMore = ::FindNextFile(hFind, &file))
            if ((file.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0)
                InsertFile(hList, nItem++, file);
        ::FindClose(hFind);
    });
}

Cost FillBareTree(const wchar_t* pszFolder) {
    const Control control(WC_TREEVIEW, TVS_HASLINES | TVS_HASBUTTONS | TVS_LINESATROOT);
    return control.Measure([&](HWND hTree) {
        TVINSERTSTRUCT root = {};
        wchar_t szRoot[] = L"root";
        root.hParent = TVI_ROOT;
        root.hInsertAfter = TVI_LAST;
        root.item.mask = TVIF_TEXT;
        root.item.pszText = szRoot;
        const LRESULT nItem = ::SendMessage(hTree, TVM_INSERTITEM, 0, reinterpret_cast<LPARAM>(&root));
        InsertFolders(hTree, reinterpret_cast<HTREEITEM>(nItem), pszFolder);
        ::SendMessage(hTree, TVM_EXPAND, TVE_EXPAND, nItem);
    });
}

} // namespace bench
