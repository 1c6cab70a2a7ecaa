#pragma once
// The core's texts as Qt strings.

#include <QString>
#include <string>
#include <string_view>

namespace quorn::ui {

inline QString qtText(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline QString qtText(const std::string& text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// A caption without its access-key marks, as widgets are named after it ("E&nd" gives "End").
inline QString withoutAccessKey(std::string_view caption) {
  return qtText(caption).remove(QLatin1Char('&'));
}

}  // namespace quorn::ui
