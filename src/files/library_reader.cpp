#include "files/library_reader.h"

#include "base/text.h"
#include "base/text_file.h"
#include "files/library_texts.h"
#include "files/line_stream.h"
#include "files/reader_texts.h"
#include "files/symbol_records.h"

namespace quorn {

namespace {

bool entryMatches(const GroupEntry& entry, const std::string& oldKey) {
  const std::string skey = normalisedWord(entry.skey);
  return skey == oldKey || (oldKey.size() == 2 && skey == oldKey + "**");
}

/// The first entry, from group 1 on, that the symbol draws; false when there is none.
bool tieToGroups(Configuration& config, const SymbolRecord& symbol, int number) {
  const std::string oldKey = normalisedWord(symbol.oldKeyRaw);
  for (std::size_t group = 1; group < config.groups.size(); ++group) {
    for (GroupEntry& entry : config.groups[group].entries) {
      if (entryMatches(entry, oldKey)) {
        entry.librarySymbol = static_cast<std::int16_t>(number);
        return true;
      }
    }
  }
  return false;
}

/// An empty library, not loaded, drawing no group entry.
void unload(SymbolLibrary& library, Configuration& config) {
  library.clear();
  library.loaded = false;
  for (SkeyGroup& group : config.groups) {
    for (GroupEntry& entry : group.entries) entry.librarySymbol = 0;
  }
}

}  // namespace

bool parseLibrary(std::string_view content, std::string_view fileShown, SymbolLibrary& library,
                  Configuration& config, Messages& messages) {
  unload(library, config);
  bool untiedShown = false;
  RecordRules rules;
  rules.symbolLimitText = librarySymbolLimitText();
  rules.onHeader = [&](int number, const SymbolRecord& symbol) {
    if (!tieToGroups(config, symbol, number) && !untiedShown) {
      messages.tell(libraryUntiedText());
      untiedShown = true;
    }
  };
  SymbolRecordParser parser(library, std::move(rules), messages);
  LineStream lines(content);
  while (!parser.stopped()) {
    const auto line = lines.next();
    if (!line) break;
    if (const auto problem = parser.parse(*line)) {
      messages.tell(faultInFileText(fileShown, lines.lineNumber(), *problem));
      unload(library, config);
      return false;
    }
  }
  if (lines.fault()) {
    messages.tell(faultInFileText(fileShown, lines.lineNumber(), *lines.fault()));
    unload(library, config);
    return false;
  }
  parser.finish();
  library.loaded = true;
  return true;
}

bool readLibrary(const WorkingDirectory& directory, SymbolLibrary& library, Configuration& config,
                 Messages& messages) {
  unload(library, config);
  if (!directory.has(kLibraryFileName)) {
    messages.tell(libraryMissingText(directory.shown()));
    return false;
  }
  ReadFailure failure;
  const auto file = readTextFile(directory.locate(kLibraryFileName), &failure);
  if (!file) {
    messages.tell(unreadableFileText(directory.shownPath(kLibraryFileName), failure.reason));
    return false;
  }
  return parseLibrary(file->content(), directory.shownPath(kLibraryFileName), library, config,
                      messages);
}

}  // namespace quorn
