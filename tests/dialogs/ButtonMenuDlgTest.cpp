#include "dialogs/ButtonMenuDlg.h"

#include "support/TestApp.h"
#include "testkit/Pen.h"
#include "testkit/Script.h"
#include "testkit/Steps.h"

using namespace testkit;

namespace {

constexpr int TITLE = 1503, FIRST_BUTTON = 5100, BUTTON_HEIGHT = 36;
const UINT TEXTS[] = {1513, 1514, 1515}; // texts of the library, over and over

/// A menu with that many entries.
struct Menu {
    explicit Menu(int nEntries, CWnd* pParent = nullptr) : m_dlg(TITLE, &m_ids, pParent) {
        for (int i = 0; i < nEntries; ++i)
            m_ids.Add(TEXTS[i % std::ssize(TEXTS)]);
    }
    CWnd* Button(int nIndex) { return m_dlg.GetDlgItem(FIRST_BUTTON + nIndex); }
    /// Taps a button; one of a tall menu is scrolled onto the screen, as the dialog itself does not.
    Step Tap(int nIndex) {
        return [this, nIndex] {
            if (m_ids.GetSize() > 8)
                m_dlg.SetWindowPos(nullptr, 0, -nIndex * BUTTON_HEIGHT, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
            pen::Tap(*Button(nIndex));
        };
    }

    CUIntArray m_ids;
    CButtonMenuDlg m_dlg;
};

TEST(ButtonMenuDlg, IsAColumnOfButtonsUnderItsTitle) {
    const CString texts[] = {L"ファイルを開く", L"ファイル名を付けて保存", L"新規作成"};
    for (const int nEntries : {0, 3, 25}) {
        Menu menu(nEntries);
        const auto look = [&] {
            EXPECT_EQ(L"インフォメーション", TextOf(menu.m_dlg));
            CRect client;
            menu.m_dlg.GetClientRect(client);
            CRect units(0, 0, 133, 0);
            menu.m_dlg.MapDialogRect(units);
            EXPECT_EQ(CRect(0, 0, units.right, nEntries * BUTTON_HEIGHT), client);
            for (int i = 0; i < nEntries; ++i) {
                ASSERT_NE(nullptr, menu.Button(i)) << i;
                CRect rect = RectOf(*menu.Button(i));
                menu.m_dlg.ScreenToClient(rect);
                EXPECT_EQ(CRect(CPoint(0, i * BUTTON_HEIGHT), CSize(client.Width(), BUTTON_HEIGHT)), rect);
                EXPECT_EQ(texts[i % 3], TextOf(*menu.Button(i)));
                EXPECT_TRUE(menu.Button(i)->IsWindowVisible());
            }
            EXPECT_EQ(nullptr, menu.Button(nEntries));
        };
        EXPECT_EQ(IDCANCEL, Play(menu.m_dlg, {look, Close(menu.m_dlg)})) << nEntries;
        EXPECT_EQ(-1, menu.m_dlg.GetMenuIndex());
    }
}

TEST(ButtonMenuDlg, TappingAnEntryEndsItWithTheIndexAndANewRunForgetsIt) {
    Frame owner(CSize(240, 320));
    Menu menu(3, &owner);
    for (const int nEntry : {2, 0}) {
        EXPECT_EQ(IDOK, Play(menu.m_dlg, {menu.Tap(nEntry)}));
        EXPECT_EQ(nEntry, menu.m_dlg.GetMenuIndex());
    }
    menu.m_ids.RemoveAt(0); // the next run shows what the array holds then
    WhileOpen(menu.m_dlg, [&] {
        EXPECT_EQ(L"ファイル名を付けて保存", TextOf(*menu.Button(0)));
        EXPECT_EQ(nullptr, menu.Button(2));
        EXPECT_EQ(-1, menu.m_dlg.GetMenuIndex());
    });
}

TEST(ButtonMenuDlg, TheLastEntryThatCanBeChosenIsTheTwentyFirst) {
    Menu menu(25);
    const auto stillOpen = [&] {
        EXPECT_NE(nullptr, menu.Button(24));
        EXPECT_EQ(-1, menu.m_dlg.GetMenuIndex());
    };
    EXPECT_EQ(IDOK, Play(menu.m_dlg, {menu.Tap(21), stillOpen, menu.Tap(20)}));
    EXPECT_EQ(20, menu.m_dlg.GetMenuIndex());
}

TEST(ButtonMenuDlg, EnterChoosesTheButtonWithTheFocusAndNothingElse) {
    constexpr int NONE = -1;
    // nFocus: Entry.
    const Rows<int, int, int> rows = {
        {0, NONE, NONE}, {3, NONE, NONE}, {3, 0, 0}, {25, 20, 20}, {25, 21, NONE}};
    for (const auto& [nEntries, nFocus, nChosen] : rows) {
        Menu menu(nEntries);
        const auto enter = [&] {
            ::SetFocus(nFocus == NONE ? nullptr : menu.Button(nFocus)->m_hWnd);
            TypeKeys({VK_RETURN});
        };
        // Any way to say OK, and then cancel, which comes too late if an entry was chosen.
        const auto ok = [&] {
            menu.m_dlg.PostMessage(WM_COMMAND, IDOK);
            menu.m_dlg.PostMessage(WM_COMMAND, IDCANCEL);
        };
        const bool bChosen = nChosen != NONE;
        EXPECT_EQ(bChosen ? IDOK : IDCANCEL,
                  bChosen ? Play(menu.m_dlg, {enter}) : Play(menu.m_dlg, {enter, ok}))
            << nEntries << ' ' << nFocus;
        EXPECT_EQ(nChosen, menu.m_dlg.GetMenuIndex());
    }
}

} // namespace
