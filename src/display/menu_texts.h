#pragma once
// The edit window's menus: each menu's caption and its entries, in the order the window shows
// them, with the entries that wait while a symbol is drawn.

#include <array>
#include <string_view>

namespace quorn {

enum class Menu { File, Symbol, View, Delete, Move, Help };

/// What a menu entry asks of the editor.
enum class MenuCommand {
  NewFile,
  OpenFile,
  SaveFile,
  SaveFileAs,
  Print,
  Exit,
  NewSymbol,
  EditSymbol,
  StandardLibrary,
  CurrentSetView,
  DeleteLine,
  DeleteInsulation,
  DeleteTracing,
  DeleteTappingPoint,
  DeleteSpindlePoint,
  DeleteSymbol,
  MoveStartPoint,
  MoveEndPoint,
  MoveSpindlePoint,
  MoveSymbol,
  ViewReadMe,
  ShowTips,
  About,
};

struct MenuText {
  Menu menu;
  std::string_view caption;  // with "&" before the access key
};

/// The menu bar, left to right.
inline constexpr std::array<MenuText, 6> kMenuTexts = {{
    {Menu::File, "&File"},
    {Menu::Symbol, "&Symbol"},
    {Menu::View, "&View"},
    {Menu::Delete, "&Delete"},
    {Menu::Move, "&Move"},
    {Menu::Help, "&Help"},
}};

struct MenuEntryText {
  Menu menu;
  MenuCommand command;
  std::string_view caption;  // with "&" before the access key
  /// A separator line stands above the entry.
  bool separatorBefore = false;
  /// Disabled while a symbol is in progress (from Create until Done or Erase); the other
  /// entries stay enabled and the editor says why it refuses them.
  bool waitsForDone = false;
};

/// Every menu entry, menu by menu, each menu's entries top to bottom.
inline constexpr std::array<MenuEntryText, 23> kMenuEntryTexts = {{
    {Menu::File, MenuCommand::NewFile, "&New", false, true},
    {Menu::File, MenuCommand::OpenFile, "&Open...", false, true},
    {Menu::File, MenuCommand::SaveFile, "&Save"},
    {Menu::File, MenuCommand::SaveFileAs, "Save &As..."},
    {Menu::File, MenuCommand::Print, "&Print...", true},
    {Menu::File, MenuCommand::Exit, "E&xit", true},
    {Menu::Symbol, MenuCommand::NewSymbol, "&New  - Create a New Symbol in the Current Set"},
    {Menu::Symbol, MenuCommand::EditSymbol, "&Edit  - Edit the Symbol Displayed on the Screen",
     false, true},
    {Menu::View, MenuCommand::StandardLibrary, "&Standard Library"},
    {Menu::View, MenuCommand::CurrentSetView, "S&ymbol - from Current Set"},
    {Menu::Delete, MenuCommand::DeleteLine, "&Line"},
    {Menu::Delete, MenuCommand::DeleteInsulation, "&Insulation"},
    {Menu::Delete, MenuCommand::DeleteTracing, "&Tracing"},
    {Menu::Delete, MenuCommand::DeleteTappingPoint, "Tapping &point"},
    {Menu::Delete, MenuCommand::DeleteSpindlePoint, "&Spindle point"},
    {Menu::Delete, MenuCommand::DeleteSymbol, "S&ymbol", true},
    {Menu::Move, MenuCommand::MoveStartPoint, "&Start point"},
    {Menu::Move, MenuCommand::MoveEndPoint, "&End point"},
    {Menu::Move, MenuCommand::MoveSpindlePoint, "S&pindle point"},
    {Menu::Move, MenuCommand::MoveSymbol, "S&ymbol"},
    {Menu::Help, MenuCommand::ViewReadMe, "&View Read Me File"},
    {Menu::Help, MenuCommand::ShowTips, "&Tips - Show User Tips"},
    {Menu::Help, MenuCommand::About, "&About", true},
}};

}  // namespace quorn
