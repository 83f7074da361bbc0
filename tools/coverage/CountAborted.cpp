// Part of every test program of ./run coverage: what ran before abort() counts too.
#include <csignal>

extern "C" int __llvm_profile_write_file();

namespace {

const auto g_atAbort = std::signal(SIGABRT, [](int) { __llvm_profile_write_file(); });

} // namespace
