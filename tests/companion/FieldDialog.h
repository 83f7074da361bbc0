// A dialog with fields that bring up the soft input panel.
#pragma once

#include "support/PanelKeys.h"
#include "testkit/DialogTemplate.h"
#include "testkit/Script.h"

#include "controls/nDialog.h"

namespace fx {

struct FieldDialog : CnDialog {
    static constexpr int OTHER = 30; ///< A button.

    /// @param window place on the screen; empty for a full-screen dialog
    /// @param tops   upper edges of the fields, in pixels
    FieldDialog(CRect window, std::vector<int> tops, CWnd* pParent = nullptr)
        : CnDialog(0, pParent), m_home(window), m_tops(std::move(tops)) {
        InitModalIndirect(s_template.Get());
        if (!window.IsRectEmpty())
            SetOption(OptionPopup);
    }

    BOOL OnInitDialog() override {
        CnDialog::OnInitDialog();
        if (!m_bFullScreen)
            MoveWindow(m_home);
        for (size_t i = 0; i < m_tops.size(); ++i)
            m_fields[i].Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(10, m_tops[i], 150, m_tops[i] + 20),
                               this, static_cast<UINT>(10 + i));
        m_other.Create(L"", WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(160, 5, 200, 25), this, OTHER);
        m_other.SetFocus();
        ShowWindow(SW_SHOW);
        return FALSE;
    }

    CRect WindowRect() const { return RectOf(m_hWnd); }
    CRect FieldRect(int nField) const { return RectOf(m_fields[nField]); }
    /// Whether the panel is there and the field stands clear of it, inside the dialog.
    bool IsClear(int nField) const {
        const CRect field = FieldRect(nField);
        CRect client;
        GetClientRect(client);
        ClientToScreen(client);
        return panel::IsVisible() && field.bottom <= panel::Place().top && field.top >= client.top;
    }

    // Steps of a script.
    Step Enter(int nField) {
        return [this, nField] { m_fields[nField].SetFocus(); };
    }
    Step Leave() {
        return [this] { m_other.SetFocus(); };
    }
    Step UntilClear(int nField) {
        return [this, nField] { return IsClear(nField); };
    }
    Step UntilHome() {
        return [this] { return WindowRect() == m_home; };
    }
    /// Runs the steps, ends the dialog and closes the panel.
    void Run(std::initializer_list<Step> steps) {
        PlayAndEnd(*this, steps);
        panel::Close();
    }

    const CRect m_home;
    PanelField m_fields[3];
    CButton m_other;

private:
    static inline const DialogTemplate s_template{100, 80, WS_POPUP | WS_CAPTION};

    std::vector<int> m_tops;
};

} // namespace fx
