// Data exchange of numbers: what their fields take and show.
#include "ExchangeForm.h"

#include <clocale>
#include <limits>

using namespace testkit;

namespace {

template <class Number>
struct NumberField {
    explicit NumberField(LPCTSTR pszPrompt = L"") : m_pszPrompt(pszPrompt) {
        m_form.m_exchange = [this](CDataExchange* pDX) { DDX_Text(pDX, fx::ID_FIRST, m_value); };
    }

    void Accepts(std::initializer_list<std::pair<LPCTSTR, Number>> cases) {
        for (const auto& [pszText, number] : cases) {
            EXPECT_TRUE(Takes(pszText)) << Utf8(pszText);
            EXPECT_EQ(number, m_value) << Utf8(pszText);
        }
        EXPECT_TRUE(m_recorder.m_prompts.empty());
    }

    void Refuses(std::initializer_list<LPCTSTR> texts) {
        for (const LPCTSTR pszText : texts) {
            m_recorder.m_prompts.clear();
            EXPECT_FALSE(Takes(pszText)) << Utf8(pszText);
            EXPECT_EQ(Number(99), m_value) << Utf8(pszText);
            EXPECT_EQ(std::vector<CString>{m_pszPrompt}, m_recorder.m_prompts) << Utf8(pszText);
            EXPECT_EQ(m_form.m_first.m_hWnd, ::GetFocus());
            EXPECT_EQ(static_cast<DWORD>(MAKELONG(0, ::lstrlen(pszText))), m_form.m_first.GetSel());
        }
    }

    CString Shown(Number value) {
        m_value = value;
        EXPECT_TRUE(m_form.UpdateData(FALSE));
        return TextOf(m_form.m_first);
    }

private:
    BOOL Takes(LPCTSTR pszText) {
        m_value = Number(99);
        m_form.m_first.SetWindowText(pszText);
        m_form.m_second.SetFocus();
        return m_form.UpdateData();
    }

    LPCTSTR m_pszPrompt;
    fx::ExchangeForm m_form;
    MessageRecorder m_recorder;
    Number m_value{};
};

constexpr LPCTSTR INT_PROMPT = L"整数を入力してください。", UINT_PROMPT = L"正の整数を入力してください。";
constexpr LPCTSTR BYTE_PROMPT = L"0 から 255 までの整数を入力してください。",
                  REAL_PROMPT = L"数値を入力してください。";

TEST(DataExchangeNumber, SignedIntegersTakeTheirWholeRangeAndNothingElse) {
    NumberField<int> integer(INT_PROMPT);
    integer.Accepts({{L"42", 42},
                     {L" \t-7 ", -7},
                     {L"+5", 5},
                     {L"007", 7},
                     {L"2147483647", 2147483647},
                     {L"-2147483648", std::numeric_limits<int>::min()}});
    integer.Refuses({L"", L" ", L"abc", L"1.5", L"1 2", L"12x", L"0x10", L"--1", L"+-1", L"+", L"-",
                     L"2147483648", L"-2147483649", L"99999999999999999999", L"１"});
    EXPECT_EQ(L"-2147483648", integer.Shown(-2147483647 - 1));

    NumberField<long> longInteger(INT_PROMPT);
    longInteger.Accepts({{L"-2147483648", std::numeric_limits<long>::min()}});
    longInteger.Refuses({L"2147483648"});

    NumberField<short> shortInteger(INT_PROMPT);
    shortInteger.Accepts({{L"32767", 32767}, {L"-32768", -32768}});
    shortInteger.Refuses({L"32768", L"-32769"});
    EXPECT_EQ(L"-3", shortInteger.Shown(-3));
}

TEST(DataExchangeNumber, UnsignedIntegersTakeNoSign) {
    NumberField<UINT> integer(UINT_PROMPT);
    integer.Accepts({{L"0", 0U}, {L"4294967295", 4294967295U}});
    integer.Refuses({L"-1", L"4294967296", L""});
    EXPECT_EQ(L"4294967295", integer.Shown(4294967295U));

    NumberField<DWORD> doubleWord(UINT_PROMPT);
    doubleWord.Accepts({{L"4294967295", 4294967295UL}});
    doubleWord.Refuses({L"-0", L"4294967296"});

    NumberField<BYTE> byte(BYTE_PROMPT);
    byte.Accepts({{L"0", BYTE(0)}, {L"255", BYTE(255)}});
    byte.Refuses({L"256", L"-1", L"A"});
    EXPECT_EQ(L"65", byte.Shown(65)) << "a number, not the character of this code";
}

TEST(DataExchangeNumber, RealsAreDecimalWithFifteenDigits) {
    NumberField<double> real(REAL_PROMPT);
    real.Accepts({{L"1.5", 1.5},
                  {L" -.25 ", -0.25},
                  {L"5.", 5.0},
                  {L"+1e3", 1000.0},
                  {L"1E-2", 0.01},
                  {L"-123456.7890123", -123456.7890123}});
    real.Refuses({L"", L"e5", L"1,5", L"1e", L"inf", L"nan", L"0x1p3", L"1e400", L"1.2.3", L"."});
    EXPECT_EQ(L"0.1", real.Shown(0.1));
    EXPECT_EQ(L"0.333333333333333", real.Shown(1.0 / 3));
    EXPECT_EQ(L"-123456.789012345", real.Shown(-123456.789012345));
    EXPECT_EQ(L"1e+20", real.Shown(1e20));

    NumberField<float> single(REAL_PROMPT);
    single.Accepts({{L"0.1", 0.1F}});
    single.Refuses({L"1e39"});
    EXPECT_EQ(L"0.1", single.Shown(0.1F));
}

TEST(DataExchangeNumber, DecimalPointDoesNotFollowTheLocale) {
    ASSERT_NE(nullptr, std::setlocale(LC_NUMERIC, "German_Germany.1252"));
    NumberField<double> real;
    real.Accepts({{L"1.5", 1.5}});
    EXPECT_EQ(L"2.5", real.Shown(2.5));
    std::setlocale(LC_NUMERIC, "C");
}

} // namespace
