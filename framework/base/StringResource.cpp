#ifdef _WIN32

#include "StringText.h"

#include <memory>
#include <oleauto.h>

// What strings have on Windows only; LoadString stands beside the modules that it searches.
namespace {

struct LocalFreeDeleter {
    void operator()(void* p) const noexcept { LocalFree(p); }
};

DWORD FormatSystem(const wchar_t* format, wchar_t*& text, va_list* arguments) {
    return FormatMessageW(FORMAT_MESSAGE_FROM_STRING | FORMAT_MESSAGE_ALLOCATE_BUFFER, format, 0, 0,
                          reinterpret_cast<wchar_t*>(&text), 0, arguments);
}
DWORD FormatSystem(const char* format, char*& text, va_list* arguments) {
    return FormatMessageA(FORMAT_MESSAGE_FROM_STRING | FORMAT_MESSAGE_ALLOCATE_BUFFER, format, 0, 0,
                          reinterpret_cast<char*>(&text), 0, arguments);
}

DWORD GetVariable(const wchar_t* name, wchar_t* text, DWORD size) {
    return GetEnvironmentVariableW(name, text, size);
}
DWORD GetVariable(const char* name, char* text, DWORD size) {
    return GetEnvironmentVariableA(name, text, size);
}

} // namespace

template <class Char>
void CStringT<Char>::FormatMessageV(PCXSTR pszFormat, va_list* pArgList) {
    if (pszFormat == nullptr)
        AfxThrowInvalidArgException();
    PXSTR pszText = nullptr;
    SetLastError(ERROR_SUCCESS);
    const DWORD nLength = FormatSystem(pszFormat, pszText, pArgList);
    const std::unique_ptr<Char, LocalFreeDeleter> text(pszText);
    if (nLength == 0 && GetLastError() == ERROR_NOT_ENOUGH_MEMORY)
        AfxThrowMemoryException();
    SetString(pszText, static_cast<int>(nLength));
}

template <class Char>
void CStringT<Char>::FormatMessageList(PCXSTR pszFormat, ...) {
    va_list argList;
    va_start(argList, pszFormat);
    FormatMessageV(pszFormat, &argList);
    va_end(argList);
}

template <class Char>
BOOL CStringT<Char>::GetEnvironmentVariable(PCXSTR pszVar) {
    CStringT strValue;
    DWORD nSize = GetVariable(OrEmpty(pszVar), nullptr, 0);
    const bool bFound = nSize != 0;
    // Another thread may make it longer in between.
    while (nSize > static_cast<DWORD>(strValue.GetAllocLength())) {
        const int nRoom = static_cast<int>(nSize);
        nSize = GetVariable(OrEmpty(pszVar), strValue.GetBuffer(nRoom), nSize);
        strValue.ReleaseBuffer(nSize <= static_cast<DWORD>(nRoom) ? static_cast<int>(nSize) : 0);
    }
    *this = std::move(strValue);
    return bFound ? TRUE : FALSE;
}

template <class Char>
BSTR CStringT<Char>::AllocSysString() const {
    const CStringW strWide(*this);
    const BSTR bstr = SysAllocStringLen(strWide, static_cast<UINT>(strWide.GetLength()));
    if (bstr == nullptr)
        AfxThrowMemoryException();
    return bstr;
}

template <class Char>
BSTR CStringT<Char>::SetSysString(BSTR* pbstr) const {
    const BSTR bstr = AllocSysString();
    SysFreeString(std::exchange(*pbstr, bstr));
    return bstr;
}

template <class Char>
void CStringT<Char>::AnsiToOem() {
    CharToOemBuffA(GetString(), Own(GetLength()), static_cast<DWORD>(GetLength()));
}

template <class Char>
void CStringT<Char>::OemToAnsi() {
    OemToCharBuffA(GetString(), Own(GetLength()), static_cast<DWORD>(GetLength()));
}

template void CStringT<char>::AnsiToOem();
template void CStringT<char>::OemToAnsi();

#define RESOURCE_MEMBERS(Char)                                                                               \
    template void CStringT<Char>::FormatMessageV(PCXSTR, va_list*);                                          \
    template void CStringT<Char>::FormatMessageList(PCXSTR, ...);                                            \
    template BOOL CStringT<Char>::GetEnvironmentVariable(PCXSTR);                                            \
    template BSTR CStringT<Char>::AllocSysString() const;                                                    \
    template BSTR CStringT<Char>::SetSysString(BSTR*) const;
RESOURCE_MEMBERS(wchar_t)
RESOURCE_MEMBERS(char)
#undef RESOURCE_MEMBERS

#endif
