#pragma once
// Splitting a script line into words: blanks separate words, double quotes hold blanks, and
// "#" starts a comment outside quotes.

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorn {

/// The words of `line`; nothing when a quote is left open.
std::optional<std::vector<std::string>> scriptWords(std::string_view line);

/// A text as a script or its output writes it: in double quotes, with a backslash before
/// n, r, a quote or a backslash for a line feed, a carriage return, a quote or a backslash.
std::string quotedScriptText(std::string_view text);

}  // namespace quorn
