#pragma once
// The symbol attributes that KELVOR reads: each value's caption and the code it is stored as.

#include <array>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quorn {

/// One value of a list attribute: what the dialog shows and what the symbol stores.
struct AttributeChoice {
  std::string_view caption;
  std::string_view code;
};

/// The mirror captions, entry 1 and entry 2; every mirror caption is compared against these.
inline constexpr std::array<std::string_view, 2> kMirrorCaptions = {"Symbol is Symmetrical",
                                                                    "Symbol will be Mirrored"};

/// The three attributes chosen from a list, in list order.
enum class AttributeList { FlowArrow, Dimensions, Orientation };

/// Whether the lists are set up for a new symbol or for editing a stored one: when editing,
/// the first item of every list reads "Use the Old SKEY Setting" (capital S).
enum class CaptionStyle { NewSymbol, Editing };

/// The flow-arrow position of "Flow Arrow On".
inline constexpr int kFlowArrowOnPosition = 2;

/// The choices of a list, position 0 first.
std::span<const AttributeChoice> attributeChoices(AttributeList list);

/// The items a list shows in the given style.
std::vector<std::string> listCaptions(AttributeList list, CaptionStyle style);

/// The code stored for a list position; a position outside the list stores position 0's code.
std::string_view codeForPosition(AttributeList list, int position);

/// The list position that a stored code selects. The code is read as a whole number; a number
/// that is a position of the list selects it, a number that is another choice's code selects
/// that choice (orientation 7 selects "Heat Tracing Component", position 4), anything else
/// selects position 0.
int positionForCode(AttributeList list, std::string_view code);

/// The caption of a stored mirror code: 0 or less (as a number) is symmetrical.
std::string_view mirrorCaptionForCode(std::string_view code);

/// The code stored for a mirror caption: "0" for "Symbol is Symmetrical", else "1".
std::string_view mirrorCodeForCaption(std::string_view caption);

}  // namespace quorn
