#include "files/symbol_file_reader.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>

#include "base/numbers.h"
#include "base/text.h"
#include "model/keys.h"
#include "support/recording_messages.h"
#include "support/temp_directory.h"

namespace quorn {
namespace {

std::string right(std::string_view text, std::size_t width) {
  return std::string(width - text.size(), ' ') + std::string(text);
}

std::string left(std::string_view text, std::size_t width) {
  return std::string(text) + std::string(width - text.size(), ' ');
}

struct Header {
  std::string newKey = "", oldKey = "", spindleKey = "", scaleFactor = "100", mirrorType = "0",
              flowArrow = "0", dimensions = "0", orientation = "0";
};

/// A "501" record exactly as the writer lays it out (101 characters).
std::string header(const Header& h) {
  std::string line = " 501  " + left(h.newKey, 4) + " " + left(h.oldKey, 4) + " " +
                     left(h.spindleKey, 4) + right(h.scaleFactor, 9) + right(h.mirrorType, 8) +
                     right(h.flowArrow, 8) + right(h.dimensions, 8);
  for (int field = 0; field < 5; ++field) line += "       0";
  return line + right(h.orientation, 8);
}

std::string header(std::string_view oldKey) {
  return header(Header{"", std::string(oldKey)});
}

/// A "502" record of up to four groups, each three fields as given, filled to 110 characters.
std::string actions(const std::vector<std::array<std::string, 3>>& groups) {
  std::string line = " 502  ";
  for (const auto& group : groups) {
    for (const std::string& field : group) line += right(field, 8);
  }
  while (line.size() <= 103) line += "       0";
  return line;
}

std::string actions(const std::vector<std::array<int, 3>>& groups) {
  std::vector<std::array<std::string, 3>> fields;
  for (const auto& group : groups) {
    fields.push_back(
        {std::to_string(group[0]), std::to_string(group[1]), std::to_string(group[2])});
  }
  return actions(fields);
}

std::string endRecord() {
  std::string line = " 999  ";
  for (int field = 0; field < 13; ++field) line += "       0";
  return line;
}

std::string crlf(const std::vector<std::string>& lines) {
  std::string content;
  for (const std::string& line : lines) content += line + "\r\n";
  return content;
}

FormatStructure format(std::string id, std::int16_t headlines = 0, std::int16_t leadlines = 0) {
  FormatStructure structure;
  structure.id = std::move(id);
  structure.headlines = headlines;
  structure.leadlines = leadlines;
  return structure;
}

/// One read into a fresh Current Set of `capacity` symbols.
struct Read {
  explicit Read(int capacity = 100) { set.reset(capacity); }

  bool text(std::string_view content, const FormatStructure& structure, ReadOptions options = {}) {
    return readSymbolText(content, "IN.SYM", structure, set, fileText, labels, messages, options);
  }

  CurrentSet set;
  SymbolFileText fileText;
  std::vector<std::string> labels;
  test::RecordingMessages messages;
};

std::vector<SymbolAction> moves(std::vector<std::array<int, 3>> expected) {
  std::vector<SymbolAction> result;
  for (const auto& action : expected) {
    result.push_back({static_cast<std::int16_t>(action[0]), static_cast<std::int16_t>(action[1]),
                      static_cast<std::int16_t>(action[2])});
  }
  return result;
}

TEST(SymbolFileReader, BuiltInLayoutKeepsTheLinesAroundTheRecordsAndReadsTheirColumns) {
  Read read;
  const std::string content =
      crlf({"KELVOR user symbols", "  drawn 2024",
            header({"vb", "VBSW", "spsw", "123456789", "1", "2", "3", "4"}),
            actions({{1, 0, 1500}, {2, 1500, 1500}, {6, 900, 2000}, {1, 3000, 1500}}),
            header({"", "sp", "", "75"}), actions({{1, 0, 0}, {1, 600, 0}}), endRecord(), "after"});
  ASSERT_TRUE(read.text(content, format("QUORN_ASCII")));
  EXPECT_TRUE(read.messages.shown().empty());
  EXPECT_EQ(read.fileText.headLines,
            (std::vector<std::string>{"KELVOR user symbols", "  drawn 2024"}));
  EXPECT_TRUE(read.fileText.leadLines.empty());
  EXPECT_TRUE(read.fileText.bodyLines.empty());  // kept only when asked for
  EXPECT_EQ(read.fileText.tailLines, (std::vector<std::string>{endRecord(), "after"}));
  EXPECT_EQ(read.fileText.lineEnding, LineEnding::CrLf);

  ASSERT_EQ(read.set.count(), 2);
  const SymbolRecord& valve = read.set.symbol(1);
  EXPECT_EQ(valve.newKeyRaw, "vb");
  EXPECT_EQ(valve.newKey, "VB**");
  EXPECT_EQ(valve.oldKey, "VBSW");
  EXPECT_EQ(valve.spindleKey, "spsw");
  // Column 21 is not read: a nine-character scale factor loses its first character.
  EXPECT_EQ(valve.scaleFactor, "23456789");
  EXPECT_EQ(valve.mirrorType, "1");
  EXPECT_EQ(valve.flowArrow, "2");
  EXPECT_EQ(valve.dimensions, "3");
  EXPECT_EQ(valve.orientation, "4");
  EXPECT_EQ(valve.actions, moves({{1, 0, 1500}, {2, 1500, 1500}, {6, 900, 2000}, {1, 3000, 1500}}));
  EXPECT_EQ(read.set.symbol(2).oldKey, "SP");  // an end-condition code gains no "**"
  EXPECT_EQ(read.set.symbol(2).newKey, "");
  EXPECT_EQ(read.set.symbol(2).scaleFactor, "75");
  EXPECT_EQ(read.labels,
            (std::vector<std::string>{listLabel(valve), listLabel(read.set.symbol(2))}));
  EXPECT_EQ(read.labels[0], "Old SKEY: VBSW   New SKEY: VB**   Spindle SKEY: spsw");

  // The other built-in layout, named in any case; LF line ends are kept as found.
  Read lf;
  ASSERT_TRUE(lf.text("head\n" + header("FLWN") + "\n", format("idf_formatted")));
  EXPECT_EQ(lf.set.count(), 1);
  EXPECT_EQ(lf.fileText.headLines, std::vector<std::string>{"head"});
  EXPECT_EQ(lf.fileText.lineEnding, LineEnding::Lf);
}

TEST(SymbolFileReader, BuiltInLayoutWithoutHeaderOrAfterAMinusSixLineHasNoBody) {
  Read none;
  ASSERT_TRUE(none.text(crlf({"one", actions({{1, 5, 5}}), "three"}), format("QUORN_ASCII")));
  EXPECT_EQ(none.set.count(), 0);
  EXPECT_EQ(none.fileText.headLines.size(), 3u);  // every line, the last one too
  EXPECT_TRUE(none.fileText.tailLines.empty());

  Read minusSix;
  const std::vector<std::string> lines = {"title", "  -6  end of head", header("VBSW"),
                                          actions({{1, 0, 0}})};
  ASSERT_TRUE(minusSix.text(crlf(lines), format("QUORN_ASCII")));
  EXPECT_EQ(minusSix.set.count(), 0);
  EXPECT_EQ(minusSix.fileText.headLines, std::vector<std::string>{"title"});
  EXPECT_EQ(minusSix.fileText.tailLines, (std::vector<std::string>{lines[1], lines[2], lines[3]}));

  // After the first header a -6 line is only a line that ends the body.
  Read late;
  ASSERT_TRUE(late.text(crlf({header("VBSW"), "-6.0", header("FLWN")}), format("QUORN_ASCII")));
  EXPECT_EQ(late.set.count(), 1);
  EXPECT_EQ(late.fileText.tailLines, (std::vector<std::string>{"-6.0", header("FLWN")}));
}

TEST(SymbolFileReader, TestStringFormatFindsItsLineInAnyCaseAndKeepsItWithTheLeadLines) {
  Read read;
  const std::string content =
      crlf({"exported by plant design", "*plant-symbols v2", "units 0.01 mm", header("RCBW"),
            actions({{1, 0, 0}, {1, 900, 0}}), "END"});
  ASSERT_TRUE(read.text(content, format("*PLANT-SYMBOLS", 0, 1)));
  EXPECT_EQ(read.fileText.headLines, std::vector<std::string>{"exported by plant design"});
  EXPECT_EQ(read.fileText.leadLines,
            (std::vector<std::string>{"*plant-symbols v2", "units 0.01 mm"}));
  EXPECT_EQ(read.fileText.tailLines, std::vector<std::string>{"END"});
  ASSERT_EQ(read.set.count(), 1);
  EXPECT_EQ(read.set.symbol(1).actionCount(), 2);

  // A record among the lead lines is a lead line; the body starts after them.
  Read lead;
  ASSERT_TRUE(lead.text(crlf({"*PLANT-SYMBOLS", header("AAAA"), header("BBBB")}),
                        format("*PLANT-SYMBOLS", 5, 1)));
  ASSERT_EQ(lead.set.count(), 1);
  EXPECT_EQ(lead.set.symbol(1).oldKey, "BBBB");
}

TEST(SymbolFileReader, RefusesAFileWithoutTheTestStringAndLeavesTheSetAsItWas) {
  Read read;
  ASSERT_TRUE(read.text(crlf({header("OLD1")}), format("QUORN_ASCII")));
  read.fileText.tailLines = {"kept"};
  ASSERT_FALSE(read.text(crlf({"*PLANT-SYMBOL", header("NEW1")}), format("*PLANT-SYMBOLS")));
  EXPECT_EQ(read.messages.texts(),
            std::vector<std::string>{"Test String '*PLANT-SYMBOLS' not found in IN.SYM"});
  ASSERT_EQ(read.set.count(), 1);
  EXPECT_EQ(read.set.symbol(1).oldKey, "OLD1");
  EXPECT_EQ(read.fileText.tailLines, std::vector<std::string>{"kept"});
  EXPECT_EQ(read.labels.size(), 1u);
}

TEST(SymbolFileReader, FormatWithoutTestStringSkipsItsHeadAndLeadLines) {
  Read read;
  ASSERT_TRUE(read.text(crlf({header("HEAD"), "head 2", "lead 1", header("BODY"), "tail"}),
                        format("", 2, 1)));
  EXPECT_EQ(read.fileText.headLines, (std::vector<std::string>{header("HEAD"), "head 2"}));
  EXPECT_EQ(read.fileText.leadLines, std::vector<std::string>{"lead 1"});
  EXPECT_EQ(read.fileText.tailLines, std::vector<std::string>{"tail"});
  ASSERT_EQ(read.set.count(), 1);
  EXPECT_EQ(read.set.symbol(1).oldKey, "BODY");

  // A file shorter than its head and lead lines keeps what it has and holds no symbol.
  Read shortFile;
  ASSERT_TRUE(shortFile.text(crlf({"only", header("LEAD")}), format("", 1, 4)));
  EXPECT_EQ(shortFile.fileText.headLines, std::vector<std::string>{"only"});
  EXPECT_EQ(shortFile.fileText.leadLines, std::vector<std::string>{header("LEAD")});
  EXPECT_EQ(shortFile.set.count(), 0);
}

TEST(SymbolFileReader, BlankLinesBetweenRecordsAreBodyAndTabsBeforeARecordAreIgnored) {
  Read read;
  const std::string action = actions({{1, 100, 200}, {2, 300, 200}});
  const std::string content =
      crlf({header("VBSW"), "", "   ", "\t", "\t\t" + action + "   ", "", "  ", "tail"});
  ASSERT_TRUE(read.text(content, format("QUORN_ASCII"), ReadOptions{true}));
  EXPECT_EQ(read.fileText.bodyLines,
            (std::vector<std::string>{header("VBSW"), "", "", "", action}));
  EXPECT_EQ(read.fileText.tailLines, (std::vector<std::string>{"", "  ", "tail"}));
  ASSERT_EQ(read.set.count(), 1);
  EXPECT_EQ(read.set.symbol(1).actions, moves({{1, 100, 200}, {2, 300, 200}}));

  // Blank lines at the end of the file are tail lines.
  Read trailing;
  ASSERT_TRUE(trailing.text(crlf({header("VBSW"), "", ""}), format("QUORN_ASCII")));
  EXPECT_EQ(trailing.fileText.tailLines, (std::vector<std::string>{"", ""}));
}

TEST(SymbolFileReader, ActionGroupsTakeTheirCodeFromOneCharacterAndClampNegativeCoordinates) {
  Read read;
  const std::string content = crlf({
      actions({{2, 11, 12}}),  // before any header: slot 0
      header("VBSW"),
      actions(std::vector<std::array<std::string, 3>>{
          {"", "50", "60"}, {"0", "70", "80"}, {"8", "-3", "5"}, {"19", "1.5", "  2.5"}}),
      " 502         9     100    ",  // cut short: y is what is left of its field
      " 502         7    2000       1",
      "garbage ends the body",
      actions({{1, 1, 1}}),
  });
  ASSERT_TRUE(read.text(content, format("")));  // no head: the first line is a body line
  EXPECT_EQ(read.set.scratch().actions, moves({{2, 11, 12}}));
  ASSERT_EQ(read.set.count(), 1);
  // "19" is read as 9; 1.5 and 2.5 round half to even.
  EXPECT_EQ(read.set.symbol(1).actions, moves({{8, 0, 5}, {9, 2, 2}, {9, 100, 0}, {7, 2000, 1}}));
  EXPECT_EQ(read.fileText.tailLines.size(), 2u);
}

TEST(SymbolFileReader, PlacesEachSpindlePointLastButOneAfterReading) {
  Read read;
  ASSERT_TRUE(read.text(
      crlf({header("VBSW"), actions({{1, 0, 0}, {6, 5, 5}, {2, 1, 1}, {2, 2, 2}}),
            actions({{1, 9, 9}}), header("VTSW"), actions({{1, 0, 0}, {2, 1, 1}, {6, 7, 7}})}),
      format("QUORN_ASCII")));
  EXPECT_EQ(read.set.symbol(1).actions,
            moves({{1, 0, 0}, {2, 1, 1}, {2, 2, 2}, {6, 5, 5}, {1, 9, 9}}));
  // A spindle point that is the last action stays last.
  EXPECT_EQ(read.set.symbol(2).actions, moves({{1, 0, 0}, {2, 1, 1}, {6, 7, 7}}));

  // Only the first of two spindle points moves, and only once, though the symbol limit ends
  // the parse at the next header.
  Read limited(1);
  ASSERT_TRUE(
      limited.text(crlf({header("VBSW"), actions({{1, 0, 0}, {6, 1, 1}, {6, 2, 2}, {2, 3, 3}}),
                         actions({{1, 4, 4}}), header("VTSW")}),
                   format("QUORN_ASCII")));
  EXPECT_EQ(limited.set.symbol(1).actions,
            moves({{1, 0, 0}, {6, 2, 2}, {2, 3, 3}, {6, 1, 1}, {1, 4, 4}}));
}

TEST(SymbolFileReader, StopsAtTheSymbolLimitWithOneMessage) {
  Read exact(2);
  ASSERT_TRUE(exact.text(crlf({header("AAAA"), header("BBBB")}), format("QUORN_ASCII")));
  EXPECT_TRUE(exact.messages.shown().empty());
  EXPECT_EQ(exact.set.count(), 2);

  Read over(2);
  ASSERT_TRUE(over.text(crlf({header("AAAA"), header("BBBB"), actions({{1, 1, 1}}), header("CCCC"),
                              actions({{1, 2, 2}}), header("DDDD"), "tail"}),
                        format("QUORN_ASCII")));
  EXPECT_EQ(over.messages.texts(),
            std::vector<std::string>{
                "This File contains more than  2 symbols which is the maximum number allowed. "
                "Only the first  2 have been read. Please see READMESY.TXT for more details."});
  EXPECT_EQ(over.messages.shown()[0].title, kAppTitle);
  ASSERT_EQ(over.set.count(), 2);
  EXPECT_EQ(over.set.symbol(2).actions, moves({{1, 1, 1}}));
  EXPECT_EQ(over.labels.size(), 2u);
  EXPECT_EQ(over.fileText.tailLines, std::vector<std::string>{"tail"});
}

TEST(SymbolFileReader, KeepsNineTappingPointsWithOneMessagePerSymbol) {
  std::vector<std::string> lines;
  for (const std::string_view key : {"TEE1", "TEE2"}) {
    lines.push_back(header(key));
    lines.push_back(actions({{1, 0, 0}, {3, 1, 0}, {3, 2, 0}, {3, 3, 0}}));
    lines.push_back(actions({{3, 4, 0}, {3, 5, 0}, {3, 6, 0}, {3, 7, 0}}));
    // The tenth and eleventh are dropped; a huge x in a dropped action is never read.
    lines.push_back(actions(std::vector<std::array<std::string, 3>>{
        {"3", "8", "0"}, {"3", "9", "0"}, {"3", "99999", "0"}, {"1", "11", "0"}}));
    lines.push_back(actions({{3, 12, 0}}));
  }
  Read read;
  ASSERT_TRUE(read.text(crlf(lines), format("QUORN_ASCII")));
  EXPECT_EQ(read.messages.texts(),
            (std::vector<std::string>{
                "Symbol number  1 contains more than 9 Tapping Points which is the maximum "
                "number allowed. Only the first 9 have been read.",
                "Symbol number  2 contains more than 9 Tapping Points which is the maximum "
                "number allowed. Only the first 9 have been read."}));
  for (int number : {1, 2}) {
    EXPECT_EQ(read.set.symbol(number).tappingCount, 9);
    EXPECT_EQ(read.set.symbol(number).actionCount(), 11);
    EXPECT_EQ(read.set.symbol(number).actions.back(), (SymbolAction{1, 11, 0}));
  }
}

TEST(SymbolFileReader, KeepsTwoHundredActionsWithOneMessagePerSymbol) {
  std::vector<std::string> lines = {header("BIG1")};
  for (int line = 0; line < 51; ++line) {
    lines.push_back(actions({{2, line, 0}, {2, line, 1}, {2, line, 2}, {2, line, 3}}));
  }
  // A tapping point beyond the limit still counts as taken before it is dropped.
  lines.push_back(actions({{3, 1, 1}}));
  lines.push_back(header("BIG2"));
  for (int line = 0; line < 3; ++line) {
    lines.push_back(actions({{3, 0, 0}, {3, 0, 0}, {3, 0, 0}, {3, 0, 0}}));
  }
  for (int line = 0; line < 47; ++line) {
    lines.push_back(actions({{2, line, 0}, {2, line, 1}, {2, line, 2}, {2, line, 3}}));
  }
  lines.push_back(actions({{2, 0, 0}, {2, 0, 1}, {1, 0, 2}}));
  Read read;
  ASSERT_TRUE(read.text(crlf(lines), format("QUORN_ASCII")));
  const std::string actionLimit =
      "Symbol number  1 contains more than 200 Actions which is the maximum number allowed. "
      "Only the first 200 have been read. Please see READMESY.TXT for more details.";
  ASSERT_EQ(read.messages.texts().size(), 2u);
  EXPECT_EQ(read.messages.texts()[0], actionLimit);
  EXPECT_EQ(read.set.symbol(1).actionCount(), 200);
  EXPECT_EQ(read.set.symbol(1).actions.back(), (SymbolAction{2, 49, 3}));
  EXPECT_EQ(read.set.symbol(1).tappingCount, 1);
  // Three dropped tapping points leave room for 191 more actions: no action message.
  EXPECT_EQ(read.messages.texts()[1].substr(0, 30), "Symbol number  2 contains more");
  EXPECT_NE(read.messages.texts()[1].find("Tapping Points"), std::string::npos);
  EXPECT_EQ(read.set.symbol(2).tappingCount, 9);
  EXPECT_EQ(read.set.symbol(2).actionCount(), 200);
}

TEST(SymbolFileReader, RefusesBadFilesNamingTheLineAndLeavesTheSetAsItWas) {
  const std::string good = crlf({header("OLD1"), actions({{1, 0, 0}})});
  const std::string longLine(5000, 'x');
  const std::string withNul = header("VBSW") + "\r\nab" + std::string(1, '\0') + "c\r\n";
  const std::vector<std::pair<std::string, std::string>> cases = {
      {crlf({"head", header("VBSW"), actions({{1, 0, 0}, {2, 999999, 5}})}),
       "IN.SYM, line 3: the x of action group 2, \"  999999\", does not fit a 16-bit integer"},
      {crlf({header("VBSW"), actions(std::vector<std::array<std::string, 3>>{{"2", "5", "4E4"}})}),
       "IN.SYM, line 2: the y of action group 1, \"     4E4\", does not fit a 16-bit integer"},
      {crlf({header("VBSW"), actions({{2, -40000, 0}})}),
       "IN.SYM, line 2: the x of action group 1, \"  -40000\", does not fit a 16-bit integer"},
      {withNul, "IN.SYM, line 2: the line holds a NUL byte; this is not a text file"},
      {crlf({"ok", longLine}),
       "IN.SYM, line 2: the line is longer than 4096 characters; this is not a symbol file"},
      {"", "IN.SYM: the file is empty, it holds no line to read"},
  };
  for (const auto& [content, message] : cases) {
    Read read;
    ASSERT_TRUE(read.text(good, format("QUORN_ASCII")));
    read.fileText.headLines = {"kept"};
    EXPECT_FALSE(read.text(content, format("QUORN_ASCII")));
    EXPECT_EQ(read.messages.texts(), std::vector<std::string>{message});
    ASSERT_EQ(read.set.count(), 1);
    EXPECT_EQ(read.set.symbol(1).oldKey, "OLD1");
    EXPECT_EQ(read.fileText.headLines, std::vector<std::string>{"kept"});
    EXPECT_EQ(read.labels.size(), 1u);
  }

  test::TempDirectory directory;
  Read missing;
  const auto path = directory.path() / "NONE.SYM";
  EXPECT_FALSE(readSymbolFile(path, format("QUORN_ASCII"), missing.set, missing.fileText,
                              missing.labels, missing.messages));
  EXPECT_FALSE(readSymbolFile(directory.path(), format("QUORN_ASCII"), missing.set,
                              missing.fileText, missing.labels, missing.messages));
  EXPECT_EQ(missing.messages.texts(),
            (std::vector<std::string>{path.string() + ": the file cannot be opened",
                                      directory.path().string() + ": the file cannot be opened"}));
}

// A file larger than the read buffer, with lines of every length, tabs and LF ends, reads
// the same from disk as from memory.
TEST(SymbolFileReader, ReadsALargeFileInPiecesAsItWouldWhole) {
  std::mt19937 random(11);
  std::string content = "head\n";
  for (int symbol = 0; symbol < 3000; ++symbol) {
    content += header(Header{"", "S" + std::to_string(symbol % 1000)}) + "\n";
    const int lines = static_cast<int>(random() % 4);
    for (int line = 0; line < lines; ++line) {
      content += std::string(random() % 3, '\t') +
                 actions({{1 + static_cast<int>(random() % 9), static_cast<int>(random() % 3001),
                           static_cast<int>(random() % 3001)}}) +
                 std::string(random() % 40, ' ') + "\n";
    }
    if (random() % 5 == 0) content += "\n";
  }
  content += "tail";
  ASSERT_GT(content.size(), 3u * (std::size_t{1} << 17));

  test::TempDirectory directory;
  const auto path = directory.write("BIG.SYM", content);
  Read whole(3000);
  ASSERT_TRUE(whole.text(content, format("QUORN_ASCII")));
  Read pieces(3000);
  ASSERT_TRUE(readSymbolFile(path, format("QUORN_ASCII"), pieces.set, pieces.fileText,
                             pieces.labels, pieces.messages));
  ASSERT_EQ(pieces.set.count(), 3000);
  for (int number = 1; number <= 3000; ++number) {
    ASSERT_EQ(pieces.set.symbol(number), whole.set.symbol(number)) << number;
  }
  EXPECT_EQ(pieces.labels, whole.labels);
  EXPECT_EQ(pieces.fileText.headLines, whole.fileText.headLines);
  EXPECT_EQ(pieces.fileText.tailLines, std::vector<std::string>{"tail"});
  EXPECT_EQ(pieces.fileText.lineEnding, LineEnding::Lf);
  EXPECT_TRUE(pieces.messages.shown().empty());

  // An overlong line that crosses a buffer boundary is found at its own line number.
  const std::size_t lineNumber = static_cast<std::size_t>(
      std::count(content.begin(), content.begin() + (1 << 17) - 10, '\n') + 1);
  std::string broken = content;
  broken.insert((1 << 17) - 10, std::string(5000, 'x'));
  directory.write("BROKEN.SYM", broken);
  Read faulty(3000);
  EXPECT_FALSE(readSymbolFile(directory.path() / "BROKEN.SYM", format("QUORN_ASCII"), faulty.set,
                              faulty.fileText, faulty.labels, faulty.messages));
  ASSERT_EQ(faulty.messages.texts().size(), 1u);
  EXPECT_NE(faulty.messages.texts()[0].find(", line " + std::to_string(lineNumber) +
                                            ": the line is longer"),
            std::string::npos);
}

// Coordinates as written are read by a shortcut; every field must read as the general
// number reading says.
TEST(SymbolFileReader, ReadsEveryCoordinateFieldAsItsLeadingNumber) {
  std::mt19937 random(5);
  const std::string alphabet = "  0123456789-+.eE\tx";
  for (int trial = 0; trial < 3000; ++trial) {
    std::string field(8, ' ');
    const std::size_t start = random() % 9;
    for (std::size_t at = start; at < 8; ++at) field[at] = alphabet[random() % alphabet.size()];
    if (trial % 2 == 0) {  // mostly digits, as files hold them
      for (std::size_t at = start; at < 8; ++at) field[at] = static_cast<char>('0' + random() % 10);
    }
    Read read;
    const bool taken = read.text(
        crlf({header("VBSW"), actions(std::vector<std::array<std::string, 3>>{{"2", field, "7"}})}),
        format("QUORN_ASCII"));
    const std::optional<std::int16_t> expected = roundToInt16(leadingNumber(trimmed(field)));
    ASSERT_EQ(taken, expected.has_value()) << '"' << field << '"';
    if (taken) {
      ASSERT_EQ(read.set.symbol(1).actions.at(0).x, std::max<std::int16_t>(*expected, 0))
          << '"' << field << '"';
    }
  }
}

}  // namespace
}  // namespace quorn
