// Computes all cases of one workload once, for a tool that counts the instructions.
//   kernel_instructions        lists the workloads
//   kernel_instructions NAME   computes one

#include "Workloads.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

namespace {

constexpr int kCases = 2000;

} // namespace

/// What is counted, with all that it calls.
extern "C" [[gnu::noinline]] int CountedPass(const Form& form, const std::vector<double>& cases,
                                             std::size_t arity) {
    return form.pass(cases.data(), cases.size() / arity);
}

int main(int argc, char** argv) {
    const std::vector<Workload> workloads = AllWorkloads();
    if (argc < 2) {
        for (const Workload& workload : workloads)
            std::printf("%s\n", workload.key);
        return 0;
    }
    const auto workload = std::find_if(workloads.begin(), workloads.end(), [argv](const Workload& w) {
        return std::strcmp(w.key, argv[1]) == 0;
    });
    if (workload == workloads.end()) {
        std::fprintf(stderr, "kernel_instructions: no workload \"%s\"\n", argv[1]);
        return 2;
    }
    const auto kernel = std::find_if(workload->forms.begin(), workload->forms.end(),
                                     [](const Form& form) { return form.kind == Kind::Kernel; });
    std::printf("%d\n", CountedPass(*kernel, workload->cases(kCases), workload->arity));
    return 0;
}
