// The program run as a person runs it from a terminal, with its output kept.
#pragma once

#include <sys/wait.h>

#include <cstdio>
#include <string>

namespace lad::testing {

struct ProgramRun {
  int status = -1;
  std::string output;  // standard output and error together
};

// Runs the pregnancy edition with the command and its arguments.
inline ProgramRun runProgram(const std::string& command, const std::string& args) {
  ProgramRun r;
  const std::string line = std::string(LADANEYA_PROGRAM) + " " + command + " " + args + " 2>&1";
  FILE* pipe = popen(line.c_str(), "r");
  char buffer[512];
  while (std::size_t n = std::fread(buffer, 1, sizeof buffer, pipe)) r.output.append(buffer, n);
  const int status = pclose(pipe);
  r.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  return r;
}

}  // namespace lad::testing
