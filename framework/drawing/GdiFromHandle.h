// The C++ object of a drawing object's handle, as a given class.
#pragma once

#include "window/ThreadState.h"

namespace fieldkit::detail {

/// The owner of the handle, else a temporary object of class Object. Null for null.
template <class Object>
Object* GdiFromHandle(HGDIOBJ hObject) {
    CThreadState& state = CThreadState::Get();
    return static_cast<Object*>(
        state.m_gdiObjects.FromHandle(hObject, state.m_nModalDepth, [] { return new Object; }));
}

} // namespace fieldkit::detail
