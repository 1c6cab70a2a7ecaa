#include "app/file_command_texts.h"

namespace quorn {

namespace {

constexpr std::string_view kCancelLine = "           Cancel this action (Cancel)";

}  // namespace

std::string unsavedSetQuestion() {
  return std::string("New Symbols") + "\n" + "        have not been saved." + "\n" +
         "                 Save Now?";
}

std::string pendingSymbolSaveQuestion() {
  return std::string("Current Symbol has not been completed.") + "\n" +
         "        Complete Symbol & Save (Yes)" + "\n" +
         "Save Symbols without updating current Symbol (No)" + "\n" + std::string(kCancelLine);
}

std::string pendingSymbolExitQuestion(bool closing) {
  std::string text = std::string("Current Symbol has not been Added to Current Set.") + "\n" +
                     "Add to Current Set (Yes), Abandon Changes (No)";
  if (!closing) text += "\n" + std::string(kCancelLine);
  return text;
}

std::string unsavedSetExitQuestion(bool closing) {
  std::string text = std::string("New Symbols have not been saved.") + "\n" +
                     "Save & Exit (Yes), Exit Without Saving (No)";
  if (!closing) text += "\n" + std::string(kCancelLine);
  return text;
}

std::string plainExitQuestion() {
  return std::string("              Select OK to quit") + "\n" + "or Cancel to Cancel this Action";
}

}  // namespace quorn
