#include "edit/action_buttons.h"

#include <string>

#include "base/text.h"

namespace quorn {

std::string_view buttonHint(ActionButton button) {
  for (const ActionButtonText& text : kActionButtonTexts) {
    if (text.button == button) return text.hint;
  }
  return {};
}

std::optional<ActionButton> buttonCaptioned(std::string_view caption) {
  if (caption == kOrthoCaption) return ActionButton::IsoOrtho;
  for (const ActionButtonText& text : kActionButtonTexts) {
    if (withoutAccessKey(text.caption) == caption) return text.button;
  }
  return std::nullopt;
}

}  // namespace quorn
