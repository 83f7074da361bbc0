#include "testkit/Looks.h"

#include "testkit/detail/KeptFile.h"

#include <sstream>

namespace testkit {

namespace {

/// FNV-1a.
UINT SumOf(const Picture& picture) {
    UINT nSum = 2166136261U;
    for (int y = 0; y < picture.Size().cy; ++y)
        for (int x = 0; x < picture.Size().cx; ++x)
            nSum = (nSum ^ picture.At(x, y)) * 16777619U;
    return nSum;
}

} // namespace

Looks::Looks(const std::wstring& path) : m_path(path) {
    std::istringstream lines(detail::ReadKept(path));
    for (std::string name, sum; lines >> name >> sum;)
        m_kept[name] = sum;
}

Looks::~Looks() {
    std::string text;
    for (const auto& [name, sum] : m_now)
        text.append(name).append(1, ' ').append(sum).append(1, '\n');
    detail::WriteKept(detail::IsKeeping() ? m_path : detail::NameOfNow(m_path), text);
}

std::string Looks::Faults(const std::string& name, HWND hWnd) {
    ::HideCaret(nullptr);
    ::RedrawWindow(hWnd, nullptr, nullptr,
                   RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN | RDW_UPDATENOW);
    const HDC hDC = ::GetDCEx(hWnd, nullptr, DCX_WINDOW | DCX_CACHE); // with its controls
    const std::string sum = std::to_string(SumOf(Picture(hDC, RectOf(hWnd).Size())));
    ::ReleaseDC(hWnd, hDC);
    ::ShowCaret(nullptr);
    m_now[name] = sum;
    return detail::IsKeeping() || m_kept[name] == sum ? ""
                                                      : name + " does not look as in " + Utf8(m_path.c_str());
}

} // namespace testkit
