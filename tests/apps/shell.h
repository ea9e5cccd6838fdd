#pragma once

#include <cstdio>
#include <gtest/gtest.h>
#include <string>

namespace qorvex::apps {

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

/// Below its output stands the exit status of a command that fails.
inline void ExpectOutput(const std::string& command, const std::string& output) {
  const std::string tell_failure = "\nstatus=$?; [ $status = 0 ] || echo exit status $status";
  EXPECT_EQ(Shell(command + tell_failure), output) << command;
}

/// The command is refused with the message and exit status 2.
inline void ExpectRefusal(const std::string& command, const std::string& message) {
  ExpectOutput(command, "qorvex: " + message + "\nexit status 2\n");
}

}  // namespace qorvex::apps
