// A symbol with every kind of item, drawn through the editor as a user draws it, is stored
// with the coordinates the storing formula gives for its form-unit points.

#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>

#include "app/editor.h"
#include "display/display_list.h"
#include "support/fake_environment.h"
#include "support/recording_messages.h"
#include "support/scripted_file_chooser.h"
#include "support/temp_directory.h"

namespace quorn {
namespace {


/// The storing formula, written out again: hundredths of a millimetre from the grid's
/// bottom-left corner, single precision, cut towards minus infinity.
SymbolAction expectedStored(std::int16_t code, const WorkingAction& point,
                            const GridGeometry& grid) {
  const float perMm = grid.unitsPerMm;
  const auto x =
      static_cast<std::int16_t>(std::floor(static_cast<float>(point.x - 1100) / perMm * 100.0f));
  const auto y = static_cast<std::int16_t>(
      std::floor(static_cast<float>(500 + grid.gridHeight - point.y) / perMm * 100.0f));
  return SymbolAction{code, x, y};
}

TEST(FullSymbol, EveryKindOfItemIsStoredByTheStoringFormula) {
  test::TempDirectory temp;
  temp.copyFilesFrom(QUORN_SAMPLE_DIR);
  test::FakeEnvironment environment;
  environment.current = temp.path();
  test::RecordingMessages messages;
  test::ScriptedFileChooser chooser;
  DisplayList canvas;
  Editor editor(messages, chooser, environment, canvas);
  ASSERT_FALSE(editor.startFirstStage(""));
  ASSERT_FALSE(editor.startSecondStage());
  editor.closeTipsDialog();

  // Group 2 holds the valves; VB** requires a spindle point.
  editor.chooseGroup(1);
  ASSERT_TRUE(editor.newSymbol());
  editor.typeInDialog(DialogField::OldKey, "vb**");
  editor.leaveDialogField(DialogField::OldKey);
  editor.typeInDialog(DialogField::SpindleKey, "01SP");
  ASSERT_EQ(editor.pressCreate(), CreateOutcome::BlankImage);

  const GridGeometry grid = editor.grid();
  const auto at = [&](int across, int up) {
    return std::pair<float, float>(
        1100.0f + static_cast<float>(across * grid.spacing),
        500.0f + static_cast<float>(grid.gridHeight - up * grid.spacing));
  };
  const auto click = [&](int across, int up) {
    const auto [x, y] = at(across, up);
    editor.pressMouse(MouseButton::Left, x, y);
  };
  click(2, 20);   // start point
  click(10, 20);  // a line
  editor.pressButton(ActionButton::Char);
  click(12, 24);  // a character line
  editor.pressButton(ActionButton::Char);
  editor.pressButton(ActionButton::Insulation);
  click(12, 18);
  click(20, 18);
  editor.pressButton(ActionButton::Tracing);
  click(12, 22);
  click(20, 22);
  editor.pressButton(ActionButton::Arc);
  click(30, 20);  // centre
  click(34, 20);  // start edge
  click(30, 24);  // end
  editor.pressButton(ActionButton::Circle);
  click(45, 20);
  click(48, 20);
  editor.pressButton(ActionButton::TappingPoint);
  click(16, 26);
  editor.pressButton(ActionButton::SpindlePoint);
  click(16, 20);
  editor.pressButton(ActionButton::End);
  click(56, 20);
  for (const Message& shown : messages.shown()) ADD_FAILURE() << shown.text;

  const WorkingSymbol drawn = editor.workingSymbol();
  std::vector<SymbolAction> expected;
  for (int slot = 1; slot <= drawn.actionCount; ++slot) {
    const WorkingAction& point = drawn.slots[static_cast<std::size_t>(slot)];
    const std::int16_t code = point.character ? std::int16_t{kCharacterLine} : point.type;
    expected.push_back(expectedStored(code, point, grid));
  }
  expected.push_back(expectedStored(kSpindlePoint, drawn.slots[kSpindleSlot], grid));
  expected.push_back(expectedStored(kMove, drawn.slots[kEndSlot], grid));
  // A quarter arc takes a quarter of the full-turn count; a circle its own count of lines.
  const Configuration& config = editor.startup().config;
  const std::size_t arcSegments = static_cast<std::size_t>(config.segmentsIn180Arc / 4);
  ASSERT_EQ(expected.size(),
            8 + arcSegments + 1 + static_cast<std::size_t>(config.noOfSegments) + 3);

  editor.pressButton(ActionButton::Done);
  ASSERT_TRUE(messages.shown().empty()) << messages.texts()[0];
  const CurrentSet& set = editor.currentSet();
  ASSERT_EQ(set.count(), 1);
  const SymbolRecord& stored = set.symbol(1);
  EXPECT_EQ(stored.oldKey, "VB**");
  EXPECT_EQ(stored.spindleKey, "01SP");
  EXPECT_EQ(stored.tappingCount, 1);
  EXPECT_EQ(stored.actions, expected);
  // The kinds in drawing order: start, line, character line, insulation and tracing strokes,
  // the arc and circle as runs of lines, the tapping point, then the spindle and end points.
  const std::vector<std::int16_t> firstCodes = {kMove,       kLine, kCharacterLine, kMove,
                                                kInsulation, kMove, kTracing,       kMove};
  for (std::size_t i = 0; i < firstCodes.size(); ++i)
    EXPECT_EQ(stored.actions[i].type, firstCodes[i]);
  EXPECT_EQ(stored.actions[stored.actions.size() - 3].type, kTappingPoint);
  EXPECT_EQ(stored.actions[stored.actions.size() - 2].type, kSpindlePoint);
  EXPECT_EQ(stored.actions.back().type, kMove);
  // The start point lies two divisions right of and twenty up from the grid's corner.
  EXPECT_EQ(stored.actions.front().x, 100);
  EXPECT_EQ(stored.actions.front().y, 1000);
}

}  // namespace
}  // namespace quorn
