/// @file
/// The resolution of screens. Included by afxwin.h.
#pragma once

#include "atltypes.h"

/// The resolution for which sizes in pixels are stated, in programs and in their documentation.
constexpr int AFX_DESIGN_DPI = 96;

/// Pixels per inch at which a window shows itself: those of its monitor where the system tells
/// them for each, else those of the whole screen. A system that stretches the windows of a
/// program by itself, because its manifest does not say that it knows of resolutions, tells 96.
/// @param hWnd null, or a window that is gone, stands for the primary screen
/// @return from 72 to 960, whatever the system says
AFX_CORE int AFXAPI AfxGetDpi(HWND hWnd);

/// A length that is stated for AFX_DESIGN_DPI in the pixels of a window, rounded.
/// @param hWnd as for AfxGetDpi
AFX_CORE int AFXAPI AfxScale(HWND hWnd, int nPixels);

/// What the system's own bars leave of the monitor that a window stands on.
/// @param hWnd as for AfxGetDpi
AFX_CORE CRect AFXAPI AfxGetWorkArea(HWND hWnd);
