// Full-screen dialogs whose first field brings up the soft input panel while they open.
#include "support/TestApp.h"
#include "testkit/Colors.h"
#include "testkit/Picture.h"
#include "testkit/Panel.h"
#include "testkit/DialogTemplate.h"
#include "testkit/Script.h"

#include "controls/nComboBox.h"
#include "controls/nDialog.h"
#include "controls/nEdit.h"
#include "controls/nPropertyPage.h"
#include "controls/nPropertySheet.h"

using namespace testkit;

namespace {

constexpr int IDC_EDIT = 100, IDC_COMBO = 101;

/// The only control of a dialog.
struct Field {
    int nID;
    LPCTSTR pszClass;
    DWORD dwStyle;
};
constexpr Field EDIT = {IDC_EDIT, WC_EDIT, WS_BORDER}, COMBO = {IDC_COMBO, WC_COMBOBOX, CBS_DROPDOWN};
constexpr Field CHOICE = {IDC_COMBO, WC_COMBOBOX, CBS_DROPDOWNLIST};

/// A full-screen dialog with a surface of magenta.
struct FirstFieldDialog : CnDialog {
    /// When the fields are attached; the base class shows the dialog.
    enum Order { BeforeBase, AfterBase };

    explicit FirstFieldDialog(const Field& field, CWnd* pParent = nullptr, Order order = AfterBase)
        : CnDialog(0, pParent), m_order(order) {
        m_template.Add(field.pszClass, L"", field.nID, field.dwStyle | WS_TABSTOP, 2, 2, 60, 50);
        InitModalIndirect(m_template.Get(), pParent);
        SetBKColor(MAGENTA);
    }
    BOOL OnInitDialog() override {
        if (m_order == AfterBase)
            CnDialog::OnInitDialog();
        m_edit.Attach(IDC_EDIT, this, SipOptionMode0);
        m_combo.Attach(IDC_COMBO, this, SipOptionMode1);
        return m_order == AfterBase ? TRUE : CnDialog::OnInitDialog();
    }

private:
    Order m_order;
    DialogTemplate m_template{100, 80, WS_POPUP | WS_CAPTION};
    CnEdit m_edit;
    CnComboBox m_combo;
};

/// Whether the screen shows the panel in its place, and the dialog above it. What the system
/// says of its windows is not enough: it can be wrong.
bool PanelIsSeen() {
    if (!panel::IsVisible())
        return false;
    const CRect place = panel::Place();
    const Picture image = Picture::OfScreen();
    return image.Has(CRect(0, 0, place.right, place.top), MAGENTA) && !image.Has(place, MAGENTA);
}

/// Runs the steps and ends the dialog; the panel goes with the dialog's field.
void PlayWithPanel(CDialog& dialog, std::initializer_list<Step> steps) {
    PlayAndEnd(dialog, steps);
    panel::ExpectHidden();
}

TEST(PanelOverDialog, IsSeenWhenTheDialogOpensWithItsFieldFocused) {
    for (const Field& field : {EDIT, COMBO, CHOICE})
        for (const auto order : {FirstFieldDialog::BeforeBase, FirstFieldDialog::AfterBase}) {
            FirstFieldDialog dlg(field, nullptr, order);
            PlayWithPanel(dlg, {PanelIsSeen});
        }
}

TEST(PanelOverDialog, IsShownWhenASheetOpensWithItsFieldFocused) {
    struct Page : CnPropertyPage {
        Page() : CnPropertyPage(201) {}
        BOOL OnInitDialog() override {
            return CnPropertyPage::OnInitDialog(), m_edit.Attach(IDC_EDIT, this, SipOptionMode0), TRUE;
        }
        CnEdit m_edit; // attached last of all
    } page;
    CnPropertySheet sheet(1500, nullptr, 0); // any text of the library
    sheet.AddPage(&page);
    PlayAndEnd(sheet, {panel::IsVisible, [&] { EXPECT_EQ(Screen(), RectOf(sheet)); }});
}

TEST(PanelOverDialog, IsSeenOverASecondDialogAndAgainOverTheFirst) {
    FirstFieldDialog first(EDIT), second(COMBO, &first);
    PlayWithPanel(first,
                  {PanelIsSeen, [&] { second.DoModal(); }, PanelIsSeen, [&] { second.EndDialog(IDOK); },
                   [&] { return ::GetActiveWindow() == first.m_hWnd && PanelIsSeen(); }});
}

} // namespace
