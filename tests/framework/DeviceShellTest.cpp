// What the device's shell does for dialogs: full screen, the OK button in the title bar,
// the command bar. The screen is the device's or larger.
#include "support/DialogTemplate.h"
#include "support/ModalScript.h"

namespace {

constexpr UINT ID_FULL_SCREEN = 300;

CRect WorkArea() {
    CRect rect;
    ::SystemParametersInfo(SPI_GETWORKAREA, 0, &rect, 0);
    return rect;
}

/// Where the first OK button from the right edge reacts; none is at (-1, -1).
CPoint FindOkButton(const CWnd& wnd) {
    CRect rect;
    wnd.GetWindowRect(rect);
    const auto hit = [&](int x) {
        return wnd.SendMessage(WM_NCHITTEST, 0, MAKELPARAM(x, rect.top + AFX_DEVICE_BAR_HEIGHT / 2)) ==
               HTOBJECT;
    };
    for (int x = rect.right - 1; x > rect.left; --x)
        if (hit(x))
            return CPoint(x - 3, rect.top + AFX_DEVICE_BAR_HEIGHT / 2);
    return CPoint(-1, -1);
}

TEST(FullScreenDialog, CoversTheWorkAreaAndItsOkButtonSendsIdOk) {
    CDialog dialog(ID_FULL_SCREEN);
    fx::ModalScript script;
    script.Then([&] {
        CRect rect;
        dialog.GetWindowRect(rect);
        EXPECT_EQ(rect, WorkArea());
        CRect client;
        dialog.GetClientRect(client);
        dialog.ClientToScreen(client);
        EXPECT_EQ(client.top, rect.top + AFX_DEVICE_BAR_HEIGHT);
        EXPECT_NE(dialog.m_pWndEmptyCB, nullptr);
        pen::Tap(FindOkButton(dialog));
    });
    EXPECT_EQ(script.Run([&] { return dialog.DoModal(); }), IDOK);
    EXPECT_EQ(dialog.m_pWndEmptyCB, nullptr);
}

TEST(FullScreenDialog, OkButtonIsHiddenAndShownByTheDoneButtonCall) {
    CDialog dialog(ID_FULL_SCREEN);
    fx::ModalScript script;
    script.Then([&] {
        EXPECT_GT(FindOkButton(dialog).x, 0);
        EXPECT_TRUE(SHDoneButton(dialog, SHDB_HIDE));
        EXPECT_EQ(FindOkButton(dialog).x, -1);
        EXPECT_TRUE(SHDoneButton(dialog, SHDB_SHOW));
        EXPECT_GT(FindOkButton(dialog).x, 0);
        dialog.EndDialog(1);
    });
    script.Run([&] { return dialog.DoModal(); });
}

TEST(FullScreenDialog, CommandBarStandsAtTheBottomAndItsSwitchShowsThePanel) {
    static std::vector<BOOL> calls;
    calls.clear();
    const AFX_SIP_HANDLER handler = {[](BOOL bShow) { calls.push_back(bShow); },
                                     [](LPRECT) -> BOOL { return !calls.empty() && calls.back(); }};
    const AFX_SIP_HANDLER* const pOld = AfxSetSipHandler(&handler);
    CDialog dialog(ID_FULL_SCREEN);
    fx::ModalScript script;
    CPoint sip;
    script
        .Then([&] {
            CRect bar;
            dialog.m_pWndEmptyCB->GetWindowRect(bar);
            EXPECT_EQ(bar, CRect(WorkArea().left, WorkArea().bottom - AFX_DEVICE_BAR_HEIGHT, WorkArea().right,
                                 WorkArea().bottom));
            sip = CPoint(bar.right - 14, bar.CenterPoint().y);
            pen::Tap(sip);
        })
        .Then([&] { pen::Tap(sip); })
        .Then([&] { dialog.EndDialog(1); });
    script.Run([&] { return dialog.DoModal(); });
    AfxSetSipHandler(pOld);
    EXPECT_EQ(calls, (std::vector<BOOL>{TRUE, FALSE}));
}

TEST(PopupDialog, HasAnOkButtonOnlyWithTheExtendedStyle) {
    const fx::DialogTemplate dialogTemplate = fx::DialogTemplate(100, 60).Edit(10);
    fx::TemplateDialog dialog(dialogTemplate);
    fx::ModalScript script;
    script.Then([&] {
        CRect rect;
        dialog.GetWindowRect(rect);
        EXPECT_LT(rect.Height(), WorkArea().Height());
        EXPECT_EQ(dialog.m_pWndEmptyCB, nullptr);
        EXPECT_EQ(FindOkButton(dialog).x, -1);
        EXPECT_TRUE(dialog.ModifyStyleEx(0, WS_EX_CAPTIONOKBTN));
        EXPECT_NE(dialog.GetExStyle() & WS_EX_CAPTIONOKBTN, 0U);
        EXPECT_EQ(static_cast<DWORD>(::GetWindowLong(dialog, GWL_EXSTYLE)) & WS_EX_CAPTIONOKBTN, 0U)
            << "the desktop must not see it";
        pen::Tap(FindOkButton(dialog));
    });
    EXPECT_EQ(script.Run([&] { return dialog.DoModal(); }), IDOK);
}

TEST(PopupDialog, OkButtonLeftWithThePenDownDoesNothing) {
    const fx::DialogTemplate dialogTemplate = fx::DialogTemplate(100, 60).Edit(10);
    fx::TemplateDialog dialog(dialogTemplate);
    bool bEnded = false;
    fx::ModalScript script;
    script
        .Then([&] {
            dialog.ModifyStyleEx(0, WS_EX_CAPTIONOKBTN);
            const CPoint button = FindOkButton(dialog);
            pen::Drag(button, button + CPoint(0, 60));
        })
        .Then([&] {
            bEnded = dialog.m_hWnd == nullptr;
            dialog.EndDialog(9);
        });
    EXPECT_EQ(script.Run([&] { return dialog.DoModal(); }), 9);
    EXPECT_FALSE(bEnded);
}

TEST(Gesture, NoWindowLetsThePenWaitForPressAndHoldUnlessItSaysSo) {
    class Patient : public CWnd {
        ULONG GetGestureStatus(CPoint ptTouch) override { return ptTouch == CPoint(3, 4) ? 0 : 1; }
    };
    fx::Frame frame;
    EXPECT_EQ(frame.SendMessage(AFX_WM_TABLET_QUERYSYSTEMGESTURESTATUS, 0, 0),
              static_cast<LRESULT>(AFX_TABLET_DISABLE_PRESSANDHOLD));
    Patient child;
    ASSERT_TRUE(child.Create(WC_STATIC, L"", WS_CHILD, CRect(5, 5, 50, 50), &frame, 1));
    CPoint point(3, 4);
    child.ClientToScreen(&point);
    EXPECT_EQ(child.SendMessage(AFX_WM_TABLET_QUERYSYSTEMGESTURESTATUS, 0, MAKELPARAM(point.x, point.y)), 0);
}

} // namespace
