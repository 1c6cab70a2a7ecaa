#include "app/editor.h"

namespace quorn {

void Editor::openMenu(Menu menu) {
  if (menu == Menu::Delete) openDeleteMenu();
  if (menu == Menu::Move) openMoveMenu();
}

bool Editor::menuEntryOffered(const MenuEntryText& entry) const {
  if (entry.menu == Menu::Move && !window_.moveMenuVisible) return false;
  return window_.menusEnabled || !entry.waitsForDone;
}

ExitDecision Editor::chooseMenuEntry(MenuCommand command) {
  switch (command) {
    case MenuCommand::NewFile:
      newFile();
      break;
    case MenuCommand::OpenFile:
      openFile();
      break;
    case MenuCommand::SaveFile:
      saveFile();
      break;
    case MenuCommand::SaveFileAs:
      saveFileAs();
      break;
    case MenuCommand::Print:
      break;
    case MenuCommand::Exit:
      return exitEditor();
    case MenuCommand::NewSymbol:
      newSymbol();
      break;
    case MenuCommand::EditSymbol:
      editSymbol();
      break;
    case MenuCommand::StandardLibrary:
      viewStandardLibrary();
      break;
    case MenuCommand::CurrentSetView:
      viewCurrentSet();
      break;
    case MenuCommand::DeleteLine:
      chooseDeleteEntry(DeleteEntry::Line);
      break;
    case MenuCommand::DeleteInsulation:
      chooseDeleteEntry(DeleteEntry::Insulation);
      break;
    case MenuCommand::DeleteTracing:
      chooseDeleteEntry(DeleteEntry::Tracing);
      break;
    case MenuCommand::DeleteTappingPoint:
      chooseDeleteEntry(DeleteEntry::TappingPoint);
      break;
    case MenuCommand::DeleteSpindlePoint:
      chooseDeleteEntry(DeleteEntry::SpindlePoint);
      break;
    case MenuCommand::DeleteSymbol:
      deleteSymbol();
      break;
    case MenuCommand::MoveStartPoint:
      chooseMoveEntry(MoveEntry::StartPoint);
      break;
    case MenuCommand::MoveEndPoint:
      chooseMoveEntry(MoveEntry::EndPoint);
      break;
    case MenuCommand::MoveSpindlePoint:
      chooseMoveEntry(MoveEntry::SpindlePoint);
      break;
    case MenuCommand::MoveSymbol:
      chooseMoveEntry(MoveEntry::Symbol);
      break;
    case MenuCommand::ViewReadMe:
      showReadMe();
      break;
    case MenuCommand::ShowTips:
      showTipsPanel();
      break;
    case MenuCommand::About:
      showAbout();
      break;
  }
  return ExitDecision::KeepRunning;
}

}  // namespace quorn
