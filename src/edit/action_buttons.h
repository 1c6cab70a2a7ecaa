#pragma once
// The action buttons of the edit window: caption and hint of each, in one table.

#include <array>
#include <optional>
#include <string_view>

#include "edit/editing_texts.h"
#include "model/editor_state.h"

namespace quorn {

struct ActionButtonText {
  ActionButton button;
  std::string_view caption;  // with "&" before the access key
  std::string_view hint;     // the hint line's text for the button
};

/// The buttons that draw and change the symbol. The view button's caption alternates between
/// "Iso" and "Ortho" (see toggleIsoView); the table holds the first.
inline constexpr std::array<ActionButtonText, 15> kActionButtonTexts = {{
    {ActionButton::Char, "Char", "Toggle Character/Line Mode"},
    {ActionButton::Snap, "Snap", "Toggle Snap On/Off"},
    {ActionButton::End, "E&nd", "Add End Point"},
    {ActionButton::SpindlePoint, "S&P", "Add Spindle Point"},
    {ActionButton::TappingPoint, "&TP", "Add Tapping Point"},
    {ActionButton::Insulation, "Ins&ul.", "Add Insulation"},
    {ActionButton::Tracing, "T&race", "Add Tracing"},
    {ActionButton::Arc, "&Arc", "Draw Arc"},
    {ActionButton::Circle, "&Circle", "Draw Circle"},
    {ActionButton::Done, "&Done", "Copy Symbol on Screen to Current Symbol Set"},
    {ActionButton::Undo, "Und&o", "Undo Last Action"},
    {ActionButton::Erase, "&Erase", "Erase Symbol from Screen but Retain in Current Symbol Set"},
    {ActionButton::Flip, "Fl&ip", "Flip Current Symbol"},
    {ActionButton::IsoOrtho, kIsoCaption, "Draw Current Symbol as Iso/Ortho"},
    {ActionButton::Scale, "Scale", "Adjust the Grid Resolution and/or Scale"},
}};

/// The hint of `button`; empty for a button without one in the table.
std::string_view buttonHint(ActionButton button);

/// The button whose caption, without its "&", is `caption` ("End", "Insul."); "Ortho" names
/// the view button too. Nothing for any other text.
std::optional<ActionButton> buttonCaptioned(std::string_view caption);

}  // namespace quorn
