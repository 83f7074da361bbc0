// The property sheet on the device's screen.
#include "support/TestApp.h"
#include "testkit/Pen.h"
#include "testkit/Steps.h"
#include "testkit/TitleBar.h"

#include "controls/nPropertyPage.h"
#include "controls/nPropertySheet.h"

using namespace testkit;

namespace {

constexpr int IDD_FIRST = 201, IDD_SECOND = 202, IDC_TEXT = 100;

struct Page : CnPropertyPage {
    explicit Page(int nIDTemplate) : CnPropertyPage(nIDTemplate) {}

    CString m_strText = L"P1";

protected:
    void DoDataExchange(CDataExchange* pDX) override {
        CnPropertyPage::DoDataExchange(pDX);
        DDX_Text(pDX, IDC_TEXT, m_strText);
    }
};

struct Sheet : CnPropertySheet {
    explicit Sheet(DWORD dwOption = 0) : CnPropertySheet(L"設定", nullptr, 0) {
        if (dwOption != 0)
            SetOption(dwOption);
        AddPage(&m_first);
        AddPage(&m_second);
    }

    CRect Rect() const { return RectOf(m_hWnd); }
    bool HasOkButton() const { return (m_nFlags & WF_OKBUTTON) != 0; }
    HWND Bar() const { return ::GetDlgItem(m_hWnd, 0xE800); }

    Page m_first{IDD_FIRST}, m_second{IDD_SECOND};
    BOOL m_bInitResult = FALSE;

protected:
    BOOL OnInitDialog() override { return m_bInitResult = CnPropertySheet::OnInitDialog(); }
};

TEST(nPropertySheet, OptionsDecideOkButtonCommandBarAndVisibility) {
    for (const DWORD dwOption : {0x0, 0x1, 0x2, 0x103}) {
        Sheet sheet(dwOption != 0 ? ~dwOption : 0);
        if (dwOption != 0)
            sheet.SetOption(dwOption); // replaced, not added
        WhileOpen(sheet, [&] {
            EXPECT_TRUE(sheet.m_bInitResult);
            EXPECT_EQ(sheet.Rect(), Screen()) << dwOption;
            EXPECT_TRUE(sheet.GetStyle() & WS_MAXIMIZEBOX) << dwOption;
            EXPECT_EQ(sheet.HasOkButton(), (dwOption & 0x1) != 0) << dwOption;
            EXPECT_EQ(sheet.IsWindowVisible() != FALSE, (dwOption & 0x100) == 0) << dwOption;
            // The framework has its own bar for a sheet that brings none.
            EXPECT_EQ(sheet.m_pWndEmptyCB == nullptr, (dwOption & 0x2) != 0) << dwOption;
            EXPECT_EQ(RectOf(sheet.Bar()), CRect(0, Screen().bottom - 26, Screen().right, Screen().bottom));
            const bool bLarge = LOWORD(::SendMessage(sheet.Bar(), TB_GETBUTTONSIZE, 0, 0)) == 32;
            EXPECT_EQ(bLarge, (dwOption & 0x2) != 0) << dwOption;
            EXPECT_LE(RectOf(*sheet.GetActivePage()).bottom, RectOf(sheet.Bar()).top);
        });
    }
}

TEST(nPropertySheet, NeitherKeysNorCancelNorCloseEndIt) {
    Sheet sheet(CnPropertySheet::OptionOkButton);
    const Rows<const char*, std::function<void()>> rows = {
        {"Enter", [] { TypeKeys({VK_RETURN}); }},
        {"Escape", [] { TypeKeys({VK_ESCAPE}); }},
        {"Cancel", [&] { sheet.SendMessage(WM_COMMAND, IDCANCEL); }},
        {"close button", [&] { pen::Tap(CPoint(sheet.Rect().right - 12, 13)); }},
    };
    for (const auto& [what, input] : rows)
        EXPECT_EQ(77, Play(sheet, {[] {}, input, [] {}, [&] { sheet.EndDialog(77); }})) << what;
}

TEST(nPropertySheet, PressesReachTheSystemWhichClosesAnOpenList) {
    Sheet sheet;
    WhileOpen(sheet, [&] {
        sheet.SetActivePage(1);
        auto& combo = *static_cast<CComboBox*>(sheet.m_second.GetDlgItem(101));
        for (CWnd* const pWnd : {static_cast<CWnd*>(&sheet), static_cast<CWnd*>(&sheet.m_second)}) {
            combo.SetFocus();
            combo.ShowDropDown();
            EXPECT_TRUE(combo.GetDroppedState());
            pWnd->SendMessage(WM_LBUTTONDOWN, MK_LBUTTON);
            EXPECT_FALSE(combo.GetDroppedState());
        }
    });
}

TEST(nPropertySheet, OtherKeysReachThePage) {
    Sheet sheet(CnPropertySheet::OptionOkButton);
    EXPECT_EQ(IDOK, Play(sheet, {Tap(sheet.m_first, IDC_TEXT), Press({VK_END, '7', VK_RETURN, '8'}),
                                 [&] { TapOk(sheet); }}));
    EXPECT_EQ(L"P178", sheet.m_first.m_strText);
}

} // namespace
