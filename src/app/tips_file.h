#pragma once
// TIPS.TXT: the user tips that start-up may show, one chosen at random.

#include <string>
#include <vector>

#include "base/messages.h"
#include "base/text_file.h"
#include "base/working_directory.h"

namespace quorn {

struct Tips {
  bool loaded = false;  // read without fault
  int count = 0;        // the number the header declares
  /// Tips 0 to count; tip 0 collects the header and is never shown.
  std::vector<std::string> headings;
  std::vector<std::string> texts;
};

/// Reads TIPS.TXT from the working directory; a missing or corrupt file is reported and
/// leaves the tips not loaded.
Tips readTips(const WorkingDirectory& directory, Messages& messages);

/// The same from a file already read.
Tips parseTips(const TextFile& file, Messages& messages);

/// The tip start-up shows for a random number r in [0, 1): the whole part of count × r + 1.
int chooseTip(const Tips& tips, double random);

}  // namespace quorn
