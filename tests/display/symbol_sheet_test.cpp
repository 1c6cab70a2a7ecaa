#include "display/symbol_sheet.h"

#include <gtest/gtest.h>

#include "display/redraw.h"
#include "support/recording_canvas.h"

namespace quorn {
namespace {

using test::CallKind;
using test::circleCall;
using test::lineCall;
using test::RecordingCanvas;

SymbolText heatTracedValve() {
  SymbolText symbol;
  symbol.oldKey = "VT**";
  symbol.spindleKey = "01SP";
  symbol.scaleFactor = "80";
  symbol.mirrorType = "1";
  symbol.flowArrow = "2";
  symbol.dimensions = "1";
  symbol.orientation = "7";
  return symbol;
}

TEST(SymbolSheet, ListsTheKeysAndAttributesInTheDialogsWords) {
  const SymbolSheet sheet = symbolSheet(heatTracedValve(), "", Configuration{});
  EXPECT_EQ(sheet.keys, (std::vector<SheetRow>{{"Old Symbol Key", "VT**"},
                                               {"New Symbol Key", "(none)"},
                                               {"Spindle Key", "01SP"},
                                               {"Scale Factor", "80 %"}}));
  // Orientation 7 is the heat-tracing choice, not a position of the list.
  EXPECT_EQ(sheet.attributes,
            (std::vector<SheetRow>{{"Mirror Control", "Symbol will be Mirrored"},
                                   {"Flow Arrow Control", "Flow Arrow On"},
                                   {"Dimension Control", "Turn Dimensions Off"},
                                   {"Orientation Control", "Heat Tracing Component"}}));

  SymbolText blank;
  blank.mirrorType = "-3";
  blank.orientation = "9";
  const SymbolSheet empty = symbolSheet(blank, "", Configuration{});
  EXPECT_EQ(empty.keys[0].value, "(none)");
  EXPECT_EQ(empty.keys[3].value, "(none)");
  EXPECT_EQ(empty.attributes[0].value, "Symbol is Symmetrical");
  EXPECT_EQ(empty.attributes[3].value, "Use the Old SKEY Setting");
}

TEST(SymbolSheet, HeadingNamesTheSymbolAndTheFileWithoutItsFolders) {
  SymbolText symbol = heatTracedValve();
  EXPECT_EQ(symbolSheet(symbol, "", Configuration{}).heading, "User Defined Symbol VT**");
  EXPECT_EQ(sheetDocumentName(symbol), "VT**");
  EXPECT_EQ(sheetFileName(symbol), "VT__.pdf");
  symbol.newKey = "VTHX";
  EXPECT_EQ(symbolSheet(symbol, "", Configuration{}).heading, "User Defined Symbol VTHX");
  EXPECT_EQ(sheetDocumentName(symbol), "VTHX");
  EXPECT_EQ(symbolSheet(SymbolText{}, "", Configuration{}).heading, "User Defined Symbol");
  EXPECT_EQ(sheetDocumentName(SymbolText{}), "symbol");
  EXPECT_EQ(sheetFileName(SymbolText{}), "symbol.pdf");
  symbol.newKey = "../A B";
  EXPECT_EQ(sheetFileName(symbol), "___A_B.pdf");

  EXPECT_EQ(symbolSheet(symbol, "", Configuration{}).fileLine, "");
  EXPECT_EQ(symbolSheet(symbol, "work/sets/VALVES.SYM", Configuration{}).fileLine,
            "File: VALVES.SYM");
  EXPECT_EQ(symbolSheet(symbol, "C:\\SETS\\VALVES.SYM", Configuration{}).fileLine,
            "File: VALVES.SYM");
}

TEST(SymbolSheet, GivesTheGridSizesInMillimetres) {
  Configuration config;
  EXPECT_EQ(symbolSheet(SymbolText{}, "", config).gridLine,
            "Grid division 0.5 mm, Scale length 30 mm");
  config.pitch = 12.5;
  config.hsize = 1225;
  EXPECT_EQ(symbolSheet(SymbolText{}, "", config).gridLine,
            "Grid division 1.25 mm, Scale length 122.5 mm");
  config.pitch = 100;
  config.hsize = -5;
  EXPECT_EQ(symbolSheet(SymbolText{}, "", config).gridLine,
            "Grid division 10 mm, Scale length -0.5 mm");
}

TEST(SymbolSheet, LegendSamplesAreDrawnInTheConfiguredColoursByTheSymbolDrawing) {
  Configuration config;
  config.startColour = 1;
  config.endColour = 2;
  config.spindleColour = 3;
  config.teeColour = 13;
  config.insulationColour = 5;
  config.tracingColour = 6;
  const SymbolSheet sheet = symbolSheet(SymbolText{}, "", config);
  ASSERT_EQ(sheet.legend.size(), 6u);

  const Pen marker{0, PenStyle::Solid, kStandardWidth};
  auto withColour = [](Pen pen, int colour) {
    pen.colour = colour;
    return pen;
  };
  const std::vector<test::CanvasCall> expected[] = {
      {circleCall(0, 0, config.startRadius, withColour(marker, 1))},
      {circleCall(0, 0, config.endRadius, withColour(marker, 2))},
      {circleCall(0, 0, config.spindleRadius, withColour(marker, 3))},
      // On paper a light tapping colour is drawn in its dark shade, as on the grid.
      {circleCall(0, 0, config.teeRadius, withColour(marker, 5))},
      {lineCall(-200, 0, 200, 0, Pen{5, PenStyle::Dotted, 1})},
      {lineCall(-200, 0, 200, 0, Pen{6, PenStyle::Dashed, 1})},
  };
  const char* labels[] = {"Start point",   "End point",  "Spindle point",
                          "Tapping point", "Insulation", "Tracing"};
  for (std::size_t i = 0; i < sheet.legend.size(); ++i) {
    SCOPED_TRACE(labels[i]);
    EXPECT_EQ(sheet.legend[i].label, labels[i]);
    const LegendSample sample = legendSample(sheet.legend[i].item, 400);
    RecordingCanvas canvas;
    drawAction(canvas, sample.symbol, sample.slot,
               SymbolStyle{ViewMode::Mode1, 0, View::Orthographic}, config);
    EXPECT_EQ(canvas.calls(), expected[i]);
    EXPECT_EQ(canvas.count(CallKind::Clear), 0);
  }
}

}  // namespace
}  // namespace quorn
