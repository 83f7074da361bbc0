#include "support/TestApp.h"
#include "support/TestData.h"
#include "testkit/Canvas.h"
#include "testkit/DialogTemplate.h"
#include "testkit/KeptPicture.h"

#include "Tesuvo.h"

using namespace testkit;

namespace {

TEST(SharedIcons, AreSharedPicturesOfTheResolution) {
    const DialogTemplate shape(50, 50, WS_POPUP | WS_VISIBLE);
    CDialog dialog;
    dialog.CreateIndirect(shape.Get());
    for (const int nDpi : {96, 120, 300}) {
        dialog.SetActiveWindow();
        dialog.SendMessage(WM_DPICHANGED, MAKEWPARAM(nDpi, nDpi));
        const int nSize = AfxScale(dialog.m_hWnd, 16);
        Canvas canvas(8 * nSize, nSize);
        int x = 0;
        for (const int index : {2, 4, 5, 26, 31, 32, 39, 42}) {
            const HICON icon = TVGetCommonIcon(index);
            EXPECT_EQ(TVGetCommonIcon(index), icon) << index;
            EXPECT_TRUE(::DrawIconEx(canvas.m_dc, x, 0, icon, 0, 0, 0, nullptr, DI_NORMAL)) << index;
            x += nSize;
        }
        const std::string file = "look/icons-" + std::to_string(nDpi) + ".txt";
        EXPECT_EQ("", PictureFaults(canvas.Look(), testdata::WidePath(file)));
    }
}

TEST(SharedIcons, UnknownNumbersHaveNone) {
    for (const int index : {0, 1, 3, 27, 43, -2, 0x10000 + 2, 0x7FFFFFFF})
        EXPECT_EQ(nullptr, TVGetCommonIcon(index)) << index;
}

} // namespace
