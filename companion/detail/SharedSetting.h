/// @file
/// The shared settings' defaults and ranges, the same for every kind of store.
#pragma once

#include "Tesuvo.h"

#include <optional>

namespace fieldkit::detail {

/// A setting's value from what its store holds.
///
/// Callers index tables with the result, so a damaged store must not get through.
///
/// @param nId     number of the setting
/// @param stored  the stored value, if there is one of the right type
/// @return the stored value if it is in range, else the default; 0 for an unknown setting
constexpr int GuardedSetting(int nId, std::optional<long long> stored) {
    constexpr int kDecimalsDefault = 2;
    constexpr int kDecimalsMost = 4;
    if (nId == TVSETTING_SYSTEM_KEYBOARD)
        return stored == 1 ? 1 : 0;
    if (nId != TVSETTING_DECIMALS)
        return 0;
    if (!stored || *stored < 0 || *stored > kDecimalsMost)
        return kDecimalsDefault;
    return static_cast<int>(*stored);
}

} // namespace fieldkit::detail
