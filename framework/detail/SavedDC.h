#pragma once

#include "afxwin.h"

namespace fieldkit::detail {

/// Gives a device context back with the attributes and the objects that it had.
class SavedDC {
public:
    explicit SavedDC(CDC& dc) : m_dc(dc), m_nSaved(dc.SaveDC()) {}
    ~SavedDC() { m_dc.RestoreDC(m_nSaved); }
    SavedDC(const SavedDC&) = delete;
    SavedDC& operator=(const SavedDC&) = delete;

private:
    CDC& m_dc;
    int m_nSaved;
};

} // namespace fieldkit::detail
