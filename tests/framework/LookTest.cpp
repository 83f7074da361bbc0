// What the device's shell draws, beside pictures of it.
#include "support/TestApp.h"
#include "support/TestData.h"
#include "testkit/DialogTemplate.h"
#include "testkit/KeptPicture.h"
#include "testkit/Pen.h"
#include "testkit/Script.h"
#include "testkit/TitleBar.h"

#include "afxext.h"

using namespace testkit;

namespace {

/// A full-screen dialog with all that its bars can have.
struct Screen : TemplateDialog {
    Screen() : TemplateDialog(s_template) { m_bFullScreen = TRUE; }

    CCeCommandBar& Bar() { return *static_cast<CCeCommandBar*>(m_pWndEmptyCB); }
    Step ExpectTitle(const char* pszName) {
        return Expect(pszName, [this] {
            CWindowDC dc(this);
            return Picture(dc, CSize(RectOf(*this).Width(), AfxScale(m_hWnd, AFX_DEVICE_BAR_HEIGHT)));
        });
    }
    Step ExpectBar(const char* pszName) {
        return Expect(pszName, [this] { return Picture::Of(Bar()); });
    }

private:
    /// What the pen does shows when its messages have come.
    Step Expect(const char* pszName, std::function<Picture()> look) const {
        return [this, pszName, look, nLeft = 50]() mutable {
            const std::string file = pszName + ('-' + std::to_string(AfxGetDpi(m_hWnd))) + ".txt";
            const std::string faults = PictureFaults(look(), testdata::WidePath("look/" + file));
            if (!faults.empty() && --nLeft > 0)
                return false;
            EXPECT_EQ("", faults);
            return true;
        };
    }

    static inline const DialogTemplate s_template =
        DialogTemplate(100, 80, WS_POPUP | WS_VISIBLE | WS_CAPTION | WS_SYSMENU, L"測量 Ag").Edit(1);
};

TEST(Shell, LooksAsInItsPictures) {
    for (const int nDpi : {96, 192}) {
        Screen screen;
        Frame other(CSize(10, 10), WS_POPUP);
        const auto prepare = [&] {
            screen.ModifyStyleEx(0, WS_EX_CAPTIONOKBTN);
            EXPECT_TRUE(screen.Bar().InsertMenuBar(310));
            // Larger ones leave no room for the switch.
            EXPECT_TRUE(nDpi > 96 || screen.Bar().LoadToolBar(312));
            screen.SendMessage(WM_DPICHANGED, MAKEWPARAM(nDpi, nDpi));
            other.SetActiveWindow();
            screen.SetActiveWindow(); // the first window of a program may still be in the background
        };
        const auto press = [&](CPoint (*pFind)(HWND)) { return [&, pFind] { pen::Down(pFind(screen)); }; };
        const auto stay = [&](CPoint (*pFind)(HWND)) {
            return [&, pFind] {
                pen::Move(pFind(screen) + CSize(1, 0)); // an older move may have come after the press
                return ::GetCapture() == screen.m_hWnd;
            };
        };
        const auto leave = [] { pen::Move({120, 160}), pen::Up({120, 160}); };
        PlayAndEnd(screen, {prepare, screen.ExpectTitle("title"), screen.ExpectBar("bar"),
                            press(FindOkButton), stay(FindOkButton), screen.ExpectTitle("ok-pressed"), leave,
                            press(FindCloseButton), stay(FindCloseButton),
                            screen.ExpectTitle("close-pressed"), leave, [&] { other.SetActiveWindow(); },
                            screen.ExpectTitle("inactive"), [&] { screen.SetActiveWindow(); }});
    }
}

} // namespace
