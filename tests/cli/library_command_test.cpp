#include <gtest/gtest.h>

#include "support/compact_json.h"
#include "support/run_command.h"

namespace quorn {
namespace {

TEST(LibraryCommand, TheSampleLibraryDrawsEveryGroupEntryWithoutComplaint) {
  const auto result = test::runSymbols({"library", "--workdir", QUORN_SAMPLE_DIR, "--json"});
  ASSERT_EQ(result.status, 0) << result.err;
  EXPECT_EQ(result.err, "");
  const std::string json = test::compactJson(result.out);
  EXPECT_NE(json.find("\"loaded\":true"), std::string::npos);
  // Group 0 is never searched, so only its entries may stay without a symbol.
  const auto groupOne = json.find("{\"number\":1,");
  ASSERT_NE(groupOne, std::string::npos);
  EXPECT_EQ(json.find("\"librarySymbol\":0}", groupOne), std::string::npos) << json;
}

TEST(SpindlesCommand, TheSampleHoldsFifteenSpindles) {
  const auto result = test::runSymbols({"spindles", "--workdir", QUORN_SAMPLE_DIR, "--json"});
  ASSERT_EQ(result.status, 0) << result.err;
  const std::string json = test::compactJson(result.out);
  EXPECT_EQ(json.rfind("{\"count\":15,", 0), 0u) << json.substr(0, 40);
  EXPECT_NE(json.find("{\"number\":1,\"name\":\"01SP\",\"segments\":[[0,0,0,60],"),
            std::string::npos);
}

}  // namespace
}  // namespace quorn
