/// @file
/// The collection templates: CArray, CList, CMap and the typed pointer collections.
#pragma once

#include "afxarray_.h"
#include "afxlist_.h"
#include "afxmap_.h"
#include "afxtyped_.h"
