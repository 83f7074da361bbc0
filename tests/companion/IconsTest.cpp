#include "support/TestApp.h"
#include "support/Colors.h"
#include "testkit/Picture.h"

#include "Tesuvo.h"

using namespace testkit;

namespace {

TEST(SharedIcons, AreSmallSharedPicturesThatDifferAndLetTheGroundThrough) {
    constexpr int kSize = 16;
    const CRect inside(0, 0, kSize, kSize);
    Frame frame;
    CClientDC dc(&frame);
    const auto drawn = [&](HICON icon, COLORREF ground) {
        dc.FillSolidRect(0, 0, 2 * kSize, 2 * kSize, ground);
        EXPECT_TRUE(::DrawIconEx(dc, 0, 0, icon, 0, 0, 0, nullptr, DI_NORMAL));
        return Picture(dc, CSize(2 * kSize, 2 * kSize));
    };
    constexpr COLORREF kGreen = RGB(0, 255, 0);
    std::vector<Picture> seen;
    for (const int index : {2, 4, 5, 26, 31, 32, 39, 42}) {
        const HICON icon = TVGetCommonIcon(index);
        ASSERT_NE(nullptr, icon) << index;
        EXPECT_EQ(TVGetCommonIcon(index), icon) << index;
        const Picture onWhite = drawn(icon, fx::WHITE), onGreen = drawn(icon, kGreen);
        for (const Picture& other : seen)
            EXPECT_FALSE(other.Difference(onWhite).IsRectEmpty()) << index << " looks like another one";
        seen.push_back(onWhite);
        int through = 0;
        for (int y = 0; y < kSize; ++y)
            for (int x = 0; x < kSize; ++x)
                through += onWhite.At(x, y) == fx::WHITE && onGreen.At(x, y) == kGreen ? 1 : 0;
        EXPECT_GE(through, 32) << index << " has no transparent corner";
        EXPECT_GE(kSize * kSize - through, 64) << index << " is nearly empty";
        const CRect around =
            onGreen.Around(onGreen.Rect(), [&](CPoint p) { return onGreen.At(p.x, p.y) != kGreen; });
        EXPECT_EQ(inside, inside | around) << index << " is too large";
    }
}

TEST(SharedIcons, UnknownNumbersHaveNone) {
    for (const int index : {0, 1, 3, 27, 43, -2, 0x10000 + 2, 0x7FFFFFFF})
        EXPECT_EQ(nullptr, TVGetCommonIcon(index)) << index;
}

} // namespace
