// What the tests of the file dialog have in common.
#pragma once

#include "dialogs/FileSelectDlg.h"

#include "support/TestApp.h"
#include "testkit/Drive.h"
#include "testkit/Pen.h"
#include "testkit/Steps.h"
#include "testkit/TitleBar.h"

namespace file_select {

constexpr int LIST = 1151, NAME = 1152, FOLDER_BUTTON = 1153, FOLDER = 1154, EXTENSION = 1155;

using Texts = std::vector<CString>;

inline CString Text(const CWnd& dlg, int nID) {
    CString str;
    dlg.GetDlgItemText(nID, str);
    return str;
}

/// A dialog for files whose extension is csv.
struct Dialog : CFileSelectDlg {
    explicit Dialog(int nMode = ModeOpen, LPCTSTR pszFolder = L"\\") : CFileSelectDlg(nullptr) {
        SetMode(nMode);
        SetSubName(L"csv");
        SetFileFolder(pszFolder);
    }
    using CFileSelectDlg::GetSafeName;

    CListCtrl& List() { return *static_cast<CListCtrl*>(GetDlgItem(LIST)); }
    Texts Names() {
        Texts names;
        for (int i = 0; i < List().GetItemCount(); ++i)
            names.push_back(List().GetItemText(i, 0));
        return names;
    }
    void TapFile(LPCTSTR pszName) {
        const Texts names = Names();
        const auto it = std::find(names.begin(), names.end(), pszName);
        ASSERT_NE(it, names.end()) << testkit::Utf8(pszName);
        CRect rect;
        List().GetItemRect(static_cast<int>(it - names.begin()), rect, LVIR_LABEL);
        List().ClientToScreen(rect);
        testkit::pen::Tap(CPoint(rect.left + 10, rect.CenterPoint().y));
    }
    /// A step that puts a name into the field and taps OK.
    testkit::Step Enter(LPCTSTR pszName) {
        return [this, pszName] {
            SetDlgItemText(NAME, pszName);
            testkit::TapOk(*this);
        };
    }
};

inline CString MessageText() {
    return Text(*CWnd::GetActiveWindow(), 0xFFFF);
}

} // namespace file_select
