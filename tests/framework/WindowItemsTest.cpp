// What a window does with its items, its descendants and the looks of its commands.
#include "support/TestApp.h"
#include "testkit/Form.h"

using namespace testkit;

namespace {

/// An entry of a dialog's initial data, as dialog editors write it.
std::string Entry(WORD nID, WORD nMessage, std::string_view text, DWORD dwMore = 0) {
    std::string bytes(8, '\0');
    const DWORD dwLength = static_cast<DWORD>(text.size()) + dwMore;
    ::memcpy(&bytes[0], &nID, 2);
    ::memcpy(&bytes[2], &nMessage, 2);
    ::memcpy(&bytes[4], &dwLength, 4);
    return bytes.append(text);
}

TEST(DialogData, FillsListsAndIsNeverReadBehindItsEnd) {
    const std::string list = Entry(5, 0x401, "a"), combo = Entry(6, 0x403, "b"), end(2, '\0');
    const Rows<const char*, std::string, BOOL, const char*> rows = {
        {"both", list + combo + end, TRUE, "1 1"},
        {"no end", combo + list, TRUE, "1 1"},
        {"more behind the end", list + Entry(0, 0, "") + combo, TRUE, "1 0"},
        {"another message", Entry(5, 0x1234, "x") + combo, TRUE, "0 1"},
        {"no text", list + Entry(6, 0x403, ""), TRUE, "1 1"},
        {"longer than it is", list + Entry(6, 0x403, "b", 1), FALSE, "1 0"},
        {"half a head", list + combo.substr(0, 7), TRUE, "1 0"},
    };
    for (const auto& [pszName, bytes, bDone, pszCounts] : rows) {
        Frame frame;
        const Child<CListBox> listBox(frame, 0, CRect(0, 0, 50, 50), 5);
        const Child<CComboBox> comboBox(frame, CBS_DROPDOWNLIST, CRect(0, 0, 50, 50), 6);
        const std::string exact(bytes); // of which a text without an end would show what is behind
        EXPECT_EQ(bDone, frame.ExecuteDlgInit(exact.data(), exact.size())) << pszName;
        EXPECT_EQ(pszCounts, std::to_string(listBox.GetCount()) + " " + std::to_string(comboBox.GetCount()))
            << pszName;
    }
    DialogTemplate dialogTemplate;
    dialogTemplate.Add(WC_LISTBOX, L"", 5, 0, 2, 2, 30, 30);
    CDialog dialog;
    dialog.m_bFullScreen = FALSE;
    ASSERT_TRUE(
        dialog.CreateIndirect(dialogTemplate.Get(), nullptr, const_cast<char*>((list + end).c_str())));
    EXPECT_EQ(1, static_cast<CListBox*>(dialog.GetDlgItem(5))->GetCount());
}

TEST(RadioButtons, TheCheckedOneOfARangeIsTheFirst) {
    Frame frame;
    const Child<CButton> first(frame, BS_RADIOBUTTON, CRect(), 5), last(frame, BS_RADIOBUTTON, CRect(), 6);
    EXPECT_EQ(0, frame.GetCheckedRadioButton(5, 6));
    frame.CheckRadioButton(5, 6, 6);
    EXPECT_EQ(6, frame.GetCheckedRadioButton(5, 6));
    EXPECT_EQ(0, frame.GetCheckedRadioButton(5, 5));
    frame.CheckDlgButton(5, BST_CHECKED);
    EXPECT_EQ(5, frame.GetCheckedRadioButton(5, 6));
}

TEST(Descendants, GetAMessageEachOrOnlyTheNextOnes) {
    Frame frame;
    Heard<Child<CStatic>> outer(frame), second(frame);
    Heard<Child<CButton>> inner(outer);
    std::string heard;
    const auto listen = [&](auto& wnd, char ch) {
        wnd.m_hear = [&heard, ch](UINT message, WPARAM wParam, LPARAM lParam) -> std::optional<LRESULT> {
            if (message == WM_APP)
                heard += ch + std::to_string(wParam) + std::to_string(lParam);
            return {};
        };
    };
    listen(outer, 'o');
    listen(inner, 'i');
    listen(second, 's');
    frame.SendMessageToDescendants(WM_APP, 1, 2);
    EXPECT_EQ("o12i12s12", heard);
    frame.SendMessageToDescendants(WM_APP, 3, 4, FALSE);
    EXPECT_EQ("o12i12s12o34s34", heard);
}

TEST(Descendants, ChildIsCentredInItsParentOrOnASibling) {
    Frame frame;
    const Child<CWnd> sibling(frame, 0, CRect(100, 110, 140, 130));
    Child<CWnd> child(frame, 0, CRect(0, 0, 20, 10));
    const auto place = [&] {
        CRect rect = RectOf(child);
        frame.ScreenToClient(rect);
        return rect;
    };
    child.CenterWindow();
    EXPECT_EQ(CRect(90, 95, 110, 105), place());
    child.CenterWindow(const_cast<Child<CWnd>*>(&sibling));
    EXPECT_EQ(CRect(110, 115, 130, 125), place());
    child.MoveWindow(CRect(1, 2, 31, 42));
    EXPECT_EQ(CRect(1, 2, 31, 42), place());
    CRect rect(0, 0, 5, 6);
    child.MapWindowPoints(&frame, rect);
    EXPECT_EQ(CRect(1, 2, 6, 8), rect);
}

TEST(ScrollLimit, LeavesRoomForThePage) {
    Frame frame(CSize(200, 200), WS_POPUP | WS_VSCROLL);
    Child<CScrollBar> bar(frame, SBS_HORZ);
    for (const auto& [nPage, nLimit] : {std::pair(0U, 100), {1U, 100}, {11U, 90}}) {
        SCROLLINFO info = {0, SIF_RANGE | SIF_PAGE, 0, 100, nPage, 0, 0}, own = info;
        frame.SetScrollInfo(SB_VERT, &info);
        bar.SetScrollInfo(&own);
        EXPECT_EQ(nLimit, frame.GetScrollLimit(SB_VERT)) << nPage;
        EXPECT_EQ(nLimit, bar.GetScrollLimit()) << nPage;
    }
    EXPECT_EQ(0, CWnd().GetScrollLimit(SB_VERT));
}

TEST(WindowRect, HasRoomForTheBorders) {
    Frame frame(CSize(200, 200), WS_POPUP | WS_CAPTION);
    frame.ModifyStyleEx(0, WS_EX_CLIENTEDGE);
    CRect whole(10, 20, 30, 40), inner(whole), expected(whole);
    ::AdjustWindowRectEx(expected, frame.GetStyle(), FALSE, WS_EX_CLIENTEDGE);
    frame.CalcWindowRect(whole, CWnd::adjustOutside);
    EXPECT_EQ(expected, whole);
    frame.CalcWindowRect(inner);
    EXPECT_GT(inner.left, whole.left) << "without the edge";
    EXPECT_LT(inner.left, 10);
}

TEST(CommandLook, ButtonWithoutAHandlerIsDisabledAndGivesTheFocusAway) {
    struct Dialog : fx::Form {
        BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pInfo) override {
            return nID == IDOK ? nCode == CN_COMMAND : Form::OnCmdMsg(nID, nCode, pExtra, pInfo);
        }
    } dialog;
    dialog.m_onInit = [&] {
        dialog.GetDlgItem(Dialog::DO)->SetFocus();
        dialog.UpdateDialogControls(&dialog, TRUE);
        EXPECT_FALSE(::IsWindowEnabled(dialog.Item(Dialog::DO)));
        EXPECT_NE(dialog.Item(Dialog::DO), ::GetFocus());
        EXPECT_TRUE(::IsWindowEnabled(dialog.Item(IDOK)));
        EXPECT_TRUE(::IsWindowEnabled(dialog.Item(Dialog::EDIT)));
        dialog.EndDialog(1);
    };
    dialog.DoModal();
}

/// A list that answers keys, with the key and the item.
struct KeyList : CListBox {
    int CharToItem(UINT nKey, UINT nIndex) override { return static_cast<int>(nKey * 10 + nIndex); }
    int VKeyToItem(UINT nKey, UINT nIndex) override { return static_cast<int>(nKey * 100 + nIndex); }
};

/// A bar that hears itself what its parent is told.
class HearingBar : public CScrollBar {
public:
    std::string m_heard;

protected:
    afx_msg void HScroll(UINT nCode, UINT nPos) { Note('h', nCode, nPos); }
    afx_msg void VScroll(UINT nCode, UINT nPos) { Note('v', nCode, nPos); }
    DECLARE_MESSAGE_MAP()

private:
    void Note(char ch, UINT nCode, UINT nPos) {
        m_heard += ch + std::to_string(nCode) + std::to_string(nPos);
    }
};

BEGIN_MESSAGE_MAP(HearingBar, CScrollBar)
ON_WM_HSCROLL_REFLECT()
ON_WM_VSCROLL_REFLECT()
END_MESSAGE_MAP()

TEST(Items, AnswerForTheirParent) {
    Frame frame;
    const Child<KeyList> keys(frame, LBS_WANTKEYBOARDINPUT);
    const Child<CListBox> plain(frame, LBS_WANTKEYBOARDINPUT);
    const Rows<UINT, const CWnd*, LRESULT> rows = {
        {WM_CHARTOITEM, &keys, 74},  {WM_VKEYTOITEM, &keys, 704}, {WM_CHARTOITEM, &plain, -1},
        {WM_VKEYTOITEM, &plain, -1}, {WM_CHARTOITEM, &frame, -1},
    };
    for (const auto& [message, pList, lAnswer] : rows)
        EXPECT_EQ(lAnswer,
                  frame.SendMessage(message, MAKEWPARAM(7, 4), reinterpret_cast<LPARAM>(pList->m_hWnd)));

    const Child<HearingBar> bar(frame);
    const auto scroll = [&](UINT message, HWND hBar) {
        frame.SendMessage(message, MAKEWPARAM(SB_THUMBTRACK, 9), reinterpret_cast<LPARAM>(hBar));
    };
    scroll(WM_HSCROLL, bar);
    scroll(WM_VSCROLL, bar);
    scroll(WM_HSCROLL, nullptr); // the window's own
    scroll(WM_VSCROLL, nullptr);
    EXPECT_EQ("h59v59", bar.m_heard);
}

TEST(Items, DrawnByTheirMenuAreMeasuredByIt) {
    struct Menu : CMenu {
        void MeasureItem(LPMEASUREITEMSTRUCT pItem) override { pItem->itemHeight = 33; }
    };
    std::optional<Menu> menu(std::in_place);
    ASSERT_TRUE(menu->CreatePopupMenu());
    const HMENU hMenu = *menu;
    menu->AppendMenu(MF_OWNERDRAW, 5, L"");
    Frame frame;
    for (const auto& [nID, nHeight] : {std::pair(5U, 33U), {6U, 0U}}) {
        MEASUREITEMSTRUCT item = {ODT_MENU, 0, nID, 0, 0, 0};
        frame.SendMessage(WM_MEASUREITEM, 0, reinterpret_cast<LPARAM>(&item));
        EXPECT_EQ(nHeight, item.itemHeight);
    }
    menu.reset();
    EXPECT_FALSE(::IsMenu(hMenu)) << "goes with its object";
}

TEST(Items, AreNotHeardWhileTheirValuesAreExchanged) {
    struct Dialog : Frame {
        int m_nHeard = 0;
        void DoDataExchange(CDataExchange*) override { Notify(*this, nullptr, 5, -50); }
        BOOL OnCmdMsg(UINT, int, void*, AFX_CMDHANDLERINFO*) override { return ++m_nHeard; }
    } dialog;
    EXPECT_TRUE(dialog.UpdateData(FALSE));
    EXPECT_EQ(0, dialog.m_nHeard);
    dialog.DoDataExchange(nullptr);
    EXPECT_EQ(1, dialog.m_nHeard);
}

TEST(Creation, FailsOnceMoreOrWhenItThrows) {
    struct Failing : Heard<CWnd> {
        Failing() {
            m_hear = [](UINT message, WPARAM, LPARAM) -> std::optional<LRESULT> {
                return message == WM_CREATE ? throw std::bad_alloc() : std::optional<LRESULT>();
            };
        }
    } failing;
    const MessageRecorder told;
    EXPECT_FALSE(failing.CreateEx(0, WC_STATIC, L"", WS_POPUP, CRect(), nullptr, 0));
    EXPECT_EQ(1U, told.m_prompts.size());
    EXPECT_EQ(nullptr, failing.m_hWnd);
    Frame frame;
    const HWND hWnd = frame;
    EXPECT_FALSE(frame.CreateEx(0, WC_STATIC, L"", WS_POPUP, CRect(), nullptr, 0));
    EXPECT_EQ(hWnd, frame.m_hWnd);
}

TEST(Relations, OwnerIsTheOneThatWasSetElseTheParent) {
    Frame frame, owner;
    Child<CWnd> child(frame);
    EXPECT_EQ(&frame, child.GetOwner());
    child.SetOwner(&owner);
    EXPECT_EQ(&owner, child.GetOwner());
    EXPECT_FALSE(frame.IsTopParentActive());
    EXPECT_TRUE(owner.IsTopParentActive());
    EXPECT_EQ(HWND_TOPMOST, CWnd::wndTopMost.m_hWnd);
    CFont font;
    ASSERT_TRUE(font.CreatePointFont(120, L""));
    child.SetFont(&font);
    EXPECT_EQ(&font, child.GetFont());
    child.SetFont(nullptr);
    EXPECT_EQ(nullptr, child.GetFont());
}

} // namespace
