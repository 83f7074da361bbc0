#include "support/TestApp.h"
#include "support/Colors.h"
#include "testkit/Picture.h"

#include "Tesuvo.h"

using namespace testkit;

namespace {

TEST(SharedIcons, AreSharedPicturesThatDiffer) {
    Frame frame;
    CClientDC dc(&frame);
    std::vector<Picture> seen;
    for (const int index : {2, 4, 5, 26, 31, 32, 39, 42}) {
        const HICON icon = TVGetCommonIcon(index);
        ASSERT_NE(nullptr, icon) << index;
        EXPECT_EQ(TVGetCommonIcon(index), icon) << index;
        dc.FillSolidRect(0, 0, 16, 16, fx::WHITE);
        EXPECT_TRUE(::DrawIconEx(dc, 0, 0, icon, 0, 0, 0, nullptr, DI_NORMAL));
        const Picture drawn(dc, CSize(16, 16));
        for (const Picture& other : seen)
            EXPECT_FALSE(other.Difference(drawn).IsRectEmpty()) << index << " looks like another one";
        seen.push_back(drawn);
    }
}

TEST(SharedIcons, UnknownNumbersHaveNone) {
    for (const int index : {0, 1, 3, 27, 43, -2, 0x10000 + 2, 0x7FFFFFFF})
        EXPECT_EQ(nullptr, TVGetCommonIcon(index)) << index;
}

} // namespace
