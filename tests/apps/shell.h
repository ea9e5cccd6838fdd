#pragma once

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

namespace qorvex::cli {

/// What a shell command printed, and its exit status.
struct ShellResult {
  int status;
  std::string out;
  std::string err;
};

inline std::string FileText(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

/// Runs a command by sh, with the built program on the path, in the folder of the example data.
inline ShellResult Shell(const std::string& command) {
  const std::string base = "/tmp/qorvex_test_" + std::to_string(::getpid());
  const std::string script = "PATH='" QORVEX_PROGRAM_FOLDER "':$PATH; cd '" QORVEX_EXAMPLE_DATA
                             "' && {\n" +
                             command + "\n} >" + base + ".out 2>" + base + ".err";
  const int status = std::system(script.c_str());
  ShellResult result{WIFEXITED(status) ? WEXITSTATUS(status) : -1, FileText(base + ".out"),
                     FileText(base + ".err")};
  ::unlink((base + ".out").c_str());
  ::unlink((base + ".err").c_str());
  return result;
}

}  // namespace qorvex::cli
