/// @file
/// The workloads: what is measured, in which forms, and how near to the floor it is to come.
#pragma once

#include "Form.h"

#include <vector>

struct Workload {
    const char* key;  ///< for files
    const char* name; ///< for people
    std::size_t arity;
    double goal; ///< the kernel's time over the floor's, at most
    std::vector<double> (*cases)(int count);
    std::vector<Form> forms; ///< floor, plain, kernel, then the peers
};

std::vector<Workload> AllWorkloads();
