#include "config/configuration_reader.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <string_view>
#include <utility>

#include "base/numbers.h"
#include "base/text.h"
#include "config/config_keys.h"
#include "config/configuration_line.h"
#include "config/configuration_texts.h"
#include "model/limits.h"

namespace quorn {

namespace {

constexpr std::string_view kSystemSetupHeader = "[System Setup]";
constexpr std::string_view kGroupsHeader = "[Groups]";
constexpr std::string_view kSymbolGroupingsHeader = "[Symbol Groupings]";

using Result = std::optional<FatalError>;

class ConfigurationReader {
 public:
  ConfigurationReader(const TextFile& file, const WorkingDirectory& directory,
                      Configuration& config, Messages& messages)
      : cursor_(file), directory_(directory), config_(config), messages_(messages) {}

  Result read() {
    config_ = Configuration{};
    if (auto fatal = findSystemSetup()) return fatal;
    if (auto fatal = readSystemSetup()) return fatal;
    if (auto fatal = readGroups()) return fatal;
    startGroupings();
    if (auto fatal = readGroupings()) return fatal;
    if (config_.maxSymbolsInFile == 0) config_.maxSymbolsInFile = kDefaultMaxSymbols;
    return std::nullopt;
  }

 private:
  // The header loops read a line and then test for the end, so the file's last line is
  // never looked at by them: a file ending in a header counts as cut short.
  Result findSystemSetup() {
    for (;;) {
      const std::string_view line = cursor_.read();
      if (cursor_.atEnd()) return FatalError{std::string(kNoSystemSetupText)};
      if (trimmed(line) == kSystemSetupHeader) return std::nullopt;
    }
  }

  Result readSystemSetup() {
    for (;;) {
      const std::string_view line = cursor_.read();
      if (cursor_.atEnd()) return corrupt();
      if (trimmed(line) == kGroupsHeader) return std::nullopt;
      if (isSkippedConfigurationLine(line)) continue;
      const ConfigurationLine parsed = parseConfigurationLine(line);
      const std::string keyword = upperCase(parsed.keyword);
      const auto keys = configKeys();
      const auto key = std::find_if(keys.begin(), keys.end(),
                                    [&](const ConfigKey& k) { return k.name == keyword; });
      if (key == keys.end()) continue;  // unknown keys are ignored
      if (auto fatal = apply(*key, parsed)) return fatal;
    }
  }

  Result apply(const ConfigKey& key, const ConfigurationLine& line) {
    double scaled = line.number;
    switch (key.kind) {
      case ConfigKey::Kind::Colour:
        config_.*key.integer = line.colour;
        return std::nullopt;
      case ConfigKey::Kind::Flag:
        config_.writeBin = line.number == 1;
        return std::nullopt;
      case ConfigKey::Kind::Real:
        if (!std::isfinite(line.number * 10)) return outOfRange(key, line);
        config_.pitch = line.number * 10;
        return std::nullopt;
      case ConfigKey::Kind::TimesTen:
        scaled *= 10;
        break;
      case ConfigKey::Kind::Doubled:
        scaled *= 2;
        break;
      case ConfigKey::Kind::Plain:
        break;
    }
    const auto held = roundToInt16(scaled);
    if (!held) return outOfRange(key, line);
    config_.*key.integer = *held;
    return std::nullopt;
  }

  Result readGroups() {
    for (;;) {
      const std::string_view line = cursor_.read();
      if (cursor_.atEnd()) return corrupt();
      if (trimmed(line) == kSymbolGroupingsHeader) return std::nullopt;
      if (isSkippedConfigurationLine(line)) continue;
      const std::string_view text = trimmed(line);
      const double number = std::nearbyint(leadingNumber(text));
      if (number < 1) return corrupt();
      if (number > kMaxGroups) return fault(groupAboveLimitProblem(number));
      // The name starts after as many characters as the number has digits, so a number
      // written with a leading zero leaves a digit in the name.
      const int group = static_cast<int>(number);
      config_.groupNames[group] = trimmed(midPart(text, group > 9 ? 3 : 2));
      config_.groupCount = static_cast<std::int16_t>(std::max<int>(config_.groupCount, group));
    }
  }

  void startGroupings() {
    config_.groups.assign(static_cast<std::size_t>(config_.groupCount) + 1, SkeyGroup{});
    for (int group = 1; group <= config_.groupCount; ++group) {
      const std::string& name = config_.groupNames[group];
      config_.groups[group].name = name;
      config_.groupList.push_back(name.empty() ? std::string(kUnnamedGroupEntry)
                                               : std::string(kRedefiningPrefix) + name);
    }
  }

  // This loop tests for the end before it reads, so the last line is read too.
  Result readGroupings() {
    while (!cursor_.atEnd()) {
      const std::string_view line = cursor_.read();
      if (isSkippedConfigurationLine(line)) continue;
      if (auto fatal = readGroupingLine(trimmed(line))) return fatal;
    }
    return std::nullopt;
  }

  Result readGroupingLine(std::string_view text) {
    const int group = roundHalfEven(leadingNumber(midPart(text, 6, 2)));
    if (group < 0 || group > config_.groupCount) return FatalError{groupNotSupportedText(group)};
    SkeyGroup& target = config_.groups[group];
    if (target.entries.size() >= kMaxEntriesPerGroup) {
      messages_.tell(tooManySkeysText(group));
      return std::nullopt;
    }
    GroupEntry entry;
    entry.skey = leftPart(text, 4);
    const std::size_t found = text.find(';', 7);
    if (found != std::string_view::npos) {
      semicolon_ = found + 1;
      entry.description = trimmed(text.substr(7, found - 7));
    } else {
      entry.description = trimmed(midPart(text, 8));
    }
    // The ";" position carries over: a line without one has its flags read from just
    // after the latest earlier line's ";", or from its first character.
    for (std::size_t position = semicolon_ + 1; position <= text.size(); ++position) {
      const char c = text[position - 1];
      if (c == ';') continue;
      entry.flags[c >= '0' && c <= '9' ? c - '0' : 0] = true;
    }
    target.entries.push_back(std::move(entry));
    return std::nullopt;
  }

  FatalError corrupt() const { return FatalError{corruptConfigurationText(directory_.shown())}; }

  FatalError fault(std::string_view problem) const {
    return FatalError{
        faultInFileText(directory_.shownPath(kConfigFileName), cursor_.lineNumber(), problem)};
  }

  FatalError outOfRange(const ConfigKey& key, const ConfigurationLine& line) const {
    return fault(valueOutOfRangeProblem(key.name, line.valueText));
  }

  LineCursor cursor_;
  const WorkingDirectory& directory_;
  Configuration& config_;
  Messages& messages_;
  std::size_t semicolon_ = 0;  // 1-based position of the latest ";" in a grouping line
};

}  // namespace

std::optional<FatalError> readConfigurationText(const TextFile& file,
                                                const WorkingDirectory& directory,
                                                Configuration& config, Messages& messages) {
  return ConfigurationReader(file, directory, config, messages).read();
}

std::optional<FatalError> readConfiguration(const WorkingDirectory& directory,
                                            Configuration& config, Messages& messages) {
  if (!directory.has(kConfigFileName)) {
    return FatalError{missingFileText(kConfigFileName, directory.shown())};
  }
  ReadFailure failure;
  const auto file = readTextFile(directory.locate(kConfigFileName), &failure);
  if (!file) {
    return FatalError{
        unreadableConfigurationText(directory.shownPath(kConfigFileName), failure.reason)};
  }
  return readConfigurationText(*file, directory, config, messages);
}

}  // namespace quorn
