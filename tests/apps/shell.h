#pragma once

#include <algorithm>
#include <cstdio>
#include <gtest/gtest.h>
#include <sstream>
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

/// The command is refused with the message and exit status 2.
inline void ExpectRefusal(const std::string& command, const std::string& message) {
  ExpectOutput(command, "qorvex: " + message + "\nexit status 2\n");
}

/// The command is refused as wrong usage.
inline void ExpectUsageError(const std::string& command, const std::string& message) {
  ExpectRefusal(command, message + "\nqorvex: --help describes the program and its commands");
}

/// Calls check(command, right) for each line "left => right" of a table, with left in place of the
/// "@" in the command. On the right, "|" stands for a line break.
template <class Check>
void ForEachCase(const std::string& command, const std::string& table, Check check) {
  std::istringstream lines(table);
  for (std::string line; std::getline(lines, line);) {
    if (line.empty()) continue;
    const std::size_t arrow = line.find(" =>");
    ASSERT_NE(arrow, std::string::npos) << line;
    std::string whole = command;
    whole.replace(whole.find('@'), 1, line, 0, arrow);
    std::string right = line.substr(std::min(arrow + 4, line.size()));
    std::ranges::replace(right, '|', '\n');
    check(whole, right);
  }
}

/// The right parts of the table are the outputs, without the last line break.
inline void ExpectOutputs(const std::string& command, const std::string& table) {
  ForEachCase(command, table, [](const std::string& whole, const std::string& output) {
    ExpectOutput(whole, output + '\n');
  });
}

/// The right parts of the table, after the start that they share, are the messages.
inline void ExpectRefusals(const std::string& command, const std::string& table,
                           const std::string& start = "") {
  ForEachCase(command, table, [&](const std::string& whole, const std::string& message) {
    ExpectRefusal(whole, start + message);
  });
}

/// The same for wrong usage.
inline void ExpectUsageErrors(const std::string& command, const std::string& table) {
  ForEachCase(command, table, ExpectUsageError);
}

}  // namespace qorvex::apps
