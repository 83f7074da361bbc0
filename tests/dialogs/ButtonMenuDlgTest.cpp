#include "dialogs/ButtonMenuDlg.h"

#include "support/TestApp.h"
#include "testkit/Pen.h"
#include "testkit/Script.h"
#include "testkit/Steps.h"

using namespace testkit;

namespace {

constexpr int TITLE = 1503, FIRST_BUTTON = 5100, BUTTON_HEIGHT = 36;
const UINT TEXTS[] = {1513, 1514, 1515}; // texts of the library, over and over

/// A menu with that many entries, on a screen of that resolution.
struct Menu {
    explicit Menu(int nEntries, CWnd* pParent = nullptr, int nDpi = USER_DEFAULT_SCREEN_DPI)
        : m_dlg(TITLE, &m_ids, pParent) {
        m_dlg.m_nDpi = nDpi;
        for (int i = 0; i < nEntries; ++i)
            m_ids.Add(TEXTS[i % std::ssize(TEXTS)]);
    }
    CWnd* Button(int nIndex) { return m_dlg.GetDlgItem(FIRST_BUTTON + nIndex); }

    struct Dialog : CButtonMenuDlg {
        using CButtonMenuDlg::CButtonMenuDlg;
        BOOL OnInitDialog() override {
            SendMessage(WM_DPICHANGED, MAKEWPARAM(m_nDpi, m_nDpi));
            return CButtonMenuDlg::OnInitDialog();
        }
        int m_nDpi = 0;
    };

    CUIntArray m_ids;
    Dialog m_dlg;
};

TEST(ButtonMenuDlg, IsAColumnOfButtonsUnderItsTitleOrSeveralThatFitALowScreen) {
    constexpr int SHARE = 0; // of the room
    const CString texts[] = {L"ファイルを開く", L"ファイル名を付けて保存", L"新規作成"};
    const Rows<int, int, int, int> rows = {{0, 96, 1, BUTTON_HEIGHT},
                                           {3, 96, 1, BUTTON_HEIGHT},
                                           {25, 96, 1, BUTTON_HEIGHT},
                                           {0, 192, 1, 2 * BUTTON_HEIGHT},
                                           {3, 192, 1, 2 * BUTTON_HEIGHT},
                                           {5, 192, 1, SHARE},
                                           {6, 192, 2, 2 * 24}};
    for (const auto& [nEntries, nDpi, nColumns, nWantedHeight] : rows) {
        Menu menu(nEntries, nullptr, nDpi);
        const auto look = [&] {
            SCOPED_TRACE(std::to_string(nEntries) + ' ' + std::to_string(nDpi));
            EXPECT_EQ(L"インフォメーション", TextOf(menu.m_dlg));
            CRect frame;
            menu.m_dlg.CalcWindowRect(frame, CWnd::adjustOutside);
            const int nRoom = WorkArea().Height() - frame.Height();
            const int nHeight = nWantedHeight == SHARE ? nRoom / nEntries : nWantedHeight;
            const int nInColumn = (nEntries + nColumns - 1) / nColumns;
            CRect units(0, 0, 133, 0);
            menu.m_dlg.MapDialogRect(units);
            const int nWidth = std::min<int>(units.right, (WorkArea().Width() - frame.Width()) / nColumns);
            EXPECT_EQ(CSize(nColumns * nWidth, nInColumn * nHeight) + frame.Size(),
                      RectOf(menu.m_dlg).Size());
            for (int i = 0; i < nEntries; ++i) {
                ASSERT_NE(nullptr, menu.Button(i)) << i;
                CRect rect = RectOf(*menu.Button(i));
                menu.m_dlg.ScreenToClient(rect);
                const CPoint place(i / nInColumn * nWidth, i % nInColumn * nHeight);
                EXPECT_EQ(CRect(place, CSize(nWidth, nHeight)), rect);
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
    menu.m_dlg.m_hIcon = ::LoadIcon(nullptr, IDI_INFORMATION);
    EXPECT_EQ(-1, menu.m_dlg.GetMenuIndex());
    for (const int nEntry : {2, 0}) {
        const auto look = [&] {
            EXPECT_EQ(menu.m_dlg.m_hIcon, menu.m_dlg.GetIcon(TRUE));
            EXPECT_NEAR(RectOf(owner).CenterPoint().y, RectOf(menu.m_dlg).CenterPoint().y, 1);
            EXPECT_EQ(menu.Button(0), CWnd::GetFocus());
        };
        EXPECT_EQ(IDOK, Play(menu.m_dlg, {look, Tap(menu.m_dlg, FIRST_BUTTON + nEntry)}));
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
    const auto choose = [&](int nEntry) {
        return [&menu, nEntry] { menu.m_dlg.PostMessage(WM_COMMAND, FIRST_BUTTON + nEntry); };
    };
    EXPECT_EQ(IDOK, Play(menu.m_dlg, {choose(21), stillOpen, choose(20)}));
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
