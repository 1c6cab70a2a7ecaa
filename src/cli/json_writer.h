#pragma once
// A small streaming JSON writer for the command-line tool's --json output.

#include <cstdint>
#include <ostream>
#include <string_view>
#include <vector>

namespace quorn::cli {

class JsonWriter {
 public:
  explicit JsonWriter(std::ostream& out) : out_(out) {}

  JsonWriter& beginObject();
  JsonWriter& endObject();
  JsonWriter& beginArray();
  JsonWriter& endArray();
  /// The name of the next member of the open object.
  JsonWriter& key(std::string_view name);
  JsonWriter& value(std::string_view text);
  JsonWriter& value(const char* text) { return value(std::string_view(text)); }
  JsonWriter& value(long long number);
  JsonWriter& value(int number) { return value(static_cast<long long>(number)); }
  JsonWriter& value(std::int16_t number) { return value(static_cast<long long>(number)); }
  JsonWriter& value(double number);
  JsonWriter& value(bool flag);
  /// Ends the document with a line end.
  void finish();

 private:
  JsonWriter& close(char bracket);
  void separate();
  void indent();

  std::ostream& out_;
  std::vector<bool> hasMembers_;  // one per open container
  bool afterKey_ = false;
};

/// `text` as a JSON string literal, quotes included.
std::string jsonQuoted(std::string_view text);

}  // namespace quorn::cli
