#include "support/Rows.h"

#include <gtest/gtest.h>

#include "Tesuvo.h"

#include <cmath>
#include <limits>
#include <string>

namespace {

constexpr double kUntouched = -7.25;

void ExpectAccepted(const std::wstring& text, double wanted) {
    const CString str = text.c_str();
    double value = kUntouched;
    EXPECT_TRUE(TVString2Double(&str, &value)) << text;
    EXPECT_EQ(value, wanted) << text;
    EXPECT_EQ(std::signbit(value), std::signbit(wanted)) << text;
}

TEST(Number, AcceptsWhatASurveyorTypes) {
    const Rows<const wchar_t*, double> rows = {
        {L"0", 0.0},
        {L"12.3456", 12.3456},
        {L"+7", 7.0},
        {L"-12.5", -12.5},
        {L"-0", -0.0},
        {L"007", 7.0},
        {L".5", 0.5},
        {L"5.", 5.0},
        {L"-.5", -0.5},
        {L"  1.5\t", 1.5},
        {L"\x3000１２\x3000", 12.0},
        {L"－１２．５", -12.5},
        {L"＋3", 3.0},
        {L"\u22124", -4.0},
        {L"1２.3４", 12.34},
        {L"1,234", 1234.0},
        {L"12,345,678.9", 12345678.9},
        {L"123,456", 123456.0},
        {L"１，２３４．５", 1234.5},
        {L"1e3", 1000.0},
        {L"2.5E-3", 0.0025},
        {L"1e+2", 100.0},
        {L"5.e1", 50.0},
        {L"１ｅ２", 100.0},
        {L"-1,000e-3", -1.0},
        // To the nearest double.
        {L"9007199254740993.0000000000000000000000000000000000000001", 9007199254740994.0},
        {L"1.7976931348623157e308", std::numeric_limits<double>::max()},
        {L"5e-324", std::numeric_limits<double>::denorm_min()},
    };
    for (const auto& [text, value] : rows)
        ExpectAccepted(text, value);
}

TEST(Number, RefusesTheRestAndLeavesTheValueAlone) {
    const wchar_t* const rows[] = {
        L"",         L" ",    L"\x3000",   L".",      L"-",      L"+.",      L"abc",
        L"12m",      L"1 2",  L"- 5",      L"--5",    L"+-5",    L"1.2.3",   L"1,23",
        L"12,34.5",  L",123", L"1234,567", L"1,234,", L"1,,234", L"1,2345",  L"1.234,567",
        L"1,234,56", L"1e",   L"1e+",      L"e5",     L"1e1.5",  L"1e1,000", L"inf",
        L"-INF",     L"nan",  L"0x10",     L"1e400",  L"-1e400", L"1e-400",  L"1e99999999999999999999",
        L"12\n",     L"١٢",   L"十二",     L"ー5",
    };
    for (const wchar_t* const row : rows) {
        const CString text = row;
        double value = kUntouched;
        EXPECT_FALSE(TVString2Double(&text, &value)) << std::wstring(row);
        EXPECT_EQ(kUntouched, value) << std::wstring(row);
    }
}

TEST(Number, StopsAtNothingHidden) {
    const CString withNul(L"12\0"
                          L"34",
                          5);
    double value = kUntouched;
    EXPECT_FALSE(TVString2Double(&withNul, &value));

    const std::wstring zeros(100'000, L'0');
    const CString longText = (L"0." + zeros + L"1").c_str();
    EXPECT_FALSE(TVString2Double(&longText, &value));
    EXPECT_EQ(kUntouched, value);
    ExpectAccepted(zeros + L"1", 1.0);
}

TEST(Number, RefusesNullArguments) {
    const CString text = L"1";
    double value = kUntouched;
    EXPECT_FALSE(TVString2Double(nullptr, &value));
    EXPECT_FALSE(TVString2Double(&text, nullptr));
    EXPECT_EQ(kUntouched, value);
}

} // namespace
