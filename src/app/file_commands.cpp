#include "app/file_commands.h"

#include "app/file_command_texts.h"
#include "files/open_symbol_file.h"
#include "files/symbol_file_writer.h"

namespace quorn {

namespace {

Answer ask(FileCommandContext& context, std::string text, Buttons buttons) {
  return context.messages.ask(
      Message{std::string(kAppTitle), std::move(text), buttons, Icon::Critical});
}

FileDialogRequest dialogRequest(const FileCommandContext& context) {
  return FileDialogRequest{context.settings.fileFilter, context.settings.defaultFilterIndex,
                           context.openFileName};
}

/// Writes the set to `fileName`; the name of the file that then holds the set becomes the
/// open file's name.
bool writeTo(FileCommandContext& context, std::string fileName) {
  if (!writeSymbolFile(context.directory, fileName, context.openFileName, context.set,
                       context.fileText, context.config, context.messages)) {
    return false;
  }
  context.openFileName = fileName;
  context.window.caption = windowCaption(context.openFileName);
  return true;
}

/// The save dialog, starting from the open file's name, then the write.
bool saveThroughDialog(FileCommandContext& context) {
  const auto chosen = context.chooser.chooseFileToSave(dialogRequest(context));
  return chosen && writeTo(context, *chosen);
}

/// The Yes answer to a pending-symbol question: the symbol goes into its place in the set.
bool storePendingSymbol(FileCommandContext& context) {
  if (!context.state.endPointPlaced) {
    ask(context, std::string(kNoEndPointText), Buttons::Ok);
    return false;
  }
  if (!storeWorkingSymbol(context.working, context.state.spindlePointPlaced, context.grid,
                          context.set, context.state.symbolNumber)) {
    return false;
  }
  context.state.symbolPending = false;
  return true;
}

/// The unsaved-set question of New and Open, and the save the user asks for.
void offerToSaveBeforeReplacing(FileCommandContext& context) {
  if (context.set.changed && ask(context, unsavedSetQuestion(), Buttons::YesNo) == Answer::Yes) {
    saveThroughDialog(context);
  }
}

std::string valuesViewText(const SymbolFileText& text, const CurrentSet& set) {
  std::string view;
  for (const auto* lines : {&text.headLines, &text.leadLines, &text.bodyLines, &text.tailLines}) {
    for (const std::string& line : *lines) view += line + "\n";
  }
  RecordBuffers records;
  records.lineEnd = "\n";
  for (int number = 1; number <= set.count(); ++number) {
    writeSymbolRecords(set.symbol(number), records);
  }
  return view + records.text;
}

}  // namespace

std::string windowCaption(const std::string& openFileName) {
  std::string caption(kWindowCaption);
  if (!openFileName.empty()) caption += std::string(kCaptionSeparator) + openFileName;
  return caption;
}


void newFile(FileCommandContext& context) {
  offerToSaveBeforeReplacing(context);
  context.set.clear();
  context.fileText = SymbolFileText{};
  context.window.symbolList.rows.clear();
  context.window.symbolList.selected = -1;
  context.state.symbolPending = false;
  context.window.prompt = kSelectNewSymbolPrompt;
  context.openFileName.clear();
  context.window.caption = windowCaption(context.openFileName);
  context.set.changed = false;
}

bool openNamedFile(FileCommandContext& context, const std::string& fileName) {
  context.window.pointer = Pointer::Busy;
  context.set.changed = false;
  ReadOptions options;
  options.keepBodyLines = context.settings.testingEnabled;
  auto opened = openSymbolFile(context.directory, fileName, context.config.writeBin, context.set,
                               context.messages, options);
  context.window.pointer = Pointer::Normal;
  // A file that could not be read does not become the open file: a later Save must not
  // write the set that is still in memory over it.
  if (!opened) return false;
  context.fileText = std::move(opened->text);
  context.window.symbolList.rows = std::move(opened->listLabels);
  context.window.symbolList.selected = -1;
  if (context.settings.testingEnabled) {
    context.window.valuesView = valuesViewText(context.fileText, context.set);
    context.window.valuesViewVisible = true;
  }
  context.openFileName = fileName;
  context.window.caption = windowCaption(context.openFileName);
  context.state.symbolPending = false;
  if (context.set.count() >= 1) {
    context.window.symbolList.selected = 0;
    context.window.countLabel = symbolsLoadedText(context.set.count());
  }
  return true;
}

bool openFile(FileCommandContext& context) {
  offerToSaveBeforeReplacing(context);
  const auto chosen = context.chooser.chooseFileToOpen(dialogRequest(context));
  return chosen && openNamedFile(context, *chosen);
}

namespace {

/// The pending-symbol question of Save and Save As; false when the command is to stop.
bool settlePendingSymbolBeforeSave(FileCommandContext& context) {
  if (!context.state.symbolPending) return true;
  switch (ask(context, pendingSymbolSaveQuestion(), Buttons::YesNoCancel)) {
    case Answer::Yes:
      return storePendingSymbol(context);
    case Answer::No:
      return true;
    default:
      return false;
  }
}

}  // namespace

void saveFile(FileCommandContext& context) {
  if (!settlePendingSymbolBeforeSave(context) || !context.set.changed) return;
  if (context.openFileName.empty()) {
    saveThroughDialog(context);
  } else {
    writeTo(context, context.openFileName);
  }
}

void saveFileAs(FileCommandContext& context) {
  if (settlePendingSymbolBeforeSave(context)) saveThroughDialog(context);
}

ExitDecision exitEditor(FileCommandContext& context, bool closing) {
  const Buttons choices = closing ? Buttons::YesNo : Buttons::YesNoCancel;
  if (context.state.symbolPending) {
    switch (ask(context, pendingSymbolExitQuestion(closing), choices)) {
      case Answer::Yes:
        if (!storePendingSymbol(context)) return ExitDecision::KeepRunning;
        break;
      case Answer::No:
        context.state.symbolPending = false;
        break;
      default:
        return ExitDecision::KeepRunning;
    }
  }
  if (context.set.changed) {
    switch (ask(context, unsavedSetExitQuestion(closing), choices)) {
      // Showing the save dialog even when a name is known is the safe choice; a save that
      // is cancelled or fails keeps the editor running so that nothing is lost.
      case Answer::Yes:
        return saveThroughDialog(context) ? ExitDecision::EndProgram : ExitDecision::KeepRunning;
      case Answer::No:
        return ExitDecision::EndProgram;
      default:
        return ExitDecision::KeepRunning;
    }
  }
  if (closing) return ExitDecision::EndProgram;
  return ask(context, plainExitQuestion(), Buttons::OkCancel) == Answer::Cancel
             ? ExitDecision::KeepRunning
             : ExitDecision::EndProgram;
}

}  // namespace quorn
