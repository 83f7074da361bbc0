#include "testkit/Picture.h"

#include "testkit/detail/Png.h"

#include <algorithm>
#include <cstdio>
#include <optional>

namespace testkit {

namespace {

constexpr int kMostPictures = 20; // of a program that fails everywhere

std::optional<std::wstring> g_folder;

std::wstring ProgramName() {
    wchar_t szPath[MAX_PATH] = L"";
    ::GetModuleFileName(nullptr, szPath, MAX_PATH);
    const std::wstring path = szPath;
    const size_t nName = path.rfind(L'\\') + 1;
    return path.substr(nName, path.rfind(L'.') - nName);
}

} // namespace

Picture Picture::Of(HWND hWnd) {
    ::RedrawWindow(hWnd, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE);
    CRect client;
    ::GetClientRect(hWnd, &client);
    const HDC hDC = ::GetDC(hWnd);
    Picture picture(hDC, client.Size());
    ::ReleaseDC(hWnd, hDC);
    return picture;
}

Picture Picture::OfScreen() {
    const HDC hDC = ::GetDC(nullptr);
    Picture picture(hDC, Screen().Size());
    ::ReleaseDC(nullptr, hDC);
    return picture;
}

Picture::Picture(HDC hDC, CSize size) : m_size(size), m_pixels(static_cast<size_t>(size.cx * size.cy)) {
    const HDC hMemory = ::CreateCompatibleDC(hDC);
    const HBITMAP hBitmap = ::CreateCompatibleBitmap(hDC, size.cx, size.cy);
    const HGDIOBJ hOld = ::SelectObject(hMemory, hBitmap);
    ::BitBlt(hMemory, 0, 0, size.cx, size.cy, hDC, 0, 0, SRCCOPY);
    ::SelectObject(hMemory, hOld);
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = size.cx;
    info.bmiHeader.biHeight = -size.cy; // top row first
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    ::GetDIBits(hMemory, hBitmap, 0, static_cast<UINT>(size.cy), m_pixels.data(), &info, DIB_RGB_COLORS);
    ::DeleteObject(hBitmap);
    ::DeleteDC(hMemory);
}

CRect Picture::Around(CRect within, COLORREF color) const {
    return Around(within, [&](CPoint p) { return At(p.x, p.y) == color; });
}

CRect Picture::Difference(const Picture& other) const {
    return Around(Rect(), [&](CPoint p) { return At(p.x, p.y) != other.At(p.x, p.y); });
}

bool Picture::IsAll(CRect within, COLORREF color) const {
    return Around(within, [&](CPoint p) { return At(p.x, p.y) != color; }).IsRectEmpty();
}

bool Picture::Save(const std::wstring& path) const {
    const HANDLE hFile =
        ::CreateFile(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (hFile == INVALID_HANDLE_VALUE)
        return false;
    const std::vector<unsigned char> file =
        detail::PngOf(m_pixels, static_cast<size_t>(m_size.cx), static_cast<size_t>(m_size.cy));
    DWORD nWritten = 0;
    const BOOL bWritten =
        ::WriteFile(hFile, file.data(), static_cast<DWORD>(file.size()), &nWritten, nullptr);
    ::CloseHandle(hFile);
    return bWritten && nWritten == file.size();
}

void SetPictureFolder(const std::wstring& folder) {
    g_folder = folder;
}

void SaveScreen() {
    static int s_nPictures = 0;
    if ((g_folder && g_folder->empty()) || s_nPictures == kMostPictures)
        return;
    const std::wstring name = ProgramName() + L"-failure-" + std::to_wstring(++s_nPictures) + L".png";
    const std::wstring path = g_folder ? *g_folder + L'\\' + name : name;
    const bool bSaved = Picture::OfScreen().Save(path);
    std::printf("%s: %s\n", bSaved ? "the screen then" : "cannot save the screen",
                Utf8(path.c_str()).c_str());
}

void KeepScreen(std::string name) {
    static int s_nPictures = 100; // so that their names are in order
    wchar_t szFolder[MAX_PATH];
    if (::GetEnvironmentVariable(L"FIELDKIT_PICTURES", szFolder, MAX_PATH) == 0)
        return;
    std::replace(name.begin(), name.end(), '/', '-');
    const std::wstring path = szFolder + (L'\\' + std::to_wstring(++s_nPictures)) + L'-' +
                              std::wstring(name.begin(), name.end()) + L".png";
    Picture::OfScreen().Save(path);
}

} // namespace testkit
