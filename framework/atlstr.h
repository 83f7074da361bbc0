/// @file
/// The string as programs without windows include it: see afxstr.h and atlconv.h.
#pragma once

#include "afxstr.h"
#include "atlconv.h"
