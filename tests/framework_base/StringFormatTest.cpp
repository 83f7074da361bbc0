#include "afx.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <cstdint>
#include <cwchar>

namespace {

template <class... Args>
CString Formatted(LPCTSTR format, Args... args) {
    CString s = L"old";
    s.Format(format, args...);
    return s;
}

TEST(StringFormat, TextFormsMeanWideUnlessNarrowIsAsked) {
    EXPECT_STREQ(L"\x6E2C ab ab ab", Formatted(L"\x6E2C %ls %ws %lS", L"ab", L"ab", L"ab"));
    EXPECT_STREQ(L"ab ab ab", Formatted(L"%S %hs %hhs", "ab", "ab", "ab"));
    EXPECT_STREQ(L"a\x6E2Cz", Formatted(L"%c%c%C", L'a', L'\x6E2C', 'z'));
    EXPECT_STREQ(L"(null)", Formatted(L"%s", static_cast<LPCTSTR>(nullptr)));
    EXPECT_STREQ(L"[   ab][ab   ][000ab][a][ab]",
                 Formatted(L"[%5s][%-5s][%05s][%.1s][%.5s]", L"ab", L"ab", L"ab", L"ab", L"ab"));
    EXPECT_STREQ(L"[   ab][ab   ]", Formatted(L"[%*s][%*s]", 5, L"ab", -5, L"ab"));
    const wchar_t unterminated[] = {L'a', L'b'};
    EXPECT_STREQ(L"ab", Formatted(L"%.*s", 2, unterminated));
}

TEST(StringFormat, NumbersAreTheSameEverywhere) {
    EXPECT_STREQ(L"-7|+7| 7|007|7  |7  ", Formatted(L"%d|%+d|% d|%03d|%-3d|%-03d", -7, 7, 7, 7, 7, 7));
    EXPECT_STREQ(L"    7|0", Formatted(L"%05.0d|%d", 7, 0));
    EXPECT_STREQ(L"0 0 010 010 ff", Formatted(L"%#x %#X %#o %#.3o %x", 0, 0, 8, 8, 255));
    EXPECT_STREQ(L"18446744073709551615", Formatted(L"%I64u", UINT64_MAX));
    EXPECT_STREQ(L"5 6 7 8 9",
                 Formatted(L"%Id %zu %I32d %td %jd", INT_PTR{5}, std::size_t{6}, 7, INT_PTR{8}, 9LL));
    EXPECT_STREQ(L"-2 65534 44 254 -8", Formatted(L"%ld %hu %hhd %hhu %i", -2L, -2, 300, -2, -8));
    EXPECT_STREQ(L"4294967295 7 8", Formatted(L"%Lu %Iu %lu", ~0U, INT_PTR{7}, 8UL));
    EXPECT_STREQ(L"1.5e+00 INF 1.5E+20 1.25", Formatted(L"%.1e %F %G %.2Lf", 1.5, HUGE_VAL, 1.5e20, 1.25L));
    for (const auto& [exact, mark] : {std::pair{L"%a", L'x'}, {L"%A", L'X'}}) {
        EXPECT_EQ(1.5, std::wcstod(Formatted(exact, 1.5), nullptr));
        EXPECT_EQ(1, Formatted(exact, 1.5).Find(mark));
    }
    EXPECT_STREQ(L"+1.50     | +1.", Formatted(L"%- +#010.2f|%# +4.0f", 1.5, 1.0));
    EXPECT_STREQ(L"0.50", Formatted(L"%.102f", 0.5).Left(4));
    EXPECT_STREQ(L"1.500000 2", Formatted(L"%f %.0f", 1.5, 2.0));
    const double none = std::abs(std::nan(""));
    EXPECT_STREQ(L"inf nan NAN", Formatted(L"%f %g %G", HUGE_VAL, none, none));
    const auto address = static_cast<INT_PTR>(0xAB);
    const CString pointer = Formatted(L"%p", reinterpret_cast<void*>(address));
    EXPECT_EQ(static_cast<int>(2 * sizeof(void*)), pointer.GetLength());
    EXPECT_STREQ(L"00AB", pointer.Right(4));
}

TEST(StringFormat, OddFormatsDoNoHarm) {
    EXPECT_STREQ(L"100%", Formatted(L"%d%%", 100));
    EXPECT_STREQ(L"y\x3042", Formatted(L"%y%\x3042"));
    EXPECT_STREQ(L"\x0164", Formatted(L"%\x0164", 1)); // whose low byte is a d
    EXPECT_EQ(3, Formatted(L"end%").GetLength());
    EXPECT_STREQ(L"end", Formatted(L"end%-08.3l"));
    EXPECT_STREQ(L"", Formatted(nullptr));
    EXPECT_EQ(1'000'000, Formatted(L"%99999999999999d", 1).GetLength());
    for (const int width : {INT_MIN, INT_MAX})
        EXPECT_EQ(1'000'000, Formatted(L"%*d", width, 1).GetLength());
}

} // namespace
