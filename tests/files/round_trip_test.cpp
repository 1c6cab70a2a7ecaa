// A symbol file read and written again.

#include <gtest/gtest.h>

#include <cstdio>

#include "files/symbol_file_reader.h"
#include "files/symbol_file_writer.h"
#include "support/recording_messages.h"
#include "support/temp_directory.h"

namespace quorn {
namespace {

const std::string kFiller = "       0";

// Keeps what is written, as a file would.
class MemoryFile : public OutputFile {
 public:
  bool write(std::string_view bytes) override {
    content += bytes;
    return true;
  }
  bool finish() override { return true; }
  bool commit() override { return true; }
  const std::string& problem() const override { return problem_; }
  std::string content;

 private:
  std::string problem_;
};

FormatStructure format(std::string id, std::int16_t headlines = 0, std::int16_t leadlines = 0) {
  FormatStructure structure;
  structure.id = std::move(id);
  structure.headlines = headlines;
  structure.leadlines = leadlines;
  return structure;
}

std::string header(const char* newKey, const char* oldKey, const char* spindle, const char* scale,
                   const char* mirror, const char* flow, const char* dimensions,
                   const char* orientation) {
  char line[128];
  std::snprintf(line, sizeof line, " 501  %-4s %-4s %-4s%9s%8s%8s%8s%s%8s", newKey, oldKey, spindle,
                scale, mirror, flow, dimensions,
                (kFiller + kFiller + kFiller + kFiller + kFiller).c_str(), orientation);
  return line;
}

// An action record of the given groups (code, x, y each), filled to 110 characters.
std::string actions(std::initializer_list<std::array<int, 3>> groups) {
  std::string line = " 502  ";
  for (const auto& g : groups) {
    char text[32];
    std::snprintf(text, sizeof text, "%8d%8d%8d", g[0], g[1], g[2]);
    line += text;
  }
  line += kFiller;
  while (line.size() <= 103) line += kFiller;
  return line;
}

std::string endRecord() {
  std::string line = " 999  ";
  for (int i = 0; i < 13; ++i) line += kFiller;
  return line;
}

std::string joined(std::initializer_list<std::string> lines, std::string_view end) {
  std::string content;
  for (const std::string& line : lines) content += line + std::string(end);
  return content;
}

struct RoundTrip {
  CurrentSet set;
  SymbolFileText text;
  std::vector<std::string> labels;
  test::RecordingMessages messages;

  std::string run(const std::string& content, const FormatStructure& structure) {
    if (!readSymbolText(content, "IN.SYM", structure, set, text, labels, messages)) return {};
    MemoryFile written;
    EXPECT_EQ(writeSymbolSet(set, text, structure, 0, written, nullptr), nullptr);
    return written.content;
  }
};

TEST(RoundTrip, AFileInTheWrittenFormKeepsEveryByte) {
  const std::string content = joined(
      {"Symbols of unit 12", "  drawn 2024", header("VBSW", "VB", "", "100", "1", "0", "1", "2"),
       actions({{1, 0, 0}, {2, 500, 0}, {7, 500, 250}, {3, 250, 125}}),
       actions({{4, 0, 300}, {5, 800, 300}, {6, 250, 400}, {1, 1000, 0}}),
       header("", "sp", "HWSP", "75.5", "X", "FLOW", "ON", "UP"), actions({{1, 0, 0}, {8, 9, 9}}),
       header("", "TE", "", "", "", "", "", ""), endRecord(), "end of symbols", "", "last"},
      "\r\n");
  RoundTrip trip;
  EXPECT_EQ(trip.run(content, format("QUORN_ASCII")), content);
  EXPECT_TRUE(trip.messages.shown().empty());
  // The raw key is written back although the set lists the symbol as "VB**".
  EXPECT_EQ(trip.set.symbol(1).oldKey, "VB**");

  // The same records in the other built-in layout: no end record of its own.
  const std::string idf = joined({header("VBSW", "VB", "", "100", "1", "0", "1", "2"),
                                  actions({{1, 0, 0}, {2, 5, 5}}), "trailer"},
                                 "\n");
  RoundTrip idfTrip;
  EXPECT_EQ(idfTrip.run(idf, format("IDF_FORMATTED")), idf);
}

TEST(RoundTrip, ATestStringFormatKeepsItsHeadTestAndLeadLines) {
  const std::string content = joined(
      {"title", "*PLANT-SYMBOLS v3", "lead line", header("", "FLWN", "", "1", "", "", "", ""),
       actions({{1, 0, 0}, {2, 100, 0}}), "tail one", " 999 not first"},
      "\n");
  RoundTrip trip;
  EXPECT_EQ(trip.run(content, format("*PLANT-SYMBOLS", 0, 1)), content);
  EXPECT_EQ(trip.text.lineEnding, LineEnding::Lf);
}

TEST(RoundTrip, ChangesOnlyWhatTheWriterRewrites) {
  const std::string content = joined(
      {header("", "vb**", "", "123456789", "1", "0", "1", "2"),
       actions({{1, 0, 0}, {1, 0, 0}, {2, 10, 10}, {1, 20, 20}}),
       actions({{1, 30, -4}, {1, 40, 40}, {2, -7, 50}, {1, 60, 60}}),
       header("", "VBSP", "", "100", "", "", "", ""), actions({{1, 0, 0}, {2, 1, 1}}), endRecord()},
      "\r\n");
  const std::string expected =
      joined({header("", "VBSP", "", "100", "", "", "", ""), actions({{1, 0, 0}, {2, 1, 1}}),
              // The scale factor lost its first character on reading; "**" is cut from the raw
              // key; the repeated start point is dropped, the run of moves keeps its last point
              // and negative coordinates come back as 0.
              header("", "vb", "", "23456789", "1", "0", "1", "2"),
              actions({{1, 0, 0}, {2, 10, 10}, {1, 40, 40}, {2, 0, 50}}), actions({{1, 60, 60}}),
              endRecord()},
             "\r\n");
  RoundTrip trip;
  EXPECT_EQ(trip.run(content, format("QUORN_ASCII")), expected);
}

TEST(RoundTrip, ASavedFileReadsBackAsTheSameSet) {
  test::TempDirectory temp;
  temp.write("SYMBOLS.INI",
             "[File Formats]\r\nEXTENSION SYM, Quorn ASCII symbol file\r\nID Quorn_ASCII\r\n"
             "Headlines 0\r\nLeadlines 0\r\n[End]\r\n");
  const std::string content =
      joined({"head", header("VBSW", "VB", "", "100", "1", "0", "1", "2"),
              actions({{1, 0, 0}, {2, 500, 0}, {6, 250, 0}, {1, 1000, 0}}), endRecord(), "tail"},
             "\n");
  const std::string inName = temp.write("IN.SYM", content).string();
  RoundTrip trip;
  ASSERT_TRUE(readSymbolFile(inName, format("QUORN_ASCII"), trip.set, trip.text, trip.labels,
                             trip.messages));
  trip.set.changed = true;
  std::string outName = (temp.path() / "OUT.SYM").string();
  ASSERT_TRUE(writeSymbolFile(WorkingDirectory(temp.path()), outName, inName, trip.set, trip.text,
                              Configuration{}, trip.messages));
  EXPECT_EQ(temp.read("OUT.SYM"), content);

  RoundTrip again;
  ASSERT_TRUE(readSymbolFile(outName, format("QUORN_ASCII"), again.set, again.text, again.labels,
                             again.messages));
  ASSERT_EQ(again.set.count(), 1);
  EXPECT_EQ(again.set.symbol(1), trip.set.symbol(1));
  EXPECT_EQ(again.text.headLines, trip.text.headLines);
  EXPECT_EQ(again.text.tailLines, trip.text.tailLines);
  EXPECT_EQ(again.labels, trip.labels);
}

}  // namespace
}  // namespace quorn
