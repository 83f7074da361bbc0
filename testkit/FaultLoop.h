/// @file
/// Proves that a part of a program stands every failure of the system: it is done again and again, each
/// time with another call failing.
///
///     fault::Install(::GetModuleHandle(nullptr), fault::SystemPoints()); // see "testkit/SystemFaults.h"
///     fault::FailEachCall({"Points", [](CWnd& owner) {
///         CPointsDlg dlg(&owner);
///         return fault::Visit([&] { return dlg.DoModal(); }, IDOK) == IDOK;
///     }});
#pragma once

#include "testkit/Failure.h"

#include "afxwin.h"

#include <functional>
#include <string>

namespace testkit::fault {

/// What is done while something fails.
struct Scenario {
    std::string name; ///< For messages.
    /// @param owner a window of the program, for dialogs
    /// @return whether everything was done as usual; always true when nothing fails
    std::function<bool(CWnd& owner)> run;
    size_t nSystemBytes = 0; ///< What the system itself loses at most, a run.
};

/// Runs a scenario with a call failing, with another one, and so on, until it comes to its end without
/// a failure. Each time everything must be released (Leftovers), the owner enabled, and a run without a
/// failure must work afterwards; an exception of the framework or of the standard library may come out of
/// it. A crash, an abort or a hang of eight seconds ends the program and tells which call had failed.
/// Needs a testkit::Application.
/// @param nRuns  how many calls fail at most, evenly spread; 0 for every one
/// @param nShift another number takes other calls, so that all have their turn: the day, for example
/// @return how many calls can fail
int FailEachCall(const Scenario& scenario, int nRuns = 0, int nShift = 0, const Place& place = {});

/// Opens a dialog that may fail to come up, goes to each of its pages and controls, presses a button,
/// and cancels whatever is in the way then, such as messages.
/// @param open    opens it, as DoModal does
/// @param nButton IDOK or IDCANCEL; a question without Cancel gets its No
/// @return what open returned; 0 if not all of that worked
INT_PTR Visit(const std::function<INT_PTR()>& open, int nButton);

} // namespace testkit::fault
