/* Loaded before the C library: counts the calls of a process that are about files, or those for
 * memory, and fails the one that the environment chooses.
 *
 *   FAULT_AT=N    the N-th call, from 1 on
 *   FAULT=KIND    kill    the process is killed before the call, or in the middle of a write
 *                 half    a write does half of what it should
 *                 full    no file has room any more, from a write on that does half
 *                 memory  there is none for the N-th allocation; these alone are counted
 *                 5       the call fails with the error of this number, once
 *   FAULT_LIST=D  a descriptor that the names of the calls go to, a line each */
#define _GNU_SOURCE
#include <dlfcn.h>
#include <errno.h>
#include <fcntl.h>
#include <signal.h>
#include <stdarg.h>
#include <stdatomic.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

enum kind { kNone, kKill, kHalf, kFull, kMemory, kError };
enum course { kGoesOn, kDoesHalf, kFails };

static enum kind kind;
static atomic_long count;
static long chosen;
static int error;
static int list = -1;

static void note(const char *line) {
  if (list >= 0) syscall(SYS_write, list, line, strlen(line));
}

__attribute__((constructor)) static void start(void) {
  static const char *const kNames[] = {"", "kill", "half", "full", "memory"};
  const char *const name = getenv("FAULT");
  const char *const descriptor = getenv("FAULT_LIST");
  if (descriptor != NULL) list = atoi(descriptor);
  if (name == NULL) return;
  chosen = atol(getenv("FAULT_AT"));
  error = atoi(name);
  kind = kError;
  for (int i = kKill; i <= kMemory; ++i) {
    if (strcmp(name, kNames[i]) == 0) kind = (enum kind)i;
  }
}

__attribute__((destructor)) static void end(void) {
  char line[32];
  if (kind == kMemory) sprintf(line, "%ld\n", (long)count), note(line);
}

/* Sets errno where the call fails. One that is killed in the middle does half before. */
static enum course next_call(const char *name, int takes_room, int writes) {
  if (kind == kMemory) return kGoesOn;
  note(name);
  const long number = ++count;
  const int is_chosen = number == chosen;
  if (is_chosen && kind == kKill && !writes) raise(SIGKILL);
  if (is_chosen && kind == kError) return errno = error, kFails;
  if (kind == kFull && takes_room && number >= chosen) {
    errno = ENOSPC;
    return is_chosen && writes ? kDoesHalf : kFails;
  }
  return is_chosen && writes && (kind == kKill || kind == kHalf) ? kDoesHalf : kGoesOn;
}

#define NEXT(name) (__extension__(__typeof__(&name)) dlsym(RTLD_NEXT, #name))

static int is_file(int descriptor) {
  struct stat status;
  return NEXT(fstat)(descriptor, &status) == 0 && S_ISREG(status.st_mode);
}

#define CALL(name, takes_room, parameters, arguments)                                  \
  int name parameters {                                                                \
    return next_call(#name "\n", takes_room, 0) == kFails ? -1 : NEXT(name) arguments; \
  }

CALL(access, 0, (const char *path, int mode), (path, mode))
CALL(stat, 0, (const char *path, struct stat *to), (path, to))
CALL(lstat, 0, (const char *path, struct stat *to), (path, to))
CALL(fstat, 0, (int file, struct stat *to), (file, to))
CALL(fstatat, 0, (int folder, const char *path, struct stat *to, int flags),
     (folder, path, to, flags))
CALL(fsync, 0, (int file), (file))
CALL(fdatasync, 0, (int file), (file))
CALL(ftruncate, 0, (int file, off_t size), (file, size))
CALL(fchmod, 0, (int file, mode_t mode), (file, mode))
CALL(flock, 0, (int file, int operation), (file, operation))
CALL(link, 1, (const char *from, const char *to), (from, to))
CALL(rename, 0, (const char *from, const char *to), (from, to))
CALL(renameat, 0, (int from, const char *old, int to, const char *new), (from, old, to, new))
CALL(remove, 0, (const char *path), (path))
CALL(unlink, 0, (const char *path), (path))
CALL(unlinkat, 0, (int folder, const char *path, int flags), (folder, path, flags))

#define OPEN(name, parameters, ...)                             \
  int name parameters {                                         \
    va_list rest;                                               \
    va_start(rest, flags);                                      \
    const int creates = (flags & O_CREAT) != 0;                 \
    const mode_t mode = creates ? va_arg(rest, mode_t) : 0;     \
    va_end(rest);                                               \
    if (next_call(#name "\n", creates, 0) == kFails) return -1; \
    return NEXT(name)(__VA_ARGS__, mode);                       \
  }

OPEN(open, (const char *path, int flags, ...), path, flags)
OPEN(openat, (int folder, const char *path, int flags, ...), folder, path, flags)

ssize_t read(int file, void *to, size_t size) {
  if (!is_file(file)) return NEXT(read)(file, to, size);
  return next_call("read\n", 0, 0) == kFails ? -1 : NEXT(read)(file, to, size);
}

ssize_t write(int file, const void *from, size_t size) {
  if (!is_file(file)) return NEXT(write)(file, from, size);
  const enum course course = next_call("write\n", 1, 1);
  if (course == kFails) return -1;
  const ssize_t wrote = NEXT(write)(file, from, course == kDoesHalf ? (size + 1) / 2 : size);
  if (course == kDoesHalf && kind == kKill) raise(SIGKILL);
  return wrote;
}

/* What the C library allocates for itself, it may need. */
static int has_memory(const void *caller) {
  Dl_info info;
  if (kind != kMemory || ++count != chosen) return 1;
  if (dladdr(caller, &info) != 0 && strstr(info.dli_fname, "libc.so") != NULL) return 1;
  errno = ENOMEM;
  return 0;
}

#define HAS_MEMORY has_memory(__builtin_return_address(0))
extern void *__libc_malloc(size_t size);
extern void *__libc_calloc(size_t number, size_t size);
extern void *__libc_realloc(void *old, size_t size);
void *malloc(size_t size) { return HAS_MEMORY ? __libc_malloc(size) : NULL; }
void *calloc(size_t number, size_t size) { return HAS_MEMORY ? __libc_calloc(number, size) : NULL; }
void *realloc(void *old, size_t size) { return HAS_MEMORY ? __libc_realloc(old, size) : NULL; }
