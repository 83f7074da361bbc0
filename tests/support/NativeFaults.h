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

/// The most bytes in use at a time since the last call, beyond what was in use then.
std::size_t TakePeak();

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

/// Changes an object with each allocation failing in turn: it is then as it was before, and the
/// same change works afterwards.
/// @param make gives the object by smart pointer
/// @param look gives what can be compared of it
/// @return the number of allocations
template <class Make, class Change, class Look>
long FailEachChange(Make make, Change change, Look look) {
    const auto untouched = make();
    const auto old = look(*untouched);
    change(*untouched);
    const auto changed = look(*untouched);
    for (long nth = 1;; ++nth) {
        const Use before = Now();
        bool failed = false;
        {
            const auto object = make();
            FailMemory(nth);
            const End end = EndOf([&] { change(*object); });
            failed = Disarm();
            if (end != End::Done) {
                EXPECT_EQ(look(*object), old) << "changed by failure " << nth;
                change(*object);
            }
            EXPECT_EQ(look(*object), changed) << "after failure " << nth;
        }
        EXPECT_EQ(Now(), before) << "left after failure " << nth;
        if (!failed)
            return nth - 1;
    }
}

} // namespace faults
