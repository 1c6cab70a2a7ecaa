#pragma once
// Command-line words: positional arguments, "--name value" options and "--name" switches.

#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace quorn::cli {

class Arguments {
 public:
  /// `valued` names the options that take a value; every other "--name" is a switch.
  Arguments(const std::vector<std::string>& words, const std::set<std::string>& valued);

  const std::vector<std::string>& positional() const { return positional_; }
  std::optional<std::string> option(const std::string& name) const;
  bool has(const std::string& name) const { return switches_.count(name) > 0; }
  /// The first problem met while reading the words, empty when there was none.
  const std::string& error() const { return error_; }

 private:
  std::vector<std::string> positional_;
  std::map<std::string, std::string> options_;
  std::set<std::string> switches_;
  std::string error_;
};

}  // namespace quorn::cli
