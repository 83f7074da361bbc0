/// @file
/// Lets calls that DLLs make into the system fail, one at a time, without a change to the DLLs:
/// their tables of imported functions are pointed at functions of the test. Needs nothing of the
/// framework.
///
///     const std::vector<fault::Point> points = {FAULT_POINT(CreateFileW, INVALID_HANDLE_VALUE,
///     ERROR_DISK_FULL)}; fault::Install(::GetModuleHandle(nullptr), points); fault::Injection injection(3);
///     // the third call fails
#pragma once

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

    /// No call fails any more.
    void Stop() { m_nFailing = 0; }

    int m_nCalls = 0;                  ///< Through fault points up to now.
    const char* m_pszFailed = nullptr; ///< The function that failed; null for none yet.
    void* m_callers[FRAMES] = {};      ///< Return addresses of its first failure, see WhereIs().

    /// Counts a call. @return whether it is to fail
    static bool Fails(const char* pszFunction);

private:
    const DWORD m_nThread = ::GetCurrentThreadId();
    int m_nFailing;
    const Extent m_extent;
};

/// One function that can fail.
struct Point {
    const char* pszName; ///< As its module exports it.
    void* pStandIn;      ///< What is called instead.
    void** ppReal;       ///< Where the stand-in finds the function itself.
};

/// What is called instead of a function. Each lambda type Fail makes functions of its own.
template <class Fail, class Counts, class R, class... A>
struct StandIn {
    static inline const char* s_pszName = nullptr; ///< See Point.
    static inline void* s_pReal = nullptr;         ///< The function itself.
    static inline std::optional<Fail> s_fail;      ///< How it fails.
    static inline std::optional<Counts> s_counts;  ///< Which of its calls can.

    /// The stand-in.
    static R Call(A... args) {
        const auto real = reinterpret_cast<R (*)(A...)>(reinterpret_cast<UINT_PTR>(s_pReal));
        if ((*s_counts)(args...) && Injection::Fails(s_pszName))
            return static_cast<R>((*s_fail)(real, args...));
        return real(args...);
    }
};

/// For calls that can fail whatever their arguments.
struct Always {
    /// True.
    template <class... A>
    bool operator()(const A&...) const {
        return true;
    }
};

/// @param fail   gives the failure; called with the real function and the arguments
/// @param counts tells by the arguments whether the call can fail
template <class Fail, class Counts = Always, class R, class... A>
Point MakePoint(const char* pszName, R (*)(A...), Fail fail, Counts counts = {}) {
    using Function = StandIn<Fail, Counts, R, A...>;
    Function::s_pszName = pszName;
    Function::s_fail.emplace(fail);
    Function::s_counts.emplace(counts);
    return {pszName, reinterpret_cast<void*>(reinterpret_cast<UINT_PTR>(&Function::Call)),
            &Function::s_pReal};
}

/// A function that fails without having done anything.
#define FAULT_POINT(function, failure, error)                                                                \
    testkit::fault::MakePoint(#function, ::function, [](auto&&...) {                                         \
        ::SetLastError(error);                                                                               \
        return failure;                                                                                      \
    })
/// A function that has done its work when it tells its failure, as one that releases something.
#define LATE_FAULT_POINT(function, failure, error)                                                           \
    testkit::fault::MakePoint(#function, ::function, [](auto real, auto... args) {                           \
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

/// Points a module's imports at the stand-ins. This holds until the process ends.
void Install(HMODULE hModule, const std::vector<Point>& points);

/// An address as module and offset, for a message.
std::string WhereIs(const void* pAddress);

/// The function that has failed and where it was called from, in the modules of Install(), for a message.
std::string TextOf(const Injection& injection);

} // namespace testkit::fault
