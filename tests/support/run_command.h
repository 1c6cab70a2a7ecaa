#pragma once
// Runs a program of this project and captures what it printed.

#include <string>
#include <vector>

namespace quorn::test {

struct CommandResult {
  int status = -1;
  std::string out;
  std::string err;
};

/// Runs `program` with `arguments` (no shell involved in quoting: each argument is quoted).
CommandResult runCommand(const std::string& program, const std::vector<std::string>& arguments);

/// Runs the built `symbols` tool.
CommandResult runSymbols(const std::vector<std::string>& arguments);

}  // namespace quorn::test
