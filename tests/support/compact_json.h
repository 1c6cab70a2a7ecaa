#pragma once

#include <string>
#include <string_view>

namespace quorn::test {

/// The JSON text without the white space outside its strings, for substring checks.
std::string compactJson(std::string_view json);

}  // namespace quorn::test
