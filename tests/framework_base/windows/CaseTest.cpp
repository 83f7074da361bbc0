// The short ways for ASCII, and answers that are kept, against the system's own for every unit.
#include <afx.h>

#include <gtest/gtest.h>

namespace {

int Sign(int n) {
    return (n > 0) - (n < 0);
}

TEST(Case, EveryUnitIsWhatTheSystemMakesOfIt) {
    for (int n = 1; n <= 0xFFFF; ++n) {
        const auto ch = static_cast<wchar_t>(n);
        wchar_t upper[] = {L'a', ch, L'z'};
        wchar_t lower[] = {L'A', ch, L'Z'};
        ::CharUpperBuffW(upper, 3);
        ::CharLowerBuffW(lower, 3);
        const CString str = CString(L"a") + ch + L"Z";
        ASSERT_EQ(CString(upper, 3), CString(str).MakeUpper()) << n;
        ASSERT_EQ(CString(lower, 3), CString(str).MakeLower()) << n;
        wchar_t again = upper[1];
        ::CharLowerBuffW(&again, 1);
        ASSERT_EQ(Sign(lower[1] - again), str.CompareNoCase(CString(upper, 3))) << n;
    }
}

TEST(Case, EveryPairOfBytesIsWhatTheSystemMakesOfIt) {
    for (int n = 0x0101; n <= 0xFFFF; ++n) {
        if (n % 256 == 0)
            continue; // a text ends there
        const char pair[] = {static_cast<char>(n >> 8), static_cast<char>(n), '\0'};
        CStringA upper = pair;
        CStringA lower = pair;
        ::CharUpperBuffA(upper.GetBuffer(), 2);
        ::CharLowerBuffA(lower.GetBuffer(), 2);
        upper.ReleaseBuffer();
        lower.ReleaseBuffer();
        ASSERT_EQ(upper, CStringA(pair).MakeUpper()) << n;
        ASSERT_EQ(lower, CStringA(pair).MakeLower()) << n;
    }
}

} // namespace
