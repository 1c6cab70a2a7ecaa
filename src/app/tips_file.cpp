#include "app/tips_file.h"

#include <cmath>

#include "app/startup_texts.h"
#include "base/numbers.h"
#include "base/text.h"

namespace quorn {

namespace {

bool declaresCount(std::string_view text) {
  return upperCase(rightPart(text, 5)) == "TIPS]";
}

int declaredCount(std::string_view text) {
  const std::string_view inner =
      text.size() > 6 ? text.substr(1, text.size() - 6) : std::string_view{};
  return roundHalfEven(leadingNumber(trimmed(inner)));
}

bool startsTip(std::string_view text) {
  return upperCase(leftPart(text, 3)) == "TIP";
}

bool isNewLine(std::string_view text) {
  const std::string word = upperCase(text);
  return word == "[NEWLINE]" || word == "[NEW LINE]";
}

class TipsParser {
 public:
  void take(std::string_view line) {
    const std::string_view text = trimmed(line);
    if (declaresCount(text)) {
      tips_.count = declaredCount(text);
      if (tips_.count > 0) {
        open_ = true;
        counter_ = 0;
        tips_.headings.assign(static_cast<std::size_t>(tips_.count) + 1, std::string());
        tips_.texts.assign(static_cast<std::size_t>(tips_.count) + 1, std::string());
      }
    }
    if (!open_) return;
    if (startsTip(text)) {
      ++counter_;
      if (current()) {
        tips_.headings[static_cast<std::size_t>(counter_)] = std::string(text);
        current()->clear();
      }
    } else if (isNewLine(text)) {
      if (current()) *current() += '\n';
    } else if (current()) {
      *current() += line;
    }
  }

  Tips finish(std::string_view lastLine, Messages& messages) {
    if (!open_ || counter_ != tips_.count) {
      messages.tell(tipsCorruptText());
      return Tips{};
    }
    if (!trimmed(lastLine).empty()) tips_.texts[static_cast<std::size_t>(tips_.count)] += lastLine;
    tips_.loaded = true;
    return tips_;
  }

 private:
  // More TIP lines than the header declares have nowhere to go; the count check at the end
  // reports the file as corrupt.
  std::string* current() {
    return counter_ <= tips_.count ? &tips_.texts[static_cast<std::size_t>(counter_)] : nullptr;
  }

  Tips tips_;
  bool open_ = false;
  int counter_ = 0;
};

}  // namespace

Tips parseTips(const TextFile& file, Messages& messages) {
  TipsParser parser;
  // The last line read is kept apart: it only ever ends the last tip's text.
  const std::size_t count = file.lineCount();
  for (std::size_t index = 0; index + 1 < count; ++index) {
    if (!trimmed(file.line(index)).empty()) parser.take(file.line(index));
  }
  return parser.finish(count > 0 ? file.line(count - 1) : std::string_view{}, messages);
}

Tips readTips(const WorkingDirectory& directory, Messages& messages) {
  if (!directory.has(kTipsFileName)) {
    messages.tell(tipsMissingText(directory.shown()));
    return Tips{};
  }
  const auto file = readTextFile(directory.locate(kTipsFileName));
  if (!file) {
    messages.tell(tipsMissingText(directory.shown()));
    return Tips{};
  }
  return parseTips(*file, messages);
}

int chooseTip(const Tips& tips, double random) {
  return static_cast<int>(std::floor(tips.count * random + 1));
}

}  // namespace quorn
