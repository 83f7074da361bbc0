/// @file
/// The oldest system that these headers speak of. Programs name the one that they were made for, often an
/// older one, in which case the system's headers would leave out what is used here. Included by afxtypes.h
/// in front of the system's headers. Only macros: the resource compiler reads this too.
#pragma once

// Windows 7 at least.
#if defined(WINVER) && WINVER < 0x0601
#undef WINVER
#define WINVER 0x0601
#endif
#if defined(_WIN32_WINNT) && _WIN32_WINNT < 0x0601
#undef _WIN32_WINNT
#define _WIN32_WINNT 0x0601
#endif
#if defined(_WIN32_IE) && _WIN32_IE < 0x0800
#undef _WIN32_IE
#define _WIN32_IE 0x0800
#endif
#if defined(NTDDI_VERSION) && NTDDI_VERSION < 0x06010000
#undef NTDDI_VERSION
#define NTDDI_VERSION 0x06010000
#endif
