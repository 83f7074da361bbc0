#include "support/ArchiveBytes.h"
#include "support/Order.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <cstdlib>
#include <ctime>

namespace {

TEST(Time, HasPartsAndText) {
    const CTime time(2024, 2, 29, 13, 5, 9);
    EXPECT_EQ((std::array{2024, 2, 29, 13, 5, 9, 5}),
              (std::array{time.GetYear(), time.GetMonth(), time.GetDay(), time.GetHour(), time.GetMinute(),
                          time.GetSecond(), time.GetDayOfWeek()}));
    EXPECT_EQ(time, CTime((44 << 9 | 2 << 5 | 29) & 0xFFFF, 13 << 11 | 5 << 5 | 4) + CTimeSpan(1));
    EXPECT_EQ(2999, CTime(2999, 12, 31, 0, 0, 0).GetYear());
    for (const auto& [format, text] :
         {std::pair{L"%Y-%m-%d %H:%M:%S", L"2024-02-29 13:05:09"}, {L"", L""}, {LPCTSTR{nullptr}, L""}})
        EXPECT_STREQ(text, time.Format(format));
    EXPECT_EQ(3000, time.Format(CString(L'x', 3000)).GetLength());
    EXPECT_EQ(3000 - 1900, CTime(32'535'215'999).GetGmtTm()->tm_year);
    std::tm parts{};
    EXPECT_EQ(29, time.GetLocalTm(&parts)->tm_mday);
    EXPECT_EQ(1, CTime(0).GetGmtTm(&parts)->tm_mday);
    const CTime now = CTime::GetCurrentTime();
    EXPECT_LE(std::time(nullptr) - now.GetTime(), 60);
}

TEST(Time, RefusesWhatIsNoTime) {
    for (const auto& [year, month, day, hour, minute, second] : {std::array{1969, 1, 1, 0, 0, 0},
                                                                 {3001, 1, 1, 0, 0, 0},
                                                                 {2000, 0, 1, 0, 0, 0},
                                                                 {2000, 13, 1, 0, 0, 0},
                                                                 {2000, 1, 0, 0, 0, 0},
                                                                 {2000, 1, 32, 0, 0, 0},
                                                                 {2000, 1, 1, -1, 0, 0},
                                                                 {2000, 1, 1, 24, 0, 0},
                                                                 {2000, 1, 1, 0, 60, 0},
                                                                 {2000, 1, 1, 0, 0, 60}})
        EXPECT_THROW(CTime(year, month, day, hour, minute, second), CInvalidArgException*) << year << month;
    for (const LONGLONG time : {LONGLONG{-1}, LONGLONG{32'535'216'000}, LONGLONG{INT64_MAX}}) {
        EXPECT_THROW(CTime(time).GetYear(), CInvalidArgException*);
        EXPECT_STREQ(L"", CTime(time).Format(L"%Y") + CTime(time).FormatGmt(L"%Y"));
        EXPECT_EQ(nullptr, CTime(time).GetGmtTm());
        EXPECT_EQ(nullptr, CTime(time).GetLocalTm());
    }
}

TEST(Time, CalculatesInSeconds) {
    for (const LONGLONG n : {1, 2, 3}) {
        ExpectOrder(static_cast<int>(n - 2), CTime(n), CTime(LONGLONG{2}));
        ExpectOrder(static_cast<int>(n - 2), CTimeSpan(n), CTimeSpan(LONGLONG{2}));
    }
    CTimeSpan span(101, 2, 3, 4);
    EXPECT_EQ(2426, span.GetTotalHours());
    EXPECT_EQ(2426 * 60 + 3, span.GetTotalMinutes());
    EXPECT_EQ((2426 * 60 + 3) * 60 + 4, span.GetTotalSeconds());
    EXPECT_EQ(CTimeSpan(5), CTimeSpan(2) + CTimeSpan(7) - CTimeSpan(4));
    (span += CTimeSpan(10)) -= CTimeSpan(1);
    EXPECT_STREQ(L"101d 02:03:13 %", span.Format(L"%Dd %H:%M:%S %%"));
    EXPECT_STREQ(L"", span.Format(LPCTSTR{nullptr}));
    EXPECT_STREQ(L"-3", CTimeSpan(-3 * 86400).Format(L"%D"));
    for (const LPCTSTR wrong : {L"%Y", L"%"})
        EXPECT_THROW(span.Format(wrong), CInvalidArgException*);
    EXPECT_EQ(0, CTimeSpan().GetTimeSpan());
    EXPECT_EQ(0, CTime().GetTime());
    CTime time(LONGLONG{100});
    (time += CTimeSpan(30)) -= CTimeSpan(10);
    EXPECT_EQ(CTimeSpan(20), time - CTime(LONGLONG{100}));
    EXPECT_EQ(CTime(LONGLONG{110}), time + CTimeSpan(5) - CTimeSpan(15));
    CTime loaded;
    CTimeSpan loadedSpan;
    Loaded(Stored([&](CArchive& ar) { ar << time << span; }),
           [&](CArchive& ar) { ar >> loaded >> loadedSpan; });
    EXPECT_EQ(time, loaded);
    EXPECT_EQ(span, loadedSpan);
}

#ifndef _WIN32
TEST(Time, LocalTimeIsThatOfTheZone) {
    ::setenv("TZ", "CET-1CEST,M3.5.0,M10.5.0/3", 1);
    ::tzset();
    // An hour that comes twice.
    EXPECT_EQ(CTimeSpan(3600), CTime(2024, 10, 27, 2, 30, 0, 0) - CTime(2024, 10, 27, 2, 30, 0, 1));
    const CTime noon(2024, 7, 1, 12, 0, 0);
    EXPECT_STREQ(L"12, 10 UTC", noon.Format(L"%H, ") + noon.FormatGmt(L"%H UTC"));
    EXPECT_EQ(0, CTime(1970, 1, 1, 1, 0, 0).GetTime());
    EXPECT_THROW(CTime(1970, 1, 1, 0, 59, 59), CInvalidArgException*);
    ::unsetenv("TZ");
    ::tzset();
}
#endif

} // namespace
