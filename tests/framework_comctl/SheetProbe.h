// Property sheets and pages that write down what happens to them.
#pragma once

#include "support/TestApp.h"
#include "testkit/Script.h"
#include "testkit/Pen.h"
#include "testkit/TitleBar.h"

#include "afxdlgs.h"

#include <string>

namespace fx {

constexpr UINT ID_PAGE_GENERAL = 300, ID_PAGE_VIEW = 301, ID_PAGE_WIDE = 302, ID_PAGE_UNKNOWN = 303;
constexpr int IDC_NUMBER = 10;

/// A page with a number between 0 and 100.
struct Page : Heard<CPropertyPage> {
    Page(std::string& log, const char* pszName, UINT nIDTemplate, UINT nIDCaption = 0)
        : Heard(nIDTemplate, nIDCaption), m_log(log), m_name(pszName) {}

    int m_nNumber = 0;
    BOOL m_bApply = TRUE, m_bCancel = TRUE;
    std::function<void()> m_onInit = [] {};

    BOOL OnInitDialog() override {
        Log("init");
        m_onInit();
        return CPropertyPage::OnInitDialog();
    }
    BOOL OnSetActive() override { return Log("set") && CPropertyPage::OnSetActive(); }
    BOOL OnKillActive() override { return Log("kill") && CPropertyPage::OnKillActive(); }
    BOOL OnApply() override { return Log("apply") && m_bApply && CPropertyPage::OnApply(); }
    BOOL OnQueryCancel() override { return m_bCancel && CPropertyPage::OnQueryCancel(); }
    void OnOK() override { Log("ok"); }
    void OnCancel() override { Log("cancel"); }
    BOOL OnWizardFinish() override { return Log("finish") && CPropertyPage::OnWizardFinish(); }

protected:
    void DoDataExchange(CDataExchange* pDX) override {
        if (GetDlgItem(IDC_NUMBER) == nullptr)
            return;
        DDX_Text(pDX, IDC_NUMBER, m_nNumber);
        DDV_MinMaxInt(pDX, m_nNumber, 0, 100);
    }

private:
    bool Log(const char* pszEvent) {
        m_log += m_name + '.' + pszEvent + ' ';
        return true;
    }

    std::string& m_log;
    std::string m_name;
};

/// A sheet of the pages a and b.
struct Sheet : Heard<CPropertySheet> {
    explicit Sheet(CWnd* pParentWnd = nullptr) : Heard(L"設定", pParentWnd) {
        m_bFullScreen = TRUE;
        AddPage(&m_a);
        AddPage(&m_b);
    }
    ~Sheet() override { DestroyWindow(); } // before the pages go

    std::string m_log;
    Page m_a{m_log, "a", ID_PAGE_GENERAL}, m_b{m_log, "b", ID_PAGE_VIEW};
    std::function<void()> m_onInit = [] {};

    /// Taps a tab with the pen.
    void TapTab(int nTab) const {
        CRect tab;
        GetTabControl()->GetItemRect(nTab, tab);
        GetTabControl()->ClientToScreen(tab);
        testkit::pen::Tap(tab.CenterPoint());
    }
    std::string TakeLog() { return std::exchange(m_log, {}); }

    HWND Button(UINT nID) const { return ::GetDlgItem(m_hWnd, static_cast<int>(nID)); }
    bool ShowsButton(UINT nID) const { return (::GetWindowLong(Button(nID), GWL_STYLE) & WS_VISIBLE) != 0; }

    BOOL OnInitDialog() override {
        m_onInit();
        return m_hWnd == nullptr || CPropertySheet::OnInitDialog();
    }
};

} // namespace fx
