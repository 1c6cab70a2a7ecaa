#include "files/symbol_records.h"

#include <bit>
#include <cstring>

#include "base/numbers.h"
#include "base/text.h"
#include "files/reader_texts.h"
#include "model/keys.h"
#include "model/limits.h"

namespace quorn {

namespace {

// Action groups: the code is the last character of the first field of each group; x and y
// fill the 8 characters after it and the 8 after those.
constexpr std::size_t kFirstCodeColumn = 14;
constexpr std::size_t kGroupWidth = 24;
constexpr std::size_t kFieldWidth = 8;
constexpr int kGroupsPerRecord = 4;

/// A field's characters from the 0-based `start`, up to `kFieldWidth` of them.
std::string_view fieldAt(std::string_view line, std::size_t start) {
  return start >= line.size() ? std::string_view{} : line.substr(start, kFieldWidth);
}

/// Blanks, an optional sign, digits and blanks: the way every file writes its coordinates,
/// read here without the general number reading. False for any other text.
bool plainInteger(std::string_view field, int& value) {
  const char* text = field.data();
  std::size_t end = field.size();
  while (end > 0 && text[end - 1] == ' ') --end;
  std::size_t at = end;
  int result = 0;
  int scale = 1;
  while (at > 0 && static_cast<unsigned>(text[at - 1] - '0') < 10U) {
    result += (text[at - 1] - '0') * scale;
    scale *= 10;
    --at;
  }
  if (at == end) return false;
  bool negative = false;
  if (at > 0 && (text[at - 1] == '-' || text[at - 1] == '+')) {
    negative = text[at - 1] == '-';
    --at;
  }
  for (std::size_t i = 0; i < at; ++i) {
    if (text[i] != ' ') return false;
  }
  value = negative ? -result : result;
  return true;
}

constexpr std::uint64_t kEachByte = 0x0101010101010101;
constexpr std::uint64_t kHighBits = 0x8080808080808080;

/// 0x80 in each byte of `x` that is not 0, and nothing else.
constexpr std::uint64_t nonZeroBytes(std::uint64_t x) {
  return (((x & ~kHighBits) + ~kHighBits) | x) & kHighBits;
}

/// The value of an 8-character field of blanks followed by digits (right-aligned, as every
/// file writes its coordinates) held in `word`, its first character in the lowest byte; -1 for
/// any other text.
constexpr std::int64_t rightAlignedValue(std::uint64_t word) {
  const std::uint64_t blank = nonZeroBytes(word ^ (kEachByte * ' ')) ^ kHighBits;
  const std::uint64_t notDigitHigh = nonZeroBytes((word & (kEachByte * 0xF0)) ^ (kEachByte * 0x30));
  const std::uint64_t lowAboveNine =
      ((word & (kEachByte * 0x0F)) + kEachByte * 6) & (kEachByte * 0x10);
  // Every character is a blank or a digit, and no blank follows a digit.
  const bool valid = (notDigitHigh | (lowAboveNine << 3)) == blank &&
                     (blank & ~(blank << 8) & ~std::uint64_t{0x80}) == 0;
  // The blanks become leading zeros; then the digits are joined pairwise.
  std::uint64_t number = word & (kEachByte * 0x0F) & ~((blank >> 7) * 0xFF);
  number = (number * 2561) >> 8;
  number = ((number & 0x00FF00FF00FF00FF) * 6553601) >> 16;
  number = ((number & 0x0000FFFF0000FFFF) * 42949672960001) >> 32;
  return valid ? static_cast<std::int64_t>(number) : -1;
}

/// The x and y fields of an action group as written, 16 characters from `text`, read
/// together; false for any other text, which is then read field by field.
bool writtenCoordinates(const char* text, std::int16_t& x, std::int16_t& y) {
  if constexpr (std::endian::native != std::endian::little) {
    return false;
  } else {
    std::uint64_t xWord;
    std::uint64_t yWord;
    std::memcpy(&xWord, text, sizeof xWord);
    std::memcpy(&yWord, text + kFieldWidth, sizeof yWord);
    const std::int64_t xValue = rightAlignedValue(xWord);
    const std::int64_t yValue = rightAlignedValue(yWord);
    if (xValue < 0 || yValue < 0 || xValue > INT16_MAX || yValue > INT16_MAX) return false;
    x = static_cast<std::int16_t>(xValue);
    y = static_cast<std::int16_t>(yValue);
    return true;
  }
}

bool fits16(int value) {
  return value >= INT16_MIN && value <= INT16_MAX;
}

/// A coordinate field's value; false when it does not fit a 16-bit integer.
bool coordinate(std::string_view field, std::int16_t& result) {
  int value = 0;
  if (!plainInteger(field, value)) {
    const std::optional<std::int16_t> rounded = roundToInt16(leadingNumber(trimmed(field)));
    if (!rounded) return false;
    value = *rounded;
  }
  if (!fits16(value)) return false;
  result = static_cast<std::int16_t>(value);
  return true;
}

std::string trimmedField(std::string_view line, std::size_t column, std::size_t width) {
  return std::string(trimmed(midPart(line, column, width)));
}

}  // namespace

std::optional<std::int16_t> readRecordNumber(std::string_view line) {
  return roundToInt16(leadingNumber(leftPart(line, 4)));
}

SymbolRecordParser::SymbolRecordParser(SymbolCollection& symbols, RecordRules rules,
                                       Messages& messages)
    : symbols_(symbols), rules_(std::move(rules)), messages_(messages) {
  symbols_.clear();
  symbol_ = &symbols_.scratch();
}

void SymbolRecordParser::startSymbol(std::string_view line) {
  closeSymbol();
  if (number_ >= symbols_.capacity()) {
    messages_.tell(rules_.symbolLimitText);
    stopped_ = true;
    return;
  }
  ++number_;
  SymbolRecord& symbol = symbols_.append();
  setNewKey(symbol, midPart(line, 7, 4));
  setOldKey(symbol, midPart(line, 12, 4));
  symbol.spindleKey = trimmedField(line, 17, 4);
  // Column 21 belongs to the scale factor as written but is not read back.
  symbol.scaleFactor = trimmedField(line, 22, 8);
  symbol.mirrorType = trimmedField(line, 30, 8);
  symbol.flowArrow = trimmedField(line, 38, 8);
  symbol.dimensions = trimmedField(line, 46, 8);
  symbol.orientation = trimmedField(line, 94, 8);
  symbol_ = &symbol;
  if (rules_.onHeader) rules_.onHeader(number_, symbol);
}

std::optional<std::string> SymbolRecordParser::addActions(std::string_view line) {
  SymbolRecord& symbol = *symbol_;
  for (int group = 0; group < kGroupsPerRecord; ++group) {
    const std::size_t codeAt = kFirstCodeColumn - 1 + kGroupWidth * group;
    if (codeAt >= line.size()) break;
    const char codeCharacter = line[codeAt];
    if (codeCharacter < '1' || codeCharacter > '9') continue;
    const auto code = static_cast<std::int16_t>(codeCharacter - '0');
    if ((code == kTappingPoint || symbol.actions.size() >= kMaxActionsRead) && !admit(code)) {
      continue;
    }
    std::int16_t x = 0;
    std::int16_t y = 0;
    const std::size_t xAt = codeAt + 1;
    const std::size_t yAt = xAt + kFieldWidth;
    // A record as written holds every field whole: both are read as words.
    if (!(yAt + kFieldWidth <= line.size() && writtenCoordinates(line.data() + xAt, x, y))) {
      const std::string_view xField = fieldAt(line, xAt);
      const std::string_view yField = fieldAt(line, yAt);
      if (!coordinate(xField, x)) return coordinateTooLargeProblem("x", group + 1, xField);
      if (!coordinate(yField, y)) return coordinateTooLargeProblem("y", group + 1, yField);
    }
    if (symbol.actions.capacity() == 0) symbol.actions.reserve(kMaxActionsRead);
    symbol.actions.push_back(
        SymbolAction{code, x < 0 ? std::int16_t{0} : x, y < 0 ? std::int16_t{0} : y});
    actionFlag_ = false;
  }
  return std::nullopt;
}

bool SymbolRecordParser::admit(std::int16_t code) {
  SymbolRecord& symbol = *symbol_;
  bool dropped = false;
  if (code == kTappingPoint) {
    if (symbol.tappingCount >= kMaxTappingPoints) {
      if (tappingFlag_) {
        messages_.tell(tappingLimitText(number_));
        tappingFlag_ = false;
      }
      dropped = true;
    } else {
      ++symbol.tappingCount;
      tappingFlag_ = true;
    }
  }
  if (symbol.actionCount() >= kMaxActionsRead) {
    if (!actionFlag_) {
      messages_.tell(actionLimitText(number_));
      actionFlag_ = true;
    }
    return false;
  }
  return !dropped;
}

void SymbolRecordParser::closeSymbol() {
  // Room for a full symbol is taken at its first action; give back what it did not use.
  if (symbol_->actions.capacity() != symbol_->actions.size()) symbol_->actions.shrink_to_fit();
}

void SymbolRecordParser::finish() {
  closeSymbol();
  for (int number = 1; number <= symbols_.count(); ++number) {
    placeSpindlePoint(symbols_.symbol(number));
  }
}

bool parseSymbolRecords(const std::vector<std::string_view>& lines, std::string_view fileShown,
                        SymbolCollection& symbols, RecordRules rules, Messages& messages) {
  SymbolRecordParser parser(symbols, std::move(rules), messages);
  for (std::size_t index = 0; index < lines.size() && !parser.stopped(); ++index) {
    if (const auto problem = parser.parse(lines[index])) {
      parser.finish();
      messages.tell(faultInFileText(fileShown, index + 1, *problem));
      return false;
    }
  }
  parser.finish();
  return true;
}

}  // namespace quorn
