/// @file
/// Dialog templates built in memory, for dialogs that only a test has.
#pragma once

#include "afxwin.h"

#include <vector>

namespace testkit {

/// A dialog template with its controls, all in dialog units.
struct DialogTemplate {
    /// A popup without controls.
    explicit DialogTemplate(short cx = 100, short cy = 80, DWORD dwStyle = WS_POPUP | WS_VISIBLE | WS_CAPTION,
                            LPCTSTR pszTitle = L"") {
        Long(dwStyle);
        Long(0); // extended style
        Word(0); // number of controls
        Rect(0, 0, cx, cy);
        Word(0); // no menu
        Word(0); // the system's dialog class
        Text(pszTitle);
    }

    /// Adds a control, which is visible.
    DialogTemplate& Add(LPCTSTR pszClass, LPCTSTR pszText, int nID, DWORD dwStyle, short x, short y, short cx,
                        short cy) {
        if (m_words.size() % 2 != 0)
            Word(0); // each control begins on a double word
        Long(dwStyle | WS_CHILD | WS_VISIBLE);
        Long(0);
        Rect(x, y, cx, cy);
        Word(static_cast<WORD>(nID));
        Text(pszClass);
        Text(pszText);
        Word(0); // no creation data
        ++m_words[COUNT];
        return *this;
    }

    /// Adds a button or a field in the next free row, below each other.
    ///@{
    DialogTemplate& Button(int nID, LPCTSTR pszText = L"", DWORD dwStyle = BS_PUSHBUTTON | WS_TABSTOP) {
        return Add(WC_BUTTON, pszText, nID, dwStyle, 2, NextRow(), 40, 12);
    }
    DialogTemplate& Edit(int nID, DWORD dwStyle = ES_AUTOHSCROLL | WS_TABSTOP | WS_BORDER) {
        return Add(WC_EDIT, L"", nID, dwStyle, 2, NextRow(), 60, 12);
    }
    ///@}

    /// The template as the system wants it; valid as long as this object.
    LPCDLGTEMPLATE Get() const { return reinterpret_cast<LPCDLGTEMPLATE>(m_words.data()); }

private:
    static constexpr size_t COUNT = 4; ///< Place of the number of controls.

    short NextRow() { return static_cast<short>(2 + 14 * m_words[COUNT]); }
    void Word(WORD w) { m_words.push_back(w); }
    void Long(DWORD dw) {
        Word(LOWORD(dw));
        Word(HIWORD(dw));
    }
    void Rect(short x, short y, short cx, short cy) {
        for (const short n : {x, y, cx, cy})
            Word(static_cast<WORD>(n));
    }
    void Text(LPCTSTR psz) {
        do
            Word(static_cast<WORD>(*psz));
        while (*psz++ != 0);
    }

    std::vector<WORD> m_words;
};

/// A popup dialog from a template in memory, which must live as long as the dialog.
struct TemplateDialog : CDialog {
    /// Ready for DoModal().
    explicit TemplateDialog(const DialogTemplate& dialogTemplate, CWnd* pParentWnd = nullptr) {
        m_bFullScreen = FALSE;
        InitModalIndirect(dialogTemplate.Get(), pParentWnd);
    }
};

} // namespace testkit
