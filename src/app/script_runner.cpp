#include "app/script_runner.h"

#include <charconv>
#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "app/editor.h"
#include "app/menu_commands.h"
#include "app/script_dialog_verbs.h"
#include "app/script_drawing_verbs.h"
#include "app/script_words.h"
#include "app/startup_texts.h"
#include "config/palette.h"
#include "display/display_list.h"
#include "files/symbol_file_writer.h"

namespace quorn {

namespace {

/// Answers the editor's questions and file dialogs from what the script queued, and writes
/// each of them out as it is shown.
class ScriptedUser : public Messages, public FileChooser {
 public:
  explicit ScriptedUser(std::ostream& out) : out_(out) {}

  /// Runs before anything is shown, so that what the window showed first is written first.
  std::function<void()> beforeShowing;

  void queueAnswer(Answer answer) { answers_.push_back(answer); }
  void queueFile(std::optional<std::string> name) { files_.push_back(std::move(name)); }

  Answer ask(const Message& message) override {
    if (beforeShowing) beforeShowing();
    Answer answer = Answer::Ok;
    if (message.buttons != Buttons::Ok) {
      if (answers_.empty()) {
        unanswered_ =
            "a question was asked with no answer queued: " + quotedScriptText(message.text);
        answer = message.buttons == Buttons::YesNo ? Answer::No : Answer::Cancel;
      } else {
        answer = answers_.front();
        answers_.pop_front();
      }
    }
    out_ << "message " << quotedScriptText(message.title) << ' ' << quotedScriptText(message.text)
         << " [" << buttonsName(message.buttons) << "] " << iconName(message.icon) << " -> "
         << answerName(answer) << '\n';
    return answer;
  }

  std::optional<std::string> chooseFileToOpen(const FileDialogRequest& request) override {
    return choose("open", request);
  }
  std::optional<std::string> chooseFileToSave(const FileDialogRequest& request) override {
    return choose("save", request);
  }

  /// The problem of the event just run: a question or dialog that found no queued answer.
  std::optional<std::string> takeProblem() { return std::exchange(unanswered_, std::nullopt); }

 private:
  std::optional<std::string> choose(std::string_view kind, const FileDialogRequest& request) {
    if (beforeShowing) beforeShowing();
    std::optional<std::string> chosen;
    if (files_.empty()) {
      unanswered_ = "a file dialog was shown with no file queued";
    } else {
      chosen = files_.front();
      files_.pop_front();
    }
    out_ << "file-dialog " << kind << ' ' << quotedScriptText(request.filter) << ' '
         << request.filterIndex << ' ' << quotedScriptText(request.initialName) << " -> "
         << (chosen ? quotedScriptText(*chosen) : "cancel") << '\n';
    return chosen;
  }

  std::ostream& out_;
  std::deque<Answer> answers_;
  std::deque<std::optional<std::string>> files_;
  std::optional<std::string> unanswered_;
};

/// The window's texts that the output follows, by the name it prints them under.
const std::vector<std::pair<std::string_view, std::string EditWindowState::*>>& followedTexts() {
  static const std::vector<std::pair<std::string_view, std::string EditWindowState::*>> texts = {
      {"caption", &EditWindowState::caption},  {"prompt", &EditWindowState::prompt},
      {"count", &EditWindowState::countLabel}, {"status", &EditWindowState::statusText},
      {"snap", &EditWindowState::snapLabel},   {"char", &EditWindowState::charLabel},
  };
  return texts;
}

std::string_view penStyleName(PenStyle style) {
  switch (style) {
    case PenStyle::Solid:
      return "solid";
    case PenStyle::Dotted:
      return "dotted";
    case PenStyle::Dashed:
      return "dashed";
  }
  return "";
}

/// "line X1 Y1 X2 Y2 COLOUR STYLE WIDTH" or "circle X Y R COLOUR STYLE WIDTH".
std::string drawCallText(const DrawCall& call) {
  std::ostringstream text;
  if (call.kind == DrawCall::Kind::Line) {
    text << "line " << call.x1 << ' ' << call.y1 << ' ' << call.x2 << ' ' << call.y2;
  } else {
    text << "circle " << call.x1 << ' ' << call.y1 << ' ' << call.radius;
  }
  text << ' ' << colourName(call.pen.colour) << ' ' << penStyleName(call.pen.style) << ' '
       << call.pen.width;
  return text.str();
}

bool wholeNumber(const std::string& text, int& value) {
  const char* end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, value);
  return !text.empty() && error == std::errc() && stop == end;
}

std::optional<Answer> answerNamed(std::string_view name) {
  for (const Answer answer : {Answer::Ok, Answer::Cancel, Answer::Yes, Answer::No}) {
    if (answerName(answer) == name) return answer;
  }
  return std::nullopt;
}

class ScriptRunner {
 public:
  ScriptRunner(const std::filesystem::path& base, Environment& environment, std::ostream& out)
      : base_(base), out_(out), user_(out), editor_(user_, user_, environment, drawing_) {
    user_.beforeShowing = [this] { reportWindowChanges(); };
  }

  ScriptOutcome run(std::string_view script) {
    std::size_t lineNumber = 0;
    std::size_t start = 0;
    while (start <= script.size() && !ended_) {
      const std::size_t end = std::min(script.find('\n', start), script.size());
      ++lineNumber;
      if (auto problem = runLine(script.substr(start, end - start))) {
        return ScriptOutcome{false, "line " + std::to_string(lineNumber) + ": " + *problem};
      }
      start = end + 1;
    }
    return ScriptOutcome{};
  }

 private:
  std::optional<std::string> runLine(std::string_view line) {
    const auto words = scriptWords(line);
    if (!words) return "a quoted text is not closed";
    if (words->empty()) return std::nullopt;
    const std::string& verb = words->front();
    const std::vector<std::string> rest(words->begin() + 1, words->end());
    std::optional<std::string> problem;
    if (auto refusal = refusedUnderDialog(editor_, verb)) {
      problem = std::move(refusal);
    } else if (verb == "start") {
      problem = start(rest);
    } else if (verb == "answer") {
      problem = queueAnswer(rest);
    } else if (verb == "file") {
      problem = queueFile(rest);
    } else if (verb == "menu") {
      problem = menu(rest);
    } else if (verb == "close-tips") {
      problem = started() ? (editor_.closeTipsDialog(), std::nullopt) : notStarted();
    } else if (verb == "close-read-me") {
      problem = started() ? (editor_.closeReadMe(), std::nullopt) : notStarted();
    } else if (verb == "close-tips-panel") {
      problem = started() ? (editor_.closeTipsPanel(), std::nullopt) : notStarted();
    } else if (verb == "close-about") {
      problem = started() ? (editor_.closeAbout(), std::nullopt) : notStarted();
    } else if (verb == "tip") {
      problem = chooseTip(rest);
    } else if (verb == "close") {
      problem = started() ? decide(editor_.closeWindow()) : notStarted();
    } else if (verb == "group" || verb == "row") {
      problem = chooseRow(verb, rest);
    } else if (isDrawingVerb(verb)) {
      problem = started() ? runDrawingVerb(editor_, verb, rest, out_) : notStarted();
    } else if (isDialogVerb(verb)) {
      problem = started() ? runDialogVerb(editor_, verb, rest) : notStarted();
    } else if (verb == "dump") {
      problem = dump(rest);
    } else {
      problem = "unknown event '" + verb + "'";
    }
    if (!problem) problem = user_.takeProblem();
    reportWindowChanges();
    return problem;
  }

  bool started() const { return started_; }
  static std::optional<std::string> notStarted() { return "the editor has not been started"; }

  std::optional<std::string> start(const std::vector<std::string>& words) {
    if (words.size() > 1) return "start takes at most one file name";
    if (started_) return "the editor has already been started";
    std::string commandLine = words.empty() ? std::string() : resolved(words[0]);
    auto fatal = editor_.startFirstStage(commandLine);
    if (!fatal) {
      out_ << "startup " << quotedScriptText(editor_.startup().startupCaption) << '\n';
      fatal = editor_.startSecondStage();
    }
    if (fatal) {
      out_ << "fatal " << quotedScriptText(fatal->text) << "\nends\n";
      ended_ = true;
      return std::nullopt;
    }
    started_ = true;
    return std::nullopt;
  }

  std::optional<std::string> queueAnswer(const std::vector<std::string>& words) {
    if (words.empty()) return "answer needs Yes, No, OK or Cancel";
    for (const std::string& word : words) {
      const auto answer = answerNamed(word);
      if (!answer) return "'" + word + "' is not an answer (Yes, No, OK, Cancel)";
      user_.queueAnswer(*answer);
    }
    return std::nullopt;
  }

  std::optional<std::string> queueFile(const std::vector<std::string>& words) {
    if (words.size() != 1) return "file takes one file name, or cancel";
    user_.queueFile(words[0] == "cancel" ? std::nullopt
                                         : std::optional<std::string>(resolved(words[0])));
    return std::nullopt;
  }

  std::optional<std::string> menu(const std::vector<std::string>& words) {
    if (!started()) return notStarted();
    std::string path;
    for (const std::string& word : words) path += (path.empty() ? "" : " ") + word;
    const MenuEntryText* entry = menuEntryByPath(path);
    if (!entry) return "unknown menu entry '" + path + "'";
    if (entry->command == MenuCommand::Print) {
      return "File > Print needs the window; symbols render draws symbols without one";
    }
    if (!editor_.menuEntryOffered(*entry)) {
      return "menu entry '" + path + "' is " +
             (entry->waitsForDone ? "disabled until the symbol is finished"
                                  : "not shown: its menu is hidden");
    }
    editor_.openMenu(entry->menu);
    return decide(editor_.chooseMenuEntry(entry->command));
  }

  /// `tip N`: row N (from 1) of the tips panel.
  std::optional<std::string> chooseTip(const std::vector<std::string>& words) {
    if (!started()) return notStarted();
    const ListState& rows = editor_.window().tipsPanel;
    int row = 0;
    if (!editor_.window().tipsPanelVisible || words.size() != 1 || !wholeNumber(words[0], row) ||
        row < 1 || row > static_cast<int>(rows.rows.size())) {
      return "tip takes a row number of the tips panel from 1 to " +
             std::to_string(rows.rows.size());
    }
    editor_.chooseTipRow(row - 1);
    return std::nullopt;
  }

  /// `group N` or `row N`: row N (from 1) of the group chooser or the symbol list.
  std::optional<std::string> chooseRow(const std::string& list,
                                       const std::vector<std::string>& words) {
    if (!started()) return notStarted();
    const ListState& rows =
        list == "group" ? editor_.window().groupChooser : editor_.window().symbolList;
    int row = 0;
    if (words.size() != 1 || !wholeNumber(words[0], row) || row < 1 ||
        row > static_cast<int>(rows.rows.size())) {
      return list + " takes a row number from 1 to " + std::to_string(rows.rows.size());
    }
    if (list == "group") {
      editor_.chooseGroup(row - 1);
    } else {
      editor_.chooseSymbolRow(row - 1);
    }
    return std::nullopt;
  }

  std::optional<std::string> decide(ExitDecision decision) {
    if (decision == ExitDecision::EndProgram) {
      out_ << "ends\n";
      ended_ = true;
    }
    return std::nullopt;
  }

  std::optional<std::string> dump(const std::vector<std::string>& words) {
    if (words.size() != 1) return "dump takes one of: set, window, canvas, dialog, symbol, state";
    if (words[0] == "dialog") return writeDialogDump(editor_, out_);
    if (isDrawingDump(words[0])) return writeDrawingDump(editor_, words[0], out_), std::nullopt;
    if (words[0] == "canvas") {
      for (const DrawCall& call : drawing_.calls()) out_ << drawCallText(call) << '\n';
      return std::nullopt;
    }
    if (words[0] == "set") {
      const CurrentSet& set = editor_.currentSet();
      out_ << "set " << set.count() << " symbols" << (set.changed ? ", changed" : "") << '\n';
      RecordBuffers records;
      records.lineEnd = "\n";
      for (int number = 1; number <= set.count(); ++number) {
        writeSymbolRecords(set.symbol(number), records);
      }
      out_ << records.text;
      return std::nullopt;
    }
    if (words[0] == "window") {
      const EditWindowState& window = editor_.window();
      for (const auto& [name, field] : followedTexts()) {
        out_ << name << ' ' << quotedScriptText(window.*field) << '\n';
      }
      for (const std::string& row : window.symbolList.rows) {
        out_ << "symbol-row " << quotedScriptText(row) << '\n';
      }
      for (const std::string& row : window.groupChooser.rows) {
        out_ << "group-row " << quotedScriptText(row) << '\n';
      }
      return std::nullopt;
    }
    return "dump takes one of: set, window, canvas, dialog, symbol, state";
  }

  void reportWindowChanges() {
    dialogReport_.report(editor_, out_);
    const EditWindowState& window = editor_.window();
    if (window.tipsDialogVisible && !shown_.tipsDialogVisible) {
      out_ << "tips-dialog " << quotedScriptText(window.tipText) << '\n';
    }
    if (window.readMeVisible && !shown_.readMeVisible) {
      out_ << "read-me " << quotedScriptText(window.readMeText) << '\n';
    }
    if (window.tipsPanelVisible && !shown_.tipsPanelVisible) {
      for (const std::string& row : window.tipsPanel.rows) {
        out_ << "tip-row " << quotedScriptText(row) << '\n';
      }
    }
    if (window.tipsPanelText != shown_.tipsPanelText && window.tipsPanelVisible) {
      out_ << "tip-text " << quotedScriptText(window.tipsPanelText) << '\n';
    }
    if (window.aboutVisible && !shown_.aboutVisible) {
      out_ << "about " << quotedScriptText(kAboutTitle) << ' '
           << quotedScriptText(aboutText(editor_.startup().versionText)) << '\n';
    }
    for (const auto& [name, field] : followedTexts()) {
      if (shown_.*field != window.*field)
        out_ << name << ' ' << quotedScriptText(window.*field) << '\n';
    }
    shown_ = window;
  }

  std::string resolved(const std::string& name) const {
    const std::filesystem::path path(name);
    return path.is_absolute() ? name : (base_ / path).string();
  }

  std::filesystem::path base_;
  std::ostream& out_;
  ScriptedUser user_;
  DisplayList drawing_;
  Editor editor_;
  EditWindowState shown_;
  DialogReport dialogReport_;
  bool started_ = false;
  bool ended_ = false;
};

}  // namespace

ScriptOutcome runScript(std::string_view script, const std::filesystem::path& baseDirectory,
                        Environment& environment, std::ostream& out) {
  return ScriptRunner(baseDirectory, environment, out).run(script);
}

}  // namespace quorn
