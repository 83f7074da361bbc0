/// @file
/// The framework's base: strings, run-time classes, exceptions, files and archives.
/// Needs no window system.
#pragma once

/// What programs ask for to see whether this header has been included.
#define __AFX_H__

#include "afxstr.h"
#include "afxobj_.h"
#include "afxerr_.h"
#include "afxfile_.h"
#include "afxarc_.h"
#include "afxtime_.h"
#include "afxstat_.h"
#include "afxstdio_.h"
#include "afxtry_.h"
#include "afxdump_.h"
