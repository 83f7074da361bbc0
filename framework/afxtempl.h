/// @file
/// The collection templates: CArray, CList, CMap and the typed pointer collections.
#pragma once

/// What programs ask for to see whether this header has been included.
#define __AFXTEMPL_H__

#include "afxarray_.h"
#include "afxlist_.h"
#include "afxmap_.h"
#include "afxtyped_.h"
