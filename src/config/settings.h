#pragma once
// The values of SYMBOLS.INI: start-up switches and the symbol-file formats.

#include <cstdint>
#include <string>
#include <vector>

#include "config/settings_texts.h"

namespace quorn {

inline constexpr int kMaxFormats = 10;

/// One user format as the [File Formats] section lists it.
struct FileFormat {
  std::string extension;  // case as written
  std::string description;
};

/// A format's structure block, loaded on demand for one extension.
struct FormatStructure {
  std::string extension;  // as the caller asked for it
  std::string id;         // in capitals; the built-in layouts or a test string
  std::int16_t headlines = 0;
  std::int16_t leadlines = 0;
  bool writeBinary = false;  // WRITEBIN for the built-in ASCII layout, else false
};

struct Settings {
  std::string version{kNoVersion};
  bool tipsOn = false;
  bool testingEnabled = false;
  std::string defaultExtension{kNoDefaultExtension};
  std::vector<FileFormat> formats;  // numbered from 1 in file order, held from index 0
  std::string fileFilter{kAllFilesFilter};
  std::int16_t defaultFilterIndex = 0;
};

}  // namespace quorn
