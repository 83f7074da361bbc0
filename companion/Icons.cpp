#include "Tesuvo.h"

#include "companion/detail/Module.h"

#include <afxwin.h>

#include <cstddef>
#include <cstring>
#include <map>
#include <optional>
#include <span>
#include <utility>

using namespace fieldkit::detail;

namespace {

using Bytes = std::span<const BYTE>;

/// Icon files are embedded as they are, under a type of our own. As ordinary icon resources
/// they would, in a statically linked program, clash with the application's own icons: the
/// resource compiler numbers the pictures of every script from 1.
std::optional<Bytes> IconFile(int nIndex) {
    const HINSTANCE module = CompanionModule();
    const HRSRC resource = ::FindResourceW(module, MAKEINTRESOURCEW(nIndex), L"SHAREDICON");
    const HGLOBAL block = resource != nullptr ? ::LoadResource(module, resource) : nullptr;
    if (block == nullptr)
        return {};
    return Bytes(static_cast<const BYTE*>(::LockResource(block)), ::SizeofResource(module, resource));
}

DWORD DwordAt(Bytes file, std::size_t offset) {
    DWORD value = 0;
    std::memcpy(&value, file.subspan(offset, sizeof value).data(), sizeof value);
    return value;
}

/// Of the file's pictures, which come in rising sizes, the first that is large enough, or else the
/// last.
Bytes PictureFor(Bytes file, int size) {
    constexpr std::size_t kCountField = 4;
    constexpr std::size_t kHeader = 6;
    constexpr std::size_t kEntry = 16; // of the list of pictures behind the header:
    constexpr std::size_t kSizeField = 8;
    constexpr std::size_t kOffsetField = 12;
    std::size_t entry = kHeader;
    const std::size_t last = kHeader + (file[kCountField] - std::size_t{1}) * kEntry;
    while (entry < last && file[entry] < size)
        entry += kEntry;
    return file.subspan(DwordAt(file, entry + kOffsetField), DwordAt(file, entry + kSizeField));
}

HICON MakeIcon(Bytes picture, int size) {
    constexpr DWORD kVersion = 0x00030000; // the only one that the system knows
    // The system reads only, although its interface takes a pointer to mutable bytes.
    return ::CreateIconFromResourceEx(const_cast<BYTE*>(picture.data()), static_cast<DWORD>(picture.size()),
                                      TRUE, kVersion, size, size, LR_DEFAULTCOLOR);
}

} // namespace

HICON TVGetCommonIcon(int nIndex) {
    // A number beyond 16 bits would be taken for the address of a name.
    if (nIndex != static_cast<WORD>(nIndex))
        return nullptr;
    constexpr int kIconSize = 16;
    const int size = AfxScale(::GetActiveWindow(), kIconSize);
    // One handle a picture and size for every caller and thread, freed with the process.
    static SRWLOCK lock = SRWLOCK_INIT;
    static std::map<std::pair<int, int>, HICON> icons;
    ::AcquireSRWLockExclusive(&lock);
    HICON& icon = icons[{nIndex, size}];
    if (icon == nullptr)
        if (const std::optional<Bytes> file = IconFile(nIndex))
            icon = MakeIcon(PictureFor(*file, size), size);
    const HICON result = icon;
    ::ReleaseSRWLockExclusive(&lock);
    return result;
}
