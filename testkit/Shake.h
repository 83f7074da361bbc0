/// @file
/// Random input into a dialog, which shows what nobody has thought of.
#pragma once

#include "testkit/Failure.h"

#include "afxwin.h"

#include <functional>
#include <type_traits>

namespace testkit {

/// How to shake.
struct ShakeOptions {
    /// From the environment: SHAKE_SEED and SHAKE_EVENTS, if they are set.
    ShakeOptions();

    unsigned nSeed = 1;       ///< The same seed gives the same events.
    int nEvents = 2000;       ///< Pen, keys and all else that a user and the system can do, from 2.
    const char* pszName = ""; ///< Of what is shaken, for messages.
};

/// Opens something modal, with an owner of its own each time, and works it with random pen, keys,
/// focus, activation, settings, input panel and destruction; by force it is ended after 250 events
/// and opened again, until all events have come. Nothing of it is real input: it may run beside
/// other work.
///
/// A crash or a hang ends the program, exit codes 98 and 99, with the seed, the last events and the
/// stack. It fails if windows, handles, GDI objects or memory become more with the events.
/// @param open opens it with that owner, and returns when it is closed
void Shake(const std::function<void(CWnd* pOwner)>& open, const ShakeOptions& options = {},
           const Place& place = {});

/// The same of a dialog or sheet, which must be ready to be opened again and again.
template <class Dialog, class = std::enable_if_t<std::is_base_of_v<CWnd, Dialog>>>
void Shake(Dialog& dialog, const ShakeOptions& options = {}, const Place& place = {}) {
    Shake([&dialog](CWnd*) { dialog.DoModal(); }, options, place);
}
/// The same with a seed, from 1, and a number of events.
template <class Shaken>
void Shake(Shaken&& shaken, unsigned nSeed, int nEvents, const Place& place = {}) {
    ShakeOptions options;
    options.nSeed = nSeed;
    options.nEvents = nEvents;
    Shake(shaken, options, place);
}

} // namespace testkit
