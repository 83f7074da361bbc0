/// @file
/// One message to a control, with the kind of answer that it has. Included by afxwin.h.
#pragma once

#include "afxtypes.h"

// Pointers and handles travel in the arguments, the result and the data of items.
static_assert(sizeof(WPARAM) == sizeof(void*) && sizeof(LPARAM) == sizeof(void*) &&
              sizeof(LRESULT) == sizeof(void*) && sizeof(DWORD_PTR) == sizeof(void*) &&
              sizeof(LONG_PTR) == sizeof(void*));

/// Sends a message whose result is a number, an index or a flag.
inline int AfxSendInt(HWND hWnd, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    return static_cast<int>(::SendMessage(hWnd, message, wParam, lParam));
}

/// Sends a message whose lParam is a pointer.
inline int AfxSendPointer(HWND hWnd, UINT message, WPARAM wParam, const void* pParam) {
    return AfxSendInt(hWnd, message, wParam, reinterpret_cast<LPARAM>(pParam));
}

/// Sends a message whose result is a handle of the kind that lParam gives, or null.
template <class Handle>
Handle AfxSendHandle(HWND hWnd, UINT message, WPARAM wParam, Handle hParam) {
    return reinterpret_cast<Handle>(::SendMessage(hWnd, message, wParam, reinterpret_cast<LPARAM>(hParam)));
}
