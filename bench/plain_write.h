#pragma once
// What every writer is measured against, and where the benchmarks write.

#include <filesystem>
#include <string_view>

/// A folder for this run alone, where temporary files go; TMPDIR tells another place.
const std::filesystem::path& BenchFolder();
void EmptyBenchFolder();
/// Removes it at the end of the run.
void RemoveBenchFolder();

/// The least that writing a file takes: open, write, close. Ends the program if it fails.
void PlainWrite(const std::filesystem::path& path, std::string_view bytes);
