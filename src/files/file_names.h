#pragma once
// The names a save derives from a symbol file's name.

#include <string>
#include <string_view>

namespace quorn {

/// The text after the last "." of the file's own name (not of its folders), in capitals;
/// empty when the name has no dot.
std::string fileExtension(std::string_view fileName);
/// The name cut after its last "." followed by `extension`; a name without a dot gains "."
/// and `extension`.
std::string withExtension(std::string_view fileName, std::string_view extension);
/// NAME.DAT -> NAME.BAK
std::string backupFileName(std::string_view fileName);
/// NAME.DAT -> NAME.BIN, the binary copy beside the text file.
std::string binaryFileName(std::string_view fileName);

}  // namespace quorn
