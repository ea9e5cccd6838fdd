#include "apps/qorvex/progress.h"

#include <chrono>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <system_error>
#include <unistd.h>
#include <utility>

#include "apps/common/input_error.h"
#include "qorvex/base/text.h"

namespace qorvex::apps {

namespace {

using Clock = std::chrono::steady_clock;
using namespace std::chrono_literals;

constexpr const char* kStartOfEmptyLine = "\r\x1B[K";

class Progress {
 public:
  // The size is 0 if it is not known.
  Progress(std::string name, std::uint64_t size) : name_(std::move(name)), size_(size) {}
  ~Progress() {
    if (is_shown_) static_cast<void>(std::fputs(kStartOfEmptyLine, stderr));
  }
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  void Add(std::size_t bytes) {
    read_ += bytes;
    if (Clock::now() < next_) return;
    next_ = Clock::now() + 200ms;
    is_shown_ = true;
    const std::string amount =
        size_ > 0 ? Int2EStr(100 * read_ / size_) + " %" : Int2EStr(read_ / 1'000'000) + " MB";
    const std::string line = kStartOfEmptyLine + ("qorvex: " + name_) + ": " + amount + " read";
    static_cast<void>(std::fputs(line.c_str(), stderr));
  }

 private:
  std::string name_;
  std::uint64_t size_;
  std::uint64_t read_ = 0;
  Clock::time_point next_ = Clock::now() + 2s;
  bool is_shown_ = false;
};

std::uint64_t SizeOf(const std::string& path) {
  std::error_code error;
  const std::uintmax_t size = std::filesystem::file_size(path == "-" ? "/dev/stdin" : path, error);
  return error ? 0 : size;
}

}  // namespace

TextInput OpenWithProgress(const std::string& path) {
  TextInput input = OpenTextInput(path);
  const bool is_typed = path == "-" && ::isatty(STDIN_FILENO) == 1;
  if (is_typed || ::isatty(STDERR_FILENO) != 1) return input;
  const auto progress = std::make_shared<Progress>(Shortened(input.name), SizeOf(path));
  return {input.name, [read = std::move(input.read), progress](char* buffer, std::size_t size) {
            const std::size_t count = read(buffer, size);
            progress->Add(count);
            return count;
          }};
}

}  // namespace qorvex::apps
