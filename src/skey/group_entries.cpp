#include "skey/group_entries.h"

#include "base/text.h"

namespace quorn {

const GroupEntry* groupEntry(const Configuration& config, int group, int entry) {
  if (group < 0 || group >= static_cast<int>(config.groups.size())) return nullptr;
  const SkeyGroup& skeyGroup = config.groups[static_cast<std::size_t>(group)];
  if (entry < 1 || entry > static_cast<int>(skeyGroup.entries.size())) return nullptr;
  return &skeyGroup.entries[static_cast<std::size_t>(entry - 1)];
}

GroupFlags groupFlags(const Configuration& config, int group, int entry) {
  const GroupEntry* found = groupEntry(config, group, entry);
  return found ? GroupFlags{found->flags} : GroupFlags{};
}

std::optional<int> findEntryExactly(const Configuration& config, int group, std::string_view key) {
  if (group < 0 || group >= static_cast<int>(config.groups.size())) return std::nullopt;
  const SkeyGroup& skeyGroup = config.groups[static_cast<std::size_t>(group)];
  for (std::size_t index = 0; index < skeyGroup.entries.size(); ++index) {
    if (normalisedWord(skeyGroup.entries[index].skey) == key) return static_cast<int>(index) + 1;
  }
  return std::nullopt;
}

}  // namespace quorn
