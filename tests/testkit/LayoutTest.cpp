// What the kit says of dialogs that nobody could use, and of languages that are not alike.
#include "Caught.h"
#include "support/Form.h"
#include "testkit/DialogTemplate.h"
#include "testkit/Languages.h"
#include "testkit/Layout.h"

#include "afxcmn.h"

#include <array>

using namespace testkit;
using fx::Caught;

namespace {

using Units = std::array<short, 4>; // left, top, width, height

/// A dialog of 90 x 60 units with one more control than an entry field in its upper left.
std::string FaultsWith(LPCTSTR pszClass, LPCTSTR pszText, DWORD dwStyle, const Units& place) {
    DialogTemplate shape(90, 60, WS_POPUP | WS_CAPTION, L"");
    shape.Add(WC_EDIT, L"", 7, WS_TABSTOP, 2, 2, 30, 12);
    shape.Add(pszClass, pszText, 8, dwStyle, place[0], place[1], place[2], place[3]);
    TemplateDialog dialog(shape);
    std::string faults = "not open";
    WhileOpen(dialog, [&] {
        if (CWnd* const pList = dialog.GetDlgItem(8); dwStyle == LVS_REPORT) {
            auto& list = *static_cast<CListCtrl*>(pList);
            list.InsertColumn(0, L"", LVCFMT_LEFT, 20);
            list.InsertItem(0, L"123.456");
        }
        faults = LayoutFaults(dialog);
    });
    return faults;
}

TEST(Layout, EachFaultIsToldWithItsControl) {
    const Rows<LPCTSTR, LPCTSTR, DWORD, Units, std::string> rows = {
        {WC_STATIC, L"short", 0, {40, 20, 45, 10}, ""},
        {WC_STATIC, L"a text of many words", 0, {40, 20, 20, 8}, "has a text that is cut off"},
        {WC_BUTTON, L"a text of many words", 0, {40, 20, 20, 12}, "has a text that is cut off"},
        {WC_BUTTON, L"OK", 0, {40, 50, 20, 20}, "is out of reach"},
        {WC_BUTTON, L"OK", 0, {20, 2, 40, 12}, "is covered by Edit 7"},
        {WC_BUTTON, L"", BS_GROUPBOX, {0, 0, 60, 20}, ""},
        {WC_EDIT, L"", 0, {40, 20, 20, 4}, "is too low for its text"},
        {WC_LISTVIEW, L"", LVS_REPORT, {40, 20, 45, 30}, "shortens 123.456"},
    };
    for (const auto& [pszClass, pszText, dwStyle, place, fault] : rows) {
        const std::string faults = FaultsWith(pszClass, pszText, dwStyle, place);
        EXPECT_EQ(fault.empty(), faults.empty()) << faults;
        EXPECT_NE(std::string::npos, faults.find(fault)) << faults;
    }
}

TEST(Layout, FieldThatStaysUnderThePanelIsTold) {
    const Frame frame;
    EXPECT_EQ("", PanelFaults(frame)) << "no field";
    const CRect place(CPoint(0, WorkArea().bottom - 40), CSize(100, 40));
    const HWND hWnd = ::CreateWindow(L"STATIC", L"", WS_POPUP | WS_VISIBLE, place.left, place.top,
                                     place.Width(), place.Height(), frame, nullptr, nullptr, nullptr);
    ::CreateWindow(WC_EDIT, L"", WS_CHILD | WS_VISIBLE, 0, 0, 80, 20, hWnd, nullptr, nullptr, nullptr);
    const std::string faults = PanelFaults(hWnd);
    EXPECT_NE(std::string::npos, faults.find("is covered by the panel")) << faults;
    EXPECT_NE(std::string::npos, faults.find("does not make room for the panel")) << faults;
    ::DestroyWindow(hWnd);
}

TEST(Languages, WhatOneLacksIsTold) {
    constexpr LANGID GERMAN = MAKELANGID(LANG_GERMAN, SUBLANG_GERMAN);
    Caught caught;
    EXPECT_LT(0, CompareLanguages(::GetModuleHandle(L"FieldkitFx.dll"), kEnglish, GERMAN));
    ASSERT_FALSE(caught.m_texts.empty());
    EXPECT_EQ(0U, caught.m_texts[0].find("no second language for the text "));
    const size_t nWithout = caught.m_texts.size();
    EXPECT_EQ(nullptr, HWND(TemplateWindow(::GetModuleHandle(L"Fieldkit.dll"), 134, GERMAN)));
    ASSERT_EQ(nWithout + 1, caught.m_texts.size());
    EXPECT_EQ("no dialog 134 in the language 1031", caught.m_texts.back());
}

} // namespace
