// The property sheet on the device's screen.
#include "support/TestApp.h"
#include "testkit/Script.h"
#include "testkit/Pen.h"
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

/// Gives input, lets it be handled, and expects the sheet to be still there.
template <class Input>
void ExpectStaysOpen(const char* pszWhat, Sheet& sheet, Input input) {
    const auto end = [&] { sheet.EndDialog(77); };
    EXPECT_EQ(77, Play(sheet, {[] {}, input, [] {}, end})) << pszWhat;
}

TEST(nPropertySheet, OptionsDecideOkButtonCommandBarAndVisibility) {
    for (const DWORD dwOption : {0x0, 0x1, 0x2, 0x103}) {
        Sheet sheet(~dwOption);
        sheet.SetOption(dwOption); // replaced, not added
        WhileOpen(sheet, [&] {
            EXPECT_TRUE(sheet.m_bInitResult);
            EXPECT_EQ(sheet.Rect(), Screen()) << dwOption;
            EXPECT_TRUE(sheet.GetStyle() & WS_MAXIMIZEBOX) << dwOption;
            EXPECT_EQ(sheet.HasOkButton(), (dwOption & 0x1) != 0) << dwOption;
            EXPECT_EQ(sheet.IsWindowVisible() != FALSE, (dwOption & 0x100) == 0) << dwOption;
            // The framework has its own bar for a sheet that brings none.
            EXPECT_EQ(sheet.m_pWndEmptyCB == nullptr, (dwOption & 0x2) != 0) << dwOption;
        });
    }
}

TEST(nPropertySheet, CommandBarStandsBelowThePages) {
    Sheet sheet(CnPropertySheet::OptionCommandBar);
    WhileOpen(sheet, [&] {
        const CRect bar = RectOf(sheet.Bar());
        EXPECT_EQ(bar, CRect(0, Screen().bottom - 26, Screen().right, Screen().bottom));
        EXPECT_EQ(::SendMessage(sheet.Bar(), TB_GETBUTTONSIZE, 0, 0) & 0xFFFF, 32);
        EXPECT_TRUE(::IsWindowVisible(sheet.Bar()));
        const CRect page = RectOf(*sheet.GetActivePage());
        EXPECT_GE(page.left, 0);
        EXPECT_LE(page.right, Screen().right);
        EXPECT_GT(page.Width(), 200);
        EXPECT_LE(page.bottom, bar.top);
    });
}

TEST(nPropertySheet, NeitherKeysNorCancelNorCloseEndIt) {
    Sheet sheet(CnPropertySheet::OptionOkButton);
    const auto key = [&](WORD nKey) { return [=] { TypeKeys({nKey}); }; };
    ExpectStaysOpen("Enter", sheet, key(VK_RETURN));
    ExpectStaysOpen("Escape", sheet, key(VK_ESCAPE));
    ExpectStaysOpen("Cancel", sheet, [&] { sheet.SendMessage(WM_COMMAND, IDCANCEL); });
    ExpectStaysOpen("close button", sheet, [&] { pen::Tap(CPoint(sheet.Rect().right - 12, 13)); });
}

TEST(nPropertySheet, OtherKeysReachThePage) {
    Sheet sheet(CnPropertySheet::OptionOkButton);
    EXPECT_EQ(IDOK, Play(sheet, {[&] { pen::Tap(*sheet.m_first.GetDlgItem(IDC_TEXT)); },
                                 [&] {
                                     TypeKeys({VK_END, '7', VK_RETURN, '8'});
                                 },
                                 [&] { TapOk(sheet); }}));
    EXPECT_EQ(L"P178", sheet.m_first.m_strText);
}

} // namespace
