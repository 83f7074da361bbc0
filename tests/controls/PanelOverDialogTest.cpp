// Full-screen dialogs whose first field brings up the soft input panel while they open.
#include "Pixels.h"
#include "support/Stage.h"
#include "support/DialogTemplate.h"
#include "support/ModalScript.h"

#include "controls/nComboBox.h"
#include "controls/nDialog.h"
#include "controls/nEdit.h"
#include "controls/nPropertyPage.h"
#include "controls/nPropertySheet.h"

namespace {

constexpr int IDC_EDIT = 100;
constexpr int IDC_COMBO = 101;

/// Gives a dialog its only field.
using AddField = void (*)(fx::DialogTemplate&);

void AddEdit(fx::DialogTemplate& dialogTemplate) {
    dialogTemplate.Edit(IDC_EDIT);
}
void AddCombo(fx::DialogTemplate& dialogTemplate) {
    dialogTemplate.Add(WC_COMBOBOX, L"", IDC_COMBO, CBS_DROPDOWN | WS_TABSTOP, 2, 2, 60, 120);
}
void AddChoice(fx::DialogTemplate& dialogTemplate) {
    dialogTemplate.Add(WC_COMBOBOX, L"", IDC_COMBO, CBS_DROPDOWNLIST | WS_TABSTOP, 2, 2, 60, 50);
}

/// A full-screen dialog with a surface of magenta.
class FirstFieldDialog : public CnDialog {
public:
    /// When the fields are attached; the base class shows the dialog.
    enum Order { BeforeBase, AfterBase };

    explicit FirstFieldDialog(AddField addField, CWnd* pParent = nullptr, Order order = AfterBase)
        : CnDialog(0, pParent), m_order(order) {
        addField(m_template);
        InitModalIndirect(m_template.Get(), pParent);
        SetBKColor(fx::MAGENTA);
    }
    BOOL OnInitDialog() override {
        if (m_order == AfterBase)
            CnDialog::OnInitDialog();
        m_edit.Attach(IDC_EDIT, this, SipOptionMode0);
        m_combo.Attach(IDC_COMBO, this, SipOptionMode1);
        return m_order == AfterBase ? TRUE : CnDialog::OnInitDialog();
    }

    CnComboBox m_combo;

private:
    Order m_order;
    fx::DialogTemplate m_template{100, 80, WS_POPUP | WS_CAPTION};
    CnEdit m_edit;
};

/// Whether the screen shows the panel in its place, and the dialog above it. What the system
/// says of its windows is not enough: it can be wrong.
bool PanelIsSeen() {
    if (!fx::PanelIsVisible())
        return false;
    CRect place;
    ::GetWindowRect(::FindWindow(L"TesuvoInputPanel", nullptr), place);
    CWindowDC screen(nullptr);
    const fx::Image image(screen, CSize(place.right, place.bottom));
    return image.Has(CRect(0, 0, place.right, place.top), fx::MAGENTA) && !image.Has(place, fx::MAGENTA);
}

/// Runs the dialog with the script; the panel goes with the dialog's field.
void RunDialog(CDialog& dialog, fx::ModalScript& script) {
    script.Then([&] { dialog.EndDialog(IDOK); });
    EXPECT_EQ(script.Run([&] { return dialog.DoModal(); }), IDOK);
    EXPECT_TRUE(fx::WaitFor([] { return !fx::PanelIsVisible(); }));
}

TEST(PanelOverDialog, IsSeenWhenTheDialogOpensWithItsFieldFocused) {
    for (const AddField addField : {AddEdit, AddCombo, AddChoice}) {
        for (const auto order : {FirstFieldDialog::BeforeBase, FirstFieldDialog::AfterBase}) {
            FirstFieldDialog dlg(addField, nullptr, order);
            fx::ModalScript script;
            script.Until(PanelIsSeen);
            RunDialog(dlg, script);
        }
    }
}

/// A page whose first field is attached last of all.
class FirstFieldPage : public CnPropertyPage {
public:
    FirstFieldPage() : CnPropertyPage(201) {}

protected:
    BOOL OnInitDialog() override {
        CnPropertyPage::OnInitDialog();
        m_edit.Attach(IDC_EDIT, this, SipOptionMode0);
        return TRUE;
    }

private:
    CnEdit m_edit;
};

TEST(PanelOverDialog, IsShownWhenASheetOpensWithItsFieldFocused) {
    FirstFieldPage page;
    CnPropertySheet sheet(L"設定", nullptr, 0);
    sheet.AddPage(&page);
    fx::ModalScript script;
    script.Until(fx::PanelIsVisible).Then([&] { sheet.EndDialog(IDOK); });
    EXPECT_EQ(script.Run([&] { return sheet.DoModal(); }), IDOK);
}

TEST(PanelOverDialog, IsSeenOverASecondDialogAndAgainOverTheFirst) {
    FirstFieldDialog first(AddEdit);
    FirstFieldDialog second(AddCombo, &first);
    fx::ModalScript script;
    script.Until(PanelIsSeen)
        .Then([&] { second.DoModal(); })
        .Until(PanelIsSeen)
        .Then([&] { second.EndDialog(IDOK); })
        .Until([&] { return ::GetActiveWindow() == first.m_hWnd && PanelIsSeen(); });
    RunDialog(first, script);
}

TEST(PanelOverDialog, StaysBelowTheListThatDropsOverIt) {
    FirstFieldDialog dlg(AddCombo);
    COMBOBOXINFO info = {};
    info.cbSize = sizeof info;
    CRect list;
    ULONGLONG nDropped = 0;
    fx::ModalScript script;
    script.Until(PanelIsSeen)
        .Then([&] {
            for (int i = 0; i < 20; ++i)
                dlg.m_combo.AddString(L"測点");
            dlg.m_combo.ShowDropDown();
            ::GetComboBoxInfo(dlg.m_combo, &info);
            ::GetWindowRect(info.hwndList, list);
            nDropped = ::GetTickCount64();
        })
        .Until([&] { return ::GetTickCount64() > nDropped + 300; })
        .Then([&] {
            CRect panel;
            ::GetWindowRect(::FindWindow(L"TesuvoInputPanel", nullptr), panel);
            ASSERT_GT(list.bottom, panel.top + 4);
            EXPECT_EQ(::WindowFromPoint(CPoint(list.left + 4, panel.top + 4)), info.hwndList);
        });
    RunDialog(dlg, script);
}

} // namespace
