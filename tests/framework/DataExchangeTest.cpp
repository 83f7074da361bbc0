// Dialog data exchange and validation.
#include "ExchangeForm.h"

#include <limits>

using namespace testkit;

namespace {

using namespace fx; // the form's identifiers

struct DataExchange : testing::Test {
    ExchangeForm m_form;
    MessageRecorder m_recorder;
};

// --- Refusal ----------------------------------------------------------------------------------

TEST_F(DataExchange, RefusalPutsTheFocusIntoTheFieldWithItsTextSelected) {
    int nFirst = 0, nSecond = 7;
    m_form.m_exchange = [&](CDataExchange* pDX) {
        DDX_Text(pDX, ID_FIRST, nFirst);
        DDX_Text(pDX, ID_SECOND, nSecond);
    };
    m_form.m_first.SetWindowText(L"1");
    m_form.m_second.SetWindowText(L"two");
    m_form.m_first.SetFocus();
    EXPECT_FALSE(m_form.UpdateData());
    EXPECT_EQ(nFirst, 1) << "fields before the refused one have been read";
    EXPECT_EQ(nSecond, 7);
    EXPECT_EQ(::GetFocus(), m_form.m_second.m_hWnd);
    EXPECT_EQ(m_form.m_second.GetSel(), static_cast<DWORD>(MAKELONG(0, 3)));
}

TEST_F(DataExchange, MissingControlIsAnErrorNotACrash) {
    int nValue = 3;
    CEdit edit;
    const std::function<void(CDataExchange*)> exchanges[] = {
        [&](CDataExchange* pDX) { DDX_Text(pDX, 999, nValue); },
        [&](CDataExchange* pDX) { DDX_Control(pDX, 999, edit); },
    };
    for (const auto& exchange : exchanges) {
        m_form.m_exchange = exchange;
        m_recorder.m_prompts.clear();
        EXPECT_FALSE(m_form.UpdateData(FALSE));
        EXPECT_EQ(m_recorder.m_prompts.size(), 1U);
    }
    EXPECT_EQ(edit.m_hWnd, nullptr);
}

// --- Text -------------------------------------------------------------------------------------

TEST_F(DataExchange, TextGoesBothWaysAndAnEqualOneLeavesTheCaretWhereItIs) {
    CString strValue = L"東京 100";
    m_form.m_exchange = [&](CDataExchange* pDX) { DDX_Text(pDX, ID_FIRST, strValue); };
    EXPECT_TRUE(m_form.UpdateData(FALSE));
    EXPECT_EQ(TextOf(m_form.m_first), strValue);
    m_form.m_first.SetSel(2, 2);
    EXPECT_TRUE(m_form.UpdateData(FALSE));
    EXPECT_EQ(m_form.m_first.GetSel(), static_cast<DWORD>(MAKELONG(2, 2)));
    m_form.m_first.SetWindowText(L"");
    EXPECT_TRUE(m_form.UpdateData());
    EXPECT_EQ(L"", strValue);
}

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

// --- Buttons and lists --------------------------------------------------------------------------

TEST_F(DataExchange, CheckBoxHasThreeStates) {
    int nValue = 0;
    m_form.m_exchange = [&](CDataExchange* pDX) { DDX_Check(pDX, ID_CHECK, nValue); };
    for (const auto& [nSet, nShown] : {std::pair{1, 1}, {2, 2}, {0, 0}, {3, 0}, {-1, 0}}) {
        nValue = nSet;
        EXPECT_TRUE(m_form.UpdateData(FALSE));
        EXPECT_EQ(m_form.m_check.GetCheck(), nShown) << nSet;
        EXPECT_TRUE(m_form.UpdateData());
        EXPECT_EQ(nValue, nShown) << nSet;
    }
}

TEST_F(DataExchange, RadioButtonsCountWithinTheirGroup) {
    int nValue = -1;
    m_form.m_exchange = [&](CDataExchange* pDX) { DDX_Radio(pDX, ID_RADIO, nValue); };
    m_form.m_other.SetCheck(BST_CHECKED);
    for (const int nSet : {2, 0, -1}) {
        nValue = nSet;
        EXPECT_TRUE(m_form.UpdateData(FALSE));
        const CButton* const radios[] = {&m_form.m_radio0, &m_form.m_radio1, &m_form.m_radio2};
        for (int i = 0; i < 3; ++i)
            EXPECT_EQ(i == nSet, radios[i]->GetCheck()) << i;
        nValue = 55;
        EXPECT_TRUE(m_form.UpdateData());
        EXPECT_EQ(nSet, nValue);
    }
    EXPECT_EQ(BST_CHECKED, m_form.m_other.GetCheck()) << "another group's";
}

TEST_F(DataExchange, ListSelectionGoesByIndexOrText) {
    int nList = 1, nCombo = 2;
    m_form.m_exchange = [&](CDataExchange* pDX) {
        DDX_LBIndex(pDX, ID_LIST, nList);
        DDX_CBIndex(pDX, ID_DROPLIST, nCombo);
    };
    EXPECT_TRUE(m_form.UpdateData(FALSE));
    EXPECT_EQ(m_form.m_list.GetCurSel(), 1);
    EXPECT_EQ(m_form.m_dropList.GetCurSel(), 2);
    m_form.m_list.SetCurSel(-1);
    m_form.m_dropList.SetCurSel(0);
    EXPECT_TRUE(m_form.UpdateData());
    EXPECT_EQ(nList, -1);
    EXPECT_EQ(nCombo, 0);

    CString strList = L"be";
    m_form.m_exchange = [&](CDataExchange* pDX) { DDX_LBString(pDX, ID_LIST, strList); };
    EXPECT_TRUE(m_form.UpdateData(FALSE));
    EXPECT_TRUE(m_form.UpdateData());
    EXPECT_EQ(L"Beta", strList);
    m_form.m_list.SetCurSel(-1);
    EXPECT_TRUE(m_form.UpdateData());
    EXPECT_EQ(L"", strList);
}

TEST_F(DataExchange, ComboTextComesBackAsItWasGiven) {
    CString strValue;
    int nID = 0;
    m_form.m_exchange = [&](CDataExchange* pDX) { DDX_CBString(pDX, nID, strValue); };
    const Rows<int, LPCTSTR, LPCTSTR, int> cases = {
        {ID_COMBO, L"Beta", L"Beta", 2},
        {ID_COMBO, L"free text", L"free text", -1},
        {ID_COMBO, L"Al", L"Al", -1},
        {ID_COMBO, L"", L"", -1},
        {ID_DROPLIST, L"Beta", L"Beta", 2},
        {ID_DROPLIST, L"alphab", L"alphabet", 1},
        {ID_DROPLIST, L"Alpha", L"Alpha", 0},
        {ID_COMBO, L"BETA", L"BETA", 2}, // found without regard to case, shown as given
    };
    for (const auto& [nControl, pszValue, pszBack, nSelected] : cases) {
        nID = nControl;
        strValue = pszValue;
        m_form.m_combo.SetCurSel(-1);
        EXPECT_TRUE(m_form.UpdateData(FALSE));
        EXPECT_EQ((nID == ID_COMBO ? m_form.m_combo : m_form.m_dropList).GetCurSel(), nSelected)
            << Utf8(pszValue);
        EXPECT_TRUE(m_form.UpdateData());
        EXPECT_EQ(strValue, pszBack);
    }
}

TEST_F(DataExchange, ControlIsAttachedOnce) {
    m_form.m_first.UnsubclassWindow();
    CEdit edit;
    m_form.m_exchange = [&](CDataExchange* pDX) { DDX_Control(pDX, ID_FIRST, edit); };
    EXPECT_TRUE(m_form.UpdateData(FALSE));
    EXPECT_EQ(edit.GetDlgCtrlID(), ID_FIRST);
    EXPECT_EQ(CWnd::FromHandlePermanent(edit), &edit);
    EXPECT_TRUE(m_form.UpdateData(FALSE));
}

// --- Rules --------------------------------------------------------------------------------------

TEST_F(DataExchange, RangesIncludeTheirEndsAndTellThem) {
    constexpr LPCTSTR PASSES = nullptr, INT_RANGE = L"-3 から 8 までの整数を入力してください。";
    const double notANumber = std::numeric_limits<double>::quiet_NaN();
    const Rows<std::function<void(CDataExchange*)>, LPCTSTR> rows = {
        {[](CDataExchange* p) { DDV_MinMaxInt(p, -3, -3, 8); }, PASSES},
        {[](CDataExchange* p) { DDV_MinMaxInt(p, 8, -3, 8); }, PASSES},
        {[](CDataExchange* p) { DDV_MinMaxInt(p, 9, -3, 8); }, INT_RANGE},
        {[](CDataExchange* p) { DDV_MinMaxLong(p, -4, -3, 8); }, INT_RANGE},
        {[](CDataExchange* p) { DDV_MinMaxShort(p, -4, -3, 8); }, INT_RANGE},
        {[](CDataExchange* p) { DDV_MinMaxUInt(p, 4000000000U, 1, 5); },
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

TEST_F(DataExchange, LongestTextAlsoLimitsTyping) {
    CString strEdit, strCombo;
    m_form.m_exchange = [&](CDataExchange* pDX) {
        DDX_Text(pDX, ID_FIRST, strEdit);
        DDV_MaxChars(pDX, strEdit, 4);
        DDX_CBString(pDX, ID_COMBO, strCombo);
        DDV_MaxChars(pDX, strCombo, 2);
    };
    EXPECT_TRUE(m_form.UpdateData(FALSE));
    EXPECT_EQ(m_form.m_first.GetLimitText(), 4U);
    COMBOBOXINFO info = {};
    ASSERT_TRUE(m_form.m_combo.GetComboBoxInfo(&info));
    EXPECT_EQ(::SendMessage(info.hwndItem, EM_GETLIMITTEXT, 0, 0), 2);
}

} // namespace
