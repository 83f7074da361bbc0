/// @file
/// Lets calls that DLLs make into the system fail, one at a time, without a change to the DLLs:
/// their tables of imported functions are pointed at functions of the test. Needs nothing of the
/// framework. "testkit/SystemFaults.h" has a table of them.
///
///     fault::Install(::GetModuleHandle(nullptr),
///                    {FAULT_POINT(CreateFileW, INVALID_HANDLE_VALUE, ERROR_DISK_FULL)});
///     fault::Injection injection(3); // the third call fails
#pragma once

#include "testkit/Failure.h"

#include <windows.h>

#include <optional>
#include <string>
#include <vector>

namespace testkit::fault {

/// Counts the calls through fault points while it exists, and fails one of them, or that one and
/// all that come after it. Only the calls of the thread that made it count.
struct Injection {
    static constexpr int FRAMES = 24; ///< Of the callers that are kept.

    /// Whether the calls after the one that fails work again.
    enum Extent { Once, Onwards };

    /// @param nFailing the number of the call to fail, from 1; 0 for none
    explicit Injection(int nFailing, Extent extent = Once);
    ~Injection();
    Injection(const Injection&) = delete;
    Injection& operator=(const Injection&) = delete;

    /// No call counts or fails any more.
    void Stop();

    /// While it exists, no call counts and none fails: for what a test does itself in between.
    class Pause {
    public:
        Pause();
        ~Pause();
        Pause(const Pause&) = delete;
        Pause& operator=(const Pause&) = delete;

    private:
        Injection* const m_pPaused;
    };

    int m_nCalls = 0;                  ///< Through fault points up to now.
    const char* m_pszFailed = nullptr; ///< The function that failed; null for none yet.
    void* m_callers[FRAMES] = {};      ///< Return addresses of its first failure, see WhereIs().

    /// Counts a call. @return whether it is to fail
    static bool Fails(const char* pszFunction);

private:
    const DWORD m_nThread = ::GetCurrentThreadId();
    const int m_nFailing;
    const Extent m_extent;
};

/// One function that can fail.
struct Point {
    const char* pszName; ///< As its module exports it.
    void* pStandIn;      ///< What is called instead.
    void** ppReal;       ///< Where the stand-in finds the function itself.
};

/// What the stand-in of a function does. Each lambda type Fail makes stand-ins of its own.
template <class Fail, class Counts, class Function>
struct Fault {
    static inline const char* s_pszName = nullptr; ///< See Point.
    static inline void* s_pReal = nullptr;         ///< The function itself.
    static inline std::optional<Fail> s_fail;      ///< How it fails.
    static inline std::optional<Counts> s_counts;  ///< Which of its calls can.

    /// A call: the failure, or what the function gives.
    template <class R, class... A>
    static R Do(A... args) {
        const auto real = reinterpret_cast<Function>(reinterpret_cast<UINT_PTR>(s_pReal));
        if ((*s_counts)(args...) && Injection::Fails(s_pszName))
            return static_cast<R>((*s_fail)(real, args...));
        return real(args...);
    }
};

/// What is called instead of a function, in the same way.
template <class Fail, class Counts, class Function>
struct StandIn;

template <class Fail, class Counts, class R, class... A>
struct StandIn<Fail, Counts, R (*)(A...)> : Fault<Fail, Counts, R (*)(A...)> {
    /// The stand-in.
    static R Call(A... args) { return StandIn::template Do<R, A...>(args...); }
};

#ifdef __i386__ // where the system's functions are called in another way than others
template <class Fail, class Counts, class R, class... A>
struct StandIn<Fail, Counts, R(WINAPI*)(A...)> : Fault<Fail, Counts, R(WINAPI*)(A...)> {
    /// The stand-in.
    static R WINAPI Call(A... args) { return StandIn::template Do<R, A...>(args...); }
};
#endif

/// For calls that can fail whatever their arguments.
struct Always {
    /// True.
    template <class... A>
    bool operator()(const A&...) const {
        return true;
    }
};

/// A function that can fail. Of the function itself only the type counts: the program need not have it.
/// @param fail   gives the failure; called with the real function and the arguments
/// @param counts tells by the arguments whether the call can fail
template <class Fail, class Counts = Always, class Function>
Point MakePoint(const char* pszName, Function*, Fail fail, Counts counts = {}) {
    using Instead = StandIn<Fail, Counts, Function*>;
    Instead::s_pszName = pszName;
    Instead::s_fail.emplace(fail);
    Instead::s_counts.emplace(counts);
    return {pszName, reinterpret_cast<void*>(reinterpret_cast<UINT_PTR>(&Instead::Call)), &Instead::s_pReal};
}

/// MakePoint() of a function by its name. The program is not linked with the function.
#define FAULT_POINT_OF(function, ...)                                                                        \
    testkit::fault::MakePoint(#function, static_cast<decltype(&::function)>(nullptr), __VA_ARGS__)
/// A function that fails without having done anything.
#define FAULT_POINT(function, failure, error)                                                                \
    FAULT_POINT_OF(function, [](auto&&...) {                                                                 \
        ::SetLastError(error);                                                                               \
        return failure;                                                                                      \
    })
/// A function that has done its work when it tells its failure, as one that releases something.
#define LATE_FAULT_POINT(function, failure, error)                                                           \
    FAULT_POINT_OF(function, [](auto real, auto... args) {                                                   \
        real(args...);                                                                                       \
        ::SetLastError(error);                                                                               \
        return failure;                                                                                      \
    })

/// A function that a module imports by name.
struct Import {
    std::string dll;   ///< As the module names it.
    std::string name;  ///< Of the function.
    void** ppFunction; ///< Where the module takes the address from.
};

/// The functions that a loaded module imports by name.
std::vector<Import> ImportsOf(HMODULE hModule);

/// Points a module's imports at the stand-ins, and those at the functions themselves that have none: so
/// it stays until another Install of the module, to the end of the process otherwise. Points that the
/// module does not import are passed over.
/// @param hModule must be loaded, null is a failure
void Install(HMODULE hModule, const std::vector<Point>& points, const Place& place = {});

/// An address as module and offset, for a message.
std::string WhereIs(const void* pAddress);

/// The function that has failed and where it was called from, in the modules of Install(), for a message.
std::string TextOf(const Injection& injection);

} // namespace testkit::fault
