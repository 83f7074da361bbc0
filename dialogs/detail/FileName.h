// Which names a file can have, whatever program or server they come from.
#pragma once

#include <array>
#include <string_view>

namespace fieldkit::detail {

/// Why a name cannot be that of a file of a folder.
enum class NameFault {
    None,
    Character, ///< One that is reserved, or that leads to another folder or stream.
    Ending,    ///< A dot or a blank at the end: the system takes it away.
    Device,    ///< The system's name for a device, with whatever extension.
};

constexpr wchar_t Upper(wchar_t ch) {
    return ch >= L'a' && ch <= L'z' ? static_cast<wchar_t>(ch - L'a' + L'A') : ch;
}

/// Whether two texts are the same but for the case of their letters from A to Z.
constexpr bool IsSameName(std::wstring_view a, std::wstring_view b) {
    if (a.size() != b.size())
        return false;
    for (std::size_t i = 0; i < a.size(); ++i)
        if (Upper(a[i]) != Upper(b[i]))
            return false;
    return true;
}

constexpr bool IsDeviceName(std::wstring_view name) {
    constexpr std::array<std::wstring_view, 6> kWhole = {L"CON", L"PRN",    L"AUX",
                                                         L"NUL", L"CONIN$", L"CONOUT$"};
    constexpr std::wstring_view kNumbers = L"123456789\u00B9\u00B2\u00B3";
    name = name.substr(0, name.find(L'.'));
    name = name.substr(0, name.find_last_not_of(L' ') + 1);
    for (const std::wstring_view device : kWhole)
        if (IsSameName(name, device))
            return true;
    const bool bPort = IsSameName(name.substr(0, 3), L"COM") || IsSameName(name.substr(0, 3), L"LPT");
    return bPort && name.size() == 4 && kNumbers.find(name[3]) != std::wstring_view::npos;
}

/// @param name without a folder; not empty
constexpr NameFault FaultOf(std::wstring_view name) {
    constexpr std::wstring_view kReserved = L"<>:\"/\\|?*";
    for (const wchar_t ch : name)
        if (ch < L' ' || kReserved.find(ch) != std::wstring_view::npos)
            return NameFault::Character;
    if (name.ends_with(L'.') || name.ends_with(L' '))
        return NameFault::Ending;
    return IsDeviceName(name) ? NameFault::Device : NameFault::None;
}

/// Whether a listed name stands for something in the folder itself. The desktop lists "." and "..",
/// the device does not; a server may list whatever it likes.
constexpr bool IsEntryName(std::wstring_view name) {
    return name != L"." && name != L".." && name.find_first_of(L"\\/:") == std::wstring_view::npos;
}

} // namespace fieldkit::detail
