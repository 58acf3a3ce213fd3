#include "plain_write.h"

#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>

namespace fs = std::filesystem;

namespace {

/// On the disk where temporary files go; TMPDIR tells another one.
fs::path MakeFolder() {
  const fs::path folder =
      fs::temp_directory_path() / ("tarve-bench-" + std::to_string(std::random_device()()));
  fs::create_directory(folder);
  return folder;
}

}  // namespace

const fs::path& BenchFolder() {
  static const fs::path folder = MakeFolder();
  return folder;
}

void EmptyBenchFolder() {
  for (const fs::directory_entry& entry : fs::directory_iterator(BenchFolder())) {
    fs::remove_all(entry.path());
  }
}

void RemoveBenchFolder() {
  fs::remove_all(BenchFolder());
}

void PlainWrite(const fs::path& path, std::string_view bytes) {
  std::FILE* const file = std::fopen(path.string().c_str(), "wb");
  const bool written = file != nullptr && std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
  if (!written || std::fclose(file) != 0) {
    std::perror(path.string().c_str());
    std::exit(EXIT_FAILURE);
  }
}
