/// @file
/// What becomes of archives on bad cards: cut, with a bit turned, with a count that lies.
#pragma once

#include "support/ArchiveBytes.h"
#include "support/NativeFaults.h"

/// Loads the bytes; the end is the file's content or CArchiveException*, with nothing left.
/// @return the memory used on the way
template <class Load>
std::size_t LoadWithoutLoss(const Bytes& bytes, Load load) {
    const faults::Use before = faults::Now();
    faults::TakePeak();
    Loaded(bytes, load);
    const std::size_t peak = faults::TakePeak();
    EXPECT_EQ(faults::Now(), before) << ToHex(bytes);
    return peak;
}

/// Loads the bytes in every damaged form, for memory of the order of their number.
template <class Load>
void LoadDamaged(const Bytes& sound, Load load) {
    constexpr std::size_t kEnough = 100'000;
    const auto feed = [&](const Bytes& bytes) {
        EXPECT_LT(LoadWithoutLoss(bytes, load), kEnough) << ToHex(bytes);
    };
    ASSERT_EQ(CArchiveException::none, Loaded(sound, load));
    for (std::size_t at = 0; at < sound.size(); ++at) {
        feed(Bytes(sound.begin(), sound.begin() + static_cast<std::ptrdiff_t>(at)));
        for (int bit = 0; bit < 8; ++bit) {
            Bytes flipped = sound;
            flipped[at] = static_cast<BYTE>(flipped[at] ^ (1 << bit));
            feed(flipped);
        }
        for (const char* count :
             {"ff ff", "ff ff ff ff", "ff ff ff 7f", "00 00 00 80", "ff ff ff ff ff ff"}) {
            const Bytes lie = FromHex(count);
            Bytes bytes = sound;
            bytes.resize(std::max(bytes.size(), at + lie.size()));
            std::copy(lie.begin(), lie.end(), bytes.begin() + static_cast<std::ptrdiff_t>(at));
            feed(bytes);
        }
    }
}
