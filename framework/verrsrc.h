/// @file
/// What newer resource scripts include for their version.
#pragma once

#ifndef RC_INVOKED
#include <windows.h>
#endif
#include <winver.h>
