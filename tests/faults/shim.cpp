// Preloaded into a program: counts its calls on files below one folder, and makes one of them fail,
// or ends the program there.
//   FAULT_ROOT   the folder; opening "c/begin" in it begins the counting, "c/end" ends it
//   FAULT_LOG    a file that gets the name of each counted call when none is to fail
//   FAULT_CALL   which call fails, from 1; none for 0
//   FAULT_STAYS  not empty: the later ones fail as well
//   FAULT_ERRNO  what it fails with; 0 ends the program by SIGKILL
// A write that is hit has written half of its bytes.
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <dlfcn.h>
#include <fcntl.h>
#include <string>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

bool counting = false;
long calls = 0;

const char* Variable(const char* name) {
  const char* value = getenv(name);
  return value ? value : "";
}

std::string PathOf(int file) {
  char path[4096];
  const std::string link = "/proc/self/fd/" + std::to_string(file);
  const ssize_t size = readlink(link.c_str(), path, sizeof path);
  return size < 0 ? "" : std::string(path, static_cast<std::size_t>(size));
}

bool Watched(const std::string& path) {
  const std::string root = Variable("FAULT_ROOT");
  return counting && !root.empty() && path.compare(0, root.size(), root) == 0;
}
bool Watched(int file) { return counting && Watched(PathOf(file)); }

void Log(const char* call) {
  const std::string line = std::string(call) + "\n";
  constexpr int kHow = O_WRONLY | O_CREAT | O_APPEND;
  const auto file = syscall(SYS_openat, AT_FDCWD, Variable("FAULT_LOG"), kHow, 0600);
  syscall(SYS_write, file, line.data(), line.size());
  syscall(SYS_close, file);
}

bool Chosen(const char* call) {
  const long chosen = atol(Variable("FAULT_CALL"));
  ++calls;
  if (chosen == 0) Log(call);
  return chosen > 0 && (calls == chosen || (calls > chosen && *Variable("FAULT_STAYS")));
}

/// For a call that is to fail; sets errno.
void Strike() {
  const int error = atoi(Variable("FAULT_ERRNO"));
  if (error == 0) raise(SIGKILL);
  errno = error;
}

template <class Function>
Function* Real(const char* name) {
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

void Mark(const std::string& path) {
  const std::string root = Variable("FAULT_ROOT");
  if (path == root + "/c/begin") counting = true;
  if (path == root + "/c/end") counting = false;
}

}  // namespace

// The headers declare these names with exception specifications of their own.
#define NAMED(type, name, parameters) extern "C" type shim_##name parameters __asm__(#name);

#define WATCH(type, name, failure, parameters, arguments, place) \
  NAMED(type, name, parameters)                                  \
  type shim_##name parameters {                                  \
    if (Watched(place) && Chosen(#name)) {                       \
      Strike();                                                  \
      return failure;                                            \
    }                                                            \
    return Real<type parameters>(#name) arguments;               \
  }

NAMED(int, open, (const char* path, int flags, mode_t mode))
int shim_open(const char* path, int flags, mode_t mode) {
  Mark(path);
  if (Watched(path) && Chosen("open")) {
    Strike();
    return -1;
  }
  return Real<int(const char*, int, ...)>("open")(path, flags, mode);
}

WATCH(int, fsync, -1, (int file), (file), file)
WATCH(int, fchmod, -1, (int file, mode_t mode), (file, mode), file)
WATCH(int, fchown, -1, (int file, uid_t user, gid_t group), (file, user, group), file)
WATCH(int, ftruncate, -1, (int file, off_t size), (file, size), file)
WATCH(int, fallocate, -1, (int file, int how, off_t from, off_t size), (file, how, from, size),
      file)
WATCH(int, flock, -1, (int file, int how), (file, how), file)
WATCH(ssize_t, read, -1, (int file, void* bytes, size_t size), (file, bytes, size), file)
WATCH(ssize_t, flistxattr, -1, (int file, char* names, size_t size), (file, names, size), file)
WATCH(ssize_t, fgetxattr, -1, (int file, const char* name, void* value, size_t size),
      (file, name, value, size), file)
WATCH(int, fsetxattr, -1, (int file, const char* name, const void* value, size_t size, int how),
      (file, name, value, size, how), file)
WATCH(int, rename, -1, (const char* from, const char* to), (from, to), to)
WATCH(int, renameat2, -1, (int at, const char* from, int place, const char* to, unsigned how),
      (at, from, place, to, how), to)
WATCH(int, link, -1, (const char* from, const char* to), (from, to), to)
WATCH(int, unlink, -1, (const char* path), (path), path)
WATCH(int, rmdir, -1, (const char* path), (path), path)
WATCH(int, mkdir, -1, (const char* path, mode_t mode), (path, mode), path)
WATCH(char*, mkdtemp, nullptr, (char* path), (path), path)

NAMED(ssize_t, write, (int file, const void* bytes, size_t size))
ssize_t shim_write(int file, const void* bytes, size_t size) {
  const auto real = Real<ssize_t(int, const void*, size_t)>("write");
  if (!Watched(file) || !Chosen("write")) return real(file, bytes, size);
  if (real(file, bytes, size / 2) >= 0) Strike();
  return -1;
}

NAMED(int, close, (int file))
int shim_close(int file) {
  const bool chosen = Watched(file) && Chosen("close");
  const int result = Real<int(int)>("close")(file);
  if (!chosen) return result;
  Strike();
  return -1;
}
