// A drawing object selected for a time.
#pragma once

#include "afxwin.h"

namespace fieldkit::detail {

/// Gives the context back what it had, so that the object can be deleted, whatever is thrown.
class CSelectScope {
public:
    CSelectScope(CDC& dc, HGDIOBJ hObject) : m_hDC(dc.m_hDC), m_hOld(::SelectObject(m_hDC, hObject)) {}
    ~CSelectScope() { ::SelectObject(m_hDC, m_hOld); }
    CSelectScope(const CSelectScope&) = delete;
    CSelectScope& operator=(const CSelectScope&) = delete;

private:
    HDC m_hDC;
    HGDIOBJ m_hOld;
};

} // namespace fieldkit::detail
