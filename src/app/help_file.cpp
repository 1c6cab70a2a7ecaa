#include "app/help_file.h"

#include "app/startup_texts.h"
#include "base/numbers.h"
#include "base/text.h"

namespace quorn {

HelpTexts parseHelpTexts(const TextFile& file) {
  HelpTexts texts;
  for (const std::string_view line : file.lines()) {
    const std::string_view text = trimmed(line);
    if (text.empty() || text.front() == '!') continue;
    const int number = roundHalfEven(leadingNumber(leftPart(text, 1)));
    if (number >= 1 && number <= 8)
      texts[static_cast<std::size_t>(number)] = trimmed(midPart(text, 3));
  }
  return texts;
}

HelpTexts readHelpTexts(const WorkingDirectory& directory, Messages& messages) {
  const auto file =
      directory.has(kHelpFileName) ? readTextFile(directory.locate(kHelpFileName)) : std::nullopt;
  if (!file) {
    messages.tell(helpMissingText(directory.shown()));
    return HelpTexts{};
  }
  return parseHelpTexts(*file);
}

std::optional<std::string> readReadMe(const WorkingDirectory& directory, Messages& messages) {
  const auto file = directory.has(kReadMeFileName) ? readTextFile(directory.locate(kReadMeFileName))
                                                   : std::nullopt;
  if (!file) {
    messages.tell(readMeMissingText());
    return std::nullopt;
  }
  std::string text;
  for (const std::string_view line : file->lines()) {
    text += line;
    text += "\r\n";
  }
  return text;
}

}  // namespace quorn
