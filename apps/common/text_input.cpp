#include "apps/common/text_input.h"

#include <cerrno>
#include <fcntl.h>
#include <memory>
#include <system_error>
#include <unistd.h>

#include "apps/common/input_error.h"

namespace qorvex::apps {

namespace {

[[noreturn]] void FailWithSystemError(const std::string& name) {
  throw InputError(InputFault::kUnreadable, name, std::generic_category().message(errno));
}

class OpenFile {
 public:
  explicit OpenFile(const std::string& path)
      : descriptor_(::open(path.c_str(), O_RDONLY | O_CLOEXEC)) {
    if (descriptor_ < 0) FailWithSystemError(path);
  }
  ~OpenFile() { ::close(descriptor_); }
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;

  [[nodiscard]] int Descriptor() const { return descriptor_; }

 private:
  int descriptor_;
};

std::size_t ReadFrom(int descriptor, const std::string& name, char* buffer, std::size_t size) {
  for (;;) {
    const ssize_t count = ::read(descriptor, buffer, size);
    if (count >= 0) return static_cast<std::size_t>(count);
    if (errno != EINTR) FailWithSystemError(name);
  }
}

}  // namespace

std::string InputName(const std::string& path) {
  return path == "-" ? "standard input" : path;
}

TextInput OpenTextInput(const std::string& path) {
  const std::string name = InputName(path);
  if (path == "-") {
    return {name, [name](char* buffer, std::size_t size) {
              return ReadFrom(STDIN_FILENO, name, buffer, size);
            }};
  }
  return {name, [name, file = std::make_shared<OpenFile>(path)](char* buffer, std::size_t size) {
            return ReadFrom(file->Descriptor(), name, buffer, size);
          }};
}

}  // namespace qorvex::apps
