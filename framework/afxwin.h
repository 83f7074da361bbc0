/// @file
/// The window classes of the framework: applications, windows, dialogs, controls,
/// drawing. Include this first in a source file that deals with windows.
#pragma once

#include "afx.h"
#include "afxcoll.h"
#include "afxtempl.h"
#include "atltypes.h"

#ifndef _WIN32
#error "afxwin.h needs the Win32 API; natively only afx.h and the collections are available"
#endif

#include <commctrl.h>

// Drawing.
#include "afxgdi_.h"
#include "afxdc_.h"
#include "afxpdc_.h"
// Windows and their messages.
#include "afxres.h"
#include "afxmsg_.h"
#include "afxwnd_.h"
#include "afxcall_.h"
// Application and module.
#include "afxapp_.h"
// Dialogs.
#include "afxdd_.h"
#include "afxdlg_.h"
// Controls.
#include "afxbox_.h"
#include "afxctl_.h"
