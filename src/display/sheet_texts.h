#pragma once
// The printed symbol sheet's own texts, in one place. The key and attribute captions and the
// attribute values are the new-symbol dialog's (skey/dialog_texts.h, skey/attribute_codes.h).

#include <array>
#include <string_view>

namespace quorn {

/// The sheet's heading, followed by the symbol's key.
inline constexpr std::string_view kSheetHeading = "User Defined Symbol";
/// Before the name of the file the symbol belongs to.
inline constexpr std::string_view kSheetFileCaption = "File: ";
/// Before the grid division and the scale length, in millimetres.
inline constexpr std::string_view kSheetGridCaption = "Grid division ";
inline constexpr std::string_view kSheetScaleCaption = "Scale length ";
inline constexpr std::string_view kSheetMillimetres = " mm";
/// Section headings over the keys, the attributes and the legend.
inline constexpr std::string_view kSheetKeysHeading = "Keys";
inline constexpr std::string_view kSheetAttributesHeading = "Attributes";
inline constexpr std::string_view kSheetLegendHeading = "Marker Colours";
/// A key the symbol does not have.
inline constexpr std::string_view kSheetNoValue = "(none)";
/// After the scale factor, which is a percentage.
inline constexpr std::string_view kSheetPercent = " %";
/// The name of the document a printer or a PDF file is given when the symbol has no key.
inline constexpr std::string_view kSheetDocumentName = "symbol";

/// The legend's labels, in the order of `LegendItem`.
inline constexpr std::array<std::string_view, 6> kLegendLabels = {
    "Start point", "End point", "Spindle point", "Tapping point", "Insulation", "Tracing"};

}  // namespace quorn
