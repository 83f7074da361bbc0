// What the kit says of dialogs that nobody could use, and of languages that are not alike.
#include "Caught.h"
#include "testkit/DialogTemplate.h"
#include "testkit/Form.h"
#include "testkit/Languages.h"
#include "testkit/Layout.h"

#include "afxcmn.h"

#include <sstream>

using namespace testkit;
using fx::Caught;

namespace {

/// A dialog with everything that can be wrong, and a little that is not.
DialogTemplate Faulty() {
    DialogTemplate shape(90, 90, WS_POPUP | WS_CAPTION, L"");
    shape.Add(WC_EDIT, L"", 1, WS_TABSTOP, 2, 2, 30, 12);
    shape.Add(WC_STATIC, L"short", 2, 0, 40, 2, 45, 10);
    shape.Add(WC_BUTTON, L"", 3, BS_GROUPBOX, 0, 0, 88, 18);
    shape.Add(WC_BUTTON, L"OK", 4, 0, 20, 2, 15, 12);
    shape.Add(WC_STATIC, L"a text of many words", 5, 0, 2, 20, 20, 8);
    shape.Add(WC_BUTTON, L"a text of many words", 6, 0, 30, 20, 20, 12);
    shape.Add(WC_EDIT, L"", 7, 0, 60, 20, 20, 4);
    shape.Add(WC_LISTVIEW, L"", 8, LVS_REPORT, 2, 40, 60, 30);
    shape.Add(WC_BUTTON, L"OK", 9, 0, 60, 84, 20, 20);
    return shape;
}

/// What is said of a control; nothing if it is as it should be.
std::string LineOf(const std::string& faults, int nID) {
    const std::string mark = ' ' + std::to_string(nID) + " \"";
    std::istringstream lines(faults);
    for (std::string line; std::getline(lines, line);)
        if (line.find(mark) < line.find(" (")) // its own name stands before its place
            return line;
    return "";
}

TEST(Layout, EachFaultIsToldWithItsControl) {
    const DialogTemplate shape = Faulty();
    TemplateDialog dialog(shape);
    std::string faults;
    WhileOpen(dialog, [&] {
        auto& list = *static_cast<CListCtrl*>(dialog.GetDlgItem(8));
        list.InsertColumn(0, L"", LVCFMT_LEFT, 20);
        list.InsertItem(0, L"123.456");
        faults = LayoutFaults(dialog);
    });
    const Rows<int, std::string> rows = {{1, "is covered by Button 4"},
                                         {2, ""},
                                         {3, ""},
                                         {4, "is covered by Edit 1"},
                                         {5, "has a text that is cut off"},
                                         {6, "has a text that is cut off"},
                                         {7, "is too low for its text"},
                                         {8, "shortens 123.456"},
                                         {9, "is out of reach"}};
    for (const auto& [nID, fault] : rows) {
        const std::string line = LineOf(faults, nID);
        EXPECT_EQ(fault.empty(), line.empty()) << line;
        EXPECT_NE(std::string::npos, line.find(fault)) << nID << ": " << line;
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
