#pragma once

#include "afxwin.h"

/// Gives a device context back as it was: pens, brushes and fonts are deleted only when they are no
/// longer selected.
class CKeepState {
public:
    explicit CKeepState(CDC& dc) : m_dc(dc), m_nSaved(dc.SaveDC()) {}
    ~CKeepState() { m_dc.RestoreDC(m_nSaved); }
    CKeepState(const CKeepState&) = delete;
    CKeepState& operator=(const CKeepState&) = delete;

private:
    CDC& m_dc;
    int m_nSaved;
};
