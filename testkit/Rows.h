/// @file
/// A table of cases: a row a case, whose columns get their names where it is gone through. Needs
/// nothing of the framework.
#pragma once

#include <initializer_list>
#include <tuple>

namespace testkit {

///     const Rows<double, LPCTSTR> rows = {{1.5, L"1.5"}, {2, L"2"}};
///     for (const auto& [number, text] : rows)
/// A column must own what it holds: a list of initialisers would be gone when its row is read.
template <class... Columns>
using Rows = std::initializer_list<std::tuple<Columns...>>;

} // namespace testkit
