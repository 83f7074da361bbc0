// Controls that their owner draws.
#pragma once

#include "afxcmn.h"

#include <memory>

namespace fieldkit::detail {

/// Lets a control draw what its parent has been asked to draw.
/// @return whether the message was that question
template <class Control>
bool DrawnByOwner(Control& control, UINT message, LPARAM lParam) {
    if (message != WM_DRAWITEM)
        return false;
    control.DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return true;
}

/// The control's image list, or what it had before one was set.
inline CImageList* ExchangeImages(HWND hWnd, UINT message, const CImageList* pImageList = nullptr) {
    const HIMAGELIST hImages = pImageList != nullptr ? pImageList->m_hImageList : nullptr;
    return CImageList::FromHandle(AfxSendHandle(hWnd, message, 0, hImages));
}

/// A new object for a list that a control has made; null for null.
inline CImageList* OwnedImages(HIMAGELIST hImages) {
    if (hImages == nullptr)
        return nullptr;
    auto pImages = std::make_unique<CImageList>();
    pImages->Attach(hImages);
    return pImages.release();
}

/// The window that a control gives as the answer to a message.
template <class Window>
Window* AskForWindow(HWND hWnd, UINT message, WPARAM wParam = 0) {
    return static_cast<Window*>(CWnd::FromHandle(AfxSendHandle(hWnd, message, wParam, HWND())));
}

} // namespace fieldkit::detail
