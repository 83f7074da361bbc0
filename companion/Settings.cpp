#include "Tesuvo.h"

#include "companion/detail/SharedSetting.h"
#include "companion/detail/SystemKeyboard.h"

#include <string>

using namespace fieldkit::detail;

namespace {

constexpr wchar_t kSettingsKey[] = L"Software\\Tesuvo\\Common";

std::optional<long long> StoredSetting(int nId) {
    DWORD value = 0;
    DWORD size = sizeof value;
    const LSTATUS status = ::RegGetValueW(HKEY_CURRENT_USER, kSettingsKey, std::to_wstring(nId).c_str(),
                                          RRF_RT_REG_DWORD, nullptr, &value, &size);
    if (status != ERROR_SUCCESS || size != sizeof value)
        return std::nullopt;
    return value;
}

} // namespace

int TVGetCommonRegInt(int nId) {
    const int nValue = GuardedSetting(nId, StoredSetting(nId));
    // What is chosen may have gone since.
    return nId == TVSETTING_SYSTEM_KEYBOARD && nValue != 0 ? SystemKeyboard::IsThere() : nValue;
}
