/// @file
/// Start-up calls of programs that could hold controls of automation, which this framework does not.
#pragma once

/// What programs ask for to see whether this header has been included.
#define __AFXDISP_H__

#include "afxwin.h"

/// Nothing is to be done here.
inline void AfxEnableControlContainer() {}
/// Nothing is to be done here. @return TRUE
inline BOOL AfxOleInit() {
    return TRUE;
}
