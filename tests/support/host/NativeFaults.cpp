#include "support/NativeFaults.h"

#include <algorithm>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <utility>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

extern "C" void* __real_malloc(std::size_t size);

namespace {

enum class Kind { None, Memory, Call };

Kind g_kind = Kind::None;
const char* g_call = nullptr;
int g_error = 0;
long g_left = 0;
bool g_failed = false;

faults::Use g_use;

std::size_t g_largest = 0;

bool FailsNow(Kind kind, const char* call) {
    if (g_kind != kind || (g_call != nullptr && std::strcmp(g_call, call) != 0) || --g_left != 0)
        return false;
    g_failed = true;
    return true;
}

void* Counted(void* memory) {
    g_use.blocks += 1;
    return memory;
}

bool FailsToAllocate(std::size_t size) {
    g_largest = std::max(g_largest, size);
    return FailsNow(Kind::Memory, "");
}

void* Allocate(std::size_t size) {
    void* const memory = FailsToAllocate(size) ? nullptr : __real_malloc(size != 0 ? size : 1);
    if (memory == nullptr)
        throw std::bad_alloc();
    return Counted(memory);
}

void Release(void* memory) {
    if (memory == nullptr)
        return;
    g_use.blocks -= 1;
    std::free(memory);
}

/// The failing call's answer, or what `call` answers.
template <class Call>
auto Answer(const char* name, Call call) -> decltype(call()) {
    if (!FailsNow(Kind::Call, name))
        return call();
    errno = g_error;
    return -1;
}

/// The same of a call that can do half of what it is asked for.
template <class Call>
ssize_t AnswerPartly(const char* name, std::size_t count, Call call) {
    if (g_error != 0)
        return Answer(name, [&] { return call(count); });
    return call(FailsNow(Kind::Call, name) ? count / 2 : count);
}

void Arm(Kind kind, const char* call, int error, long nth) {
    g_kind = kind;
    g_call = call;
    g_error = error;
    g_left = nth;
    g_failed = false;
}

} // namespace

namespace faults {

void FailMemory(long nth) {
    Arm(Kind::Memory, nullptr, g_error, nth);
}

void FailCall(const char* call, int error, long nth) {
    Arm(Kind::Call, call, error, nth);
}

bool Disarm() {
    g_kind = Kind::None;
    return g_failed;
}

Use Now() {
    return g_use;
}

std::size_t TakeLargest() {
    return std::exchange(g_largest, 0);
}

long FailEach(const std::function<void(long)>& arm, const std::function<void()>& run) {
    for (long nth = 1;; ++nth) {
        const Use before = Now();
        arm(nth);
        const End end = EndOf([&] { run(); });
        const bool failed = Disarm();
        EXPECT_EQ(Now(), before) << "left after failure " << nth;
        if (failed)
            continue;
        EXPECT_EQ(End::Done, end);
        return nth - 1;
    }
}

} // namespace faults

void* operator new(std::size_t size) {
    return Allocate(size);
}
void* operator new[](std::size_t size) {
    return Allocate(size);
}
void operator delete(void* memory) noexcept {
    Release(memory);
}
void operator delete[](void* memory) noexcept {
    Release(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    Release(memory);
}
void operator delete[](void* memory, std::size_t) noexcept {
    Release(memory);
}

// The linker sends the calls of the program's own code here (--wrap).
extern "C" {

void* __real_realloc(void* memory, std::size_t size);
int __real_open(const char* path, int flags, ...);
int __real_close(int fd);
int __real_fcntl(int fd, int command, ...);
ssize_t __real_read(int fd, void* buffer, std::size_t count);
ssize_t __real_write(int fd, const void* buffer, std::size_t count);

void* __wrap_malloc(std::size_t size) {
    return FailsToAllocate(size) ? nullptr : __real_malloc(size);
}
void* __wrap_realloc(void* memory, std::size_t size) {
    return FailsToAllocate(size) ? nullptr : __real_realloc(memory, size);
}

int __wrap_snprintf(char* target, std::size_t size, const char* format, ...) {
    if (FailsNow(Kind::Memory, ""))
        return -1;
    va_list args;
    va_start(args, format);
    const int needed = std::vsnprintf(target, size, format, args);
    va_end(args);
    return needed;
}

int __wrap_open(const char* path, int flags, ...) {
    va_list args;
    va_start(args, flags);
    const unsigned mode = (flags & O_CREAT) != 0 ? va_arg(args, unsigned) : 0;
    va_end(args);
    const int fd = Answer("open", [&] { return __real_open(path, flags, mode); });
    g_use.files += fd >= 0 ? 1 : 0;
    return fd;
}

// Closed in any case, as the system does it.
int __wrap_close(int fd) {
    const int closed = __real_close(fd);
    g_use.files -= closed == 0 ? 1 : 0;
    return Answer("close", [&] { return closed; });
}

int __wrap_fcntl(int fd, int command, ...) {
    va_list args;
    va_start(args, command);
    void* const argument = va_arg(args, void*);
    va_end(args);
    const int result = Answer("fcntl", [&] { return __real_fcntl(fd, command, argument); });
    g_use.files += command == F_DUPFD_CLOEXEC && result >= 0 ? 1 : 0;
    return result;
}

ssize_t __wrap_read(int fd, void* buffer, std::size_t count) {
    return AnswerPartly("read", count, [&](std::size_t n) { return __real_read(fd, buffer, n); });
}
ssize_t __wrap_write(int fd, const void* buffer, std::size_t count) {
    return AnswerPartly("write", count, [&](std::size_t n) { return __real_write(fd, buffer, n); });
}

#define WRAP(result, call, parameters, arguments)                                                            \
    result __real_##call parameters;                                                                         \
    result __wrap_##call parameters {                                                                        \
        return Answer(#call, [&] { return __real_##call arguments; });                                       \
    }
WRAP(off_t, lseek, (int fd, off_t offset, int whence), (fd, offset, whence))
WRAP(int, ftruncate, (int fd, off_t length), (fd, length))
WRAP(int, fsync, (int fd), (fd))
WRAP(int, flock, (int fd, int operation), (fd, operation))
WRAP(int, fstat, (int fd, struct stat* status), (fd, status))
WRAP(int, rename, (const char* from, const char* to), (from, to))
WRAP(int, unlink, (const char* path), (path))
#undef WRAP
}
