#include "skey/skey_rules.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <vector>

#include "model/keys.h"
#include "support/expected_skey_messages.h"

namespace quorn {
namespace {

using namespace test;  // the expected messages

// The messages as the user must see them, written out whole.
using Group = std::vector<std::string>;

// Groups 0, 1, 2 ... with their SKEYs in file order.
Configuration configWith(std::initializer_list<Group> groups) {
  Configuration config;
  for (const Group& skeys : groups) {
    SkeyGroup group;
    for (const std::string& skey : skeys) group.entries.push_back(GroupEntry{skey, "", {}, 0});
    config.groups.push_back(group);
  }
  config.groupCount = static_cast<std::int16_t>(config.groups.size() - 1);
  return config;
}

// Group 0: not redefinable; 1: fittings; 2: valves; 3: flow arrows; 4: spindles.
Configuration sampleConfig() {
  return configWith({{"BE**"},
                     {"TEBW", "OL**"},
                     {"VG**", "VTSW", "VT**", "VB**", "VFFL"},
                     {"FLOW", "AR01", "AR02", "AR04"},
                     {"01SP", "05SP"}});
}

void addSymbol(CurrentSet& set, std::string_view oldKey, std::string_view newKey) {
  SymbolRecord symbol;
  setOldKey(symbol, oldKey);
  setNewKey(symbol, newKey);
  set.append(symbol);
}

std::string outcome(const KeyValidation& validation) {
  return validation.failure.value_or("accepted");
}

// Validates keys typed into the dialog for a new symbol, scale factor 100.
std::string check(const Configuration& config, const CurrentSet& set, int group, std::string oldKey,
                  std::string newKey = "", std::string spindleKey = "", std::string scale = "100") {
  return outcome(validateKeys(config, set, group,
                              KeysToValidate{oldKey, newKey, spindleKey, scale, false, 0}));
}

TEST(MatchOldSkey, VariableEntriesStandForTheElevenStandardEndConditions) {
  const Configuration config = configWith({{}, {"VB**"}});
  for (const std::string end : {"BW", "CP", "SC", "FL", "SW", "PL", "LC", "LN", "LR", "MP", "**"}) {
    EXPECT_EQ(matchOldSkey(config, 1, "VB" + end), 1) << end;
  }
  // End-condition codes that are not standard ends, and keys of another length.
  for (const std::string key : {"VBXX", "VBRP", "VBSP", "VB", "VBS", "VBSWX", "VCSW"}) {
    EXPECT_EQ(matchOldSkey(config, 1, key), std::nullopt) << key;
  }
}

TEST(MatchOldSkey, TheLowestMatchingEntryOfTheCurrentGroupOnlyWins) {
  const Configuration config =
      configWith({{"VBBW"}, {"TEBW"}, {"VBSW", "VB**", "VBFL"}, {"VB**", "VBSW"}});
  EXPECT_EQ(matchOldSkey(config, 2, "VBSW"), 1);
  EXPECT_EQ(matchOldSkey(config, 2, "VBFL"), 2);
  EXPECT_EQ(matchOldSkey(config, 3, "VBSW"), 1);
  EXPECT_EQ(matchOldSkey(config, 1, "VBSW"), std::nullopt);
  EXPECT_EQ(matchOldSkey(config, 1, "VBBW"), std::nullopt);  // group 0 is not searched
  EXPECT_EQ(matchOldSkey(config, 0, "VBBW"), 1);             // unless it is the current group
  EXPECT_EQ(matchOldSkey(config, 4, "VBSW"), std::nullopt);  // no such group
  EXPECT_EQ(matchOldSkey(config, -1, "VBSW"), std::nullopt);
}

TEST(MatchOldSkey, EntriesAreStrippedAndUpperCasedButTheKeyIsTakenAsGiven) {
  const Configuration config = configWith({{}, {" vb** ", "tesw "}});
  EXPECT_EQ(matchOldSkey(config, 1, "VBLC"), 1);
  EXPECT_EQ(matchOldSkey(config, 1, "TESW"), 2);
  EXPECT_EQ(matchOldSkey(config, 1, "tesw"), std::nullopt);
}

TEST(MatchOldSkey, ShortEntriesAndKeysAreComparedWhole) {
  const Configuration config = configWith({{}, {"", "*", "V", "**", "VB"}});
  EXPECT_EQ(matchOldSkey(config, 1, "*"), 2);
  EXPECT_EQ(matchOldSkey(config, 1, "V"), 3);
  EXPECT_EQ(matchOldSkey(config, 1, "**SW"), 4);  // "**" is a type "**" with any end
  EXPECT_EQ(matchOldSkey(config, 1, "VB"), 5);
  EXPECT_EQ(matchOldSkey(config, 1, "X"), std::nullopt);
}

TEST(ValidateKeys, TheOldSkeyIsRequiredAndMustBeRedefinableInTheCurrentGroup) {
  const Configuration config = sampleConfig();
  const CurrentSet set;
  EXPECT_EQ(check(config, set, 2, ""), kRequired);
  EXPECT_EQ(check(config, set, 2, "    "), kRequired);
  EXPECT_EQ(check(config, set, 2, "VBXX"), "VBXX is not a re-definable SKEY in this Group.");
  EXPECT_EQ(check(config, set, 2, " zzzz "), "ZZZZ is not a re-definable SKEY in this Group.");
  EXPECT_EQ(check(config, set, 2, "BEBW"), "BEBW is not a re-definable SKEY in this Group.");
  EXPECT_EQ(check(config, set, 1, "VBSW"), "VBSW is not a re-definable SKEY in this Group.");

  const KeyValidation typed = validateKeys(config, set, 2, {"vbsw ", "", "", "100"});
  EXPECT_EQ(typed.failure, std::nullopt);
  EXPECT_EQ(typed.entry, 4);
  EXPECT_EQ(validateKeys(config, set, 2, {"VTSW", "", "", "100"}).entry, 2);
  EXPECT_EQ(validateKeys(config, set, 2, {"VTBW", "", "", "100"}).entry, 3);
  // A later rule failing still reports the matched entry.
  const KeyValidation failed = validateKeys(config, set, 2, {"VBSW", "", "", "0"});
  EXPECT_EQ(failed.failure, kScale);
  EXPECT_EQ(failed.entry, 4);
  EXPECT_EQ(validateKeys(config, set, 2, {"VBXX", "", "", "100"}).entry, 0);
}

TEST(ValidateKeys, ANewSkeyMayNotBeAStandardSkeyOfAnyGroup) {
  const Configuration config = sampleConfig();
  const CurrentSet set;
  EXPECT_EQ(check(config, set, 2, "VBSW", "BE**"), kStandard);  // group 0 counts
  EXPECT_EQ(check(config, set, 2, "VBSW", "tebw"), kStandard);  // another group counts
  EXPECT_EQ(check(config, set, 2, "VBSW", "VFFL"), kStandard);
  EXPECT_EQ(check(config, set, 2, "VB**", "VT**"), kStandard);  // before the end rules
  EXPECT_EQ(check(config, set, 2, "VBSW", "AR02"), kStandard);
  EXPECT_EQ(check(config, set, 3, "FLOW", "FLOW"), kStandard);
}

TEST(ValidateKeys, FlowMayTakeTheArrowSkeysAsNewSkeys) {
  const Configuration config = sampleConfig();
  CurrentSet set;
  for (const std::string arrow : {"AR01", "AR02", "AR04", "ar02"}) {
    EXPECT_EQ(check(config, set, 3, "flow", arrow), "accepted") << arrow;
  }
  // AR03 is no standard SKEY, but shares its type with the arrows.
  EXPECT_EQ(check(config, set, 3, "FLOW", "AR03"), kSameType);
  EXPECT_EQ(check(config, set, 3, "AR01", "AR02"), kStandard);
  addSymbol(set, "FLOW", "AR02");
  EXPECT_EQ(check(config, set, 3, "FLOW", "AR02"), kInSet);
  EXPECT_EQ(check(config, set, 3, "FLOW", "AR04"), "accepted");
}

TEST(ValidateKeys, AVariableEndOldSkeyNeedsANewSkeyOfAnotherTypeWithAStandardEnd) {
  const Configuration config = sampleConfig();
  const CurrentSet set;
  EXPECT_EQ(check(config, set, 2, "VB**", "XYSW"), "accepted");
  EXPECT_EQ(check(config, set, 2, "VBMP", "XY**"), "accepted");
  EXPECT_EQ(check(config, set, 2, "VB**", "XYZZ"), kNeedsEnd);
  EXPECT_EQ(check(config, set, 2, "VB**", "VBZZ"), kNeedsEnd);  // the end rule comes first
  EXPECT_EQ(check(config, set, 2, "VB**", "VBSW"), kSingleEnd);
  EXPECT_EQ(check(config, set, 2, "VB**", "vblc"), kSingleEnd);
  EXPECT_EQ(check(config, set, 2, "VB**", "TESW"), kSameType);
}

TEST(ValidateKeys, ANewSkeyOfAnotherTypeMayNotShareItsTypeWithAnyStandardSkey) {
  const Configuration config = sampleConfig();
  const CurrentSet set;
  EXPECT_EQ(check(config, set, 2, "VBSW", "TEZZ"), kSameType);
  EXPECT_EQ(check(config, set, 2, "VBSW", "OLQQ"), kSameType);
  EXPECT_EQ(check(config, set, 2, "VBSW", "BEQQ"), kSameType);  // group 0 counts
  EXPECT_EQ(check(config, set, 2, "VBSW", "VTQQ"), kSameType);
  EXPECT_EQ(check(config, set, 2, "VBSW", "01QQ"), kSameType);
  EXPECT_EQ(check(config, set, 2, "VBSW", "XYQQ"), "accepted");
  EXPECT_EQ(check(config, set, 2, "VBSW", "XYSW"), "accepted");
}

TEST(ValidateKeys, ANewSkeyOfTheOldTypeMayNotEndInAStandardEnd) {
  const Configuration config = sampleConfig();
  const CurrentSet set;
  EXPECT_EQ(check(config, set, 2, "VBSW", "VBFL"), kLooksStandard);
  EXPECT_EQ(check(config, set, 2, "VBSW", "VB**"), kStandard);
  EXPECT_EQ(check(config, set, 2, "VTSW", "VTLR"), kLooksStandard);
  EXPECT_EQ(check(config, set, 2, "VBSW", "VBQQ"), "accepted");
  EXPECT_EQ(check(config, set, 2, "VBSW", "vbxx"), "accepted");  // XX is no standard end
}

TEST(ValidateKeys, ANewSkeyMustBeNewToTheCurrentSetExceptForTheSymbolBeingEdited) {
  const Configuration config = sampleConfig();
  CurrentSet set;
  addSymbol(set, "VTSW", "");
  addSymbol(set, "VGFL", "XYFL");
  SymbolRecord typedLower;
  typedLower.oldKey = "VBSW";
  typedLower.newKey = " xysw";  // the set's keys are stripped and upper-cased for the test
  set.append(typedLower);
  EXPECT_EQ(check(config, set, 2, "VB**", "XYSW"), kInSet);
  EXPECT_EQ(check(config, set, 2, "VB**", " xysw"), kInSet);
  EXPECT_EQ(check(config, set, 2, "VB**", "XYBW"), "accepted");

  const auto editing = [&](int number, std::string newKey) {
    return outcome(validateKeys(config, set, 2, {"VB**", newKey, "", "100", true, number}));
  };
  EXPECT_EQ(editing(3, "XYSW"), "accepted");
  EXPECT_EQ(editing(2, "XYSW"), kInSet);
  EXPECT_EQ(editing(3, "XYFL"), kInSet);
  // The edited number only counts while editing.
  EXPECT_EQ(outcome(validateKeys(config, set, 2, {"VB**", "XYSW", "", "100", false, 3})), kInSet);
}

TEST(ValidateKeys, ASpindleSkeyIsStandardOrARedefinedSpindleOfTheCurrentSet) {
  const Configuration config = sampleConfig();
  CurrentSet set;
  for (const std::string spindle : {"", " ", "01SP", "09SP", "15sp", " NONE ", "none"}) {
    EXPECT_EQ(check(config, set, 2, "VBSW", "", spindle), "accepted") << spindle;
  }
  for (const std::string spindle : {"16SP", "00SP", "1SP", "SP", "NON"}) {
    EXPECT_EQ(check(config, set, 2, "VBSW", "", spindle), kSpindle) << spindle;
  }
  addSymbol(set, "05SP", "");
  addSymbol(set, "5SP", "17SP");    // an Old SKEY of three characters is no spindle
  addSymbol(set, "05SPX", "18SP");  // nor one of five
  addSymbol(set, "05SX", "19SP");   // nor one not ending in SP
  EXPECT_EQ(check(config, set, 2, "VBSW", "", "16SP"), kSpindle);
  addSymbol(set, "05SP", "16SP");
  for (const std::string spindle : {"16SP", "16sp"}) {
    EXPECT_EQ(check(config, set, 2, "VBSW", "", spindle), "accepted") << spindle;
  }
  for (const std::string spindle : {"17SP", "18SP", "19SP"}) {
    EXPECT_EQ(check(config, set, 2, "VBSW", "", spindle), kSpindle) << spindle;
  }
}

TEST(ValidateKeys, TheScaleFactorMustReadAsAPositiveNumber) {
  const Configuration config = sampleConfig();
  const CurrentSet set;
  for (const std::string scale : {"0", "-5", "", " ", "abc", "0.0", "-0.5", ".", "e5"}) {
    EXPECT_EQ(check(config, set, 2, "VBSW", "", "", scale), kScale) << scale;
  }
  for (const std::string scale : {"100", " 50 ", "0.01", "1.5abc", "+7", "1e2"}) {
    EXPECT_EQ(check(config, set, 2, "VBSW", "", "", scale), "accepted") << scale;
  }
}

TEST(ValidateKeys, OnlyTheFirstFailingRuleIsReported) {
  const Configuration config = sampleConfig();
  CurrentSet set;
  addSymbol(set, "VTSW", "XYSW");
  EXPECT_EQ(check(config, set, 2, "", "TEBW", "16SP", "0"), kRequired);
  EXPECT_EQ(check(config, set, 2, "QQQQ", "TEBW", "16SP", "0"),
            "QQQQ is not a re-definable SKEY in this Group.");
  EXPECT_EQ(check(config, set, 2, "VBSW", "TEBW", "16SP", "0"), kStandard);
  EXPECT_EQ(check(config, set, 2, "VBSW", "XYSW", "16SP", "0"), kInSet);
  EXPECT_EQ(check(config, set, 2, "VBSW", "XYFL", "16SP", "0"), kSpindle);
  EXPECT_EQ(check(config, set, 2, "VBSW", "XYFL", "01SP", "0"), kScale);
}

TEST(ValidateKeys, KeysShorterThanTwoCharactersAreComparedAsTheyStand) {
  const Configuration config = configWith({{"T"}, {"V", "VB**", "**"}});
  const CurrentSet set;
  EXPECT_EQ(check(config, set, 1, "v"), "accepted");
  EXPECT_EQ(check(config, set, 1, "V", "Q"), "accepted");
  EXPECT_EQ(check(config, set, 1, "V", "T"), kStandard);
  EXPECT_EQ(check(config, set, 1, "V", "VB"), kSameType);
  EXPECT_EQ(check(config, set, 1, "V", "V"), kStandard);
  EXPECT_EQ(check(config, set, 1, "VB**", "X"), kNeedsEnd);
  EXPECT_EQ(check(config, set, 1, "VB**", "*"), kNeedsEnd);
  EXPECT_EQ(check(config, set, 1, "**", ""), "** is not a re-definable SKEY in this Group.");
  EXPECT_EQ(check(config, set, 1, "**SW", "**"), kStandard);
  EXPECT_EQ(check(config, set, 1, "**SW", "*"), "accepted");
}

TEST(LocateStoredOldSkey, FindsTheFirstExactEntryFromGroupOneOn) {
  const Configuration config = configWith({{"BE**", "VBSW"}, {"TEBW"}, {"VB**", "VTSW"}, {"VTSW"}});
  const auto found = locateStoredOldSkey(config, "VTSW");
  ASSERT_TRUE(found.has_value());
  EXPECT_EQ(found->group, 2);
  EXPECT_EQ(found->entry, 2);
  const auto variable = locateStoredOldSkey(config, "VB**");
  ASSERT_TRUE(variable.has_value());
  EXPECT_EQ(variable->group, 2);
  EXPECT_EQ(variable->entry, 1);
  EXPECT_EQ(locateStoredOldSkey(config, "BE**"), std::nullopt);  // group 0 is not searched
  EXPECT_EQ(locateStoredOldSkey(config, "VBSW"), std::nullopt);  // no "**" expansion here
  EXPECT_EQ(locateStoredOldSkey(config, "tebw"), std::nullopt);  // exact, case and all
  EXPECT_EQ(invalidStoredOldSkeyText(), kInvalidStored);
}

}  // namespace
}  // namespace quorn
