#include "cli/arguments.h"

namespace quorn::cli {

Arguments::Arguments(const std::vector<std::string>& words, const std::set<std::string>& valued) {
  for (std::size_t i = 0; i < words.size(); ++i) {
    const std::string& word = words[i];
    if (word.rfind("--", 0) != 0 || word.size() == 2) {
      positional_.push_back(word);
      continue;
    }
    const std::string name = word.substr(2);
    if (valued.count(name) == 0) {
      switches_.insert(name);
    } else if (i + 1 < words.size()) {
      options_[name] = words[++i];
    } else if (error_.empty()) {
      error_ = "option " + word + " needs a value";
    }
  }
}

std::optional<std::string> Arguments::option(const std::string& name) const {
  const auto found = options_.find(name);
  if (found == options_.end()) return std::nullopt;
  return found->second;
}

}  // namespace quorn::cli
