// The highlighted rows of a list view.
#include "support/TestApp.h"
#include "support/Colors.h"
#include "testkit/Picture.h"

#include "controls/SelectListCtrl.h"

using namespace testkit;

namespace {

constexpr COLORREF CYAN = RGB(0, 255, 255);
constexpr COLORREF RED = RGB(255, 0, 0);
constexpr int MARKED = 3, ROWS = 6;

struct MarkingList : CSelectListCtrl {
    DWORD GetItemAttribute(int nItem) override {
        // Other bits than the lowest have no meaning.
        return nItem == MARKED ? 0x1 : nItem == MARKED + 1 ? 0xFFFFFFFE : 0;
    }
};

struct SelectList : testing::Test {
    void Fill(CSelectListCtrl& list) {
        constexpr DWORD STYLE = WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_SINGLESEL;
        ASSERT_TRUE(list.Create(STYLE, CRect(0, 0, 200, 150), &m_frame, 1));
        list.SetTextColor(RED);
        list.InsertColumn(0, L"name", LVCFMT_LEFT, 80);
        list.InsertColumn(1, L"size", LVCFMT_LEFT, 60);
        for (int i = 0; i < ROWS; ++i) {
            list.InsertItem(i, L"H1");
            list.SetItemText(i, 1, L"H2");
        }
    }
    static CRect Cell(CSelectListCtrl& list, int nItem, int nColumn) {
        CRect rect;
        list.GetSubItemRect(nItem, nColumn, LVIR_LABEL, rect);
        return rect;
    }

    Frame m_frame;
};

TEST_F(SelectList, MarkedRowIsBlackOnCyanWithAllItsColumns) {
    MarkingList list;
    Fill(list);
    const auto image = Picture::Of(list);
    for (int nItem = 0; nItem < ROWS; ++nItem) {
        for (const int nColumn : {0, 1}) {
            const CRect cell = Cell(list, nItem, nColumn);
            EXPECT_EQ(image.Has(cell, CYAN), nItem == MARKED) << nItem << ' ' << nColumn;
            EXPECT_EQ(image.Has(cell, fx::BLACK), nItem == MARKED) << nItem << ' ' << nColumn;
            EXPECT_EQ(image.Has(cell, RED), nItem != MARKED) << nItem << ' ' << nColumn;
        }
    }
}

TEST_F(SelectList, AnswersEachStageOfDrawing) {
    MarkingList list;
    Fill(list);
    EXPECT_EQ(0U, list.CSelectListCtrl::GetItemAttribute(MARKED)) << "of itself it marks nothing";
    const Rows<DWORD, int, LRESULT, bool> rows = {
        {CDDS_PREPAINT, MARKED, 0x20, false}, {CDDS_ITEMPREPAINT, MARKED, 2, true},
        {CDDS_ITEMPREPAINT, 0, 2, false},     {CDDS_ITEMPREPAINT | CDDS_SUBITEM, MARKED, 2, false},
        {CDDS_POSTPAINT, MARKED, 0, false},   {CDDS_ITEMPOSTPAINT, MARKED, 0, false},
        {CDDS_PREERASE, MARKED, 0, false},
    };
    for (const auto& [dwStage, nItem, lResult, bColored] : rows) {
        NMLVCUSTOMDRAW draw = {};
        draw.nmcd.hdr = {list.m_hWnd, 1, static_cast<UINT>(NM_CUSTOMDRAW)};
        draw.nmcd.dwDrawStage = dwStage;
        draw.nmcd.dwItemSpec = static_cast<DWORD_PTR>(nItem);
        draw.clrText = draw.clrTextBk = RED;
        EXPECT_EQ(m_frame.SendMessage(WM_NOTIFY, 1, reinterpret_cast<LPARAM>(&draw)), lResult) << dwStage;
        EXPECT_EQ(draw.clrText, bColored ? fx::BLACK : RED) << dwStage;
        EXPECT_EQ(draw.clrTextBk, bColored ? CYAN : RED) << dwStage;
    }
}

} // namespace
