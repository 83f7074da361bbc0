// What holds for each of the controls.
#include "support/DialogTemplate.h"
#include "support/Leftovers.h"
#include "support/ModalScript.h"

#include "controls/IconButton.h"
#include "controls/InfoStatic.h"
#include "controls/SelectListCtrl.h"
#include "controls/nComboBox.h"
#include "controls/nDialog.h"
#include "controls/nListBox.h"
#include "controls/nSpinButtonCtrl.h"
#include "controls/nTreeCtrl.h"
#include "survey/AngleEdit.h"

namespace {

constexpr int IDC_CONTROL = 100;
constexpr UINT WM_TEST = WM_APP + 1;

template <class Control>
constexpr LPCTSTR SYSTEM_CLASS = WC_EDIT;
template <>
constexpr LPCTSTR SYSTEM_CLASS<CnComboBox> = WC_COMBOBOX;
template <>
constexpr LPCTSTR SYSTEM_CLASS<CnListBox> = WC_LISTBOX;
template <>
constexpr LPCTSTR SYSTEM_CLASS<CnListCtrl> = WC_LISTVIEW;
template <>
constexpr LPCTSTR SYSTEM_CLASS<CSelectListCtrl> = WC_LISTVIEW;
template <>
constexpr LPCTSTR SYSTEM_CLASS<CnTreeCtrl> = WC_TREEVIEW;
template <>
constexpr LPCTSTR SYSTEM_CLASS<CnSpinButtonCtrl> = UPDOWN_CLASS;
template <>
constexpr LPCTSTR SYSTEM_CLASS<CIconButton> = WC_BUTTON;
template <>
constexpr LPCTSTR SYSTEM_CLASS<CInfoStatic> = WC_STATIC;

/// What an application does with a control: a virtual function and a message of its own.
template <class Base>
class Derived : public Base {
public:
    int m_nMessages = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        ++m_nMessages;
        return Base::WindowProc(message, wParam, lParam);
    }
    afx_msg LRESULT OnTest(WPARAM wParam, LPARAM) { return static_cast<LRESULT>(wParam) + 1; }

    static const AFX_MSGMAP* GetThisMessageMap() {
        static const AFX_MSGMAP_ENTRY entries[] = {
            ON_MESSAGE(WM_TEST, &Derived::OnTest){0, 0, 0, 0, nullptr, nullptr, nullptr}};
        static const AFX_MSGMAP map = {&Base::GetThisMessageMap, entries};
        return &map;
    }
    const AFX_MSGMAP* GetMessageMap() const override { return GetThisMessageMap(); }
};

template <class Control>
class EachControl : public testing::Test {};
using Controls = testing::Types<CnEdit, CnComboBox, CnListBox, CnListCtrl, CnTreeCtrl, CnSpinButtonCtrl,
                                CIconButton, CInfoStatic, CSelectListCtrl, CAngleEdit>;
TYPED_TEST_SUITE(EachControl, Controls);

TYPED_TEST(EachControl, CanBeDerivedFrom) {
    fx::Frame frame;
    ::CreateWindowEx(0, SYSTEM_CLASS<TypeParam>, nullptr, WS_CHILD | WS_VISIBLE, 5, 5, 100, 60, frame,
                     reinterpret_cast<HMENU>(static_cast<INT_PTR>(IDC_CONTROL)), nullptr, nullptr);
    Derived<TypeParam> control;
    ASSERT_TRUE(control.SubclassDlgItem(IDC_CONTROL, &frame));
    EXPECT_EQ(control.SendMessage(WM_TEST, 41), 42);
    EXPECT_EQ(control.m_nMessages, 1);
    // A press and its release pass through the base's map to the control and come back.
    control.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    control.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    EXPECT_NE(::GetCapture(), control.m_hWnd);
    frame.DestroyWindow();
    EXPECT_EQ(control.m_hWnd, nullptr);
}

/// A dialog with one of each.
class Dialog : public CnDialog {
public:
    Dialog() : CnDialog(0, nullptr), m_template(120, 120) {
        Add<CnEdit>(1);
        Add<CAngleEdit>(2);
        Add<CnComboBox>(3);
        Add<CnListBox>(4);
        Add<CSelectListCtrl>(5);
        Add<CnTreeCtrl>(6);
        Add<CnSpinButtonCtrl>(7);
        Add<CIconButton>(8, BS_OWNERDRAW);
        Add<CInfoStatic>(9);
        Add<CnListCtrl>(10);
        InitModalIndirect(m_template.Get(), nullptr);
        SetOption(OptionPopup);
    }

protected:
    BOOL OnInitDialog() override {
        CnDialog::OnInitDialog();
        EXPECT_TRUE(m_edit.Attach(1, this, SipOptionMode0));
        EXPECT_TRUE(m_angle.Attach(2, this, CAngleEdit::WHOLE_SECONDS, SipOptionMode1));
        EXPECT_TRUE(m_combo.Attach(3, this, SipOptionMode2));
        EXPECT_TRUE(m_listBox.SubclassDlgItem(4, this));
        EXPECT_TRUE(m_selectList.SubclassDlgItem(5, this));
        EXPECT_TRUE(m_tree.SubclassDlgItem(6, this));
        EXPECT_TRUE(m_spin.SubclassDlgItem(7, this));
        EXPECT_TRUE(m_button.Attach(8, this, ::LoadIcon(nullptr, IDI_INFORMATION), 7));
        EXPECT_TRUE(m_info.SubclassDlgItem(9, this));
        EXPECT_TRUE(m_list.SubclassDlgItem(10, this));
        m_info.SetOption(CInfoStatic::OptionIcon);
        m_angle.SetAngle(1.0);
        m_selectList.InsertItem(0, L"P1");
        m_list.InsertItem(0, L"P1");
        m_tree.InsertItem(L"P1");
        return TRUE;
    }

private:
    template <class Control>
    void Add(int nID, DWORD dwStyle = 0) {
        const auto y = static_cast<short>(nID * 11);
        m_template.Add(SYSTEM_CLASS<Control>, L"text", nID, dwStyle | WS_TABSTOP, 2, y, 80, 10);
    }

    fx::DialogTemplate m_template;
    CnEdit m_edit;
    CAngleEdit m_angle;
    CnComboBox m_combo;
    CnListBox m_listBox;
    CSelectListCtrl m_selectList;
    CnTreeCtrl m_tree;
    CnSpinButtonCtrl m_spin;
    CIconButton m_button;
    CInfoStatic m_info;
    CnListCtrl m_list;
};

TEST(AllControls, TwoHundredOpensLeaveNothing) {
    fx::ExpectNothingLeft([] {
        Dialog dlg;
        fx::ModalScript script;
        script.Then([&] {
            for (int nID = 1; nID <= 10; ++nID)
                dlg.GotoDlgCtrl(dlg.GetDlgItem(nID)); // panels come and go
            dlg.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN | RDW_UPDATENOW);
            dlg.EndDialog(IDOK);
        });
        EXPECT_EQ(script.Run([&] { return dlg.DoModal(); }), IDOK);
    });
}

} // namespace
