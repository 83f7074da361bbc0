// The kit's tables, in the tests of the library without its namespace.
#pragma once

#include "testkit/Rows.h"

using testkit::Rows;
