#include "cli/json_writer.h"

#include <cmath>
#include <cstdio>
#include <string>

namespace quorn::cli {

std::string jsonQuoted(std::string_view text) {
  std::string quoted = "\"";
  for (const char c : text) {
    switch (c) {
      case '"':
        quoted += "\\\"";
        break;
      case '\\':
        quoted += "\\\\";
        break;
      case '\n':
        quoted += "\\n";
        break;
      case '\r':
        quoted += "\\r";
        break;
      case '\t':
        quoted += "\\t";
        break;
      default:
        if (static_cast<unsigned char>(c) < 0x20) {
          char escape[8];
          std::snprintf(escape, sizeof escape, "\\u%04x", static_cast<unsigned>(c));
          quoted += escape;
        } else {
          quoted += c;
        }
    }
  }
  return quoted + "\"";
}

void JsonWriter::indent() {
  out_ << '\n' << std::string(hasMembers_.size() * 2, ' ');
}

void JsonWriter::separate() {
  if (afterKey_) {
    afterKey_ = false;
    return;
  }
  if (hasMembers_.empty()) return;
  if (hasMembers_.back()) out_ << ',';
  hasMembers_.back() = true;
  indent();
}

JsonWriter& JsonWriter::beginObject() {
  separate();
  out_ << '{';
  hasMembers_.push_back(false);
  return *this;
}

JsonWriter& JsonWriter::close(char bracket) {
  const bool members = hasMembers_.back();
  hasMembers_.pop_back();
  if (members) indent();
  out_ << bracket;
  return *this;
}

JsonWriter& JsonWriter::endObject() {
  return close('}');
}

JsonWriter& JsonWriter::beginArray() {
  separate();
  out_ << '[';
  hasMembers_.push_back(false);
  return *this;
}

JsonWriter& JsonWriter::endArray() {
  return close(']');
}

JsonWriter& JsonWriter::key(std::string_view name) {
  separate();
  out_ << jsonQuoted(name) << ": ";
  afterKey_ = true;
  return *this;
}

JsonWriter& JsonWriter::value(std::string_view text) {
  separate();
  out_ << jsonQuoted(text);
  return *this;
}

JsonWriter& JsonWriter::value(long long number) {
  separate();
  out_ << number;
  return *this;
}

JsonWriter& JsonWriter::value(double number) {
  separate();
  if (!std::isfinite(number)) {
    out_ << "null";
  } else {
    char text[32];
    std::snprintf(text, sizeof text, "%.15g", number);
    out_ << text;
  }
  return *this;
}

JsonWriter& JsonWriter::value(bool flag) {
  separate();
  out_ << (flag ? "true" : "false");
  return *this;
}

void JsonWriter::finish() {
  out_ << '\n';
}

}  // namespace quorn::cli
