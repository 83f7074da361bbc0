/// @file
/// Exceptions end where the system calls the program: its frames know nothing of them. Included by
/// afxwin.h.
#pragma once

#include "afx.h"

#include <exception>
#include <new>

/// Deals with an exception that nobody has caught: CWinThread::ProcessWndProcException of the
/// calling thread, which tells the user. The exception is deleted. Never throws.
/// @param pMsg the message that was being handled
/// @return what the window procedure answers: -1 for WM_CREATE, else 0
AFX_CORE LRESULT AFXAPI AfxProcessException(CException* e, const MSG* pMsg) noexcept;
/// The same for an exception of the standard library.
/// @param pszWhat its text; null if memory has run out
AFX_CORE LRESULT AFXAPI AfxProcessStdException(const char* pszWhat, const MSG* pMsg) noexcept;

/// Calls a function on behalf of the system: no exception leaves it.
/// @param msg the message that is being handled
/// @return what the function returned; after an exception what AfxProcessException says
template <class Function>
LRESULT AfxCallGuarded(const MSG& msg, Function function) noexcept {
    try {
        return function();
    } catch (CException* e) {
        return AfxProcessException(e, &msg);
    } catch (const std::bad_alloc&) {
        return AfxProcessStdException(nullptr, &msg);
    } catch (const std::exception& e) {
        return AfxProcessStdException(e.what(), &msg);
    } catch (...) {
        return AfxProcessStdException("", &msg);
    }
}

/// Makes a failing `new` of the calling module throw a CMemoryException, as applications expect of
/// the framework. Each module has its own C++ runtime, so each calls it when it starts.
inline void AfxInstallNewHandler() noexcept {
    std::set_new_handler([] { AfxThrowMemoryException(); });
}
