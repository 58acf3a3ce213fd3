#include "base/platform.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <system_error>

#ifdef _WIN32
#include <io.h>
#include <windows.h>
#else
#include <unistd.h>
#ifdef __APPLE__
#include <mach-o/dyld.h>
#endif
#endif

namespace fs = std::filesystem;

std::string WithOwnSeparators(std::string path) {
  std::replace(path.begin(), path.end(), '\\', PathSeparator);
  std::replace(path.begin(), path.end(), '/', PathSeparator);
  return path;
}

#ifdef _WIN32

void SurviveFileSizeLimit() {
}

fs::path ProgramFolder() {
  wchar_t name[32768];
  const DWORD length = GetModuleFileNameW(nullptr, name, 32768);
  return fs::path(name, name + length).parent_path();
}

fs::path SharedCalibrationFile() {
  return "c:\\qvxp.dat";
}

bool FlushToDisk(std::FILE* file) {
  return std::fflush(file) == 0 && _commit(_fileno(file)) == 0;
}

bool StandardErrorIsTerminal() {
  return _isatty(2) != 0;
}

#else

void SurviveFileSizeLimit() {
  std::signal(SIGXFSZ, SIG_IGN);
}

fs::path ProgramFolder() {
  std::error_code failed;
#ifdef __APPLE__
  char name[4096];
  uint32_t size = sizeof name;
  const fs::path program = _NSGetExecutablePath(name, &size) == 0 ? fs::canonical(name, failed) : fs::path();
#else
  const fs::path program = fs::read_symlink("/proc/self/exe", failed);
#endif
  return program.parent_path();
}

fs::path SharedCalibrationFile() {
  const char* const config = std::getenv("XDG_CONFIG_HOME");
  if (config != nullptr && *config != '\0') {
    return fs::path(config) / "tarve" / "qvxp.dat";
  }
  const char* const home = std::getenv("HOME");
  return home == nullptr ? fs::path() : fs::path(home) / ".config" / "tarve" / "qvxp.dat";
}

bool FlushToDisk(std::FILE* file) {
  if (std::fflush(file) != 0) {
    return false;
  }
  const bool flushed = fsync(fileno(file)) == 0;
  return flushed || errno == EINVAL || errno == ENOSYS || errno == ENOTSUP;  // a disk that never waits
}

bool StandardErrorIsTerminal() {
  return isatty(STDERR_FILENO) != 0;
}

#endif
