#include "display/menu_texts.h"

#include <gtest/gtest.h>

#include <cctype>
#include <map>
#include <set>

namespace quorn {
namespace {

/// The character after a caption's "&", upper-cased; 0 when there is none.
char accessKeyOf(std::string_view caption) {
  const auto at = caption.find('&');
  if (at == std::string_view::npos || at + 1 >= caption.size()) return 0;
  return static_cast<char>(std::toupper(static_cast<unsigned char>(caption[at + 1])));
}

TEST(MenuTextsTest, EveryCommandHasOneEntryInAMenuOfTheBar) {
  std::set<Menu> menus;
  for (const MenuText& menu : kMenuTexts) EXPECT_TRUE(menus.insert(menu.menu).second);
  std::map<MenuCommand, int> entries;
  for (const MenuEntryText& entry : kMenuEntryTexts) {
    ++entries[entry.command];
    EXPECT_TRUE(menus.count(entry.menu)) << entry.caption;
  }
  EXPECT_EQ(entries.size(), static_cast<std::size_t>(MenuCommand::About) + 1);
  for (const auto& [command, count] : entries) {
    EXPECT_EQ(count, 1) << static_cast<int>(command);
  }
}

TEST(MenuTextsTest, AccessKeysAreUniqueInTheBarAndInEachMenu) {
  std::set<char> barKeys;
  for (const MenuText& menu : kMenuTexts) {
    const char key = accessKeyOf(menu.caption);
    EXPECT_NE(key, 0) << menu.caption;
    EXPECT_TRUE(barKeys.insert(key).second) << menu.caption;
    std::set<char> entryKeys;
    for (const MenuEntryText& entry : kMenuEntryTexts) {
      if (entry.menu != menu.menu) continue;
      const char entryKey = accessKeyOf(entry.caption);
      EXPECT_NE(entryKey, 0) << entry.caption;
      EXPECT_TRUE(entryKeys.insert(entryKey).second) << entry.caption;
    }
    EXPECT_FALSE(entryKeys.empty()) << menu.caption;
  }
}

}  // namespace
}  // namespace quorn
