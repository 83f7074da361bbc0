#include "Tesuvo.h"

#include "companion/detail/SharedSetting.h"

#include <charconv>
#include <cstdlib>
#include <string>
#include <string_view>

using namespace fieldkit::detail;

namespace {

/// The environment stands in for the registry: a test or a script can set it.
std::optional<long long> StoredSetting(int nId) {
    const std::string variable = "TESUVO_SETTING_" + std::to_string(nId);
    const char* const text = std::getenv(variable.c_str());
    if (text == nullptr)
        return std::nullopt;
    const std::string_view digits = text;
    const char* const end = digits.data() + digits.size();
    long long value = 0;
    const auto [stop, error] = std::from_chars(digits.data(), end, value);
    if (error != std::errc{} || stop != end)
        return std::nullopt;
    return value;
}

} // namespace

int TVGetCommonRegInt(int nId) {
    return GuardedSetting(nId, StoredSetting(nId));
}
