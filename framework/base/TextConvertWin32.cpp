#ifdef _WIN32

#include "TextConvert.h"

#include "afxtypes.h"

#include <atomic>
#include <new>
#include <numeric>

using namespace fieldkit::detail;

static_assert(sizeof(wchar_t) == sizeof(char16_t));

std::wstring fieldkit::detail::AfxWiden(std::string_view text) {
    if (text.empty())
        return {};
    const int nBytes = static_cast<int>(text.size());
    const int nChars = MultiByteToWideChar(CP_ACP, 0, text.data(), nBytes, nullptr, 0);
    std::wstring wide(static_cast<std::size_t>(nChars), L'\0');
    MultiByteToWideChar(CP_ACP, 0, text.data(), nBytes, wide.data(), nChars);
    return wide;
}

std::string fieldkit::detail::AfxNarrow(std::wstring_view text) {
    if (text.empty())
        return {};
    const int nChars = static_cast<int>(text.size());
    const int nBytes = WideCharToMultiByte(CP_ACP, 0, text.data(), nChars, nullptr, 0, nullptr, nullptr);
    std::string narrow(static_cast<std::size_t>(nBytes), '\0');
    WideCharToMultiByte(CP_ACP, 0, text.data(), nChars, narrow.data(), nBytes, nullptr, nullptr);
    return narrow;
}

std::u16string fieldkit::detail::AfxToUtf16(std::wstring_view text) {
    return {text.begin(), text.end()};
}

// The system's own mapping, not the C library's: it knows full-width letters in every locale.
void fieldkit::detail::AfxSystemUpper(wchar_t* text, std::size_t length) noexcept {
    CharUpperBuffW(text, static_cast<DWORD>(length));
}

void fieldkit::detail::AfxSystemUpper(char* text, std::size_t length) noexcept {
    CharUpperBuffA(text, static_cast<DWORD>(length));
}

void fieldkit::detail::AfxSystemLower(wchar_t* text, std::size_t length) noexcept {
    CharLowerBuffW(text, static_cast<DWORD>(length));
}

void fieldkit::detail::AfxSystemLower(char* text, std::size_t length) noexcept {
    CharLowerBuffA(text, static_cast<DWORD>(length));
}

// A call into the system costs as much as comparing a line, so it is asked for 256 characters at once
// and the answer is kept. Several threads may ask for the same page; one answer stays.
wchar_t fieldkit::detail::AfxToLower(wchar_t ch) noexcept {
    struct Page {
        wchar_t lower[256];
    };
    static constinit std::atomic<const Page*> pages[256]{};
    std::atomic<const Page*>& entry = pages[ch >> 8];
    const Page* known = entry.load(std::memory_order_acquire);
    if (known == nullptr) {
        auto* const page = new (std::nothrow) Page;
        if (page == nullptr) {
            CharLowerBuffW(&ch, 1);
            return ch;
        }
        std::iota(page->lower, page->lower + 256, static_cast<wchar_t>(ch & 0xFF00));
        CharLowerBuffW(page->lower, 256);
        if (entry.compare_exchange_strong(known, page, std::memory_order_acq_rel))
            known = page;
        else
            delete page;
    }
    return known->lower[ch & 0xFF];
}

int fieldkit::detail::AfxCollate(const wchar_t* text1, const wchar_t* text2, bool ignoreCase) noexcept {
    const DWORD flags = SORT_STRINGSORT | (ignoreCase ? NORM_IGNORECASE : 0);
    return CompareStringW(LOCALE_USER_DEFAULT, flags, text1, -1, text2, -1) - CSTR_EQUAL;
}

int fieldkit::detail::AfxCollate(const char* text1, const char* text2, bool ignoreCase) noexcept {
    const DWORD flags = SORT_STRINGSORT | (ignoreCase ? NORM_IGNORECASE : 0);
    return CompareStringA(LOCALE_USER_DEFAULT, flags, text1, -1, text2, -1) - CSTR_EQUAL;
}

#endif
