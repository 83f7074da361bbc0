/// @file
/// The device contexts of windows. Included by afxwin.h.
#pragma once

#include "afxdc_.h"

/// What a WM_PAINT handler draws on: begins painting, and ends it in the destructor.
class AFX_CORE CPaintDC : public CDC {
    DECLARE_DYNAMIC(CPaintDC)
public:
    /// @throw CResourceException* if the system refuses
    explicit CPaintDC(CWnd* pWnd);
    ~CPaintDC() override;

    PAINTSTRUCT m_ps = {}; ///< What BeginPaint told: the rectangle to paint among others.

protected:
    HWND m_hWnd; ///< The window.
};

/// The client area of a window; released in the destructor.
class AFX_CORE CClientDC : public CDC {
    DECLARE_DYNAMIC(CClientDC)
public:
    /// @param pWnd null is the screen
    /// @throw CResourceException* if the system refuses
    explicit CClientDC(CWnd* pWnd);
    ~CClientDC() override;

protected:
    HWND m_hWnd; ///< The window; null for the screen.
};

/// A window with its frame; released in the destructor.
class AFX_CORE CWindowDC : public CDC {
    DECLARE_DYNAMIC(CWindowDC)
public:
    /// @param pWnd null is the screen
    /// @throw CResourceException* if the system refuses
    explicit CWindowDC(CWnd* pWnd);
    ~CWindowDC() override;

protected:
    HWND m_hWnd; ///< The window; null for the screen.
};
