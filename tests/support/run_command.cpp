#include "support/run_command.h"

#include <sys/wait.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sstream>

#include "support/temp_directory.h"

namespace quorn::test {

namespace {

std::string shellQuoted(const std::string& word) {
  std::string quoted = "'";
  for (const char c : word) {
    if (c == '\'') {
      quoted += "'\\''";
    } else {
      quoted += c;
    }
  }
  return quoted + "'";
}

std::string contentOf(const std::filesystem::path& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream content;
  content << in.rdbuf();
  return content.str();
}

}  // namespace

CommandResult runCommand(const std::string& program, const std::vector<std::string>& arguments) {
  TempDirectory capture;
  std::string command = shellQuoted(program);
  for (const std::string& argument : arguments) command += " " + shellQuoted(argument);
  command += " >" + shellQuoted((capture.path() / "out").string());
  command += " 2>" + shellQuoted((capture.path() / "err").string()) + " </dev/null";
  CommandResult result;
  const int raw = std::system(command.c_str());
  result.status = WIFEXITED(raw) ? WEXITSTATUS(raw) : -1;
  result.out = contentOf(capture.path() / "out");
  result.err = contentOf(capture.path() / "err");
  return result;
}

CommandResult runSymbols(const std::vector<std::string>& arguments) {
  return runCommand(QUORN_SYMBOLS_EXE, arguments);
}

}  // namespace quorn::test
