#include "skey/attribute_codes.h"

#include <optional>

#include "base/numbers.h"

namespace quorn {
namespace {

// The codes are list positions as text, except that the heat-tracing orientation is stored
// as 7; KELVOR reads that gap, so it stays.
constexpr std::array<AttributeChoice, 3> kFlowArrowChoices = {{
    {"Use the Old SKEY setting", "0"},
    {"Flow Arrow Off", "1"},
    {"Flow Arrow On", "2"},
}};

constexpr std::array<AttributeChoice, 3> kDimensionChoices = {{
    {"Use the Old SKEY setting", "0"},
    {"Turn Dimensions Off", "1"},
    {"Turn Dimensions On", "2"},
}};

constexpr std::array<AttributeChoice, 5> kOrientationChoices = {{
    {"Use the Old SKEY Setting", "0"},
    {"Always Plot Vertical", "1"},
    {"User Specified Direction", "2"},
    {"All Three Primary Directions", "3"},
    {"Heat Tracing Component", "7"},
}};

// The first item of every list when a stored symbol is edited.
constexpr std::string_view kEditingFirstCaption = "Use the Old SKEY Setting";

std::optional<int> wholeNumber(std::string_view text) {
  const std::optional<std::int16_t> value = roundToInt16(leadingNumber(text));
  if (!value) return std::nullopt;
  return *value;
}

}  // namespace

std::span<const AttributeChoice> attributeChoices(AttributeList list) {
  switch (list) {
    case AttributeList::FlowArrow:
      return kFlowArrowChoices;
    case AttributeList::Dimensions:
      return kDimensionChoices;
    case AttributeList::Orientation:
      return kOrientationChoices;
  }
  return kFlowArrowChoices;
}

std::vector<std::string> listCaptions(AttributeList list, CaptionStyle style) {
  std::vector<std::string> captions;
  for (const AttributeChoice& choice : attributeChoices(list))
    captions.emplace_back(choice.caption);
  if (style == CaptionStyle::Editing) captions.front() = std::string(kEditingFirstCaption);
  return captions;
}

std::string_view codeForPosition(AttributeList list, int position) {
  const std::span<const AttributeChoice> choices = attributeChoices(list);
  if (position < 0 || position >= static_cast<int>(choices.size())) return choices.front().code;
  return choices[static_cast<std::size_t>(position)].code;
}

int positionForCode(AttributeList list, std::string_view code) {
  const std::span<const AttributeChoice> choices = attributeChoices(list);
  const std::optional<int> number = wholeNumber(code);
  if (!number) return 0;
  if (*number >= 0 && *number < static_cast<int>(choices.size())) return *number;
  for (std::size_t position = 0; position < choices.size(); ++position) {
    if (wholeNumber(choices[position].code) == number) return static_cast<int>(position);
  }
  return 0;
}

std::string_view mirrorCaptionForCode(std::string_view code) {
  return leadingNumber(code) <= 0 ? kMirrorCaptions[0] : kMirrorCaptions[1];
}

std::string_view mirrorCodeForCaption(std::string_view caption) {
  return caption == kMirrorCaptions[0] ? "0" : "1";
}

}  // namespace quorn
