#pragma once

#include <cstdio>
#include <gtest/gtest.h>
#include <string>

namespace qorvex::apps {

/// The output of a shell command on standard output and standard error. It runs with the built
/// program in the path, in the folder of the example data.
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

/// If the command fails, its exit status is expected below its output.
inline void ExpectOutput(const std::string& command, const std::string& output) {
  const std::string tell_failure = "\nstatus=$?; [ $status = 0 ] || echo exit status $status";
  EXPECT_EQ(Shell(command + tell_failure), output) << command;
}

}  // namespace qorvex::apps
