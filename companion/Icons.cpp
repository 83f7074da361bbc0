#include "Tesuvo.h"

#include "companion/detail/Module.h"

#include <cstddef>
#include <cstring>
#include <map>
#include <optional>
#include <span>

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

/// The file's first picture; ours have one each.
HICON MakeIcon(Bytes file) {
    constexpr DWORD kVersion = 0x00030000; // the only one that the system knows
    constexpr int kIconSize = 16;
    constexpr std::size_t kSizeField = 14; // behind the header: size, then offset of the picture
    constexpr std::size_t kOffsetField = 18;
    const Bytes picture = file.subspan(DwordAt(file, kOffsetField), DwordAt(file, kSizeField));
    // The system reads only, although its interface takes a pointer to mutable bytes.
    return ::CreateIconFromResourceEx(const_cast<BYTE*>(picture.data()), static_cast<DWORD>(picture.size()),
                                      TRUE, kVersion, kIconSize, kIconSize, LR_DEFAULTCOLOR);
}

} // namespace

HICON TVGetCommonIcon(int nIndex) {
    // A number beyond 16 bits would be taken for the address of a name.
    if (nIndex <= 0 || nIndex > 0xFFFF)
        return nullptr;
    // One handle a picture for every caller and thread, freed with the process.
    static SRWLOCK lock = SRWLOCK_INIT;
    static std::map<int, HICON> icons;
    ::AcquireSRWLockExclusive(&lock);
    HICON& icon = icons[nIndex];
    if (icon == nullptr)
        if (const std::optional<Bytes> file = IconFile(nIndex))
            icon = MakeIcon(*file);
    const HICON result = icon;
    ::ReleaseSRWLockExclusive(&lock);
    return result;
}
