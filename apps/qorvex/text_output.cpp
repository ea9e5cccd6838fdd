#include "apps/qorvex/text_output.h"

#include <cerrno>
#include <cstdio>
#include <optional>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

#include "apps/qorvex/interrupt_hold.h"

namespace qorvex::apps {

namespace {

void RequireWritten(bool written) {
  if (!written) throw std::system_error(errno, std::generic_category(), "standard output");
}

}  // namespace

void AppendLine(std::string& text, std::span<const Extended> figures, const FigureFormat& format) {
  for (std::size_t i = 0; i < figures.size(); ++i) {
    if (i > 0) text += ',';
    text += format.Text(figures[i]);
  }
  text += '\n';
}

void WriteResult(std::string_view text) {
  WriteResult({&text, 1});
}

void WriteResult(std::span<const std::string_view> parts) {
  std::optional<InterruptHold> hold;
  struct stat output {};
  if (::fstat(STDOUT_FILENO, &output) == 0 && S_ISREG(output.st_mode)) hold.emplace();
  for (const std::string_view part : parts) WritePart(part);
  RequireWritten(std::fflush(stdout) == 0);
}

void WritePart(std::string_view text) {
  RequireWritten(std::fwrite(text.data(), 1, text.size(), stdout) == text.size());
}

void WriteRemark(std::string_view text) {
  const std::string line = "qorvex: " + std::string(text) + '\n';
  // If standard error cannot be written, there is no place left to report it.
  static_cast<void>(std::fwrite(line.data(), 1, line.size(), stderr));
}

}  // namespace qorvex::apps
