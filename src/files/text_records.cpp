#include "files/text_records.h"

#include <charconv>
#include <string_view>

#include "base/text.h"

namespace quorn {

namespace {

constexpr std::string_view kHeaderStart = " 501";
constexpr std::string_view kActionStart = " 502  ";
constexpr std::string_view kEndStart = " 999  ";
constexpr std::string_view kFiller = "       0";
constexpr std::size_t kKeyWidth = 4;
constexpr std::size_t kScaleWidth = 9;
constexpr std::size_t kFieldWidth = 8;
constexpr int kHeaderFillers = 5;
constexpr int kEndFillers = 13;
// A partial action record is filled until it is longer than this.
constexpr std::size_t kPartialRecordMinimum = 103;

void appendKey(std::string& line, std::string_view key) {
  const std::string_view kept = leftPart(key, kKeyWidth);
  line += kept;
  line.append(kKeyWidth - kept.size(), ' ');
}

void appendRight(std::string& line, std::string_view value, std::size_t width) {
  const std::string_view kept = rightPart(value, width);
  line.append(width - kept.size(), ' ');
  line += kept;
}

void appendNumber(std::string& line, std::int16_t value) {
  char digits[8];
  const auto end = std::to_chars(digits, digits + sizeof digits, value).ptr;
  appendRight(line, std::string_view(digits, static_cast<std::size_t>(end - digits)), kFieldWidth);
}

void appendFillers(std::string& line, int count) {
  for (int i = 0; i < count; ++i) line += kFiller;
}

}  // namespace

void appendHeaderRecord(std::string& line, const SymbolText& symbol) {
  line += kHeaderStart;
  line += "  ";
  appendKey(line, symbol.newKeyRaw);
  line += ' ';
  appendKey(line, symbol.oldKeyRaw);
  line += ' ';
  appendKey(line, symbol.spindleKey);
  appendRight(line, symbol.scaleFactor, kScaleWidth);
  appendRight(line, symbol.mirrorType, kFieldWidth);
  appendRight(line, symbol.flowArrow, kFieldWidth);
  appendRight(line, symbol.dimensions, kFieldWidth);
  appendFillers(line, kHeaderFillers);
  appendRight(line, symbol.orientation, kFieldWidth);
}

void appendActionRecordStart(std::string& line) {
  line += kActionStart;
}

void appendActionGroup(std::string& line, const SymbolAction& action) {
  appendNumber(line, action.type);
  appendNumber(line, action.x);
  appendNumber(line, action.y);
}

void appendActionRecordEnd(std::string& line, std::size_t recordStart, int groups) {
  if (groups >= kGroupsPerActionRecord) {
    line += kFiller;
    return;
  }
  while (line.size() - recordStart <= kPartialRecordMinimum) line += kFiller;
}

void appendEndRecord(std::string& line) {
  line += kEndStart;
  appendFillers(line, kEndFillers);
}

}  // namespace quorn
