#include "crash/failing_disk.h"

#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <optional>

#include <fcntl.h>
#include <sys/types.h>
#include <unistd.h>

namespace terravane::support {

namespace {

std::optional<ArmedFault> armed;
int calls = 0;
bool happened = false;

[[noreturn]] void Die()
{
    kill(getpid(), SIGKILL);
    for (;;) pause();
}

/// The fault that meets this call, if one does.
std::optional<Fault> Meets(std::string_view call)
{
    if (!armed || armed->call != call) return std::nullopt;
    ++calls;
    const bool meets = calls == armed->number || (armed->fault == Fault::KeepsFailing && calls > armed->number);
    if (!meets) return std::nullopt;
    happened = true;
    if (armed->fault == Fault::Dies) Die();
    if (armed->fault != Fault::ComesLate) return armed->fault;
    const auto meanwhile = armed->meanwhile;
    armed.reset();
    meanwhile();
    return std::nullopt;
}

bool Fails(std::optional<Fault> fault)
{
    return fault == Fault::Fails || fault == Fault::KeepsFailing;
}

/// The call as it is, or its failure. `real` makes it.
template <typename Real>
auto Call(std::string_view name, Real real) -> decltype(real())
{
    const auto fault = Meets(name);
    if (Fails(fault)) {
        errno = armed->error;
        return -1;
    }
    const auto result = real();
    if (fault == Fault::DiesBehind) Die();
    return result;
}

}  // namespace

void Arm(const ArmedFault& fault)
{
    armed = fault;
    calls = 0;
    happened = false;
}

bool Disarm()
{
    armed.reset();
    return happened;
}

}  // namespace terravane::support

// The linker's names: __wrap_x is called in the place of x, __real_x is x itself.
extern "C" {
// NOLINTBEGIN
int __real_open(const char* path, int flags, ...);
ssize_t __real_read(int file, void* bytes, size_t count);
ssize_t __real_write(int file, const void* bytes, size_t count);
int __real_fchmod(int file, mode_t mode);
int __real_fsync(int file);
int __real_rename(const char* from, const char* to);
int __real_flock(int file, int operation);

int __wrap_open(const char* path, int flags, ...)
{
    va_list rest;
    va_start(rest, flags);
    const auto mode = (flags & O_CREAT) != 0 ? va_arg(rest, mode_t) : mode_t{0};
    va_end(rest);
    return terravane::support::Call("open", [&] { return __real_open(path, flags, mode); });
}

ssize_t __wrap_read(int file, void* bytes, size_t count)
{
    return terravane::support::Call("read", [&] { return __real_read(file, bytes, count); });
}

ssize_t __wrap_write(int file, const void* bytes, size_t count)
{
    using namespace terravane::support;
    const auto fault = Meets("write");
    if (fault == Fault::Halves) return __real_write(file, bytes, (count + 1) / 2);
    if (Fails(fault)) {
        errno = armed->error;
        return -1;
    }
    if (fault == Fault::DiesBehind) {
        (void)!__real_write(file, bytes, count / 2);
        Die();
    }
    return __real_write(file, bytes, count);
}

int __wrap_fchmod(int file, mode_t mode)
{
    return terravane::support::Call("fchmod", [&] { return __real_fchmod(file, mode); });
}

int __wrap_fsync(int file)
{
    return terravane::support::Call("fsync", [&] { return __real_fsync(file); });
}

int __wrap_rename(const char* from, const char* to)
{
    return terravane::support::Call("rename", [&] { return __real_rename(from, to); });
}

int __wrap_flock(int file, int operation)
{
    return terravane::support::Call("flock", [&] { return __real_flock(file, operation); });
}
// NOLINTEND
}
