// symbols render: one symbol, a catalogue sheet of every symbol of a file, or the printed
// symbol sheet of one symbol, as an SVG, PNG or PDF file drawn by the window's own painting
// code.

#include <QGuiApplication>
#include <cstdlib>
#include <functional>
#include <ostream>

#include "app/system_environment.h"
#include "cli/arguments.h"
#include "cli/commands.h"
#include "cli/configuration_input.h"
#include "cli/console_messages.h"
#include "cli/workdir_option.h"
#include "display/symbol_sheet.h"
#include "files/open_symbol_file.h"
#include "model/keys.h"
#include "skey/browsing.h"
#include "ui/symbol_renderer.h"

namespace quorn::cli {

namespace {

/// A Qt application for painting only; without a display it paints off-screen.
int renderWithQt(const std::function<int()>& render) {
  if (!std::getenv("DISPLAY") && !std::getenv("WAYLAND_DISPLAY") &&
      !std::getenv("QT_QPA_PLATFORM")) {
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
  }
  int argc = 1;
  char name[] = "symbols";
  char* argv[] = {name, nullptr};
  QGuiApplication application(argc, argv);
  return render();
}

}  // namespace

int runRender(const Words& words, std::ostream& out, std::ostream& err) {
  const Arguments arguments(words, {"workdir", "symbol", "out"});
  const auto output = arguments.option("out");
  if (!arguments.error().empty() || arguments.positional().size() != 1 || !output) {
    err << "usage: symbols render FILE [--symbol N] [--sheet] --out OUT.{svg,png,pdf} "
           "[--workdir DIR]\n";
    return 2;
  }
  const WorkingDirectory directory = workingDirectoryFrom(arguments);
  ConsoleMessages messages(err);
  Configuration config;
  CurrentSet set;
  if (!readConfigurationFor(directory, config, set, messages, err)) return 2;
  if (!openSymbolFile(directory, arguments.positional()[0], config.writeBin, set, messages))
    return 2;
  const GridLayout layout = layOutGrid(config, SystemEnvironment::kHeadlessScreen);
  if (!layout.geometry) {
    err << layout.problem << '\n';
    return 2;
  }
  std::vector<ui::LabelledSymbol> symbols;
  if (const auto chosen = arguments.option("symbol")) {
    const int number = std::atoi(chosen->c_str());
    if (number < 1 || number > set.count()) {
      err << "--symbol takes a number from 1 to " << set.count() << '\n';
      return 2;
    }
    symbols.push_back({&set.symbol(number), listLabel(set.symbol(number))});
  } else {
    for (int number = 1; number <= set.count(); ++number) {
      symbols.push_back({&set.symbol(number), listLabel(set.symbol(number))});
    }
  }
  if (symbols.empty()) {
    err << "the file holds no symbol to draw\n";
    return 2;
  }
  if (arguments.has("sheet")) {
    const SymbolRecord& record = *symbols.front().symbol;
    WorkingSymbol working;
    EditorState state;
    loadWorkingSymbol(record, *layout.geometry, working, state);
    const SymbolSheet sheet = symbolSheet(record, arguments.positional()[0], config);
    const ui::SheetSymbol shown{&working, {state.endPointPlaced, state.spindlePointPlaced}};
    return renderWithQt([&] {
      const std::string problem =
          ui::renderSymbolSheet(sheet, shown, config, *layout.geometry, *output);
      if (!problem.empty()) {
        err << *output << ": " << problem << '\n';
        return 2;
      }
      out << "symbol sheet drawn to " << *output << '\n';
      return 0;
    });
  }
  return renderWithQt([&] {
    const std::string problem = ui::renderSymbols(symbols, config, *layout.geometry, *output);
    if (!problem.empty()) {
      err << *output << ": " << problem << '\n';
      return 2;
    }
    out << symbols.size() << (symbols.size() == 1 ? " symbol" : " symbols") << " drawn to "
        << *output << '\n';
    return 0;
  });
}

}  // namespace quorn::cli
