// What the tests of the file dialog have in common.
#pragma once

#include "dialogs/FileSelectDlg.h"

#include "TestDrive.h"
#include "support/ModalScript.h"
#include "support/TitleBar.h"

namespace file_select {

constexpr int LIST = 1151;
constexpr int NAME = 1152;
constexpr int FOLDER_BUTTON = 1153;
constexpr int FOLDER = 1154;
constexpr int EXTENSION = 1155;

using fx::WhileOpen;
using Texts = std::vector<CString>;

/// A dialog for files whose extension is csv.
class CsvDlg : public CFileSelectDlg {
public:
    explicit CsvDlg(int nMode = ModeOpen, LPCTSTR pszFolder = L"\\") : CFileSelectDlg(nullptr) {
        SetMode(nMode);
        SetSubName(L"csv");
        SetFileFolder(pszFolder);
    }
};

inline CListCtrl& List(CDialog& dlg) {
    return *static_cast<CListCtrl*>(dlg.GetDlgItem(LIST));
}

inline CString Text(CWnd& dlg, int nID) {
    CString str;
    dlg.GetDlgItemText(nID, str);
    return str;
}

inline Texts Names(CDialog& dlg) {
    Texts names;
    for (int i = 0; i < List(dlg).GetItemCount(); ++i)
        names.push_back(List(dlg).GetItemText(i, 0));
    return names;
}

inline Texts Sorted(Texts texts) {
    std::sort(texts.begin(), texts.end());
    return texts;
}

inline void TapFile(CDialog& dlg, LPCTSTR pszName) {
    const Texts names = Names(dlg);
    const auto it = std::find(names.begin(), names.end(), pszName);
    ASSERT_NE(it, names.end()) << fx::Utf8(pszName);
    CRect rect;
    List(dlg).GetItemRect(static_cast<int>(it - names.begin()), rect, LVIR_LABEL);
    List(dlg).ClientToScreen(rect);
    pen::Tap(CPoint(rect.left + 10, rect.CenterPoint().y));
}

} // namespace file_select
