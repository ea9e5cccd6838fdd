// What the program needs for a million rows.

#include <fcntl.h>
#include <fstream>
#include <gtest/gtest.h>
#include <spawn.h>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace qorvex::cli {
namespace {

// The largest resident size, in bytes, of a run of the program; -1 when it fails.
long PeakOf(const std::string& path) {
  std::string program = QORVEX_PROGRAM_FOLDER "/qorvex";
  std::string command = "describe";
  std::string file = path;
  char* const arguments[] = {program.data(), command.data(), file.data(), nullptr};
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
  pid_t child = 0;
  const int error = posix_spawn(&child, program.c_str(), &actions, nullptr, arguments, environ);
  posix_spawn_file_actions_destroy(&actions);
  if (error != 0) return -1;
  int status = 0;
  rusage usage{};
  if (wait4(child, &status, 0, &usage) != child || status != 0) return -1;
  return usage.ru_maxrss * 1024;
}

std::string WriteTable(const std::string& name, long rows, int columns) {
  const std::string path =
      testing::TempDir() + "qorvex_" + name + "_" + std::to_string(::getpid()) + ".csv";
  std::ofstream file(path);
  for (long row = 0; row < rows; ++row) {
    for (int column = 0; column < columns; ++column) {
      file << (column == 0 ? "" : ",") << row * 7919 % 1000003 << '.' << column;
    }
    file << '\n';
  }
  return path;
}

long BytesPerValue(long rows, int columns) {
  const std::string empty = WriteTable("small", 1, columns);
  const std::string full = WriteTable("large", rows, columns);
  const long base = PeakOf(empty);
  const long peak = PeakOf(full);
  ::unlink(empty.c_str());
  ::unlink(full.c_str());
  EXPECT_GT(base, 0);
  EXPECT_GT(peak, 0);
  return (peak - base) / (rows * columns);
}

TEST(Memory, StaysBelow64BytesAValue) {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
  GTEST_SKIP() << "sanitizers keep what is freed";
#endif
  const long one_column = BytesPerValue(1'000'000, 1);
  RecordProperty("one_column", std::to_string(one_column));
  EXPECT_LT(one_column, 64);
  // Only one column at a time has its sorted copy, so 16 bytes a value and 32 more for one value in
  // six.
  const long six_columns = BytesPerValue(200'000, 6);
  RecordProperty("six_columns", std::to_string(six_columns));
  EXPECT_LT(six_columns, 32);
}

}  // namespace
}  // namespace qorvex::cli
