/// @file
/// For the one source file of an extension DLL that holds its DllMain: brings in what
/// the start-up needs. The DLL keeps a static AFX_EXTENSION_MODULE, and calls
/// AfxInitExtensionModule and `new CDynLinkLibrary` when it is loaded and
/// AfxTermExtensionModule when it is unloaded.
#pragma once

#include "afxwin.h"
