/// @file
/// What programs include for WM_KICKIDLE and its like, and for the conversion macros.
#pragma once

#include "afxwin.h"
#include "atlconv.h"
