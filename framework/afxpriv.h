/// @file
/// What programs include for WM_KICKIDLE and its like, and for the conversion macros.
#pragma once

/// What programs ask for to see whether this header has been included.
#define __AFXPRIV_H__

#include "afxwin.h"
#include "atlconv.h"
