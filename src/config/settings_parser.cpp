#include "config/settings_parser.h"

#include <algorithm>
#include <cstdint>
#include <string>

#include "base/numbers.h"
#include "base/text.h"
#include "config/settings_texts.h"

namespace quorn {

namespace {

// Section lines and keys, compared as the file's users have always written them.
constexpr std::string_view kVersionSection = "[VERSION]";
constexpr std::string_view kTipsKey = "TIPSON";
constexpr std::string_view kTipsOnValue = "TRUE";
constexpr std::string_view kTestingSection = "[Enable Testing]";
constexpr std::string_view kDefaultSection = "[Default]";
constexpr std::string_view kFormatsSection = "[File Formats]";
constexpr std::string_view kExtensionKey = "EXTENSION";
constexpr std::string_view kLeadlinesKey = "Leadlines";
constexpr std::string_view kHeadlinesKey = "Headlines";
constexpr std::string_view kIdKey = "ID";
constexpr std::size_t kStructureLines = 3;

std::string_view withoutTrailingTabs(std::string_view text) {
  const auto last = text.find_last_not_of('\t');
  return last == std::string_view::npos ? std::string_view{} : text.substr(0, last + 1);
}

std::string_view withoutBlanksAndTabs(std::string_view text) {
  const auto last = text.find_last_not_of(" \t");
  return last == std::string_view::npos ? std::string_view{}
                                        : withoutLeadingBlanksAndTabs(text.substr(0, last + 1));
}

/// The value of an EXTENSION line (blanks at both ends and any mix of blanks and tabs at its
/// start removed); nothing for any other line.
std::optional<std::string_view> extensionValue(std::string_view line) {
  const std::string_view text = trimmedLeft(line);
  if (upperCase(leftPart(text, kExtensionKey.size())) != kExtensionKey) return std::nullopt;
  return withoutLeadingBlanksAndTabs(trimmed(midPart(text, kExtensionKey.size() + 1)));
}

bool readTestingSwitch(const TextFile& file) {
  LineCursor cursor(file);
  cursor.read();  // the first line is never tested
  bool enabled = false;
  while (!cursor.atEnd()) {
    if (leftPart(trimmedLeft(cursor.read()), kTestingSection.size()) == kTestingSection) {
      enabled = true;
    }
  }
  return enabled;
}

/// The default extension from the line after "[Default]", already without leading blanks.
std::string defaultExtensionFrom(std::string_view line) {
  const std::string_view value =
      withoutTrailingTabs(withoutLeadingTabs(trimmed(midPart(line, kExtensionKey.size() + 1))));
  return std::string(value.empty() ? kNoDefaultExtension : value);
}

/// Splits an EXTENSION value at its comma. A value without a comma is split where the
/// previous one was (`commaPosition`, 1-based, 0 before any): files rely on that.
FileFormat formatFrom(std::string_view value, std::size_t& commaPosition) {
  if (const auto comma = value.find(','); comma != std::string_view::npos) {
    commaPosition = comma + 1;
  }
  FileFormat format;
  format.extension = leftPart(value, commaPosition == 0 ? 0 : commaPosition - 1);
  format.description = trimmedLeft(midPart(value, std::max<std::size_t>(commaPosition, 1) + 1));
  return format;
}

std::optional<FatalError> readFormatTable(const TextFile& file, std::string_view fileShown,
                                          Settings& settings) {
  settings.defaultExtension = kNoDefaultExtension;
  settings.formats.clear();
  bool sectionOpen = false;
  std::size_t commaPosition = 0;
  LineCursor cursor(file);
  std::string_view line = cursor.read();
  std::size_t lineNumber = cursor.lineNumber();
  // The line read last is never treated.
  while (!cursor.atEnd()) {
    if (leftPart(line, kDefaultSection.size()) == kDefaultSection) {
      // The default's line replaces "[Default]" as the line treated below.
      line = trimmedLeft(cursor.read());
      lineNumber = cursor.lineNumber();
      if (!line.starts_with(kFormatsSection))
        settings.defaultExtension = defaultExtensionFrom(line);
    }
    if (line.starts_with(kFormatsSection)) {
      sectionOpen = true;
    } else if (sectionOpen && line.starts_with('[')) {
      sectionOpen = false;
    } else if (sectionOpen) {
      if (const auto value = extensionValue(line)) {
        if (settings.formats.size() >= static_cast<std::size_t>(kMaxFormats)) {
          return FatalError{faultInFileText(fileShown, lineNumber, tooManyFormatsProblem())};
        }
        settings.formats.push_back(formatFrom(*value, commaPosition));
      }
    }
    line = cursor.read();
    lineNumber = cursor.lineNumber();
  }
  return std::nullopt;
}

void buildFileFilter(Settings& settings) {
  const std::string wanted = upperCase(settings.defaultExtension);
  std::string filter;
  settings.defaultFilterIndex = 0;
  for (std::size_t i = 0; i < settings.formats.size(); ++i) {
    const FileFormat& format = settings.formats[i];
    filter += format.description;
    filter += "|*.";
    filter += format.extension;
    filter += '|';
    if (upperCase(format.extension) == wanted) {
      settings.defaultFilterIndex = static_cast<std::int16_t>(i + 1);
    }
  }
  filter += kAllFilesFilter;
  settings.fileFilter = std::move(filter);
}

/// A count of the structure block (0-based lines `first` on): the value of the last line
/// that starts with `key`, -1 without one. Nothing, after telling the user, when the value
/// does not fit 16 bits.
std::optional<std::int16_t> structureCount(const TextFile& file, std::size_t first,
                                           std::string_view key, std::string_view fileShown,
                                           Messages& messages) {
  std::int16_t count = -1;
  for (std::size_t i = first; i < first + kStructureLines; ++i) {
    const std::string_view line = file.line(i);
    if (leftPart(line, key.size()) != key) continue;
    const auto value = roundToInt16(leadingNumber(trimmed(midPart(line, key.size() + 1))));
    if (!value) {
      messages.tell(faultInFileText(fileShown, i + 1, valueOutOfRangeProblem(key)));
      return std::nullopt;
    }
    count = *value;
  }
  return count;
}

std::string structureId(const TextFile& file, std::size_t first) {
  std::string id;
  for (std::size_t i = first; i < first + kStructureLines; ++i) {
    const std::string_view line = file.line(i);
    if (leftPart(line, kIdKey.size()) == kIdKey) {
      id = upperCase(withoutBlanksAndTabs(midPart(line, kIdKey.size() + 1)));
    }
  }
  return id;
}

}  // namespace

void parseStartupSettings(const TextFile& file, Settings& settings) {
  settings.version = kNoVersion;
  settings.tipsOn = false;
  bool versionLineNext = false;
  LineCursor cursor(file);
  std::string_view line = cursor.read();
  // The line read last is never looked at.
  while (!cursor.atEnd()) {
    const std::string_view text = trimmed(line);
    if (versionLineNext) {
      settings.version = text;
      versionLineNext = false;
    } else if (upperCase(leftPart(text, kTipsKey.size())) == kTipsKey) {
      // Only the ends are looked at, and nothing switches the tips off again.
      if (upperCase(rightPart(text, kTipsOnValue.size())) == kTipsOnValue) settings.tipsOn = true;
    } else if (upperCase(leftPart(text, kVersionSection.size())) == kVersionSection) {
      versionLineNext = true;
    }
    line = cursor.read();
  }
}

std::optional<FatalError> parseFormats(const TextFile& file, std::string_view fileShown,
                                       Settings& settings) {
  settings.testingEnabled = readTestingSwitch(file);
  if (auto fault = readFormatTable(file, fileShown, settings)) return fault;
  buildFileFilter(settings);
  return std::nullopt;
}

std::optional<FormatStructure> parseFormatStructure(const TextFile& file,
                                                    std::string_view fileShown,
                                                    std::string_view extension, bool writeBin,
                                                    Messages& messages) {
  // Only as many characters as the wanted extension has are compared, and the whole file is
  // searched: the first EXTENSION line that matches wins, inside the format section or not.
  const std::string wanted = upperCase(extension);
  const auto& lines = file.lines();
  const auto found = std::find_if(lines.begin(), lines.end(), [&](std::string_view line) {
    const auto value = extensionValue(line);
    return value && upperCase(leftPart(*value, wanted.size())) == wanted;
  });
  if (found == lines.end()) {
    messages.tell(structureNotDefinedText(extension, fileShown));
    return std::nullopt;
  }
  const auto extensionLine = static_cast<std::size_t>(found - lines.begin());
  const std::size_t first = extensionLine + 1;
  if (first + kStructureLines > file.lineCount()) {
    messages.tell(
        faultInFileText(fileShown, extensionLine + 1, structureCutShortProblem(extension)));
    return std::nullopt;
  }

  FormatStructure structure;
  structure.extension = extension;
  // Leadlines, then ID, then Headlines: the order in which the block has always been checked.
  const auto leadlines = structureCount(file, first, kLeadlinesKey, fileShown, messages);
  if (!leadlines) return std::nullopt;
  if (*leadlines < 0) {
    messages.tell(structureNotValidText(extension, fileShown));
    return std::nullopt;
  }
  structure.leadlines = *leadlines;
  structure.id = structureId(file, first);
  structure.writeBinary = structure.id == upperCase(kQuornAsciiId) && writeBin;
  const auto headlines = structureCount(file, first, kHeadlinesKey, fileShown, messages);
  if (!headlines) return std::nullopt;
  if (*headlines < 0) {
    messages.tell(structureNotValidText(extension, fileShown));
    return std::nullopt;
  }
  structure.headlines = *headlines;
  return structure;
}

}  // namespace quorn
