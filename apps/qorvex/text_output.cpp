#include "apps/qorvex/text_output.h"

#include <cerrno>
#include <cmath>
#include <cstdio>
#include <system_error>

#include "qorvex/base/errors.h"
#include "qorvex/base/text.h"

namespace qorvex::apps {

namespace {

void RequireWritten(bool written) {
  if (!written) throw std::system_error(errno, std::generic_category(), "standard output");
}

}  // namespace

std::string FigureText(Extended figure, std::optional<int> decimals) {
  return decimals ? Float2EStr(figure, *decimals) : Float2Str(figure);
}

std::string AvailableText(Extended figure, std::optional<int> decimals) {
  return std::isnan(figure) ? MessageText(rsNA) : FigureText(figure, decimals);
}

void AppendLine(std::string& text, std::span<const Extended> figures, std::optional<int> decimals) {
  for (std::size_t i = 0; i < figures.size(); ++i) {
    if (i > 0) text += ',';
    text += FigureText(figures[i], decimals);
  }
  text += '\n';
}

void WriteResult(std::string_view text) {
  WritePart(text);
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
