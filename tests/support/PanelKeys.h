// Places on the soft input panel, for who tests the panel itself.
#pragma once

#include "support/TestApp.h"
#include "testkit/Panel.h"
#include "testkit/Pen.h"

#include "Tesuvo.h"

namespace fx {

inline void PumpFor(DWORD nMilliseconds) {
    testkit::PumpUntil([] { return false; }, nMilliseconds);
}

/// An entry field that brings up the panel.
struct PanelField : CEdit {
    int m_nMode = 0;

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override {
        if (message == WM_COMMAND && HIWORD(wParam) == EN_SETFOCUS)
            TVShowSIP(m_nMode);
        if (message == WM_COMMAND && HIWORD(wParam) == EN_KILLFOCUS)
            TVCloseSIP();
        return CEdit::OnChildNotify(message, wParam, lParam, pResult);
    }
};

/// A point of the screen on one of the panel's rows.
/// @param nRows how many rows there are
/// @param x     pixels from the left edge
inline CPoint PanelAt(int nRow, int nRows, int x) {
    const CRect place = testkit::panel::Place();
    return {place.left + x, place.top + place.Height() * (2 * nRow + 1) / (2 * nRows)};
}

/// A window with a field to type into, and the panel with its letters.
struct PanelTest : testing::Test {
    PanelTest() {
        m_field.Create(WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL, CRect(0, 0, 150, 20), &m_frame, 10);
        m_field.SetFocus();
        TVShowSIP(0);
        Pump();
    }
    ~PanelTest() override { testkit::panel::Close(); }

    Frame m_frame;
    CEdit m_field;
};

// Keys that do something, of the letters and of the kana.
inline CPoint ShiftKey() {
    return PanelAt(3, 5, 18);
}
inline CPoint BackspaceKey() {
    return PanelAt(3, 5, 222);
}
inline CPoint NextKey() {
    return PanelAt(4, 5, 45);
}
inline CPoint EnterKey() {
    return PanelAt(4, 5, 212);
}
inline CPoint ScriptKey() {
    return PanelAt(5, 6, 45);
}

} // namespace fx
