/// @file
/// Proves that nothing is lost when a program saves to a disk that is full, is pulled or does half of
/// what it is asked for: what saves is done again and again, each time with another of its calls into the
/// system failing, for each trouble that a disk can have. After each time the test looks what is on the
/// disk. Needs no application object.
///
///     for (const wchar_t* pszModule : {static_cast<LPCWSTR>(nullptr), L"FieldkitFx.dll", L"Fieldkit.dll"})
///         fault::Install(::GetModuleHandle(pszModule), fault::DiskPoints());
///     fault::FailEachDiskCall([&] { return Save(path, after); },
///                             [&](const fault::DiskRun& run) {
///                                 SCOPED_TRACE(run.text);
///                                 EXPECT_EQ(run.bDone ? after : before, Load(path));
///                                 Save(path, before);
///                             });
#pragma once

#include "testkit/Failure.h"
#include "testkit/Faults.h"

#include <functional>
#include <string>
#include <vector>

namespace testkit::fault {

/// Why calls fail.
struct DiskTrouble {
    std::string name;         ///< For messages.
    DWORD dwError;            ///< What a call that fails tells; see DiskTroubles() for ERROR_SUCCESS.
    Injection::Extent extent; ///< Whether the next call works again.
};

/// A disk that is full, for a call or for good; a card that is not ready, or pulled; a file in use; write
/// protection; no memory; and with ERROR_SUCCESS a read or a write that does half of a block and succeeds,
/// one or each of them. No other trouble makes an allocation fail than that with ERROR_NOT_ENOUGH_MEMORY.
const std::vector<DiskTrouble>& DiskTroubles();

/// What saving and loading call: files, folders, the registry, memory. They fail as the trouble of
/// FailEachDiskCall() says, and are for it alone.
const std::vector<Point>& DiskPoints();

/// What came of a run.
struct DiskRun {
    bool bDone;       ///< What was run returned; false if it threw.
    std::string text; ///< Trouble, number of the call, function and where that was called from, for
                      ///< messages. The function is missing if none failed.
};

/// Runs something that saves, for each trouble: with no call failing, with the first one, with the second
/// one, until there is no other. It must be done when nothing fails, and then make about as many calls as
/// the first time; otherwise, and if no call of it goes through a fault point, that is a failure. A crash,
/// an abort or a hang of eight seconds ends the program and tells which call had failed.
/// @param run    on the calling thread; returns whether it was done, or throws an exception of the
///               framework or of the standard library if not. Others come out of here
/// @param check  is called after each run, when nothing fails any more, and brings back what was there
///               before
/// @param place  for failures
void FailEachDiskCall(const std::function<bool()>& run, const std::function<void(const DiskRun&)>& check,
                      const std::vector<DiskTrouble>& troubles = DiskTroubles(), const Place& place = {});

} // namespace testkit::fault
