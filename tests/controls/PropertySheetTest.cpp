// The property sheet on the device's screen.
#include "support/Leftovers.h"
#include "support/ModalScript.h"

#include "controls/nPropertyPage.h"
#include "controls/nPropertySheet.h"

namespace {

constexpr int IDD_FIRST = 201;
constexpr int IDD_SECOND = 202;
constexpr UINT IDS_CAPTION = 210;
constexpr int IDC_TEXT = 100;
constexpr UINT WM_TEST = WM_APP + 1;

class Page : public CnPropertyPage {
public:
    explicit Page(int nIDTemplate) : CnPropertyPage(nIDTemplate) {}

    CString m_strText = L"P1";
    BOOL m_bInitResult = FALSE;
    int m_nExchanges = 0;
    int m_nPresses = 0;

protected:
    void DoDataExchange(CDataExchange* pDX) override {
        CnPropertyPage::DoDataExchange(pDX);
        DDX_Text(pDX, IDC_TEXT, m_strText);
        ++m_nExchanges;
    }
    BOOL OnInitDialog() override { return m_bInitResult = CnPropertyPage::OnInitDialog(); }
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point) {
        ++m_nPresses;
        CnPropertyPage::OnLButtonDown(nFlags, point);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Page, CnPropertyPage)
ON_WM_LBUTTONDOWN()
END_MESSAGE_MAP()

class Sheet : public CnPropertySheet {
public:
    explicit Sheet(DWORD dwOption = 0) : CnPropertySheet(L"設定", nullptr, 0) {
        SetOption(dwOption);
        AddPage(&m_first);
        AddPage(&m_second);
    }

    CRect Rect() const {
        CRect rect;
        GetWindowRect(rect);
        return rect;
    }
    bool HasOkButton() const { return (m_nFlags & WF_OKBUTTON) != 0; }
    HWND Bar() const { return ::GetDlgItem(m_hWnd, 0xE800); }

    Page m_first{IDD_FIRST};
    Page m_second{IDD_SECOND};
    BOOL m_bInitResult = FALSE;

protected:
    BOOL OnInitDialog() override { return m_bInitResult = CnPropertySheet::OnInitDialog(); }
    afx_msg LRESULT OnTest(WPARAM wParam, LPARAM) { return static_cast<LRESULT>(wParam) + 1; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Sheet, CnPropertySheet)
ON_MESSAGE(WM_TEST, &Sheet::OnTest)
END_MESSAGE_MAP()

CRect Screen() {
    return CRect(0, 0, ::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN));
}

/// Runs a look at the open sheet, then ends it.
template <class Look>
void WhileOpen(CnPropertySheet& sheet, Look look) {
    fx::ModalScript script;
    script.Then([] {}); // the sheet has been shown, if it shows itself
    script.Then([&] {
        look();
        sheet.EndDialog(IDOK);
    });
    EXPECT_EQ(script.Run([&] { return sheet.DoModal(); }), IDOK);
}

/// Gives input, lets it be handled, and expects the sheet to be still there.
template <class Input>
void ExpectStaysOpen(const char* pszWhat, Sheet& sheet, Input input) {
    fx::ModalScript script;
    script.Then([] {}).Then(input);
    int nWaited = 0;
    script.Until([&] { return ++nWaited == 10; }).Then([&] { sheet.EndDialog(77); });
    EXPECT_EQ(script.Run([&] { return sheet.DoModal(); }), 77) << pszWhat;
}

TEST(nPropertySheet, OptionsDecideOkButtonCommandBarAndVisibility) {
    for (const DWORD dwOption : {0x0, 0x1, 0x2, 0x3, 0x100, 0x101, 0x103}) {
        Sheet sheet(dwOption);
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
        CRect bar;
        ::GetWindowRect(sheet.Bar(), bar);
        EXPECT_EQ(bar, CRect(0, Screen().bottom - 26, Screen().right, Screen().bottom));
        EXPECT_EQ(::SendMessage(sheet.Bar(), TB_GETBUTTONSIZE, 0, 0) & 0xFFFF, 32);
        EXPECT_TRUE(::IsWindowVisible(sheet.Bar()));
        CRect page;
        sheet.GetActivePage()->GetWindowRect(page);
        EXPECT_GE(page.left, 0);
        EXPECT_LE(page.right, Screen().right);
        EXPECT_GT(page.Width(), 200);
        EXPECT_LE(page.bottom, bar.top);
    });
}

TEST(nPropertySheet, OptionsAreReplacedNotAdded) {
    Sheet sheet(CnPropertySheet::OptionHidden);
    sheet.SetOption(CnPropertySheet::OptionOkButton);
    WhileOpen(sheet, [&] {
        EXPECT_TRUE(sheet.IsWindowVisible());
        EXPECT_TRUE(sheet.HasOkButton());
    });
}

TEST(nPropertySheet, NeitherKeysNorCancelNorCloseEndIt) {
    Sheet sheet(CnPropertySheet::OptionOkButton);
    const auto key = [&](WORD nKey) { return [=] { pen::TypeKeys({nKey}); }; };
    const auto command = [&](LPARAM lParam) {
        return [&sheet, lParam] { sheet.SendMessage(WM_COMMAND, IDCANCEL, lParam); };
    };
    ExpectStaysOpen("Enter", sheet, key(VK_RETURN));
    ExpectStaysOpen("Escape", sheet, key(VK_ESCAPE));
    ExpectStaysOpen("Cancel", sheet, command(0));
    ExpectStaysOpen("Cancel button", sheet, [&] {
        const HWND hButton = ::GetDlgItem(sheet, IDCANCEL);
        sheet.SendMessage(WM_COMMAND, IDCANCEL, reinterpret_cast<LPARAM>(hButton));
    });
    ExpectStaysOpen("close", sheet, [&] { sheet.PostMessage(WM_CLOSE); });
    ExpectStaysOpen("close button", sheet, [&] { pen::Tap(CPoint(sheet.Rect().right - 12, 13)); });
}

TEST(nPropertySheet, OtherKeysReachThePage) {
    Sheet sheet(CnPropertySheet::OptionOkButton);
    fx::ModalScript script;
    script.Then([&] { pen::Tap(*sheet.m_first.GetDlgItem(IDC_TEXT)); });
    script.Then([&] { pen::TypeKeys({VK_END, '7', VK_RETURN, '8'}); });
    script.Then([&] { pen::Tap(CPoint(sheet.Rect().right - 45, 13)); });
    EXPECT_EQ(script.Run([&] { return sheet.DoModal(); }), IDOK) << "the OK button of the title bar";
    EXPECT_EQ(sheet.m_first.m_strText, L"P178");
}

TEST(nPropertySheet, PagesStartLikeDialogs) {
    Sheet sheet;
    WhileOpen(sheet, [&] {
        EXPECT_EQ(sheet.SendMessage(WM_TEST, 41), 42);
        EXPECT_TRUE(sheet.m_first.m_bInitResult);
        EXPECT_EQ(sheet.m_first.m_nExchanges, 1);
        CString str;
        sheet.m_first.GetDlgItemText(IDC_TEXT, str);
        EXPECT_EQ(str, L"P1");
        EXPECT_EQ(sheet.m_second.m_hWnd, nullptr) << "not before it is shown";
        sheet.SetActivePage(1);
        EXPECT_TRUE(sheet.m_second.m_bInitResult);
        sheet.m_second.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 50));
        EXPECT_EQ(sheet.m_second.m_nPresses, 1);
    });
}

TEST(nPropertySheet, StartsWithTheSelectedPageAndATitleFromTheResources) {
    Page first(IDD_FIRST);
    Page second(IDD_SECOND);
    CnPropertySheet sheet(IDS_CAPTION, nullptr, 1);
    sheet.AddPage(&first);
    sheet.AddPage(&second);
    EXPECT_TRUE(sheet.IsKindOf(RUNTIME_CLASS(CnPropertySheet)));
    WhileOpen(sheet, [&] {
        EXPECT_EQ(sheet.GetActiveIndex(), 1);
        CString str;
        sheet.GetWindowText(str);
        EXPECT_EQ(str, L"測点の設定");
    });
}

TEST(nPropertySheet, TwoHundredOpensLeaveNothing) {
    fx::ExpectNothingLeft([] {
        Sheet sheet(0x3);
        WhileOpen(sheet, [&] { sheet.SetActivePage(1); });
    });
    Sheet again(0x3); // one object, many windows
    fx::ExpectNothingLeft([&] { WhileOpen(again, [] {}); });
}

} // namespace
