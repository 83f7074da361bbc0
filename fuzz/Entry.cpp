#include "Targets.h"

// Called by the fuzzing engine with each input; the build names the target.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize) {
    FUZZ_TARGET(pData, nSize);
    return 0;
}
