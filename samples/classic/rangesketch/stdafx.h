// stdafx.h : what all sources of this program include
//

#pragma once

#define VC_EXTRALEAN

#include <afxwin.h>
#include <afxext.h>
#include <afxcmn.h>
#include <afxtempl.h>
#include <math.h>
