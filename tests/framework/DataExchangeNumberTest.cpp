// Data exchange of numbers: what their fields take and show.
#include "ExchangeForm.h"

#include <clocale>
#include <limits>

using namespace testkit;

namespace {

template <class Number>
struct NumberCase {
    LPCTSTR pszText;
    Number value;
};

template <class Number>
struct NumberField {
    NumberField() {
        m_form.m_exchange = [this](CDataExchange* pDX) { DDX_Text(pDX, fx::ID_FIRST, m_value); };
    }

    void Accepts(std::initializer_list<NumberCase<Number>> cases) {
        for (const auto& c : cases) {
            m_value = Number(99);
            m_form.m_first.SetWindowText(c.pszText);
            EXPECT_TRUE(m_form.UpdateData()) << Utf8(c.pszText);
            EXPECT_EQ(m_value, c.value) << Utf8(c.pszText);
        }
        EXPECT_TRUE(m_recorder.m_prompts.empty());
    }

    void Refuses(std::initializer_list<LPCTSTR> texts, LPCTSTR pszPrompt) {
        for (const LPCTSTR psz : texts) {
            m_value = Number(99);
            m_recorder.m_prompts.clear();
            m_form.m_first.SetWindowText(psz);
            EXPECT_FALSE(m_form.UpdateData()) << Utf8(psz);
            EXPECT_EQ(m_value, Number(99)) << Utf8(psz);
            EXPECT_EQ(m_recorder.m_prompts, std::vector<CString>{pszPrompt}) << Utf8(psz);
        }
    }

    CString Shown(Number value) {
        m_value = value;
        EXPECT_TRUE(m_form.UpdateData(FALSE));
        return TextOf(m_form.m_first);
    }

private:
    fx::ExchangeForm m_form;
    MessageRecorder m_recorder;
    Number m_value{};
};

constexpr LPCTSTR INT_PROMPT = L"整数を入力してください。", UINT_PROMPT = L"正の整数を入力してください。";
constexpr LPCTSTR BYTE_PROMPT = L"0 から 255 までの整数を入力してください。",
                  REAL_PROMPT = L"数値を入力してください。";

TEST(DataExchangeNumber, SignedIntegersTakeTheirWholeRangeAndNothingElse) {
    NumberField<int> integer;
    integer.Accepts({{L"42", 42},
                     {L" \t-7 ", -7},
                     {L"+5", 5},
                     {L"007", 7},
                     {L"2147483647", 2147483647},
                     {L"-2147483648", std::numeric_limits<int>::min()}});
    integer.Refuses({L"", L" ", L"abc", L"1.5", L"1 2", L"12x", L"0x10", L"--1", L"+-1", L"+", L"-",
                     L"2147483648", L"-2147483649", L"99999999999999999999", L"１"},
                    INT_PROMPT);
    EXPECT_EQ(integer.Shown(-2147483647 - 1), L"-2147483648");

    NumberField<long> longInteger;
    longInteger.Accepts({{L"-2147483648", std::numeric_limits<long>::min()}});
    longInteger.Refuses({L"2147483648"}, INT_PROMPT);
    EXPECT_EQ(longInteger.Shown(12), L"12");

    NumberField<short> shortInteger;
    shortInteger.Accepts({{L"32767", 32767}, {L"-32768", -32768}});
    shortInteger.Refuses({L"32768", L"-32769"}, INT_PROMPT);
    EXPECT_EQ(shortInteger.Shown(-3), L"-3");
}

TEST(DataExchangeNumber, UnsignedIntegersTakeNoSign) {
    NumberField<UINT> integer;
    integer.Accepts({{L"0", 0U}, {L"4294967295", 4294967295U}});
    integer.Refuses({L"-1", L"4294967296", L""}, UINT_PROMPT);
    EXPECT_EQ(integer.Shown(4294967295U), L"4294967295");

    NumberField<DWORD> doubleWord;
    doubleWord.Accepts({{L"4294967295", 4294967295UL}});
    doubleWord.Refuses({L"-0", L"4294967296"}, UINT_PROMPT);

    NumberField<BYTE> byte;
    byte.Accepts({{L"0", BYTE(0)}, {L"255", BYTE(255)}});
    byte.Refuses({L"256", L"-1", L"A"}, BYTE_PROMPT);
    EXPECT_EQ(byte.Shown(65), L"65") << "a number, not the character of this code";
}

TEST(DataExchangeNumber, RealsAreDecimalWithFifteenDigits) {
    NumberField<double> real;
    real.Accepts({{L"1.5", 1.5},
                  {L" -.25 ", -0.25},
                  {L"5.", 5.0},
                  {L"+1e3", 1000.0},
                  {L"1E-2", 0.01},
                  {L"-123456.7890123", -123456.7890123}});
    real.Refuses({L"", L"e5", L"1,5", L"1e", L"inf", L"nan", L"0x1p3", L"1e400", L"1.2.3", L"."},
                 REAL_PROMPT);
    EXPECT_EQ(real.Shown(0.1), L"0.1");
    EXPECT_EQ(real.Shown(1.0 / 3), L"0.333333333333333");
    EXPECT_EQ(real.Shown(-123456.789012345), L"-123456.789012345");
    EXPECT_EQ(real.Shown(1e20), L"1e+20");

    NumberField<float> single;
    single.Accepts({{L"0.1", 0.1F}});
    single.Refuses({L"1e39"}, REAL_PROMPT);
    EXPECT_EQ(single.Shown(0.1F), L"0.1");
}

TEST(DataExchangeNumber, DecimalPointDoesNotFollowTheLocale) {
    const char* const pszGerman = std::setlocale(LC_NUMERIC, "German_Germany.1252");
    ASSERT_NE(pszGerman, nullptr);
    NumberField<double> real;
    real.Accepts({{L"1.5", 1.5}});
    EXPECT_EQ(real.Shown(2.5), L"2.5");
    std::setlocale(LC_NUMERIC, "C");
}

} // namespace
