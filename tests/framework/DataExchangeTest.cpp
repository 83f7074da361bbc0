// Dialog data exchange and validation.
#include "ExchangeForm.h"

#include "afxcmn.h"

#include <limits>

using namespace testkit;

namespace {

using namespace fx; // the form's identifiers

struct DataExchange : testing::Test {
    template <class Value>
    using Exchange = void(AFXAPI*)(CDataExchange*, int, Value&);

    /// Shows values and reads them back.
    /// @param look the state of the control
    /// @param rows what is set, what the control shows of it, and what comes back
    template <class Value, class Shown, class Look>
    void ExpectBothWays(Exchange<Value> exchange, UINT nID, Look look, Rows<Value, Shown, Value> rows) {
        for (const auto& [set, shown, back] : rows) {
            EXPECT_EQ(back, Kept<Value>(exchange, nID, set));
            EXPECT_EQ(shown, look());
        }
    }
    /// What comes back of a value that has been shown.
    template <class Value>
    Value Kept(Exchange<Value> exchange, UINT nID, Value value) {
        m_form.m_exchange = [&](CDataExchange* pDX) { exchange(pDX, static_cast<int>(nID), value); };
        EXPECT_TRUE(m_form.UpdateData(FALSE));
        value = Value();
        EXPECT_TRUE(m_form.UpdateData());
        return value;
    }
    /// The same with a control of a class of its own.
    template <class Control, class Value>
    void ExpectKept(Exchange<Value> exchange, Value value) {
        constexpr UINT ID_OWN = 99;
        const Child<Control> control(m_form, 0, CRect(0, 0, 100, 20), ID_OWN);
        EXPECT_EQ(value, Kept(exchange, ID_OWN, value));
    }

    ExchangeForm m_form;
    MessageRecorder m_recorder;
};

// --- Controls -----------------------------------------------------------------------------------

TEST(DataExchangeNotification, WhatTheProgramWritesIsNoChangeByTheUser) {
    struct Listening : ExchangeForm {
        int m_nChanges = 0;
        BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pInfo) override {
            m_nChanges += nID == ID_FIRST && nCode == EN_CHANGE ? 1 : 0;
            return ExchangeForm::OnCmdMsg(nID, nCode, pExtra, pInfo);
        }
    };
    Listening form;
    CString strValue = L"written";
    int nExchanges = 0;
    form.m_exchange = [&](CDataExchange* pDX) {
        DDX_Text(pDX, ID_FIRST, strValue);
        if (++nExchanges == 1) {
            EXPECT_FALSE(form.UpdateData()) << "an exchange inside of an exchange";
        }
    };
    EXPECT_TRUE(form.UpdateData(FALSE));
    EXPECT_EQ(0, form.m_nChanges);
    form.m_first.SendMessage(WM_CHAR, L'x', 1);
    EXPECT_EQ(1, form.m_nChanges);
}

TEST_F(DataExchange, CheckBoxHasThreeStates) {
    ExpectBothWays<int, int>(DDX_Check, ID_CHECK, [&] { return m_form.m_check.GetCheck(); },
                             {{1, 1, 1}, {2, 2, 2}, {0, 0, 0}, {3, 0, 0}, {-1, 0, 0}});
}

TEST_F(DataExchange, RadioButtonsCountWithinTheirGroup) {
    m_form.m_other.SetCheck(BST_CHECKED);
    const auto checked = [&] {
        std::string states;
        for (const CButton* p : {&m_form.m_radio0, &m_form.m_radio1, &m_form.m_radio2, &m_form.m_other})
            states += p->GetCheck() == BST_CHECKED ? 'x' : '.';
        return states;
    };
    ExpectBothWays<int, std::string>(DDX_Radio, ID_RADIO, checked,
                                     {{2, "..xx", 2}, {0, "x..x", 0}, {-1, "...x", -1}});
}

TEST_F(DataExchange, ListSelectionGoesByIndexOrText) {
    const auto item = [&] { return m_form.m_list.GetCurSel(); };
    ExpectBothWays<int, int>(DDX_LBIndex, ID_LIST, item, {{1, 1, 1}, {-1, -1, -1}});
    ExpectBothWays<CString, int>(DDX_LBString, ID_LIST, item, {{L"no", -1, L""}, {L"be", 2, L"Beta"}});
    ExpectBothWays<CString, int>(DDX_LBStringExact, ID_LIST, item,
                                 {{L"alpha", 0, L"Alpha"}, {L"be", 0, L"Alpha"}});
    const auto entry = [&] { return m_form.m_dropList.GetCurSel(); };
    ExpectBothWays<int, int>(DDX_CBIndex, ID_DROPLIST, entry, {{2, 2, 2}, {0, 0, 0}});
    ExpectBothWays<CString, int>(
        DDX_CBString, ID_DROPLIST, entry,
        {{L"Beta", 2, L"Beta"}, {L"alphab", 1, L"alphabet"}, {L"Alpha", 0, L"Alpha"}});
}

TEST_F(DataExchange, ComboTextComesBackAsItWasGiven) {
    const auto takeSelected = [&] {
        const int nSelected = m_form.m_combo.GetCurSel();
        m_form.m_combo.SetCurSel(-1);
        return nSelected;
    };
    ExpectBothWays<CString, int>(DDX_CBString, ID_COMBO, takeSelected,
                                 {{L"Beta", 2, L"Beta"},
                                  {L"free text", -1, L"free text"},
                                  {L"Al", -1, L"Al"},
                                  {L"", -1, L""},
                                  {L"BETA", 2, L"BETA"}}); // found without regard to case, shown as given
    ExpectBothWays<CString, int>(DDX_CBStringExact, ID_COMBO, takeSelected,
                                 {{L"BETA", 2, L"Beta"}, {L"Al", -1, L"Al"}});
}

TEST_F(DataExchange, CommonControlsGiveBackWhatTheyWereGiven) {
    ExpectKept<CSliderCtrl>(DDX_Slider, 7);
    ExpectKept<CDateTimeCtrl>(DDX_DateTimeCtrl, CTime(2024, 5, 6, 7, 8, 9));
    ExpectKept<CMonthCalCtrl>(DDX_MonthCalCtrl, CTime(2023, 4, 3, 0, 0, 0));
    ExpectKept<CIPAddressCtrl>(DDX_IPAddress, DWORD{0x7F000001});
    ExpectKept<CEdit>(DDX_Text, LONGLONG{-5000000000});
    ExpectKept<CEdit>(DDX_Text, ULONGLONG{1} << 63);
    Child<CScrollBar> bar(m_form, 0, CRect(0, 0, 100, 20), 98);
    bar.SetScrollRange(0, 20);
    EXPECT_EQ(8, Kept(DDX_Scroll, 98, 8));
}

TEST_F(DataExchange, ControlIsAttachedOnceAndOneThatIsMissingIsAnError) {
    m_form.m_first.UnsubclassWindow();
    CEdit edit;
    for (const auto& [nID, bFound] : {std::pair(999, false), {int{ID_FIRST}, true}, {int{ID_FIRST}, true}}) {
        m_form.m_exchange = [&, nControl = nID](CDataExchange* pDX) { DDX_Control(pDX, nControl, edit); };
        EXPECT_EQ(bFound, m_form.UpdateData(FALSE) != FALSE);
        EXPECT_EQ(bFound, CWnd::FromHandlePermanent(m_form.GetDlgItem(ID_FIRST)->m_hWnd) == &edit);
        EXPECT_EQ(1U, m_recorder.m_prompts.size());
    }
}

// --- Rules --------------------------------------------------------------------------------------

TEST_F(DataExchange, RangesIncludeTheirEndsAndTellThem) {
    constexpr LPCTSTR PASSES = nullptr, INT_RANGE = L"-3 から 8 までの整数を入力してください。";
    const double notANumber = std::numeric_limits<double>::quiet_NaN();
    const CTime start(2024, 5, 6, 0, 0, 0), end(2024, 5, 8, 0, 0, 0);
    CTime early(2024, 5, 5, 0, 0, 0), late(2024, 5, 9, 0, 0, 0), first = start, last = end;
    const Rows<std::function<void(CDataExchange*)>, LPCTSTR> rows = {
        {[](CDataExchange* p) { DDV_MinMaxInt(p, -3, -3, 8); }, PASSES},
        {[](CDataExchange* p) { DDV_MinMaxInt(p, 8, -3, 8); }, PASSES},
        {[](CDataExchange* p) { DDV_MinMaxInt(p, 9, -3, 8); }, INT_RANGE},
        {[](CDataExchange* p) { DDV_MinMaxLong(p, -4, -3, 8); }, INT_RANGE},
        {[](CDataExchange* p) { DDV_MinMaxShort(p, -4, -3, 8); }, INT_RANGE},
        {[](CDataExchange* p) { DDV_MinMaxUInt(p, 5, 1, 5); }, PASSES},
        {[](CDataExchange* p) { DDV_MinMaxUInt(p, 0, 1, 5); }, L"1 から 5 までの整数を入力してください。"},
        {[](CDataExchange* p) { DDV_MinMaxUnsigned(p, 4000000000U, 1, 5); },
         L"1 から 5 までの整数を入力してください。"},
        {[](CDataExchange* p) { DDV_MinMaxDWord(p, 4000000000U, 1, 4294967295U); }, PASSES},
        {[](CDataExchange* p) { DDV_MinMaxByte(p, 255, 1, 200); },
         L"1 から 200 までの整数を入力してください。"},
        {[](CDataExchange* p) { DDV_MinMaxLongLong(p, -(1LL << 40), -3, 1LL << 40); },
         L"-3 から 1099511627776 までの整数を入力してください。"},
        {[](CDataExchange* p) { DDV_MinMaxULongLong(p, ~0ULL, 1, ~0ULL); }, PASSES},
        {[](CDataExchange* p) { DDV_MinMaxDouble(p, 1.5, 1.5, 2); }, PASSES},
        {[](CDataExchange* p) { DDV_MinMaxDouble(p, 1.4, 1.5, 2); },
         L"1.5 から 2 までの数値を入力してください。"},
        {[=](CDataExchange* p) { DDV_MinMaxDouble(p, notANumber, 0, 1); },
         L"0 から 1 までの数値を入力してください。"},
        {[](CDataExchange* p) { DDV_MinMaxFloat(p, 2.5F, 0, 2); },
         L"0 から 2 までの数値を入力してください。"},
        {[&](CDataExchange* p) { DDV_MinMaxDateTime(p, first, &start, &end); }, PASSES},
        {[&](CDataExchange* p) { DDV_MinMaxDateTime(p, last, &start, &end); }, PASSES},
        {[&](CDataExchange* p) { DDV_MinMaxDateTime(p, early, nullptr, &end); }, PASSES},
        {[&](CDataExchange* p) { DDV_MinMaxDateTime(p, late, &start, &end); },
         L"05/06/24 から 05/08/24 までの整数を入力してください。"},
        {[&](CDataExchange* p) { DDV_MinMaxMonth(p, late, &start, nullptr); }, PASSES},
        {[&](CDataExchange* p) { DDV_MinMaxMonth(p, early, &start, nullptr); },
         L"05/06/24 から - までの整数を入力してください。"},
        {[](CDataExchange* p) { DDV_MaxChars(p, L"三文字", 3); }, PASSES},
        {[](CDataExchange* p) { DDV_MaxChars(p, L"abcd", 3); }, L"3 文字以内で入力してください。"},
    };
    int nRow = 0;
    for (const auto& [check, pszPrompt] : rows) {
        SCOPED_TRACE(nRow++);
        m_form.m_exchange = [&, &run = check](CDataExchange* pDX) {
            CString strText;
            DDX_Text(pDX, ID_FIRST, strText);
            run(pDX);
        };
        m_recorder.m_prompts.clear();
        EXPECT_EQ(pszPrompt == PASSES, m_form.UpdateData() != FALSE);
        EXPECT_EQ(pszPrompt == PASSES ? std::vector<CString>{} : std::vector<CString>{pszPrompt},
                  m_recorder.m_prompts);
        EXPECT_TRUE(m_form.UpdateData(FALSE)) << "what the program itself shows is not refused";
    }
}

TEST_F(DataExchange, RangesOfSlidersAndDatesAreTheirLimits) {
    Child<CSliderCtrl> slider(m_form, 0, CRect(0, 0, 100, 20), 99);
    Child<CDateTimeCtrl> date(m_form, 0, CRect(0, 0, 100, 20), 98);
    CTime start(2024, 5, 6, 0, 0, 0), end(2024, 5, 8, 0, 0, 0);
    CString strDate;
    m_form.m_exchange = [&](CDataExchange* pDX) {
        int nValue = 7;
        DDX_Slider(pDX, 99, nValue);
        DDV_MinMaxSlider(pDX, 7, 5, 9);
        DDX_DateTimeCtrl(pDX, 98, strDate);
        DDV_MinMaxDateTime(pDX, start, &start, &end);
    };
    EXPECT_TRUE(m_form.UpdateData(FALSE));
    EXPECT_EQ(5, slider.GetRangeMin());
    EXPECT_EQ(9, slider.GetRangeMax());
    CTime first, last;
    EXPECT_EQ(DWORD{GDTR_MIN | GDTR_MAX}, date.GetRange(&first, &last));
    EXPECT_EQ(start, first);
    EXPECT_EQ(end, last);
    EXPECT_TRUE(m_form.UpdateData());
    EXPECT_EQ(TextOf(date), strDate);
}

TEST_F(DataExchange, LongestTextAlsoLimitsTyping) {
    CString strEdit, strCombo;
    m_form.m_exchange = [&](CDataExchange* pDX) {
        DDX_Text(pDX, ID_FIRST, strEdit);
        DDV_MaxChars(pDX, strEdit, 4);
        DDX_CBString(pDX, ID_COMBO, strCombo);
        DDV_MaxChars(pDX, strCombo, 2);
    };
    EXPECT_TRUE(m_form.UpdateData(FALSE));
    EXPECT_EQ(4U, m_form.m_first.GetLimitText());
    COMBOBOXINFO info = {};
    ASSERT_TRUE(m_form.m_combo.GetComboBoxInfo(&info));
    EXPECT_EQ(2, ::SendMessage(info.hwndItem, EM_GETLIMITTEXT, 0, 0));
}

} // namespace
