#include "skey/browsing.h"

#include "display/redraw.h"
#include "model/keys.h"
#include "skey/browse_texts.h"
#include "skey/skey_rules.h"
#include "skey/skey_texts.h"

namespace quorn {

namespace {

std::string padded(std::string key) {
  if (key.size() < 4) key.resize(4, ' ');
  return key;
}

StepKind stepOf(std::int16_t code) {
  switch (code) {
    case kMove:
      return StepKind::PenUpMove;
    case kTappingPoint:
      return StepKind::TappingPoint;
    case kInsulation:
      return StepKind::Insulation;
    case kTracing:
      return StepKind::Tracing;
    default:
      return StepKind::Line;
  }
}

const GroupEntry* entryOf(const Configuration& config, int group, int entry) {
  if (group < 0 || group >= static_cast<int>(config.groups.size())) return nullptr;
  const auto& entries = config.groups[static_cast<std::size_t>(group)].entries;
  if (entry < 1 || entry > static_cast<int>(entries.size())) return nullptr;
  return &entries[static_cast<std::size_t>(entry - 1)];
}

SymbolStyle styleOf(const EditWindowState& window) {
  SymbolStyle style;
  style.view = window.isometric ? View::Isometric : View::Orthographic;
  return style;
}

void showRecord(BrowseContext& context, const SymbolRecord& symbol) {
  loadWorkingSymbol(symbol, context.grid, context.working, context.state);
  context.state.symbolOnSurface = true;
  redrawWorkingSymbol(context);
}

}  // namespace

std::string libraryListLabel(const SymbolText& symbol, const GroupEntry& entry) {
  std::string label = "Old SKEY: " + padded(symbol.oldKey) + " " + entry.description;
  const std::string spindle = padded(symbol.spindleKey);
  if (spindle != "    ") label += "  Spindle SKEY: " + spindle;
  return label;
}

void loadWorkingSymbol(const SymbolRecord& symbol, const GridGeometry& grid, WorkingSymbol& working,
                       EditorState& state) {
  working = WorkingSymbol{};
  static_cast<SymbolText&>(working) = symbol;
  working.tappingCount = symbol.tappingCount;
  state.undoHistory.clear();
  state.endPointPlaced = false;
  state.spindlePointPlaced = false;
  const int count = symbol.actionCount();
  const auto place = [&](int slot, const SymbolAction& action, std::int16_t code) {
    const FormPosition point = formPointOfStored(action.x, action.y, grid);
    working.slots[static_cast<std::size_t>(slot)] = {code, point.x, point.y,
                                                     action.type == kCharacterLine};
  };
  for (int number = 1; number <= count; ++number) {
    const SymbolAction& action = symbol.action(number);
    if (number == 1) {
      place(1, action, kMove);
      working.actionCount = 1;
      state.undoHistory.push_back(StepKind::StartPoint);
    } else if (number == count) {
      place(kEndSlot, action, kWorkingEndPoint);
      state.endPointPlaced = true;
      state.undoHistory.push_back(StepKind::EndPoint);
    } else if (action.type == kSpindlePoint) {
      place(kSpindleSlot, action, kSpindlePoint);
      state.spindlePointPlaced = true;
      state.undoHistory.push_back(StepKind::SpindlePoint);
    } else if (working.actionCount < kSpindleSlot - 1) {
      ++working.actionCount;
      const std::int16_t code = action.type == kCharacterLine ? std::int16_t{kLine} : action.type;
      place(working.actionCount, action, code);
      state.undoHistory.push_back(stepOf(code));
    }
  }
}

void redrawWorkingSymbol(BrowseContext& context) {
  redraw(context.canvas, context.grid, context.working,
         PlacedPoints{context.state.endPointPlaced, context.state.spindlePointPlaced},
         styleOf(context.window), context.config);
}

void refreshSymbolList(BrowseContext& context, bool fromMenu) {
  ListState& list = context.window.symbolList;
  list.rows.clear();
  if (context.browse.view == ListView::CurrentSet) {
    for (int number = 1; number <= context.set.count(); ++number) {
      list.rows.push_back(listLabel(context.set.symbol(number)));
    }
    list.selected = context.browse.shownSymbol - 1;
    return;
  }
  const int group = context.browse.currentGroup;
  if (group >= 0 && group < static_cast<int>(context.config.groups.size())) {
    for (const GroupEntry& entry : context.config.groups[static_cast<std::size_t>(group)].entries) {
      const int number = entry.librarySymbol;
      if (number >= 1 && number <= context.library.count()) {
        list.rows.push_back(libraryListLabel(context.library.symbol(number), entry));
      } else {
        SymbolText unmapped;
        unmapped.oldKey = entry.skey;
        list.rows.push_back(libraryListLabel(unmapped, entry));
      }
    }
  }
  list.selected = -1;
  if (fromMenu) context.window.prompt = kStandardViewPrompt;
}

void chooseSymbol(BrowseContext& context, int row) {
  if (context.browse.selectedByCreation) {
    context.browse.selectedByCreation = false;
    return;
  }
  if (context.browse.view == ListView::Standard) {
    const int entry = row + 1;
    const GroupEntry* chosen = entryOf(context.config, context.browse.currentGroup, entry);
    if (!chosen) return;
    context.browse.currentEntry = entry;
    context.window.symbolList.selected = row;
    showLibrarySymbol(context, chosen->librarySymbol);
    return;
  }
  const int number = row + 1;
  if (number < 1) return;
  showSymbol(context, number);
}

void chooseGroup(BrowseContext& context, int row) {
  context.browse.currentGroup = row + 1;
  context.window.groupChooser.selected = row;
  if (context.browse.view == ListView::Standard) refreshSymbolList(context);
}

bool showSymbol(BrowseContext& context, int number, ShowOptions options) {
  if (context.state.symbolInProgress) {
    context.messages.tell(std::string(kSymbolInProgressText));
    return false;
  }
  if (number > context.set.count() || number < 0) {
    context.messages.tell(noSuchSymbolText(number));
    return false;
  }
  if (number == 0) return false;
  const SymbolRecord& symbol = context.set.symbol(number);
  SymbolText keys = context.working;
  loadWorkingSymbol(symbol, context.grid, context.working, context.state);
  if (options.attributesSet) {
    static_cast<SymbolText&>(context.working) = keys;
  } else if (const auto found = locateStoredOldSkey(context.config, symbol.oldKey)) {
    context.browse.currentGroup = found->group;
    context.browse.currentEntry = found->entry;
    context.window.groupChooser.selected = found->group - 1;
  } else {
    context.messages.tell(invalidStoredOldSkeyText());
  }
  context.state.symbolOnSurface = true;
  context.state.symbolNumber = number;
  context.browse.shownSymbol = number;
  if (context.browse.view == ListView::CurrentSet) context.window.symbolList.selected = number - 1;
  if (options.keepGrid) {
    drawWorkingSymbol(context.canvas, context.working,
                      PlacedPoints{context.state.endPointPlaced, context.state.spindlePointPlaced},
                      styleOf(context.window), context.config);
  } else {
    redrawWorkingSymbol(context);
  }
  context.window.prompt = kShownSymbolPrompt;
  return true;
}

void showLibrarySymbol(BrowseContext& context, int libraryNumber) {
  if (libraryNumber < 1 || libraryNumber > context.library.count()) {
    redrawGrid(context.canvas, context.grid, context.config);
    return;
  }
  const SymbolRecord& symbol = context.library.symbol(libraryNumber);
  showRecord(context, symbol);
  context.state.symbolOnSurface = false;
  const GroupEntry* entry =
      entryOf(context.config, context.browse.currentGroup, context.browse.currentEntry);
  context.window.statusText = entry ? libraryListLabel(symbol, *entry) : listLabel(symbol);
}

}  // namespace quorn
