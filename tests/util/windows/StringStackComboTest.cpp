#include "support/TestApp.h"
#include "util/StringStack.h"

using namespace testkit;

namespace {

using Texts = std::vector<CString>;

TEST(StringStack, FillsAComboBoxAndLeavesItsText) {
    Frame frame;
    CStringStack stack;
    stack.Add(L"B", 0);
    stack.Add(L"A", 0);
    stack.Add(L"境界点", 1);
    CComboBox combo;
    ASSERT_TRUE(combo.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWN, CRect(0, 0, 100, 100), &frame, 1));
    combo.AddString(L"old");
    for (const CString& strTyped : {CString(L"typed"), CString(L"A"), CString()}) {
        combo.SetWindowText(strTyped);
        stack.SetupList(&combo);
        Texts texts(static_cast<size_t>(combo.GetCount()));
        for (size_t i = 0; i < texts.size(); ++i)
            combo.GetLBText(static_cast<int>(i), texts[i]);
        EXPECT_EQ(texts, (Texts{L"A", L"B", L"境界点"}));
        EXPECT_EQ(TextOf(combo), strTyped);
    }
    CStringStack empty;
    combo.SetWindowText(L"typed");
    empty.SetupList(&combo);
    EXPECT_EQ(0, combo.GetCount());
    EXPECT_EQ(5, combo.GetWindowTextLength());
}

} // namespace
