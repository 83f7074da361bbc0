#include "dialogs/ButtonMenuDlg.h"

#include "support/Leftovers.h"
#include "support/ModalScript.h"
#include "support/TitleBar.h"

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

TEST(ButtonMenuDlg, IsAColumnOfButtonsUnderItsTitle) {
    const CString texts[] = {L"ファイルを開く", L"ファイル名を付けて保存", L"新規作成"};
    for (const int nEntries : {0, 1, 3, 8, 25}) {
        Menu menu(nEntries);
        const auto look = [&] {
            EXPECT_EQ(fx::TextOf(menu.m_dlg), L"インフォメーション");
            CRect client;
            menu.m_dlg.GetClientRect(client);
            CRect units(0, 0, 133, 0);
            menu.m_dlg.MapDialogRect(units);
            EXPECT_EQ(client, CRect(0, 0, units.right, nEntries * BUTTON_HEIGHT));
            for (int i = 0; i < nEntries; ++i) {
                ASSERT_NE(menu.Button(i), nullptr) << i;
                CRect rect = fx::RectOf(*menu.Button(i));
                menu.m_dlg.ScreenToClient(rect);
                EXPECT_EQ(rect, CRect(CPoint(0, i * BUTTON_HEIGHT), CSize(client.Width(), BUTTON_HEIGHT)));
                EXPECT_EQ(fx::TextOf(*menu.Button(i)), texts[i % 3]);
                EXPECT_TRUE(menu.Button(i)->IsWindowVisible());
            }
            EXPECT_EQ(menu.Button(nEntries), nullptr);
        };
        EXPECT_EQ(RunMenu(menu, {look, [&] { pen::Tap(fx::FindTitleButton(menu.m_dlg, HTCLOSE)); }}),
                  IDCANCEL)
            << nEntries;
        EXPECT_EQ(menu.m_dlg.GetMenuIndex(), -1);
    }
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

TEST(ButtonMenuDlg, EnterChoosesTheButtonWithTheFocusAndNothingElse) {
    constexpr int NONE = -1;
    const struct {
        int nEntries;
        int nFocus; ///< Entry.
        int nChosen;
    } rows[] = {{0, NONE, NONE}, {3, NONE, NONE}, {3, 1, 1}, {25, 20, 20}, {25, 21, NONE}};
    for (const auto& row : rows) {
        Menu menu(row.nEntries);
        const auto enter = [&] {
            ::SetFocus(row.nFocus == NONE ? nullptr : menu.Button(row.nFocus)->m_hWnd);
            pen::TypeKeys({VK_RETURN});
        };
        // Any way to say OK, and then cancel, which comes too late if an entry was chosen.
        const auto ok = [&] { menu.m_dlg.PostMessage(WM_COMMAND, IDOK); };
        const auto cancel = [&] { menu.m_dlg.EndDialog(IDCANCEL); };
        const bool bChosen = row.nChosen != NONE;
        EXPECT_EQ(bChosen ? RunMenu(menu, {enter}) : RunMenu(menu, {enter, ok, cancel}),
                  bChosen ? IDOK : IDCANCEL)
            << row.nEntries << ' ' << row.nFocus;
        EXPECT_EQ(menu.m_dlg.GetMenuIndex(), row.nChosen);
    }
}

TEST(ButtonMenuDlg, ANewRunForgetsTheChoiceBefore) {
    Menu menu(3);
    EXPECT_EQ(RunMenu(menu, {[&] { pen::Tap(*menu.Button(1)); }}), IDOK);
    EXPECT_EQ(menu.m_dlg.GetMenuIndex(), 1);
    menu.m_ids.RemoveAt(0); // the next run shows what the array holds then
    const auto look = [&] {
        EXPECT_EQ(fx::TextOf(*menu.Button(0)), L"ファイル名を付けて保存");
        EXPECT_EQ(menu.Button(2), nullptr);
    };
    EXPECT_EQ(RunMenu(menu, {look, [&] { pen::Tap(fx::FindTitleButton(menu.m_dlg, HTCLOSE)); }}), IDCANCEL);
    EXPECT_EQ(menu.m_dlg.GetMenuIndex(), -1);
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
