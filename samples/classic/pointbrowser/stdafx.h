// stdafx.h : what all sources of this program include
//

#if !defined(AFX_STDAFX_H__8E0B7D10_14C6_4B2D_8E15_6B3D8F4A2201__INCLUDED_)
#define AFX_STDAFX_H__8E0B7D10_14C6_4B2D_8E15_6B3D8F4A2201__INCLUDED_

#pragma once

#define VC_EXTRALEAN

#include <afxwin.h>
#include <afxext.h>
#include <afxdisp.h>
#include <afxcmn.h>
#include <afxdlgs.h>
#include <afxcoll.h>
#include <afxtempl.h>

#endif
