// Forced into every source file of the mutants' build: plant.py turns the places that can be
// spoiled into calls of these functions. One fault is active at a time, the one whose number
// the environment variable MUTANT names; the file named by MUTANT_REACH has one byte for each
// fault, which is set when the fault's place is reached.
#pragma once

#if __cplusplus >= 202002L // not for the tries of the build system itself
#include <cstdlib>
#include <type_traits>
#include <utility>

#ifdef _WIN32
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/mman.h>
#endif

namespace fkmutant {

inline int Active() {
    const char* const pszNumber = std::getenv("MUTANT");
    return pszNumber != nullptr ? std::atoi(pszNumber) : 0;
}

inline unsigned char* Map() {
    constexpr unsigned SIZE = 1U << 16;
    const char* const pszPath = std::getenv("MUTANT_REACH");
    if (pszPath == nullptr)
        return nullptr;
#ifdef _WIN32
    const HANDLE hFile = CreateFileA(pszPath, GENERIC_READ | GENERIC_WRITE,
                                     FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr);
    const HANDLE hMapping = CreateFileMappingA(hFile, nullptr, PAGE_READWRITE, 0, SIZE, nullptr);
    return static_cast<unsigned char*>(MapViewOfFile(hMapping, FILE_MAP_WRITE, 0, 0, SIZE));
#else
    const int nFile = open(pszPath, O_RDWR);
    void* const p = mmap(nullptr, SIZE, PROT_READ | PROT_WRITE, MAP_SHARED, nFile, 0);
    return p != MAP_FAILED ? static_cast<unsigned char*>(p) : nullptr;
#endif
}

inline bool Is(int nMutant) {
    static const int nActive = Active();
    static unsigned char* const pReached = Map();
    if (pReached != nullptr)
        pReached[nMutant] = 1;
    return nMutant == nActive;
}

// Each takes the values of its operands, so that they are computed once. A spoiled form that
// the types do not have leaves the operation as it is.
#define FKMUTANT_BINARY(name, good, bad)                                                                     \
    template <class A, class B>                                                                              \
    auto name(int nMutant, A&& a, B&& b) {                                                                   \
        if constexpr (requires { decltype(a good b)(bad); }) {                                               \
            if (Is(nMutant))                                                                                 \
                return decltype(a good b)(bad);                                                              \
        }                                                                                                    \
        return a good b;                                                                                     \
    }
FKMUTANT_BINARY(less, <, a <= b)
FKMUTANT_BINARY(less_equal, <=, a < b)
FKMUTANT_BINARY(greater, >, a >= b)
FKMUTANT_BINARY(greater_equal, >=, a > b)
FKMUTANT_BINARY(equal, ==, !(a == b))
FKMUTANT_BINARY(not_equal, !=, !(a != b))
FKMUTANT_BINARY(plus, +, a - b)
FKMUTANT_BINARY(minus, -, a + b)
FKMUTANT_BINARY(times, *, -(a* b))
FKMUTANT_BINARY(swapped_divide, /, b / a)
#undef FKMUTANT_BINARY

template <class A, class B>
bool both(int nMutant, A&& a, B&& b) {
    return Is(nMutant) ? a() || b() : a() && b();
}
template <class A, class B>
bool either(int nMutant, A&& a, B&& b) {
    return Is(nMutant) ? a() && b() : a() || b();
}
template <class A>
auto negative(int nMutant, A&& a) {
    return Is(nMutant) ? decltype(-a)(a) : -a;
}
/// A condition, or a value that is true or false, turned round.
template <class T>
T negated(int nMutant, T value) {
    return Is(nMutant) ? T(!value) : value;
}
template <class T>
T constant(int nMutant, T value) {
    if (!Is(nMutant))
        return value;
    if constexpr (std::is_floating_point_v<T>)
        return value == 0 ? T(1) : value * T(1.5);
    else
        return T(value + 1);
}

} // namespace fkmutant
#endif
