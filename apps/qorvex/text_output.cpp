#include "apps/qorvex/text_output.h"

#include <cerrno>
#include <cstdio>
#include <string>
#include <system_error>

namespace qorvex::cli {

void WriteResult(std::string_view text) {
  const bool written = std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
  if (!written || std::fflush(stdout) != 0) {
    throw std::system_error(errno, std::generic_category(), "standard output");
  }
}

void WriteRemark(std::string_view text) {
  const std::string line = "qorvex: " + std::string(text) + '\n';
  // There is nowhere left to say that standard error cannot be written.
  static_cast<void>(std::fwrite(line.data(), 1, line.size(), stderr));
}

}  // namespace qorvex::cli
