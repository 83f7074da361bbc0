/// @file
/// Memory and system calls that fail when a test wants it, natively. The build links the programs
/// that use this so that their calls pass by here; the product knows nothing of it.
#pragma once

#include "afx.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <functional>
#include <new>
#include <ostream>

namespace faults {

/// Lets the `nth` allocation from now on fail.
void FailMemory(long nth);
/// Lets the `nth` call from now on fail with that error; 0 lets a read or write do half of it.
/// @param call the name of a system call, null for any
void FailCall(const char* call, int error, long nth = 1);
/// @return whether something has failed since
bool Disarm();

/// What is in use: blocks of memory and open files. Equal before and after if nothing leaks.
struct Use {
    long blocks = 0, files = 0;
    bool operator==(const Use&) const = default;
};
inline std::ostream& operator<<(std::ostream& out, const Use& use) {
    return out << use.blocks << " blocks, " << use.files << " files";
}
Use Now();

/// The largest block of memory that was asked for since the last call.
std::size_t TakeLargest();

enum class End { Done, NoMemory, FileError };

/// Runs it to one of the ends that are allowed; anything else is not caught.
template <class Run>
End EndOf(Run run) {
    try {
        run();
        return End::Done;
    } catch (const std::bad_alloc&) {
        return End::NoMemory;
    } catch (CMemoryException* e) {
        e->Delete();
        return End::NoMemory;
    } catch (CFileException* e) {
        e->Delete();
        return End::FileError;
    }
}

/// Runs it with the first failure, the second and so on until there is none left, and shows that
/// nothing is left of any run.
/// @param arm FailMemory or the like
/// @return the number of points that failed
long FailEach(const std::function<void(long)>& arm, const std::function<void()>& run);

} // namespace faults
