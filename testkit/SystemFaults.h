/// @file
/// The functions of the system that can fail, and how each of them does, for a program that is to stand
/// every failure; see "testkit/FaultLoop.h". Needs nothing of the framework.
///
///     fault::Install(::GetModuleHandle(nullptr), fault::SystemPoints());
#pragma once

#include "testkit/Faults.h"

namespace testkit::fault {

/// What Fieldkit's DLLs call of the system, and what programs beside them mostly do: memory, windows,
/// drawing, files, settings and the rest. Not among them are functions that do what they are asked for
/// when their arguments are valid. Whoever calls more of the system copies the table and adds to it.
const std::vector<Point>& SystemPoints();

} // namespace testkit::fault
