#include "atltypes.h"

#include "support/Rows.h"

#include <gtest/gtest.h>

namespace {

std::string Text(const CRect& r) {
    return std::to_string(r.left) + " " + std::to_string(r.top) + " " + std::to_string(r.right) + " " +
           std::to_string(r.bottom);
}

TEST(Types, PointsAndSizesCalculate) {
    EXPECT_EQ(CPoint(2, 3) + CSize(3, 4), CPoint(5, 7));
    EXPECT_EQ(CPoint(5, 7) - CPoint(2, 3), CSize(3, 4));
    EXPECT_TRUE(CPoint(-1, -2) == -CPoint(1, 2));
    EXPECT_TRUE(CPoint(-3, 5) == CPoint(LPARAM{0x0005FFFD})); // signed words
    EXPECT_TRUE(CSize(-3, 5) == CSize(DWORD{0x0005FFFD}));
    EXPECT_NE(CPoint(1, 3), CPoint(1, 2));
    const POINT plainPoint = {15, 0};
    const SIZE plainSize = {0, 3};
    CPoint p(1, 1);
    p.Offset(CSize(1, 2));
    p += POINT{10, 10};
    p -= SIZE{1, 1};
    p += SIZE{5, 6};
    p -= POINT{1, 2};
    EXPECT_EQ(CPoint(15, 16), p);
    EXPECT_TRUE(p != plainPoint);
    EXPECT_NE(CPoint(plainPoint), CPoint());
    CSize s;
    s += SIZE{5, 6};
    s -= SIZE{1, 3};
    EXPECT_EQ(CSize(CPoint(4, 3)), s);
    EXPECT_NE(CSize(4, 0), s);
    EXPECT_TRUE(s != plainSize);
    EXPECT_TRUE(CSize(plainSize) == plainSize);
}

TEST(Types, RectCombinations) {
    const Rows<CRect, CRect, const char*, const char*, const char*> table = {
        {{0, 0, 4, 4}, {2, 2, 6, 6}, "2 2 4 4", "0 0 6 6", "0 0 4 4"},
        {{0, 0, 4, 4}, {4, 0, 6, 4}, "0 0 0 0", "0 0 6 4", "0 0 4 4"}, // touching is not common
        {{0, 0, 4, 4}, {2, 0, 6, 4}, "2 0 4 4", "0 0 6 4", "0 0 2 4"},
        {{0, 0, 4, 4}, {-1, -1, 2, 9}, "0 0 2 4", "-1 -1 4 9", "2 0 4 4"},
        {{0, 0, 4, 4}, {-1, 3, 9, 9}, "0 3 4 4", "-1 0 9 9", "0 0 4 3"},
        {{0, 0, 4, 4}, {0, -2, 4, 1}, "0 0 4 1", "0 -2 4 4", "0 1 4 4"},
        {{0, 0, 4, 4}, {1, 0, 2, 4}, "1 0 2 4", "0 0 4 4", "0 0 4 4"}, // would leave two
        {{0, 0, 4, 4}, {0, 1, 4, 2}, "0 1 4 2", "0 0 4 4", "0 0 4 4"},
        {{0, 0, 4, 4}, {0, 1, 2, 2}, "0 1 2 2", "0 0 4 4", "0 0 4 4"},
        {{0, 0, 4, 4}, {3, 3, 3, 3}, "0 0 0 0", "0 0 4 4", "0 0 4 4"}, // empty ones do not count
        {{4, 4, 0, 0}, {1, 1, 2, 2}, "0 0 0 0", "1 1 2 2", "0 0 0 0"},
        {{9, 9, 9, 9}, {8, 8, 8, 8}, "0 0 0 0", "0 0 0 0", "0 0 0 0"},
    };
    for (const auto& [a, b, common, around, rest] : table) {
        CRect result;
        EXPECT_EQ(std::string(common) != "0 0 0 0", result.IntersectRect(a, b) != 0);
        EXPECT_EQ(common, Text(a & b));
        EXPECT_EQ(std::string(around) != "0 0 0 0", result.UnionRect(a, b) != 0);
        EXPECT_EQ(around, Text(a | b));
        result = a;
        EXPECT_EQ(std::string(rest) != "0 0 0 0", result.SubtractRect(result, b) != 0);
        EXPECT_EQ(rest, Text(result));
    }
}

TEST(Types, RectChanges) {
    const CRect r(10, 20, 30, 60);
    const auto changed = [&r](auto change) {
        CRect copy(r);
        change(copy);
        return Text(copy);
    };
    EXPECT_EQ("9 18 31 62", changed([](CRect& c) { c.InflateRect(CSize(1, 2)); }));
    EXPECT_EQ("11 22 29 58", changed([](CRect& c) { c.DeflateRect(CSize(1, 2)); }));
    EXPECT_EQ("30 20 10 60", changed([](CRect& c) { c.SwapLeftRight(); }));
    EXPECT_EQ("1 2 3 4", changed([](CRect& c) { c.SetRect(CPoint(1, 2), CPoint(3, 4)); }));
    EXPECT_EQ("1 2 3 4", changed([](CRect& c) { c.CopyRect(CRect(1, 2, 3, 4)); }));
    EXPECT_EQ("1 2 3 4", changed([](CRect& c) { c = RECT{1, 2, 3, 4}; }));
    EXPECT_EQ("1 2 4 6", changed([](CRect& c) { c = CRect(CPoint(1, 2), CSize(3, 4)); }));
    EXPECT_EQ("10 5 30 45", changed([](CRect& c) { c.MoveToY(5); }));
    EXPECT_EQ("0 5 20 45", changed([](CRect& c) { c.MoveToXY(CPoint(0, 5)); }));
    EXPECT_EQ("5 20 25 60", changed([](CRect& c) { c.MoveToX(5); }));
    EXPECT_EQ("1 2 30 60", changed([](CRect& c) { c.TopLeft() = CPoint(1, 2); }));
    EXPECT_EQ("10 20 31 62", changed([](CRect& c) { c.BottomRight().Offset(1, 2); }));
    CRect turned(30, 60, 10, 20);
    turned.NormalizeRect();
    EXPECT_EQ(r, turned);
    EXPECT_EQ(CSize(20, 40), r.Size());
    EXPECT_EQ(CPoint(20, 40), r.CenterPoint());
    EXPECT_EQ("10 20 30 60", Text(CRect(r.TopLeft(), r.BottomRight())));
    const RECT same = r;
    EXPECT_EQ(CRect(same), r);
    EXPECT_TRUE(r == same);
    EXPECT_NE(CRect(0, 20, 30, 60), r);
    EXPECT_NE(CRect(10, 0, 30, 60), r);
    EXPECT_NE(CRect(10, 20, 0, 60), r);
    EXPECT_NE(CRect(10, 20, 30, 0), r);
    EXPECT_FALSE(r != same);
    // Temporaries have an address.
    EXPECT_EQ(7, (&CPoint(5, 6))->x + (&CSize(1, 8))->cx + (&CRect(1, 2, 3, 4))->left);
}

TEST(Types, WhatIsAddedMovesAndMarginsGrow) {
    const CRect r(10, 20, 30, 60), margins(1, 2, 3, 4);
    const CPoint p(3, 5);
    const CSize s(1, 2);
    EXPECT_EQ("9 18 33 64", Text(r + &margins));
    EXPECT_EQ("11 22 27 56", Text(r - &margins));
    EXPECT_EQ("13 25 33 65", Text(p + &r));
    EXPECT_EQ("7 15 27 55", Text(p - &r));
    EXPECT_EQ("11 22 31 62", Text(s + &r));
    EXPECT_EQ("9 18 29 58", Text(s - &r));
    EXPECT_EQ(CPoint(4, 7), s + p);
    EXPECT_EQ(CPoint(-2, -3), s - p);
    EXPECT_EQ(CPoint(4, 7), (p + POINT{1, 2}));
    EXPECT_EQ(CPoint(CSize(2, 3)), p - s);
    EXPECT_EQ(CSize(4, 5), (s + SIZE{3, 3}));
    EXPECT_EQ(CSize(-2, -1), (s - SIZE{3, 3}));
    EXPECT_EQ(CSize(-1, -2), -s);
}

TEST(Types, RightAndBottomLieOutside) {
    const CRect r(0, 0, 2, 3);
    EXPECT_TRUE(r.PtInRect(CPoint(0, 0)));
    EXPECT_TRUE(r.PtInRect(CPoint(1, 2)));
    EXPECT_FALSE(r.PtInRect(CPoint(2, 0)));
    EXPECT_FALSE(r.PtInRect(CPoint(0, 3)));
    EXPECT_FALSE(r.PtInRect(CPoint(-1, 0)));
    EXPECT_FALSE(r.PtInRect(CPoint(0, -1)));
    EXPECT_TRUE(CRect(1, 1, 1, 5).IsRectEmpty());
    EXPECT_TRUE(CRect(1, 1, 5, 0).IsRectEmpty());
    EXPECT_FALSE(r.IsRectEmpty());
    EXPECT_TRUE(CRect().IsRectNull());
    EXPECT_FALSE(CRect(1, 1, 1, 1).IsRectNull());
}

} // namespace
