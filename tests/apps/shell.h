#pragma once

#include <cstdio>
#include <string>

namespace qorvex::cli {

/// What a shell command prints, on standard output and standard error together. It runs with the
/// built program on the path, in the folder of the example data.
inline std::string Shell(const std::string& command) {
  const std::string script = "exec 2>&1; PATH='" QORVEX_PROGRAM_FOLDER
                             "':$PATH; cd '" QORVEX_EXAMPLE_DATA "' || exit\n" +
                             command;
  std::FILE* const pipe = ::popen(script.c_str(), "r");
  std::string text;
  for (int c = std::fgetc(pipe); c != EOF; c = std::fgetc(pipe)) text += static_cast<char>(c);
  ::pclose(pipe);
  return text;
}

}  // namespace qorvex::cli
