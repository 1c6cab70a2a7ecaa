#include "app/menu_commands.h"

#include <algorithm>

#include "base/text.h"

namespace quorn {

namespace {

/// A caption as it reads without its access key and trailing dots.
std::string plainCaption(std::string_view caption) {
  std::string text = withoutAccessKey(caption);
  while (text.ends_with('.')) text.pop_back();
  return text;
}

std::string_view menuCaption(Menu menu) {
  const auto found = std::find_if(kMenuTexts.begin(), kMenuTexts.end(),
                                  [menu](const MenuText& text) { return text.menu == menu; });
  return found == kMenuTexts.end() ? std::string_view() : found->caption;
}

}  // namespace

std::string menuPath(const MenuEntryText& entry) {
  std::string_view caption = entry.caption;
  if (const auto explanation = caption.find("  - "); explanation != std::string_view::npos) {
    caption = caption.substr(0, explanation);
  }
  return plainCaption(menuCaption(entry.menu)) + " > " + plainCaption(caption);
}

const MenuEntryText* menuEntryByPath(std::string_view path) {
  for (const MenuEntryText& entry : kMenuEntryTexts) {
    if (menuPath(entry) == path) return &entry;
  }
  return nullptr;
}

}  // namespace quorn
