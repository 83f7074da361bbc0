/// @file
/// What was measured, for the screen, for programs and for a chart.
#pragma once

#include "Measure.h"

#include <string>

void PrintTable(const std::vector<Row>& rows);
/// Writes kernel.json, and kernel.dat for the chart, into `folder`. @return false when it cannot.
bool WriteFiles(const std::vector<Row>& rows, const std::string& folder);
