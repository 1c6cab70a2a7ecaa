#include "files/symbol_records.h"

#if defined(__SSE2__) || defined(_M_X64)
#include <emmintrin.h>
#endif

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

/// Blanks, an optional sign, digits and blanks, read without the general number reading;
/// false for any other text.
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

#if defined(__SSE2__) || defined(_M_X64)
/// The x and y fields of an action group as written, 16 characters from `text` holding blanks
/// and then digits each, read together: every coordinate of a large file comes here. Returns
/// x + 65536 * y, or -1 for any other text, which is then read field by field.
std::int32_t writtenCoordinates(const char* text) {
  const __m128i fields = _mm_loadu_si128(reinterpret_cast<const __m128i*>(text));
  const __m128i blank = _mm_cmpeq_epi8(fields, _mm_set1_epi8(' '));
  const __m128i digits = _mm_sub_epi8(fields, _mm_set1_epi8('0'));
  const __m128i isDigit = _mm_cmpeq_epi8(_mm_max_epu8(digits, _mm_set1_epi8(9)), _mm_set1_epi8(9));
  const unsigned blanks = static_cast<unsigned>(_mm_movemask_epi8(blank));
  if ((blanks | static_cast<unsigned>(_mm_movemask_epi8(isDigit))) != 0xFFFF) return -1;
  const unsigned xBlanks = blanks & 0xFF;
  const unsigned yBlanks = blanks >> 8;
  if ((xBlanks & (xBlanks + 1)) != 0 || (yBlanks & (yBlanks + 1)) != 0) return -1;
  const __m128i values = _mm_andnot_si128(blank, digits);
  const __m128i zero = _mm_setzero_si128();
  const __m128i tens = _mm_set_epi16(1, 10, 1, 10, 1, 10, 1, 10);
  const __m128i pairs = _mm_packs_epi32(_mm_madd_epi16(_mm_unpacklo_epi8(values, zero), tens),
                                        _mm_madd_epi16(_mm_unpackhi_epi8(values, zero), tens));
  const __m128i fours = _mm_madd_epi16(pairs, _mm_set_epi16(1, 100, 1, 100, 1, 100, 1, 100));
  const __m128i whole = _mm_madd_epi16(_mm_packs_epi32(fours, fours),
                                       _mm_set_epi16(1, 10000, 1, 10000, 1, 10000, 1, 10000));
  const int xValue = _mm_cvtsi128_si32(whole);
  const int yValue = _mm_cvtsi128_si32(_mm_srli_si128(whole, 4));
  if (xValue > INT16_MAX || yValue > INT16_MAX) return -1;
  return xValue + (yValue << 16);
}
#else
// Without SSE2 every field is read by itself.
std::int32_t writtenCoordinates(const char*) {
  return -1;
}
#endif

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

int readRecordNumber(std::string_view line) {
  const std::optional<std::int16_t> number = roundToInt16(leadingNumber(leftPart(line, 4)));
  return number ? *number : kNoRecordNumber;
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
  closed_ = false;
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
    // A record as written holds both fields whole: they are read at once.
    const std::int32_t written =
        yAt + kFieldWidth <= line.size() ? writtenCoordinates(line.data() + xAt) : -1;
    if (written >= 0) {
      x = static_cast<std::int16_t>(written & 0xFFFF);
      y = static_cast<std::int16_t>(written >> 16);
    } else {
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
  if (closed_) return;
  closed_ = true;
  SymbolRecord& symbol = *symbol_;
  // Room for a full symbol is taken at its first action; give back what it did not use.
  if (symbol.actions.capacity() != symbol.actions.size()) symbol.actions.shrink_to_fit();
  // No action joins a symbol once the next has begun, so its spindle point can be placed now,
  // while its actions are still at hand.
  if (number_ > 0) placeSpindlePoint(symbol);
}

void SymbolRecordParser::finish() {
  closeSymbol();
}

}  // namespace quorn
