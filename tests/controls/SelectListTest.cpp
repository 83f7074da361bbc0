// The highlighted rows of a list view.
#include "support/TestApp.h"
#include "testkit/Colors.h"

#include "controls/SelectListCtrl.h"

using namespace testkit;

namespace {

constexpr COLORREF CYAN = RGB(0, 255, 255);
constexpr int MARKED = 3;

struct MarkingList : CSelectListCtrl {
    DWORD GetItemAttribute(int nItem) override {
        // Other bits than the lowest have no meaning.
        return nItem == MARKED ? 0x1 : nItem == MARKED + 1 ? 0xFFFFFFFE : 0;
    }
};

TEST(SelectList, MarkedRowIsBlackOnCyanAtItsStageOfDrawing) {
    Frame frame;
    MarkingList list;
    ASSERT_TRUE(list.Create(WS_CHILD | WS_VISIBLE | LVS_REPORT, CRect(0, 0, 200, 150), &frame, 1));
    EXPECT_EQ(0U, list.CSelectListCtrl::GetItemAttribute(MARKED)) << "of itself it marks nothing";
    const Rows<DWORD, int, LRESULT, bool> rows = {
        {CDDS_PREPAINT, MARKED, 0x20, false}, {CDDS_ITEMPREPAINT, MARKED, 2, true},
        {CDDS_ITEMPREPAINT, 0, 2, false},     {CDDS_ITEMPREPAINT | CDDS_SUBITEM, MARKED, 2, false},
        {CDDS_POSTPAINT, MARKED, 0, false},   {CDDS_ITEMPOSTPAINT, MARKED, 0, false},
        {CDDS_PREERASE, MARKED, 0, false},    {CDDS_ITEMPREPAINT, MARKED + 1, 2, false},
    };
    for (const auto& [dwStage, nItem, lResult, bColored] : rows) {
        NMLVCUSTOMDRAW draw = {};
        draw.nmcd.hdr = {list.m_hWnd, 1, static_cast<UINT>(NM_CUSTOMDRAW)};
        draw.nmcd.dwDrawStage = dwStage;
        draw.nmcd.dwItemSpec = static_cast<DWORD_PTR>(nItem);
        draw.clrText = draw.clrTextBk = RED;
        EXPECT_EQ(frame.SendMessage(WM_NOTIFY, 1, reinterpret_cast<LPARAM>(&draw)), lResult) << dwStage;
        EXPECT_EQ(draw.clrText, bColored ? BLACK : RED) << dwStage;
        EXPECT_EQ(draw.clrTextBk, bColored ? CYAN : RED) << dwStage;
    }
}

} // namespace
