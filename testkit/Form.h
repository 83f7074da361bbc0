/// @file
/// A dialog that does what a test tells it: for a control or a handler that needs a dialog around it.
///
///     Form form;
///     form.m_onInit = [&] { field.SubclassDlgItem(Form::FIELD, &form); };
///     form.m_onDo = [&] { text = field.GetText(); };
///     Play(form, {[] { TypeText(L"12.5"); },
///                 [&] { form.SendDo(); }});
#pragma once

#include "testkit/DialogTemplate.h"
#include "testkit/Script.h"

namespace testkit {

/// A popup with two fields and two buttons. Functions that are not set do nothing.
struct Form : TemplateDialog {
    static constexpr int EDIT = 10, FIELD = 11;
    static constexpr int DO = 12; ///< A button; IDOK is the default one.

    /// Ready for DoModal() and the functions of testkit/Script.h.
    explicit Form(CWnd* pParentWnd = nullptr) : TemplateDialog(s_template, pParentWnd) {}

    std::function<void()> m_onInit;                 ///< After that of CDialog.
    std::function<void()> m_onDo;                   ///< When DO has been pressed.
    std::function<void()> m_onOk;                   ///< Instead of the end.
    std::function<void(UINT, WPARAM)> m_onMessage;  ///< Before the window has it.
    std::function<bool(const MSG&)> m_preTranslate; ///< True takes the message away.

    /// The window of a control; null before and after the dialog.
    HWND Item(int nID) const { return ::GetDlgItem(m_hWnd, nID); }
    /// Presses DO when the message loop comes to it, or at once.
    void PostDo() { PostMessage(WM_COMMAND, DO); }
    void SendDo() { SendMessage(WM_COMMAND, DO); }

    BOOL OnInitDialog() override {
        CDialog::OnInitDialog();
        if (m_onInit)
            m_onInit();
        return TRUE;
    }
    BOOL PreTranslateMessage(MSG* pMsg) override {
        return (m_preTranslate && m_preTranslate(*pMsg)) || CDialog::PreTranslateMessage(pMsg);
    }

protected:
    void OnOK() override { m_onOk ? m_onOk() : CDialog::OnOK(); }
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
        const BOOL bDone = CDialog::OnCommand(wParam, lParam);
        if (bDone || LOWORD(wParam) != DO || !m_onDo)
            return bDone;
        m_onDo();
        return TRUE;
    }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (m_onMessage)
            m_onMessage(message, wParam);
        return CDialog::WindowProc(message, wParam, lParam);
    }

private:
    static inline const DialogTemplate s_template = DialogTemplate(100, 80)
                                                        .Edit(EDIT)
                                                        .Edit(FIELD)
                                                        .Button(IDOK, L"&ok", BS_DEFPUSHBUTTON | WS_TABSTOP)
                                                        .Button(DO);
};

} // namespace testkit
