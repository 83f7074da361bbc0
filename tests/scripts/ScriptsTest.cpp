// What scripts of dialog editors become: the files of editor/ have each form that they write.
#include "editor/resource.h"
#include "support/TestApp.h"

#include <gtest/gtest.h>

using namespace testkit;

namespace {

TEST(ResourceScriptTest, TextsOfAllPagesArrive) {
    const Rows<UINT, LPCTSTR> rows = {
        {IDS_NUMBERED, L"\u00A9 \u00B2 \\ %d\n"},
        {IDS_LETTERS, L"D\u00FCne"},
        {IDS_TRAIL, L"\u8868\u793A\u3001\u80FD\u529B"},
        {IDS_WIDE, L"\u70B9\u540D\u300C%1\u300D; [\u8868] \U00020BB7"},
        {IDS_MARKED, L"\u00B10"},
        {AFX_IDP_PARSE_INT, L"\u6574\u6570\u3092\u5165\u529B\u3057\u3066\u304F\u3060\u3055\u3044\u3002"},
    };
    for (const auto& [nID, pszText] : rows) {
        CString text;
        EXPECT_TRUE(text.LoadString(nID)) << nID;
        EXPECT_STREQ(text.GetString(), pszText) << nID;
    }
}

TEST(ResourceScriptTest, WhatTheEditorKeepsForItselfIsLeftOut) {
    const HMODULE hModule = ::GetModuleHandle(nullptr);
    EXPECT_EQ(nullptr, ::FindResource(hModule, MAKEINTRESOURCE(1), L"TEXTINCLUDE"));
    EXPECT_NE(nullptr, ::FindResource(hModule, MAKEINTRESOURCE(IDR_PICTURE), RT_GROUP_ICON));
    EXPECT_NE(nullptr, ::FindResource(hModule, MAKEINTRESOURCE(IDR_BAR), MAKEINTRESOURCE(241)));
    // The framework's own texts are in its library, not here as well.
    EXPECT_EQ(nullptr, ::FindResource(hModule, MAKEINTRESOURCE(AFX_IDP_PARSE_INT / 16 + 1), RT_STRING));
}

struct CListsDlg : CDialog {
    CListsDlg() : CDialog(IDD_LISTS) {}
    CString m_texts;

protected:
    BOOL OnInitDialog() override {
        CDialog::OnInitDialog();
        for (const UINT nMessage : {CB_GETLBTEXT, LB_GETTEXT})
            for (const WPARAM nItem : {0, 1}) {
                TCHAR szText[32] = {};
                SendDlgItemMessage(nMessage == LB_GETTEXT ? IDC_LIST : IDC_COMBO, nMessage, nItem,
                                   reinterpret_cast<LPARAM>(szText));
                m_texts += szText;
            }
        EndDialog(IDOK);
        return TRUE;
    }
};

TEST(ResourceScriptTest, ListsAreFilledAsTheEditorSays) {
    CListsDlg dlg;
    EXPECT_EQ(IDOK, dlg.DoModal());
    EXPECT_STREQ(L"OneThreeFourFive", dlg.m_texts.GetString());
}

} // namespace
