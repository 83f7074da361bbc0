#include "support/FrameworkEnvironment.h"

#include "afxcmn.h"

namespace {

constexpr DWORD REPORT = WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_SHOWSELALWAYS;

class ListCtrl : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(m_list.Create(REPORT, CRect(0, 0, 180, 150), &m_frame, 1));
        m_list.InsertColumn(0, L"名前", LVCFMT_LEFT, 80);
        m_list.InsertColumn(1, L"サイズ", LVCFMT_RIGHT, 60, 1);
    }
    /// Items whose data are their initial places.
    void Fill(std::initializer_list<LPCTSTR> texts) {
        for (const LPCTSTR psz : texts) {
            const int nItem = m_list.InsertItem(m_list.GetItemCount(), psz);
            m_list.SetItemData(nItem, static_cast<DWORD_PTR>(nItem));
        }
    }
    std::vector<int> Selected() const {
        std::vector<int> items;
        for (POSITION pos = m_list.GetFirstSelectedItemPosition(); pos != nullptr;)
            items.push_back(m_list.GetNextSelectedItem(pos));
        return items;
    }

    fx::Frame m_frame;
    CListCtrl m_list;
};

TEST_F(ListCtrl, KeepsTextsAndDataOfItemsAndSubItems) {
    EXPECT_EQ(m_list.InsertItem(0, L"b.csv"), 0);
    EXPECT_EQ(m_list.InsertItem(0, L"a.csv", 2), 0);
    EXPECT_EQ(m_list.InsertItem(LVIF_TEXT | LVIF_PARAM, 2, L"c.csv", 0, 0, 0, 33), 2);
    EXPECT_TRUE(m_list.SetItemText(1, 1, L"120"));
    EXPECT_TRUE(m_list.SetItemData(1, 0x1234567890ULL));
    EXPECT_EQ(m_list.GetItemText(0, 0), L"a.csv");
    EXPECT_EQ(m_list.GetItemText(1, 1), L"120");
    EXPECT_EQ(m_list.GetItemText(1, 0), L"b.csv");
    EXPECT_EQ(m_list.GetItemText(9, 0), L"");
    EXPECT_EQ(m_list.GetItemData(1), 0x1234567890ULL) << "as wide as a pointer";
    EXPECT_EQ(m_list.GetItemData(2), 33U);
    EXPECT_EQ(m_list.GetItemData(9), 0U);
    EXPECT_FALSE(m_list.SetItemData(9, 1));
    TCHAR szText[4] = {};
    EXPECT_EQ(m_list.GetItemText(0, 0, szText, 4), 3);
    EXPECT_STREQ(szText, L"a.c");
    LVITEM item = {};
    item.mask = LVIF_IMAGE;
    ASSERT_TRUE(m_list.GetItem(&item));
    EXPECT_EQ(item.iImage, 2);
    EXPECT_TRUE(m_list.DeleteItem(0));
    EXPECT_EQ(m_list.GetItemText(0, 0), L"b.csv");
    EXPECT_TRUE(m_list.DeleteAllItems());
    EXPECT_EQ(m_list.GetItemCount(), 0);
}

TEST_F(ListCtrl, ReadsTextsOfAnyLength) {
    m_list.InsertItem(0, L"");
    for (const int nLength : {0, 1, 126, 127, 128, 129, 255, 256}) {
        const CString strText(L'x', nLength);
        m_list.SetItemText(0, 0, strText);
        EXPECT_EQ(m_list.GetItemText(0, 0), strText);
    }
}

TEST_F(ListCtrl, ColumnsKeepHeadingFormatAndWidth) {
    TCHAR szText[20] = {};
    LVCOLUMN column = {};
    column.mask = LVCF_TEXT | LVCF_FMT | LVCF_WIDTH | LVCF_SUBITEM;
    column.pszText = szText;
    column.cchTextMax = 20;
    ASSERT_TRUE(m_list.GetColumn(1, &column));
    EXPECT_STREQ(szText, L"サイズ");
    EXPECT_EQ(column.fmt & LVCFMT_JUSTIFYMASK, LVCFMT_RIGHT);
    EXPECT_EQ(column.cx, 60);
    EXPECT_EQ(column.iSubItem, 1);
    EXPECT_TRUE(m_list.SetColumnWidth(1, 47));
    EXPECT_EQ(m_list.GetColumnWidth(1), 47);
    EXPECT_TRUE(m_list.DeleteColumn(1));
    EXPECT_FALSE(m_list.GetColumn(1, &column));
}

TEST_F(ListCtrl, WalksOverTheSelectedItems) {
    Fill({L"a", L"b", L"c", L"d"});
    EXPECT_EQ(Selected(), std::vector<int>{});
    m_list.SetItemState(0, LVIS_SELECTED, LVIS_SELECTED);
    m_list.SetItemState(2, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    EXPECT_EQ(Selected(), (std::vector<int>{0, 2}));
    EXPECT_EQ(m_list.GetSelectedCount(), 2U);
    EXPECT_EQ(m_list.GetNextItem(-1, LVNI_FOCUSED), 2);
    EXPECT_EQ(m_list.GetItemState(2, LVIS_FOCUSED), static_cast<UINT>(LVIS_FOCUSED));
    m_list.SetItemState(-1, 0, LVIS_SELECTED);
    EXPECT_EQ(Selected(), std::vector<int>{});
    POSITION pos = nullptr;
    EXPECT_EQ(m_list.GetNextSelectedItem(pos), -1);
    m_list.SetSelectionMark(1);
    EXPECT_EQ(m_list.SetSelectionMark(3), 1);
    EXPECT_EQ(m_list.GetSelectionMark(), 3);
}

TEST_F(ListCtrl, FindsAndSortsItems) {
    Fill({L"beta", L"alpha", L"gamma"});
    LVFINDINFO find = {};
    find.flags = LVFI_STRING | LVFI_PARTIAL;
    find.psz = L"ga";
    EXPECT_EQ(m_list.FindItem(&find), 2);
    EXPECT_EQ(m_list.FindItem(&find, 2), -1) << "behind the only one";
    find.flags = LVFI_PARAM;
    find.lParam = 1;
    EXPECT_EQ(m_list.FindItem(&find), 1);
    const auto compare = [](LPARAM a, LPARAM b, LPARAM sign) { return static_cast<int>((a - b) * sign); };
    EXPECT_TRUE(m_list.SortItems(compare, static_cast<DWORD_PTR>(-1)));
    EXPECT_EQ(m_list.GetItemText(0, 0), L"gamma");
    EXPECT_EQ(m_list.GetItemText(2, 0), L"beta");
}

TEST_F(ListCtrl, PointsAreFoundInTheRectanglesOfTheirItems) {
    Fill({L"a", L"b", L"c"});
    CRect item;
    CRect sub;
    ASSERT_TRUE(m_list.GetItemRect(1, item, LVIR_BOUNDS));
    ASSERT_TRUE(m_list.GetSubItemRect(1, 1, LVIR_BOUNDS, sub));
    EXPECT_EQ(sub.left, item.left + 80) << "right of column 0";
    EXPECT_EQ(sub.Width(), 60);
    UINT nFlags = 0;
    EXPECT_EQ(m_list.HitTest(CPoint(item.left + 10, item.CenterPoint().y), &nFlags), 1);
    EXPECT_NE(nFlags & LVHT_ONITEM, 0U);
    EXPECT_EQ(m_list.HitTest(CPoint(10, 140)), -1);
    LVHITTESTINFO info = {};
    info.pt = sub.CenterPoint();
    EXPECT_EQ(m_list.SubItemHitTest(&info), 1);
    EXPECT_EQ(info.iSubItem, 1);
}

TEST_F(ListCtrl, ScrollsToAnItem) {
    for (int i = 0; i < 50; ++i)
        m_list.InsertItem(i, L"x");
    EXPECT_EQ(m_list.GetTopIndex(), 0);
    EXPECT_TRUE(m_list.EnsureVisible(49, FALSE));
    EXPECT_EQ(m_list.GetTopIndex(), 50 - m_list.GetCountPerPage());
}

TEST_F(ListCtrl, StylesAndColoursReturnWhatTheyReplace) {
    EXPECT_EQ(m_list.SetExtendedStyle(LVS_EX_FULLROWSELECT), 0U);
    EXPECT_EQ(m_list.SetExtendedStyle(m_list.GetExtendedStyle() | LVS_EX_GRIDLINES),
              static_cast<DWORD>(LVS_EX_FULLROWSELECT));
    EXPECT_EQ(m_list.GetExtendedStyle(), static_cast<DWORD>(LVS_EX_FULLROWSELECT | LVS_EX_GRIDLINES));
    EXPECT_TRUE(m_list.SetBkColor(RGB(1, 2, 3)));
    EXPECT_TRUE(m_list.SetTextColor(RGB(4, 5, 6)));
    EXPECT_TRUE(m_list.SetTextBkColor(CLR_NONE));
    EXPECT_EQ(m_list.GetBkColor(), RGB(1, 2, 3));
    EXPECT_EQ(m_list.GetTextColor(), RGB(4, 5, 6));
    EXPECT_EQ(m_list.GetTextBkColor(), CLR_NONE);
    m_list.SetExtendedStyle(LVS_EX_CHECKBOXES);
    Fill({L"a", L"b"});
    m_list.SetCheck(1);
    EXPECT_FALSE(m_list.GetCheck(0));
    EXPECT_TRUE(m_list.GetCheck(1));
    m_list.SetCheck(1, FALSE);
    EXPECT_FALSE(m_list.GetCheck(1));
}

TEST_F(ListCtrl, DestroysOnlyImageListsThatHaveNoOwner) {
    CImageList owned;
    owned.Create(16, 16, ILC_COLOR, 1, 1);
    owned.SetImageCount(2);
    EXPECT_EQ(m_list.SetImageList(&owned, LVSIL_SMALL), nullptr);
    EXPECT_EQ(m_list.GetImageList(LVSIL_SMALL), &owned);
    const HIMAGELIST hForeign = ::ImageList_Create(16, 16, ILC_COLOR, 1, 1);
    ::ImageList_SetImageCount(hForeign, 3);
    m_list.SetImageList(CImageList::FromHandle(hForeign), LVSIL_NORMAL);
    m_list.DestroyWindow();
    EXPECT_EQ(owned.GetImageCount(), 2);
    EXPECT_EQ(::ImageList_GetImageCount(hForeign), 0) << "gone with the control";
}

TEST_F(ListCtrl, EditsALabelInPlace) {
    m_list.ModifyStyle(0, LVS_EDITLABELS);
    Fill({L"a"});
    m_list.SetFocus();
    CEdit* pEdit = m_list.EditLabel(0);
    ASSERT_NE(pEdit, nullptr);
    EXPECT_EQ(m_list.GetEditControl()->GetSafeHwnd(), pEdit->GetSafeHwnd());
    CString strText;
    pEdit->GetWindowText(strText);
    EXPECT_EQ(strText, L"a");
}

// --- Reflection ------------------------------------------------------------------------------

class MarkingList : public CListCtrl {
public:
    std::vector<int> m_changed;
    std::vector<int> m_drawn;
    int m_nGestures = 0;

protected:
    afx_msg void OnCustomDraw(NMHDR* pNMHDR, LRESULT* pResult) {
        auto* pDraw = reinterpret_cast<NMLVCUSTOMDRAW*>(pNMHDR);
        *pResult = CDRF_DODEFAULT;
        if (pDraw->nmcd.dwDrawStage == CDDS_PREPAINT) {
            *pResult = CDRF_NOTIFYITEMDRAW;
        } else if (pDraw->nmcd.dwDrawStage == CDDS_ITEMPREPAINT) {
            m_drawn.push_back(static_cast<int>(pDraw->nmcd.dwItemSpec));
            pDraw->clrTextBk = RGB(0, 255, 255);
            *pResult = CDRF_NEWFONT;
        }
    }
    afx_msg void OnItemChanged(NMHDR* pNMHDR, LRESULT* pResult) {
        m_changed.push_back(reinterpret_cast<NMLISTVIEW*>(pNMHDR)->iItem);
        *pResult = 0;
    }
    afx_msg void OnGesture(NMHDR*, LRESULT* pResult) {
        ++m_nGestures;
        *pResult = 1;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(MarkingList, CListCtrl)
ON_NOTIFY_REFLECT(NM_CUSTOMDRAW, &MarkingList::OnCustomDraw)
ON_NOTIFY_REFLECT(LVN_ITEMCHANGED, &MarkingList::OnItemChanged)
ON_NOTIFY_REFLECT(NM_RECOGNIZEGESTURE, &MarkingList::OnGesture)
END_MESSAGE_MAP()

TEST(ListReflection, ControlHearsOfItsOwnDrawingAndChangesAndItsAnswerCounts) {
    fx::Frame frame;
    MarkingList list;
    ASSERT_TRUE(list.Create(REPORT | LVS_NOCOLUMNHEADER, CRect(0, 0, 180, 150), &frame, 1));
    list.InsertColumn(0, L"", LVCFMT_LEFT, 160);
    list.InsertItem(0, L"a");
    list.InsertItem(1, L"b");
    list.m_changed.clear();
    list.SetItemState(1, LVIS_SELECTED, LVIS_SELECTED);
    EXPECT_EQ(list.m_changed, (std::vector<int>{1}));
    list.SetItemState(1, 0, LVIS_SELECTED);
    list.m_drawn.clear();
    list.RedrawWindow();
    EXPECT_EQ(list.m_drawn, (std::vector<int>{0, 1}));
    CRect item;
    list.GetItemRect(1, item, LVIR_LABEL);
    CClientDC dc(&list);
    EXPECT_EQ(dc.GetPixel(item.right - 3, item.CenterPoint().y), RGB(0, 255, 255));
    NMHDR header = {list, 1, NM_RECOGNIZEGESTURE};
    EXPECT_EQ(frame.SendMessage(WM_NOTIFY, 1, reinterpret_cast<LPARAM>(&header)), 1);
    EXPECT_EQ(list.m_nGestures, 1);
}

TEST(ListReflection, OwnerDrawnListDrawsItsItemsItself) {
    class Drawer : public CListCtrl {
    public:
        std::vector<UINT> m_drawn;
        void DrawItem(LPDRAWITEMSTRUCT pDraw) override { m_drawn.push_back(pDraw->itemID); }
    };
    fx::Frame frame;
    Drawer list;
    ASSERT_TRUE(list.Create(REPORT | LVS_OWNERDRAWFIXED, CRect(0, 0, 180, 150), &frame, 1));
    list.InsertColumn(0, L"", LVCFMT_LEFT, 160);
    list.InsertItem(0, L"a");
    list.InsertItem(1, L"b");
    list.m_drawn.clear();
    list.RedrawWindow();
    EXPECT_EQ(list.m_drawn, (std::vector<UINT>{0, 1}));
}

} // namespace
