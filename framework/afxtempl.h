/// @file
/// The collection templates CArray, CList and CMap.
#pragma once

#include "afxarray_.h"
#include "afxlist_.h"
#include "afxmap_.h"
