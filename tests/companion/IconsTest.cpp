#include <gtest/gtest.h>

#include "Tesuvo.h"

#include <algorithm>
#include <map>
#include <vector>

namespace {

constexpr int kIcons[] = {2, 4, 5, 26, 31, 32, 39, 42};
constexpr int kSize = 16;

using Pixels = std::vector<DWORD>;

/// Size of an icon's picture, and releases what the system hands out for it.
SIZE SizeOf(HICON icon) {
    ICONINFO info{};
    if (!::GetIconInfo(icon, &info))
        return {0, 0};
    BITMAP bitmap{};
    ::GetObjectW(info.hbmColor, sizeof bitmap, &bitmap);
    ::DeleteObject(info.hbmColor);
    ::DeleteObject(info.hbmMask);
    return {bitmap.bmWidth, bitmap.bmHeight};
}

/// What an icon looks like on a ground of one colour (0x00RRGGBB).
Pixels Drawn(HICON icon, DWORD ground) {
    BITMAPINFO format{};
    format.bmiHeader.biSize = sizeof format.bmiHeader;
    format.bmiHeader.biWidth = kSize;
    format.bmiHeader.biHeight = -kSize;
    format.bmiHeader.biPlanes = 1;
    format.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    const HDC dc = ::CreateCompatibleDC(nullptr);
    const HBITMAP bitmap = ::CreateDIBSection(dc, &format, DIB_RGB_COLORS, &bits, nullptr, 0);
    const HGDIOBJ previous = ::SelectObject(dc, bitmap);
    auto* const first = static_cast<DWORD*>(bits);
    std::fill_n(first, kSize * kSize, ground);
    EXPECT_TRUE(::DrawIconEx(dc, 0, 0, icon, 0, 0, 0, nullptr, DI_NORMAL));
    ::GdiFlush();
    Pixels pixels(first, first + kSize * kSize);
    for (DWORD& pixel : pixels)
        pixel &= 0x00FFFFFF;
    ::SelectObject(dc, previous);
    ::DeleteObject(bitmap);
    ::DeleteDC(dc);
    return pixels;
}

TEST(SharedIcons, AreSmallSharedPictures) {
    for (const int index : kIcons) {
        const HICON icon = TVGetCommonIcon(index);
        ASSERT_NE(icon, nullptr) << index;
        EXPECT_EQ(TVGetCommonIcon(index), icon) << index;
        EXPECT_EQ(SizeOf(icon).cx, kSize) << index;
        EXPECT_EQ(SizeOf(icon).cy, kSize) << index;
    }
}

TEST(SharedIcons, DifferAndLetTheGroundThrough) {
    std::map<Pixels, int> seen;
    for (const int index : kIcons) {
        const Pixels onWhite = Drawn(TVGetCommonIcon(index), 0x00FFFFFF);
        const Pixels onGreen = Drawn(TVGetCommonIcon(index), 0x0000FF00);
        const auto [twin, isNew] = seen.emplace(onWhite, index);
        EXPECT_TRUE(isNew) << index << " looks like " << twin->second;

        int through = 0;
        for (std::size_t at = 0; at < onWhite.size(); ++at)
            through += onWhite[at] == 0x00FFFFFF && onGreen[at] == 0x0000FF00 ? 1 : 0;
        EXPECT_GE(through, 32) << index << " has no transparent corner";
        EXPECT_GE(kSize * kSize - through, 64) << index << " is nearly empty";
    }
}

TEST(SharedIcons, UnknownNumbersHaveNone) {
    for (const int index : {0, 1, 3, 27, 43, -2, 0x10000 + 2, 0x7FFFFFFF})
        EXPECT_EQ(TVGetCommonIcon(index), nullptr) << index;
}

} // namespace
