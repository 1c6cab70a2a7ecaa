#pragma once
// The SKEYs whose symbols are defined under another Old SKEY (the flow arrows under FLOW, WWA
// under WW), and the key by which a symbol's attributes are looked up.

#include <optional>
#include <string>
#include <string_view>

namespace quorn {

inline constexpr std::string_view kWeldOldSkey = "WW";
inline constexpr std::string_view kWeldNewSkey = "WWA";

/// Whether `key` is one of the flow-arrow SKEYs AR01, AR02 and AR04.
bool isFlowArrowSkey(std::string_view key);

/// What a group entry puts into the Old and New SKEY fields.
struct EntryKeys {
  std::string oldKey;
  std::string newKey;
  bool newKeyFixed = false;  // the New SKEY field is disabled with its caption
};

/// AR01, AR02, AR04 become Old FLOW with that New SKEY, WWA becomes Old WW with New WWA; any
/// other entry is the Old SKEY as it stands, with an empty New SKEY.
EntryKeys keysForEntry(std::string_view entry);

/// The look-up key of the two special pairs: for Old FLOW, the New SKEY when it is a flow
/// arrow and FLOW otherwise; for Old WW with New WWA, WWA. Nothing for any other pair. Both
/// keys are taken normalised.
std::optional<std::string> specialPairLookUpKey(std::string_view oldKey, std::string_view newKey);

/// The key by which a symbol's group entry and attributes are looked up: the special pair's
/// key, else the Old SKEY.
std::string lookUpKey(std::string_view oldKey, std::string_view newKey);

/// A key ending in "**" cut to its two type characters; any other key as it is.
std::string_view typeKeyOf(std::string_view key);

}  // namespace quorn
