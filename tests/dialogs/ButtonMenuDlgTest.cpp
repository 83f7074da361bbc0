#include "dialogs/ButtonMenuDlg.h"

#include "TemplateRects.h"
#include "support/Leftovers.h"
#include "support/ModalScript.h"

#include <Tesuvo.h>

namespace {

constexpr int TITLE = 1503;
constexpr int FIRST_BUTTON = 5100;
constexpr int BUTTON_HEIGHT = 36;
const UINT TEXTS[] = {1513, 1514, 1515}; // texts of the library, over and over

/// A menu with that many entries.
struct Menu {
    explicit Menu(int nEntries, CWnd* pParent = nullptr) : m_dlg(TITLE, &m_ids, pParent) {
        for (int i = 0; i < nEntries; ++i)
            m_ids.Add(TEXTS[i % std::ssize(TEXTS)]);
    }
    CWnd* Button(int nIndex) { return m_dlg.GetDlgItem(FIRST_BUTTON + nIndex); }
    /// Scrolls a button of a tall menu onto the screen, as the dialog itself does not.
    void BringIntoReach(int nIndex) {
        m_dlg.SetWindowPos(nullptr, 0, -nIndex * BUTTON_HEIGHT, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    }

    CUIntArray m_ids;
    CButtonMenuDlg m_dlg;
};

INT_PTR RunMenu(Menu& menu, std::initializer_list<std::function<void()>> steps) {
    fx::ModalScript script;
    for (const auto& step : steps)
        script.Then(step);
    return script.Run([&] { return menu.m_dlg.DoModal(); });
}

/// The X in the title bar.
CPoint CloseBox(const CWnd& dlg) {
    CRect rect;
    dlg.GetWindowRect(rect);
    return CPoint(rect.right - 12, rect.top + 14);
}

TEST(ButtonMenuDlg, IsAColumnOfButtonsUnderItsTitle) {
    const CString texts[] = {L"ファイルを開く", L"ファイル名を付けて保存", L"新規作成"};
    for (const int nEntries : {0, 1, 3, 8, 25}) {
        Menu menu(nEntries);
        const auto look = [&] {
            CString str;
            menu.m_dlg.GetWindowText(str);
            EXPECT_EQ(str, L"インフォメーション");
            CRect client;
            menu.m_dlg.GetClientRect(client);
            CRect units(0, 0, 133, 0);
            menu.m_dlg.MapDialogRect(units);
            EXPECT_EQ(client, CRect(0, 0, units.right, nEntries * BUTTON_HEIGHT));
            for (int i = 0; i < nEntries; ++i) {
                ASSERT_NE(menu.Button(i), nullptr) << i;
                CRect rect;
                menu.Button(i)->GetWindowRect(rect);
                menu.m_dlg.ScreenToClient(rect);
                EXPECT_EQ(rect, CRect(CPoint(0, i * BUTTON_HEIGHT), CSize(client.Width(), BUTTON_HEIGHT)));
                menu.Button(i)->GetWindowText(str);
                EXPECT_EQ(str, texts[i % 3]);
                EXPECT_TRUE(menu.Button(i)->IsWindowVisible());
            }
            EXPECT_EQ(menu.Button(nEntries), nullptr);
        };
        EXPECT_EQ(RunMenu(menu, {look, [&] { pen::Tap(CloseBox(menu.m_dlg)); }}), IDCANCEL) << nEntries;
        EXPECT_EQ(menu.m_dlg.GetMenuIndex(), -1);
    }
}

TEST(ButtonMenuDlg, ButtonsShowTheSharedIconAtTheirLeft) {
    Menu menu(1);
    RunMenu(menu, {[&] {
                auto* const pButton = dynamic_cast<CIconButton*>(menu.Button(0));
                ASSERT_NE(pButton, nullptr);
                pButton->UpdateWindow();
                CClientDC dc(pButton);
                const COLORREF face = ::GetSysColor(COLOR_3DFACE);
                int nDrawn = 0; // where an icon of 16 pixels stands in a button of 36
                for (int x = 10; x < 26; ++x)
                    nDrawn += dc.GetPixel(x, 18) != face ? 1 : 0;
                EXPECT_GT(nDrawn, 8);
                EXPECT_EQ(pButton->SetIcon(nullptr), TVGetCommonIcon(26));
                menu.m_dlg.EndDialog(IDCANCEL);
            }});
}

TEST(ButtonMenuDlg, TappingAnEntryEndsItWithTheIndex) {
    fx::Frame owner(CSize(240, 320));
    for (const int nEntry : {0, 1, 2}) {
        Menu menu(3, &owner);
        EXPECT_EQ(RunMenu(menu, {[&] { pen::Tap(*menu.Button(nEntry)); }}), IDOK);
        EXPECT_EQ(menu.m_dlg.GetMenuIndex(), nEntry);
    }
}

TEST(ButtonMenuDlg, TheLastEntryThatCanBeChosenIsTheTwentyFirst) {
    Menu menu(25);
    const auto tap = [&](int nEntry) {
        return [&menu, nEntry] {
            menu.BringIntoReach(nEntry);
            pen::Tap(*menu.Button(nEntry));
        };
    };
    const auto stillOpen = [&] {
        EXPECT_NE(menu.Button(24), nullptr);
        EXPECT_EQ(menu.m_dlg.GetMenuIndex(), -1);
    };
    EXPECT_EQ(RunMenu(menu, {tap(21), stillOpen, tap(24), stillOpen, tap(20)}), IDOK);
    EXPECT_EQ(menu.m_dlg.GetMenuIndex(), 20);
}

TEST(ButtonMenuDlg, ANewRunForgetsTheChoiceBefore) {
    Menu menu(3);
    EXPECT_EQ(RunMenu(menu, {[&] { pen::Tap(*menu.Button(1)); }}), IDOK);
    EXPECT_EQ(menu.m_dlg.GetMenuIndex(), 1);
    menu.m_ids.RemoveAt(0); // the next run shows what the array holds then
    const auto look = [&] {
        CString str;
        menu.Button(0)->GetWindowText(str);
        EXPECT_EQ(str, L"ファイル名を付けて保存");
        EXPECT_EQ(menu.Button(2), nullptr);
    };
    EXPECT_EQ(RunMenu(menu, {look, [&] { pen::Tap(CloseBox(menu.m_dlg)); }}), IDCANCEL);
    EXPECT_EQ(menu.m_dlg.GetMenuIndex(), -1);
}

TEST(ButtonMenuDlg, MissingTextsAreEmpty) {
    CUIntArray ids;
    ids.Add(1599);
    CButtonMenuDlg dlg(1598, &ids, nullptr);
    fx::ModalScript script;
    script.Then([&] {
        EXPECT_EQ(dlg.GetWindowTextLength(), 0);
        EXPECT_EQ(dlg.GetDlgItem(FIRST_BUTTON)->GetWindowTextLength(), 0);
        pen::Tap(*dlg.GetDlgItem(FIRST_BUTTON));
    });
    EXPECT_EQ(script.Run([&] { return dlg.DoModal(); }), IDOK);
}

TEST(ButtonMenuDlg, TwoHundredOpensLeaveNothingHoweverTheyEnd) {
    using End = std::function<void(Menu&)>;
    const End ends[] = {
        [](Menu& menu) { menu.Button(2)->SendMessage(BM_CLICK); },
        [](Menu& menu) { menu.m_dlg.PostMessage(WM_COMMAND, IDCANCEL); },
        [](Menu& menu) { menu.m_dlg.EndDialog(IDABORT); },
    };
    size_t nOpen = 0;
    fx::ExpectNothingLeft([&] {
        Menu menu(3);
        RunMenu(menu, {[&] { ends[nOpen++ % std::size(ends)](menu); }});
    });
}

} // namespace
