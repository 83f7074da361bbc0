// Measures the geometry kernel against the floor of its formulas and against other libraries.
//   bench_kernel FOLDER [WORKLOAD] [PASSES]
// Prints a table and writes the figures into FOLDER.

#include "Report.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

int main(int argc, char** argv) {
    if (argc < 2) {
        std::fprintf(stderr, "usage: bench_kernel FOLDER [WORKLOAD] [PASSES]\n");
        return 2;
    }
    const char* only = argc > 2 ? argv[2] : "";
    const int passes = argc > 3 ? std::atoi(argv[3]) : 1000;
    if (passes < 1) {
        std::fprintf(stderr, "bench_kernel: PASSES must be a number above 0\n");
        return 2;
    }

    const std::vector<Workload> workloads = AllWorkloads();
    std::vector<Row> rows;
    for (const Workload& workload : workloads) {
        if (std::strstr(workload.key, only) == nullptr)
            continue;
        std::fprintf(stderr, "measuring %s\n", workload.name);
        rows.push_back(Measure(workload, passes));
    }
    if (rows.empty()) {
        std::fprintf(stderr, "bench_kernel: no workload matches \"%s\"\n", only);
        return 2;
    }
    PrintTable(rows);
    if (!WriteFiles(rows, argv[1])) {
        std::fprintf(stderr, "bench_kernel: cannot write into %s\n", argv[1]);
        return 1;
    }
    return 0;
}
