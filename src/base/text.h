#pragma once
// Small text helpers shared by every reader: blanks are the space character only,
// as in the files' home system; tabs are handled where a format names them.

#include <string>
#include <string_view>

namespace quorn {

std::string_view trimmed(std::string_view text);
std::string_view trimmedLeft(std::string_view text);
std::string_view trimmedRight(std::string_view text);
/// Drops leading tab characters only.
std::string_view withoutLeadingTabs(std::string_view text);
/// Drops blanks and tabs from the start, in any mix.
std::string_view withoutLeadingBlanksAndTabs(std::string_view text);
std::string upperCase(std::string_view text);
/// Trimmed and upper-cased: how keys and SKEYs are compared.
std::string normalisedWord(std::string_view text);
/// The first `count` characters, or the whole text when it is shorter.
std::string_view leftPart(std::string_view text, std::size_t count);
/// The last `count` characters, or the whole text when it is shorter.
std::string_view rightPart(std::string_view text, std::size_t count);
/// Characters from the 1-based `position` on, `count` of them at most.
std::string_view midPart(std::string_view text, std::size_t position,
                         std::size_t count = std::string_view::npos);
bool equalsIgnoringCase(std::string_view a, std::string_view b);
/// A caption without its access-key marks: "E&nd" reads "End".
std::string withoutAccessKey(std::string_view caption);

}  // namespace quorn
