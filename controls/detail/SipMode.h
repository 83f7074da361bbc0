// What the entry fields have in common: the soft input panel comes and goes with the focus.
#pragma once

#include "controls/SipOption.h"

#include "Tesuvo.h"

namespace fieldkit::detail {

constexpr bool UsesSip(DWORD dwOption) {
    return (dwOption & (SipOptionMode0 | SipOptionMode1 | SipOptionMode2)) != 0;
}

constexpr int SipMode(DWORD dwOption) {
    if (dwOption & SipOptionMode0)
        return 0;
    return dwOption & SipOptionMode1 ? 1 : 2;
}

inline void ShowSip(DWORD dwOption) {
    if (UsesSip(dwOption))
        TVShowSIP(SipMode(dwOption));
}

inline void CloseSip(DWORD dwOption) {
    if (UsesSip(dwOption))
        TVCloseSIP();
}

} // namespace fieldkit::detail
