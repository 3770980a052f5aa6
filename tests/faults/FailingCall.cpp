// SPDX-License-Identifier: Apache-2.0
// Loaded before the C library: stands in front of its calls, and has one of them fail once, in
// whichever process of the session it comes to. What to do is said in the environment (Fault.h).

#include <dlfcn.h>
#include <fcntl.h>
#include <spawn.h>
#include <sys/mman.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string_view>

namespace {

/// The plan, and the count that all processes share.
struct Plan {
  std::string_view family;
  int number = 0;
  int error = 0;
  std::atomic<int> *count = nullptr;
};

bool isOurs(std::string_view program) {
  return program == "orvek-print" || program == "orvek-print-server" || program == "orvek-booklet";
}

// By the system's own calls: those of the library are what is watched.
std::atomic<int> *sharedCount(const char *path) {
  const long file = ::syscall(SYS_openat, AT_FDCWD, path, O_RDWR | O_CLOEXEC);
  if (file < 0) return nullptr;
  const long place = ::syscall(SYS_mmap, nullptr, sizeof(std::atomic<int>), PROT_READ | PROT_WRITE,
                               MAP_SHARED, file, 0);
  ::syscall(SYS_close, file);
  return place < 0 ? nullptr : reinterpret_cast<std::atomic<int> *>(place);
}

Plan readPlan() {
  Plan plan;
  const char *family = std::getenv("ORVEK_FAULT_CALL");
  const char *number = std::getenv("ORVEK_FAULT_NUMBER");
  const char *error = std::getenv("ORVEK_FAULT_ERROR");
  const char *count = std::getenv("ORVEK_FAULT_COUNT");
  if (family == nullptr || number == nullptr || error == nullptr || count == nullptr) return plan;
  if (!isOurs(program_invocation_short_name)) return plan;
  plan = {family, std::atoi(number), std::atoi(error), sharedCount(count)};
  return plan;
}

bool failsNow(std::string_view family) {
  static const Plan plan = readPlan();
  if (plan.count == nullptr || family != plan.family) return false;
  if (plan.count->fetch_add(1) + 1 != plan.number) return false;
  errno = plan.error;
  return true;
}

template <class Function>
Function *nextOf(const char *name) {
  return reinterpret_cast<Function *>(::dlsym(RTLD_NEXT, name));
}

}  // namespace

// Under names of their own here, as the headers declare them in ways of their own.
#define ORVEK_CALL(family, failed, type, name, parameters, ...)      \
  extern "C" type faulty##name parameters __asm__(#name);            \
  type faulty##name parameters {                                     \
    if (failsNow(#family)) return failed;                            \
    static auto *const next = nextOf<decltype(faulty##name)>(#name); \
    return next(__VA_ARGS__);                                        \
  }

// The mode is read whether or not it was given: nobody looks at it then.
#define ORVEK_OPEN(name)                                                        \
  extern "C" int faulty##name(const char *path, int flags, ...) __asm__(#name); \
  int faulty##name(const char *path, int flags, ...) {                          \
    va_list more;                                                               \
    va_start(more, flags);                                                      \
    const mode_t mode = va_arg(more, mode_t);                                   \
    va_end(more);                                                               \
    if (failsNow("open")) return -1;                                            \
    static auto *const next = nextOf<decltype(faulty##name)>(#name);            \
    return next(path, flags, mode);                                             \
  }

ORVEK_OPEN(open)
ORVEK_OPEN(open64)
ORVEK_CALL(open, -1, int, __open_2, (const char *path, int flags), path, flags)
ORVEK_CALL(open, -1, int, __open64_2, (const char *path, int flags), path, flags)
ORVEK_CALL(open, nullptr, FILE *, fopen, (const char *path, const char *mode), path, mode)
ORVEK_CALL(open, nullptr, FILE *, fopen64, (const char *path, const char *mode), path, mode)

ORVEK_CALL(read, -1, ssize_t, read, (int file, void *bytes, size_t size), file, bytes, size)
ORVEK_CALL(read, -1, ssize_t, __read_chk, (int file, void *bytes, size_t size, size_t room), file,
           bytes, size, room)
ORVEK_CALL(write, -1, ssize_t, write, (int file, const void *bytes, size_t size), file, bytes, size)
ORVEK_CALL(write, -1, ssize_t, writev, (int file, const iovec *parts, int count), file, parts,
           count)

ORVEK_CALL(rename, -1, int, rename, (const char *from, const char *to), from, to)
ORVEK_CALL(rename, -1, int, renameat2,
           (int fromFolder, const char *from, int toFolder, const char *to, unsigned flags),
           fromFolder, from, toFolder, to, flags)
ORVEK_CALL(link, -1, int, link, (const char *from, const char *to), from, to)
ORVEK_CALL(link, -1, int, linkat,
           (int fromFolder, const char *from, int toFolder, const char *to, int flags), fromFolder,
           from, toFolder, to, flags)
ORVEK_CALL(fsync, -1, int, fsync, (int file), file)
ORVEK_CALL(fsync, -1, int, fdatasync, (int file), file)

ORVEK_CALL(mmap, MAP_FAILED, void *, mmap,
           (void *place, size_t size, int rights, int flags, int file, off_t offset), place, size,
           rights, flags, file, offset)
ORVEK_CALL(mmap, MAP_FAILED, void *, mmap64,
           (void *place, size_t size, int rights, int flags, int file, off64_t offset), place, size,
           rights, flags, file, offset)

ORVEK_CALL(socket, -1, int, socket, (int domain, int type, int protocol), domain, type, protocol)
ORVEK_CALL(socket, -1, int, socketpair, (int domain, int type, int protocol, int *ends), domain,
           type, protocol, ends)
ORVEK_CALL(connect, -1, int, connect, (int file, const sockaddr *address, socklen_t size), file,
           address, size)
ORVEK_CALL(send, -1, ssize_t, send, (int file, const void *bytes, size_t size, int flags), file,
           bytes, size, flags)
ORVEK_CALL(recv, -1, ssize_t, recv, (int file, void *bytes, size_t size, int flags), file, bytes,
           size, flags)
ORVEK_CALL(recv, -1, ssize_t, __recv_chk,
           (int file, void *bytes, size_t size, size_t room, int flags), file, bytes, size, room,
           flags)

ORVEK_CALL(fork, -1, pid_t, fork, (), )
// Gives the error instead of leaving it in errno.
ORVEK_CALL(fork, errno, int, posix_spawn,
           (pid_t * process, const char *path, const posix_spawn_file_actions_t *files,
            const posix_spawnattr_t *attributes, char *const *words, char *const *environment),
           process, path, files, attributes, words, environment)

// The descriptor is gone whatever closing it came to.
extern "C" int faultyclose(int file) __asm__("close");
int faultyclose(int file) {
  static auto *const next = nextOf<decltype(faultyclose)>("close");
  const int closed = next(file);
  return failsNow("close") ? -1 : closed;
}

// What the toolkit starts processes with. Its last three arguments are read whether or not they
// were given.
extern "C" int faultyclone(int (*run)(void *), void *stack, int flags, void *argument,
                           ...) __asm__("clone");
int faultyclone(int (*run)(void *), void *stack, int flags, void *argument, ...) {
  std::va_list more;
  va_start(more, argument);
  void *parent = va_arg(more, void *);
  void *storage = va_arg(more, void *);
  void *child = va_arg(more, void *);
  va_end(more);
  if (failsNow("fork")) return -1;
  static auto *const next = nextOf<decltype(faultyclone)>("clone");
  return next(run, stack, flags, argument, parent, storage, child);
}
