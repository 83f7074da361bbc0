// Edit fields with formats, lists whose items are dragged and combo boxes with pictures.
#include "support/TestApp.h"

#include "afxcmn.h"

using namespace testkit;

namespace {

constexpr UINT IDC_IT = 10;

DWORD CALLBACK WriteToString(DWORD_PTR dwCookie, LPBYTE pbBuff, LONG cb, LONG* pcb) {
    reinterpret_cast<std::string*>(dwCookie)->append(reinterpret_cast<char*>(pbBuff),
                                                     static_cast<std::size_t>(cb));
    *pcb = cb;
    return 0;
}

TEST(RichEdit, TextHasFormatsAndIsFound) {
    ASSERT_TRUE(AfxInitRichEdit2());
    Frame frame;
    CRichEditCtrl rich;
    ASSERT_TRUE(rich.Create(WS_CHILD | WS_VISIBLE | ES_MULTILINE, CRect(0, 0, 200, 100), &frame, IDC_IT));
    rich.ReplaceSel(L"one two\r\nthree");
    EXPECT_EQ(2, rich.GetLineCount());
    FINDTEXTEX find = {{0, -1}, L"two", {}};
    EXPECT_EQ(4, rich.FindText(FR_DOWN, &find));
    rich.SetSel(find.chrgText);
    EXPECT_STREQ(L"two", rich.GetSelText());
    CHARFORMAT bold = {};
    bold.cbSize = sizeof(bold);
    bold.dwMask = CFM_BOLD | CFM_COLOR;
    bold.dwEffects = CFE_BOLD;
    bold.crTextColor = RGB(1, 2, 3);
    EXPECT_TRUE(rich.SetSelectionCharFormat(bold));
    rich.SetSel(0, 1);
    CHARFORMAT format = {};
    format.cbSize = sizeof(format);
    rich.GetSelectionCharFormat(format);
    EXPECT_EQ(0U, format.dwEffects & CFE_BOLD);
    rich.SetSel(5, 6);
    rich.GetSelectionCharFormat(format);
    EXPECT_TRUE((format.dwEffects & CFE_BOLD) != 0 && format.crTextColor == RGB(1, 2, 3));
    CString text;
    EXPECT_EQ(3, rich.GetTextRange(0, 3, text));
    EXPECT_STREQ(L"one", text);
    std::string out;
    EDITSTREAM stream = {reinterpret_cast<DWORD_PTR>(&out), 0, WriteToString};
    rich.StreamOut(SF_TEXT, stream);
    EXPECT_EQ("one two\r\nthree", out);
}

TEST(DragList, ADroppedItemMovesWithItsData) {
    Frame frame;
    CDragListBox list;
    ASSERT_TRUE(list.Create(WS_CHILD | WS_VISIBLE | LBS_HASSTRINGS, CRect(0, 0, 120, 120), &frame, IDC_IT));
    for (const LPCTSTR psz : {L"a", L"b", L"c"})
        list.SetItemData(list.AddString(psz), *psz);
    CRect item;
    list.GetItemRect(0, item);
    CPoint first = item.CenterPoint();
    list.ClientToScreen(&first);
    EXPECT_EQ(0, list.ItemFromPt(first));
    EXPECT_EQ(-1, list.ItemFromPt(CPoint(first.x + 500, first.y)));
    EXPECT_TRUE(list.BeginDrag(first));
    list.Dropped(2, first);
    CString order;
    for (int i = 0; i < list.GetCount(); ++i) {
        CString text;
        list.GetText(i, text);
        order += text;
        EXPECT_EQ(static_cast<DWORD_PTR>(text[0]), list.GetItemData(i));
    }
    EXPECT_STREQ(L"cab", order);
}

TEST(ComboEx, ItemsHavePictures) {
    Frame frame;
    CComboBoxEx combo;
    ASSERT_TRUE(combo.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWN, CRect(0, 0, 120, 120), &frame, IDC_IT));
    CImageList images;
    images.Create(16, 16, ILC_COLOR, 2, 1);
    EXPECT_EQ(nullptr, combo.SetImageList(&images));
    EXPECT_EQ(&images, combo.GetImageList());
    TCHAR text[] = L"entry";
    COMBOBOXEXITEM item = {};
    item.mask = CBEIF_TEXT | CBEIF_IMAGE | CBEIF_LPARAM;
    item.pszText = text;
    item.iImage = 1;
    item.lParam = 7;
    EXPECT_EQ(0, combo.InsertItem(&item));
    TCHAR read[10] = {};
    COMBOBOXEXITEM back = {};
    back.mask = item.mask;
    back.pszText = read;
    back.cchTextMax = 10;
    EXPECT_TRUE(combo.GetItem(&back));
    EXPECT_TRUE(back.iImage == 1 && back.lParam == 7 && CString(read) == text);
    EXPECT_NE(nullptr, combo.GetComboBoxCtrl()->GetSafeHwnd());
    EXPECT_NE(nullptr, combo.GetEditCtrl()->GetSafeHwnd());
    EXPECT_EQ(0, combo.DeleteItem(0));
    EXPECT_EQ(0, combo.GetCount());
}

} // namespace
