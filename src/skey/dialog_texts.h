#pragma once
// The new-symbol dialog's own captions, in one place.

#include <array>
#include <string_view>

namespace quorn {

/// The dialog's title and Create button for a new symbol.
inline constexpr std::string_view kAddNewSymbolTitle = "Add New Symbol";
inline constexpr std::string_view kCreateSymbolCaption = "Create &Symbol";

/// The dialog's title and Create button when it edits a stored symbol.
inline constexpr std::string_view kEditSymbolTitle = "Edit Symbol";
inline constexpr std::string_view kEditSymbolCaption = "Edit Symbol";

/// The "Copy Symbol from" tick and its options, in the order of `CopyOption`.
inline constexpr std::string_view kCopySymbolFromCaption = "Copy Symbol from";
inline constexpr std::array<std::string_view, 3> kCopyOptionCaptions = {"Screen", "Current Set",
                                                                        "Library"};

/// The captions of the fields and lists.
inline constexpr std::string_view kOldKeyCaption = "Old Symbol Key";
inline constexpr std::string_view kNewKeyCaption = "New Symbol Key";
inline constexpr std::string_view kSpindleKeyCaption = "Spindle Key";
inline constexpr std::string_view kScaleFactorCaption = "Scale Factor";
inline constexpr std::string_view kMirrorCaption = "Mirror Control";
inline constexpr std::string_view kArrowCaption = "Flow Arrow Control";
inline constexpr std::string_view kDimensionCaption = "Dimension Control";
inline constexpr std::string_view kOrientationCaption = "Orientation Control";
inline constexpr std::string_view kCancelCaption = "&Cancel";

/// The scale factor of a blank new symbol, in percent.
inline constexpr std::string_view kDefaultScaleFactor = "100";

}  // namespace quorn
