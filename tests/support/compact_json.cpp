#include "support/compact_json.h"

namespace quorn::test {

std::string compactJson(std::string_view json) {
  std::string compact;
  bool inString = false;
  bool escaped = false;
  for (const char c : json) {
    if (inString) {
      compact += c;
      if (escaped) {
        escaped = false;
      } else if (c == '\\') {
        escaped = true;
      } else if (c == '"') {
        inString = false;
      }
    } else if (c == '"') {
      inString = true;
      compact += c;
    } else if (c != ' ' && c != '\n' && c != '\t' && c != '\r') {
      compact += c;
    }
  }
  return compact;
}

}  // namespace quorn::test
