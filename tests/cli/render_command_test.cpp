#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "display/sheet_texts.h"
#include "skey/dialog_texts.h"
#include "support/run_command.h"
#include "support/temp_directory.h"

namespace quorn {
namespace {

#ifdef QUORN_WITH_RENDER

namespace fs = std::filesystem;

std::string sample(const char* name) {
  return (fs::path(QUORN_SAMPLE_DIR) / name).string();
}

TEST(RenderCommand, DrawsOneSymbolOrACatalogueInEachFormat) {
  test::TempDirectory temp;
  const struct {
    const char* name;
    std::string_view signature;
  } outputs[] = {{"one.png", "\x89PNG"}, {"one.svg", "<?xml"}, {"one.pdf", "%PDF"}};
  for (const auto& output : outputs) {
    const auto result =
        test::runSymbols({"render", sample("EXAMPLE.SYM"), "--symbol", "2", "--workdir",
                          QUORN_SAMPLE_DIR, "--out", (temp.path() / output.name).string()});
    ASSERT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(result.out, "1 symbol drawn to " + (temp.path() / output.name).string() + "\n");
    EXPECT_EQ(temp.read(output.name).substr(0, output.signature.size()), output.signature);
  }
  // An SVG holds the drawn lines in the symbol's colours: the grid's light cyan among them.
  EXPECT_NE(temp.read("one.svg").find("#00ffff"), std::string::npos);
}

TEST(RenderCommand, ACatalogueOfManySymbolsTakesSeveralPages) {
  test::TempDirectory temp;
  // Ten copies of the first sample symbol: more than one page of nine cells.
  std::string content;
  const std::string sampleText = [&] {
    std::ifstream in(sample("EXAMPLE.SYM"), std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), {});
  }();
  const auto second = sampleText.find(" 501", 1);
  for (int i = 0; i < 10; ++i) content += sampleText.substr(0, second);
  temp.write("TEN.SYM", content);
  const auto result =
      test::runSymbols({"render", (temp.path() / "TEN.SYM").string(), "--workdir", QUORN_SAMPLE_DIR,
                        "--out", (temp.path() / "ten.pdf").string()});
  ASSERT_EQ(result.status, 0) << result.err;
  EXPECT_EQ(result.out, "10 symbols drawn to " + (temp.path() / "ten.pdf").string() + "\n");
  EXPECT_NE(temp.read("ten.pdf").find("/Count 2"), std::string::npos);
}

TEST(RenderCommand, ASymbolSheetHoldsTheKeysAttributesAndLegendOfTheCore) {
  test::TempDirectory temp;
  for (const char* name : {"sheet.svg", "sheet.pdf"}) {
    const auto result =
        test::runSymbols({"render", sample("EXAMPLE.SYM"), "--symbol", "1", "--sheet", "--workdir",
                          QUORN_SAMPLE_DIR, "--out", (temp.path() / name).string()});
    ASSERT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(result.out, "symbol sheet drawn to " + (temp.path() / name).string() + "\n");
  }
  const std::string pdf = temp.read("sheet.pdf");
  EXPECT_EQ(pdf.substr(0, 4), "%PDF");
  EXPECT_NE(pdf.find("/Count 1"), std::string::npos);

  // The SVG keeps its texts readable: the captions and legend are the core's, the values
  // those of the first sample symbol (Old SKEY VT, spindle 01SP, dimensions off).
  const std::string svg = temp.read("sheet.svg");
  std::vector<std::string> texts{std::string(kSheetHeading) + " VT**", "File: EXAMPLE.SYM",
                                 std::string(kOldKeyCaption),          "VT**",
                                 std::string(kSpindleKeyCaption),      "01SP",
                                 std::string(kDimensionCaption),       "Turn Dimensions Off",
                                 std::string(kSheetLegendHeading)};
  for (std::string_view label : kLegendLabels) texts.emplace_back(label);
  for (const std::string& text : texts) {
    EXPECT_NE(svg.find(">" + text + "<"), std::string::npos) << text;
  }
}

TEST(RenderCommand, RefusesWhatItCannotDraw) {
  test::TempDirectory temp;
  EXPECT_EQ(
      test::runSymbols({"render", sample("EXAMPLE.SYM"), "--workdir", QUORN_SAMPLE_DIR}).status, 2);
  EXPECT_EQ(test::runSymbols({"render", sample("EXAMPLE.SYM"), "--symbol", "9", "--workdir",
                              QUORN_SAMPLE_DIR, "--out", (temp.path() / "x.png").string()})
                .status,
            2);
  const auto wrongKind =
      test::runSymbols({"render", sample("EXAMPLE.SYM"), "--workdir", QUORN_SAMPLE_DIR, "--out",
                        (temp.path() / "x.bmp").string()});
  EXPECT_EQ(wrongKind.status, 2);
  EXPECT_NE(wrongKind.err.find("the output must end in .svg, .png or .pdf"), std::string::npos);
}

#endif

}  // namespace
}  // namespace quorn
