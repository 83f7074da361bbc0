// Parts that programs bring along: backgrounds, pictures on buttons, arguments, bars.
#include "testkit/Colors.h"
#include "support/TestApp.h"
#include "testkit/Canvas.h"
#include "testkit/DialogTemplate.h"
#include "testkit/Program.h"

#include "afxdialogex.h"
#include "afxext.h"

using namespace testkit;

namespace {

/// A bitmap of one colour that belongs to nobody.
HBITMAP MakePicture(COLORREF color, int cx = 3, int cy = 2) {
    CWindowDC screen(nullptr);
    CDC dc;
    dc.CreateCompatibleDC(&screen);
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(&screen, cx, cy);
    CBitmap* const pOld = dc.SelectObject(&bitmap);
    dc.FillSolidRect(0, 0, cx, cy, color);
    dc.SelectObject(pOld);
    return static_cast<HBITMAP>(bitmap.Detach());
}

TEST(DialogEx, ColourAndPictureAreBehindItsTexts) {
    const DialogTemplate dialogTemplate(30, 20);
    const HBITMAP hPicture = MakePicture(RED), hOwned = MakePicture(BLUE);
    CDialogEx dialog;
    dialog.m_bFullScreen = FALSE;
    ASSERT_TRUE(dialog.CreateIndirect(dialogTemplate.Get()));
    CRect client;
    dialog.GetClientRect(client);
    const CSize size = client.Size();
    const auto corners = [&] {
        Canvas canvas(size.cx, size.cy);
        EXPECT_EQ(TRUE, dialog.SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(canvas.m_dc.m_hDC)));
        std::string found;
        for (const CPoint p : {CPoint(2, 1), CPoint(size.cx - 3, 1), CPoint(2, size.cy - 2),
                               CPoint(size.cx - 3, size.cy - 2), client.CenterPoint(), CPoint(3, 2)})
            found += canvas.m_dc.GetPixel(p) == RED ? 'p' : canvas.m_dc.GetPixel(p) == BLUE ? 'c' : '.';
        return found;
    };
    Child<CStatic> label(dialog);
    CClientDC dc(&label);
    const auto expectMode = [&](int nMode, UINT nMessage) {
        dc.SetBkMode(OPAQUE);
        const LRESULT lBrush = dialog.SendMessage(nMessage, reinterpret_cast<WPARAM>(dc.m_hDC),
                                                  reinterpret_cast<LPARAM>(label.m_hWnd));
        EXPECT_EQ(nMode, dc.GetBkMode());
        LOGBRUSH brush = {};
        ::GetObject(reinterpret_cast<HGDIOBJ>(lBrush), sizeof brush, &brush);
        return brush;
    };
    EXPECT_EQ("......", corners());
    expectMode(OPAQUE, WM_CTLCOLORSTATIC);
    dialog.SetBackgroundColor(BLUE);
    EXPECT_EQ("cccccc", corners());
    EXPECT_EQ(BLUE, expectMode(TRANSPARENT, WM_CTLCOLORSTATIC).lbColor);
    const Rows<CDialogEx::BackgroundLocation, const char*> rows = {
        {CDialogEx::BACKGR_TOPLEFT, "pccccc"},    {CDialogEx::BACKGR_TOPRIGHT, "cpcccc"},
        {CDialogEx::BACKGR_BOTTOMLEFT, "ccpccc"}, {CDialogEx::BACKGR_BOTTOMRIGHT, "cccpcc"},
        {CDialogEx::BACKGR_TILE, "pppppp"},
    };
    for (const auto& [location, pszCorners] : rows) {
        dialog.SetBackgroundImage(hPicture, location, FALSE);
        EXPECT_EQ(pszCorners, corners());
    }
    EXPECT_EQ(UINT{BS_NULL}, expectMode(TRANSPARENT, WM_CTLCOLORSTATIC).lbStyle);
    expectMode(OPAQUE, WM_CTLCOLOREDIT); // texts alone let it through
    dialog.SetBackgroundImage(hOwned, CDialogEx::BACKGR_TILE, TRUE);
    EXPECT_NE(0U, ::GetObjectType(hPicture));
    dialog.SetBackgroundImage(hPicture, CDialogEx::BACKGR_TILE, FALSE);
    EXPECT_EQ(0U, ::GetObjectType(hOwned));
    EXPECT_TRUE(dialog.SetBackgroundImage(312, CDialogEx::BACKGR_TILE, FALSE));
    EXPECT_EQ("......", corners()) << "a black one";
    EXPECT_FALSE(dialog.SetBackgroundImage(311, CDialogEx::BACKGR_TILE, FALSE));
    dialog.SetBackgroundImage(static_cast<HBITMAP>(nullptr), CDialogEx::BACKGR_TILE, FALSE);
    dialog.SetBackgroundColor(static_cast<COLORREF>(-1));
    EXPECT_EQ("......", corners());
    ::DeleteObject(hPicture);
}

struct PictureButton : CBitmapButton {
    CBitmap* const m_bitmaps[4] = {&m_bitmap, &m_bitmapSel, &m_bitmapFocus, &m_bitmapDisabled};

    std::string Widths() const {
        std::string widths;
        for (const CBitmap* pBitmap : m_bitmaps) {
            BITMAP info = {};
            ::GetObject(pBitmap->m_hObject, sizeof info, &info);
            widths += std::to_string(info.bmWidth) + ' ';
        }
        return widths;
    }
};

TEST(BitmapButton, LoadsThePicturesThatAreThere) {
    Frame frame;
    ::CreateWindow(WC_BUTTON, L"FK", WS_CHILD | BS_OWNERDRAW, 0, 0, 5, 5, frame, reinterpret_cast<HMENU>(5),
                   nullptr, nullptr);
    PictureButton button;
    EXPECT_FALSE(button.AutoLoad(6, &frame));
    EXPECT_TRUE(button.AutoLoad(5, &frame));
    EXPECT_EQ("9 0 0 8 ", button.Widths());
    EXPECT_EQ(CSize(9, 1), RectOf(button).Size());
    EXPECT_TRUE(button.LoadBitmaps(312, 0, 312));
    EXPECT_EQ("32 0 32 0 ", button.Widths());
    EXPECT_FALSE(button.LoadBitmaps(L"FKU", L"none"));
    EXPECT_FALSE(button.LoadBitmaps(nullptr, L"FKU"));
    button.SetWindowText(L"none");
    button.UnsubclassWindow();
    EXPECT_FALSE(button.AutoLoad(5, &frame));
}

TEST(BitmapButton, ShowsThePictureOfItsState) {
    Canvas canvas;
    Frame frame;
    Child<PictureButton> button(frame, BS_OWNERDRAW);
    for (int i = 0; i < 4; ++i)
        button.m_bitmaps[i]->Attach(MakePicture(RGB(50 * i, 0, 0), 9, 7));
    button.SizeToContent();
    EXPECT_EQ(CSize(9, 7), RectOf(button).Size());
    const auto shown = [&](UINT nState) {
        DRAWITEMSTRUCT item = {};
        item.itemState = nState;
        item.hDC = canvas.m_dc;
        item.rcItem = CRect(5, 5, 14, 12);
        button.DrawItem(&item);
        return static_cast<int>(canvas.m_dc.GetPixel(5, 5)) / 50;
    };
    for (const auto& [nState, nPicture] : {std::pair(0U, 0),
                                           {UINT{ODS_SELECTED | ODS_FOCUS}, 1},
                                           {UINT{ODS_FOCUS}, 2},
                                           {UINT{ODS_DISABLED}, 3}}) {
        EXPECT_EQ(nPicture, shown(nState));
        if (nPicture != 0)
            button.m_bitmaps[nPicture]->DeleteObject();
        EXPECT_EQ(nPicture == 1 ? 2 : 0, shown(nState)) << "the one it has";
    }
    EXPECT_EQ(RGB(255, 255, 255), canvas.m_dc.GetPixel(4, 4));
}

TEST(CommandLine, FirstArgumentWithoutAMarkIsTheFile) {
    struct Info : CCommandLineInfo {
        CString m_strLog;
        void ParseParam(LPCTSTR pszParam, BOOL bFlag, BOOL bLast) override {
            CCommandLineInfo::ParseParam(pszParam, bFlag, bLast);
            m_strLog.AppendFormat(L"%s%s%s;", bFlag ? L"!" : L"", pszParam, bLast ? L"." : L"");
        }
    } info;
    if (::GetEnvironmentVariable(L"FK_TEST_ARGUMENTS", nullptr, 0) == 0) {
        ::SetEnvironmentVariable(L"FK_TEST_ARGUMENTS", L"1");
        EXPECT_EQ(0U,
                  Program(L"test_framework", nullptr, L"--gtest_filter=CommandLine.* -s /t \"a b\" c").End());
        ::SetEnvironmentVariable(L"FK_TEST_ARGUMENTS", nullptr);
        return;
    }
    fx::g_app.ParseCommandLine(info);
    EXPECT_EQ(L"!-gtest_filter=CommandLine.*;!s;!t;a b;c.;", info.m_strLog);
    EXPECT_EQ(L"a b", info.m_strFileName);
    EXPECT_EQ(CCommandLineInfo::FileOpen, info.m_nShellCommand);
}

TEST(FormatString, ArgumentsMayHoldAPercentSign) {
    CString str;
    AfxFormatString2(str, 40001, L"%2", L"b");
    EXPECT_EQ(L"%2 b 100%%2 %", str);
    AfxFormatString1(str, 40001, L"a");
    EXPECT_EQ(L"a %2 100%a %", str);
}

TEST(CommandBar, ProgramsButtonsStandBetweenTheMenuAndTheSwitch) {
    fx::MenuOwner frame(CSize(230, 200));
    CCeCommandBar bar;
    ASSERT_TRUE(bar.Create(&frame));
    const auto ids = [&] {
        std::vector<int> all;
        for (int i = 0; i < bar.GetButtonCount(); ++i) {
            TBBUTTON button = {};
            bar.GetButton(i, &button);
            all.push_back(button.idCommand);
        }
        return all;
    };
    EXPECT_FALSE(bar.InsertMenuBar(311));
    const std::vector<int> empty = ids();
    ASSERT_EQ(2U, empty.size());
    TBBUTTON buttons[2] = {};
    buttons[0].idCommand = 5;
    buttons[1].idCommand = 6;
    EXPECT_TRUE(bar.AddButtons(2, buttons));
    buttons[0].idCommand = 7;
    EXPECT_TRUE(bar.InsertButton(1, buttons));
    EXPECT_TRUE(bar.InsertSeparator(-1));
    EXPECT_EQ((std::vector<int>{0, 5, 7, 6, empty[0], empty[1]}), ids());
    for (int i = 0; i < 2; ++i) // the second one takes the place of what was there
        ASSERT_TRUE(bar.InsertMenuBar(310));
    EXPECT_EQ((std::vector<int>{0xE8F0, 0x8002, empty[0], empty[1]}), ids());
    frame.SendMessage(WM_COMMAND, 0xE8F0, reinterpret_cast<LPARAM>(bar.m_hWnd));
    EXPECT_EQ(0x8001U, frame.m_nItem) << "of its popup";
    CRect last;
    bar.GetItemRect(3, last);
    EXPECT_NEAR(230, last.right, 3) << "the switch is at the right";
    EXPECT_EQ(CRect(0, 200 - AFX_DEVICE_BAR_HEIGHT, 230, 200) + RectOf(frame).TopLeft(), RectOf(bar));
    EXPECT_FALSE(bar.LoadToolBar(311));
    EXPECT_TRUE(bar.LoadToolBar(312));
    EXPECT_EQ((std::vector<int>{0xE8F0, 0x8002, 7, 0, 8, empty[0], empty[1]}), ids());
    for (const int nButton : {2, 4}) {
        bar.GetButton(nButton, buttons);
        EXPECT_EQ(nButton / 2, buttons[0].iBitmap) << "after the switch's";
    }
}

} // namespace
