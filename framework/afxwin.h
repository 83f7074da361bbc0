/// @file
/// The window classes of the framework: applications, windows, dialogs, controls,
/// drawing. Include this first in a source file that deals with windows.
#pragma once

/// What programs ask for to see whether this header has been included.
#define __AFXWIN_H__

#include "afx.h"
#include "afxcoll.h"
#include "atlconv.h"
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
#include "afxcmd_.h"
#include "afxwndsys_.h"
#include "afxwndon_.h"
#include "afxwnd_.h"
#include "afxdpi_.h"
#include "afxmenu_.h"
#include "afxcall_.h"
// Application and module.
#include "afxapp_.h"
// Dialogs.
#include "afxdd_.h"
#include "afxdlg_.h"
// Controls.
#include "afxbox_.h"
#include "afxctl_.h"
// Lines of message maps.
#include "afxforms_.h"
#include "afxwm_.h"
#include "afxon_.h"
