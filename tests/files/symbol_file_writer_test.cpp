#include "files/symbol_file_writer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>

#include "base/text_file.h"
#include "files/backup.h"
#include "files/binary_records.h"
#include "files/file_names.h"
#include "model/keys.h"
#include "support/recording_messages.h"
#include "support/temp_directory.h"

namespace quorn {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kSettings =
    "[VERSION]\r\n"
    "V 1\r\n"
    "[File Formats]\r\n"
    "EXTENSION SYM, Quorn ASCII symbol file\r\n"
    "ID Quorn_ASCII\r\n"
    "Headlines 0\r\n"
    "Leadlines 0\r\n"
    "EXTENSION IDF, IDF formatted symbol file\r\n"
    "ID IDF_Formatted\r\n"
    "Headlines 0\r\n"
    "Leadlines 0\r\n"
    "EXTENSION PSY, Plant symbol exchange file\r\n"
    "ID *PLANT-SYMBOLS\r\n"
    "Headlines 1\r\n"
    "Leadlines 1\r\n"
    "[End]\r\n";

const std::string kFiller = "       0";

// Code, x and y as an action record writes them.
std::string group(int code, int x, int y) {
  char text[32];
  std::snprintf(text, sizeof text, "%8d%8d%8d", code, x, y);
  return text;
}

std::string actionLine(std::initializer_list<std::string> groups) {
  std::string line = " 502  ";
  for (const std::string& g : groups) line += g;
  line += kFiller;
  while (line.size() <= 103) line += kFiller;
  return line;
}

SymbolRecord symbol(std::string_view oldKey, std::vector<SymbolAction> actions = {}) {
  SymbolRecord record;
  setOldKey(record, oldKey);
  record.scaleFactor = "100";
  record.mirrorType = "1";
  record.flowArrow = "0";
  record.dimensions = "1";
  record.orientation = "2";
  record.actions = std::move(actions);
  return record;
}

// The text lines `writeSymbolRecords` gives for one symbol, without their line ends.
std::vector<std::string> recordLines(const SymbolRecord& record) {
  RecordBuffers buffers;
  buffers.lineEnd = "\n";
  writeSymbolRecords(record, buffers);
  const TextFile file = TextFile::fromContent(buffers.text);
  return {file.lines().begin(), file.lines().end()};
}

std::vector<std::string> actionLines(const std::vector<SymbolAction>& actions) {
  std::vector<std::string> lines = recordLines(symbol("VBSW", actions));
  lines.erase(lines.begin());
  return lines;
}

std::vector<std::string> linesOf(const std::string& content) {
  const TextFile file = TextFile::fromContent(content);
  return {file.lines().begin(), file.lines().end()};
}

// A working directory with SYMBOLS.INI, a Current Set and the rest of a save's inputs.
struct Save {
  test::TempDirectory temp;
  WorkingDirectory directory{temp.path()};
  CurrentSet set;
  SymbolFileText text;
  Configuration config;
  test::RecordingMessages messages;

  Save() {
    temp.write("SYMBOLS.INI", kSettings);
    set.append(symbol("VBSW", {{1, 0, 0}, {2, 500, 0}, {1, 1000, 0}}));
    set.changed = true;
  }
  std::string path(std::string_view name) const { return (temp.path() / name).string(); }
  bool write(std::string& name, const std::string& openName, FileSystem& files) {
    return writeSymbolFile(directory, name, openName, set, text, config, messages, files);
  }
  bool write(std::string& name, const std::string& openName = "") {
    return write(name, openName, diskFileSystem());
  }
  std::vector<std::string> fileNames() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(temp.path())) {
      names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
  }
};

// Outputs whose bytes stop reaching the disk after a given count, as on a full disk.
class FailingOutput : public OutputFile {
 public:
  FailingOutput(std::unique_ptr<OutputFile> real, std::size_t room)
      : real_(std::move(real)), room_(room) {}
  bool write(std::string_view bytes) override {
    if (!problem_.empty()) return false;
    if (bytes.size() > room_) {
      real_->write(bytes.substr(0, room_));
      problem_ = "cannot be written (No space left on device)";
      return false;
    }
    room_ -= bytes.size();
    return real_->write(bytes);
  }
  bool finish() override { return problem_.empty() && real_->finish(); }
  bool commit() override { return problem_.empty() && real_->commit(); }
  const std::string& problem() const override {
    return problem_.empty() ? real_->problem() : problem_;
  }

 private:
  std::unique_ptr<OutputFile> real_;
  std::size_t room_;
  std::string problem_;
};

class FailingFileSystem : public FileSystem {
 public:
  FailingFileSystem(std::string failingName, std::size_t room)
      : failingName_(std::move(failingName)), room_(room) {}
  std::unique_ptr<OutputFile> replace(const fs::path& target) override {
    auto real = FileSystem::replace(target);
    if (target.filename() != failingName_) return real;
    return std::make_unique<FailingOutput>(std::move(real), room_);
  }

 private:
  std::string failingName_;
  std::size_t room_;
};

TEST(SymbolRecords, HeaderRecordHoldsTheRawKeysAndRightAlignedFields) {
  SymbolRecord record = symbol("vb");
  setNewKey(record, "VBSW");
  record.spindleKey = "HWSP";
  const std::vector<std::string> lines = recordLines(record);
  ASSERT_EQ(lines.size(), 1u);
  EXPECT_EQ(lines[0], std::string(" 501  VBSW vb   HWSP") + "      100" + "       1" + "       0" +
                          "       1" + "       0       0       0       0       0" + "       2");
  EXPECT_EQ(lines[0].size(), 101u);

  // Keys keep their first four characters, the other fields their last ones.
  record.newKeyRaw = "ABCDEF";
  record.scaleFactor = "1234567890";
  record.mirrorType = "123456789";
  record.orientation = "";
  const std::string longer = recordLines(record)[0];
  EXPECT_EQ(longer.substr(0, 29), " 501  ABCD vb   HWSP234567890");
  EXPECT_EQ(longer.substr(29, 8), "23456789");
  EXPECT_EQ(longer.substr(93), "        ");
  EXPECT_EQ(longer.size(), 101u);
}

TEST(SymbolRecords, FourActionsMakeOneFullRecordAndNoPartialOne) {
  const auto four = actionLines({{1, 0, 0}, {2, 500, 0}, {3, 500, 250}, {1, 1000, 0}});
  ASSERT_EQ(four.size(), 1u);
  EXPECT_EQ(four[0], " 502  " + group(1, 0, 0) + group(2, 500, 0) + group(3, 500, 250) +
                         group(1, 1000, 0) + kFiller);
  EXPECT_EQ(four[0].size(), 110u);

  const auto five = actionLines({{1, 0, 0}, {2, 1, 1}, {2, 2, 2}, {2, 3, 3}, {1, 4, 4}});
  ASSERT_EQ(five.size(), 2u);
  EXPECT_EQ(five[1], " 502  " + group(1, 4, 4) + kFiller + kFiller + kFiller + kFiller + kFiller +
                         kFiller + kFiller + kFiller + kFiller + kFiller);
  for (int groups = 1; groups <= 3; ++groups) {
    std::vector<SymbolAction> actions(groups, SymbolAction{2, 7, 8});
    const auto lines = actionLines(actions);
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_EQ(lines[0].size(), 110u) << groups << " groups";
  }
  EXPECT_TRUE(actionLines({}).empty());
}

TEST(SymbolRecords, ARunOfMovesKeepsOnlyItsLastPoint) {
  EXPECT_EQ(actionLines({{1, 0, 0}, {2, 10, 0}, {1, 20, 0}, {1, 30, 5}, {1, 40, 6}, {2, 50, 0}}),
            (std::vector<std::string>{
                actionLine({group(1, 0, 0), group(2, 10, 0), group(1, 40, 6), group(2, 50, 0)})}));
  // A second move elsewhere is kept, and the run after it never reaches the start point.
  EXPECT_EQ(
      actionLines({{1, 0, 0}, {1, 10, 0}, {1, 20, 0}, {2, 30, 0}}),
      (std::vector<std::string>{actionLine({group(1, 0, 0), group(1, 20, 0), group(2, 30, 0)})}));
  // A second move on the start point is left out.
  EXPECT_EQ(
      actionLines({{1, 0, 0}, {1, 0, 0}, {2, 30, 0}, {1, 40, 0}}),
      (std::vector<std::string>{actionLine({group(1, 0, 0), group(2, 30, 0), group(1, 40, 0)})}));
  // Once it is left out, the start point is the move written just before the third action.
  EXPECT_EQ(actionLines({{1, 0, 0}, {1, 0, 0}, {1, 70, 0}, {2, 30, 0}}),
            (std::vector<std::string>{actionLine({group(1, 70, 0), group(2, 30, 0)})}));
}

TEST(SymbolRecords, ARunOfMovesAfterThreeGroupsIsWrittenAsItsLastPoint) {
  const auto lines = actionLines(
      {{1, 0, 0}, {2, 1, 0}, {2, 2, 0}, {1, 3, 0}, {1, 4, 0}, {1, 5, 0}, {2, 6, 0}, {1, 7, 0}});
  EXPECT_EQ(lines, (std::vector<std::string>{" 502  " + group(1, 0, 0) + group(2, 1, 0) +
                                                 group(2, 2, 0) + group(1, 5, 0) + kFiller,
                                             actionLine({group(2, 6, 0), group(1, 7, 0)})}));
}

TEST(SymbolRecords, NegativeCoordinatesAreWrittenAsZero) {
  EXPECT_EQ(
      actionLines({{1, -5, 3}, {2, 4, -32768}, {8, 12, 9}}),
      (std::vector<std::string>{actionLine({group(1, 0, 3), group(2, 4, 0), group(8, 12, 9)})}));
}

TEST(SymbolFileWriter, WritesSpSymbolsFirstAndCutsWildcardRawKeys) {
  Save save;
  save.set.reset(10);
  for (std::string_view key : {"VB**", "WSSP", "VBSP", "SP", "FLSP", "TE"}) {
    save.set.append(symbol(key, {{1, 0, 0}}));
  }
  std::string name = save.path("OUT.SYM");
  ASSERT_TRUE(save.write(name));
  std::vector<std::string> keys;
  for (const std::string& line : linesOf(save.temp.read("OUT.SYM"))) {
    if (line.starts_with(" 501")) keys.push_back(line.substr(11, 4));
  }
  EXPECT_EQ(keys, (std::vector<std::string>{"VBSP", "FLSP", "VB  ", "WSSP", "SP  ", "TE  "}));
  // The Current Set keeps its order; the raw key loses its wild card, the normalised one not.
  EXPECT_EQ(save.set.symbol(1).oldKeyRaw, "VB");
  EXPECT_EQ(save.set.symbol(1).oldKey, "VB**");
  EXPECT_EQ(save.set.symbol(3).oldKey, "VBSP");
  EXPECT_FALSE(save.set.changed);
  EXPECT_TRUE(save.messages.shown().empty());
}

TEST(SymbolFileWriter, PutsBackTheSurroundingLinesWithTheLineEndsTheyWereReadWith) {
  Save save;
  save.text.headLines = {"head 1", "head 2"};
  save.text.leadLines = {"lead"};
  save.text.tailLines = {" 999  end", "tail 1", "999 kept"};
  save.text.lineEnding = LineEnding::Lf;
  std::string name = save.path("OUT.sym");
  ASSERT_TRUE(save.write(name));
  const std::string content = save.temp.read("OUT.sym");
  EXPECT_EQ(content.find('\r'), std::string::npos);
  const std::vector<std::string> lines = linesOf(content);
  ASSERT_EQ(lines.size(), 8u);
  EXPECT_EQ(lines[0], "head 1");
  EXPECT_EQ(lines[2], "lead");
  EXPECT_TRUE(lines[3].starts_with(" 501  "));
  EXPECT_EQ(lines[4], actionLine({group(1, 0, 0), group(2, 500, 0), group(1, 1000, 0)}));
  // The end record belongs to the ASCII layout; the tail's own first "999" line is dropped.
  std::string end = " 999  ";
  for (int i = 0; i < 13; ++i) end += kFiller;
  EXPECT_EQ(lines[5], end);
  EXPECT_EQ(lines[6], "tail 1");
  EXPECT_EQ(lines[7], "999 kept");
  EXPECT_TRUE(content.ends_with("999 kept\n"));

  // Other layouts get no end record, yet lose a first tail line reading "999" all the same.
  std::string idf = save.path("OUT.IDF");
  save.text.lineEnding = LineEnding::CrLf;
  ASSERT_TRUE(save.write(idf));
  const std::string idfContent = save.temp.read("OUT.IDF");
  EXPECT_TRUE(idfContent.starts_with("head 1\r\nhead 2\r\nlead\r\n 501  "));
  EXPECT_EQ(linesOf(idfContent).size(), 7u);
  EXPECT_TRUE(idfContent.ends_with("\r\ntail 1\r\n999 kept\r\n"));
}

TEST(SymbolFileWriter, ANewSetIsWrittenWithCrLf) {
  Save save;
  std::string name = save.path("NEW.SYM");
  ASSERT_TRUE(save.write(name));
  const std::string content = save.temp.read("NEW.SYM");
  EXPECT_EQ(content.substr(101, 2), "\r\n");
  EXPECT_TRUE(content.ends_with(kFiller + "\r\n"));
}

TEST(BinaryRecords, HeaderActionAndEndRecordsHoldSixteenBitValuesInFourBytes) {
  SymbolRecord record = symbol("VB");
  record.spindleKey = "HWSPX";
  record.scaleFactor = "150.7";
  record.mirrorType = "-3";
  record.flowArrow = "abc";
  record.dimensions = "99999";
  const BinaryRecord header = binaryHeaderRecord(record);
  const BinaryRecord expectedHeader = {
      245,  1,    0,   0,                                            // 501
      ' ',  ' ',  ' ', ' ', 'V', 'B', ' ', ' ', 'H', 'W', 'S', 'P',  // keys
      150,  0,    0,   0,                                            // whole part of 150.7
      0xFD, 0xFF, 0,   0,                                            // -3 in 16 bits
      0,    0,    0,   0,                                            // not a number
      0xFF, 0x7F, 0,   0,                                            // beyond 16 bits: the limit
      0,    0,    0,   0,   0,   0,   0,   0,   0,   0,              // five zeros
      0,    0,    0,   0,   0,   0,   0,   0,   0,   0,   2,   0,   0, 0};
  EXPECT_EQ(header, expectedHeader);

  const std::vector<SymbolAction> groups = {{1, 300, 2}, {2, 4000, 0}};
  const BinaryRecord action = binaryActionRecord(groups);
  const BinaryRecord expectedAction = {246, 1, 0, 0,                             // 502
                                       1,   0, 0, 0, 44,  1,  0, 0, 2, 0, 0, 0,  // 1 300 2
                                       2,   0, 0, 0, 160, 15, 0, 0};             // 2 4000 0
  EXPECT_EQ(action, expectedAction);

  BinaryRecord expectedEnd{};
  expectedEnd[0] = 231;
  expectedEnd[1] = 3;
  EXPECT_EQ(binaryEndRecord(), expectedEnd);
}

TEST(BinaryRecords, EachBinFormatFramesTheRecordItsOwnWay) {
  BinaryRecord record;
  for (std::size_t i = 0; i < record.size(); ++i) record[i] = static_cast<std::uint8_t>(i + 100);
  const std::string data(reinterpret_cast<const char*>(record.data()), record.size());
  const auto framed = [&](int binFormat) {
    std::string bytes = "x";
    appendBinaryBlock(bytes, record, binFormat);
    return bytes;
  };
  using namespace std::string_literals;
  EXPECT_EQ(framed(0), "x" + data);
  EXPECT_EQ(framed(1), "x\x38" + data + "\x38");
  EXPECT_EQ(framed(2), "x\x38\0\0\0"s + data + "\x38\0\0\0"s);
  EXPECT_EQ(framed(3), "x\x3A\0\x03\0"s + data);
  EXPECT_EQ(framed(4), framed(0));
  EXPECT_EQ(framed(-1), framed(0));
  EXPECT_EQ(framed(2).size(), 65u);
  EXPECT_EQ(framed(3).size(), 61u);
}

TEST(SymbolFileWriter, WritesTheBinaryCopyBlockByBlockWhenWritebinIsOn) {
  const int blockSizes[] = {56, 58, 64, 60};
  for (int binFormat = 0; binFormat <= 3; ++binFormat) {
    Save save;
    save.config.writeBin = true;
    save.config.binFormat = static_cast<std::int16_t>(binFormat);
    save.text.tailLines = {"tail"};
    std::string name = save.path("OUT.SYM");
    ASSERT_TRUE(save.write(name));
    const std::string bytes = save.temp.read("OUT.BIN");
    const auto size = static_cast<std::size_t>(blockSizes[binFormat]);
    ASSERT_EQ(bytes.size(), 3 * size) << "BINFORMAT " << binFormat;

    const SymbolRecord& written = save.set.symbol(1);
    const std::vector<SymbolAction> groups(written.actions.begin(), written.actions.end());
    std::string expected;
    for (const BinaryRecord& record :
         {binaryHeaderRecord(written), binaryActionRecord(groups), binaryEndRecord()}) {
      appendBinaryBlock(expected, record, binFormat);
    }
    EXPECT_EQ(bytes, expected) << "BINFORMAT " << binFormat;
  }
}

TEST(SymbolFileWriter, WritesNoBinaryCopyForOtherLayoutsOrWithoutWritebin) {
  Save save;
  std::string name = save.path("OUT.SYM");
  ASSERT_TRUE(save.write(name));
  save.config.writeBin = true;
  std::string idf = save.path("OUT.IDF");
  ASSERT_TRUE(save.write(idf));
  EXPECT_EQ(save.fileNames(), (std::vector<std::string>{"OUT.IDF", "OUT.SYM", "SYMBOLS.INI"}));
}

TEST(FileNames, BackupAndBinaryNamesReplaceTheLastExtension) {
  EXPECT_EQ(backupFileName("NAME.DAT"), "NAME.BAK");
  EXPECT_EQ(backupFileName("a.b.sym"), "a.b.BAK");
  EXPECT_EQ(backupFileName("NAME"), "NAME.BAK");
  EXPECT_EQ(backupFileName("NAME."), "NAME.BAK");
  EXPECT_EQ(backupFileName("dir.v2/NAME"), "dir.v2/NAME.BAK");
  EXPECT_EQ(binaryFileName("x/NAME.sym"), "x/NAME.BIN");
  EXPECT_EQ(fileExtension("dir/name.Sym"), "SYM");
  EXPECT_EQ(fileExtension("dir.v2/name"), "");
}

TEST(SymbolFileWriter, SavingOverTheOpenFileBacksItUpFirst) {
  Save save;
  save.temp.write("NAME.DAT", "old symbols\r\n");
  std::string name = save.path("NAME.DAT");
  save.temp.write("SYMBOLS.INI", std::string(kSettings) +
                                     "EXTENSION DAT, data\r\nID Quorn_ASCII\r\n"
                                     "Headlines 0\r\nLeadlines 0\r\n[End]\r\n");
  const auto permissions = fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read;
  fs::permissions(name, permissions);
  ASSERT_TRUE(save.write(name, name));
  EXPECT_EQ(save.temp.read("NAME.BAK"), "old symbols\r\n");
  EXPECT_TRUE(save.temp.read("NAME.DAT").starts_with(" 501  "));
  // The new file takes the place of the old one with its permissions.
  EXPECT_EQ(fs::status(name).permissions(), permissions);
  EXPECT_TRUE(save.messages.shown().empty());

  // A dotless name gains ".BAK".
  save.temp.write("PLAIN", "plain");
  EXPECT_EQ(makeBackup(save.path("PLAIN"), save.messages), BackupOutcome::Made);
  EXPECT_EQ(save.temp.read("PLAIN.BAK"), "plain");

  // A missing open file is reported and the save goes on without a backup.
  std::string gone = save.path("GONE.SYM");
  ASSERT_TRUE(save.write(gone, gone));
  EXPECT_EQ(save.messages.texts(),
            (std::vector<std::string>{gone + " is missing. No Back Up has been made"}));
  EXPECT_FALSE(fs::exists(save.path("GONE.BAK")));
  EXPECT_TRUE(fs::exists(gone));
}

TEST(SymbolFileWriter, AnotherExistingFileIsOverwrittenOnlyOnOk) {
  Save save;
  save.temp.write("OTHER.SYM", "other");
  const std::string open = save.path("OPEN.SYM");
  std::string name = save.path("OTHER.SYM");
  save.messages.queue(Answer::Cancel);
  EXPECT_FALSE(save.write(name, open));
  ASSERT_EQ(save.messages.shown().size(), 1u);
  const Message& question = save.messages.shown()[0];
  EXPECT_EQ(question.title, "Quorn Symbols Editor");
  EXPECT_EQ(question.text,
            save.path("OTHER.SYM") + " already exists.\nDo you wish to Overwrite it?");
  EXPECT_EQ(question.buttons, Buttons::OkCancel);
  EXPECT_EQ(question.icon, Icon::Critical);
  EXPECT_EQ(name, open);
  EXPECT_EQ(save.temp.read("OTHER.SYM"), "other");
  EXPECT_TRUE(save.set.changed);

  name = save.path("OTHER.SYM");
  save.messages.queue(Answer::Ok);
  EXPECT_TRUE(save.write(name, open));
  EXPECT_EQ(name, save.path("OTHER.SYM"));
  EXPECT_TRUE(save.temp.read("OTHER.SYM").starts_with(" 501  "));
  EXPECT_FALSE(save.set.changed);
  // A different file that is overwritten gets no backup.
  EXPECT_EQ(save.fileNames(), (std::vector<std::string>{"OTHER.SYM", "SYMBOLS.INI"}));
}

TEST(SymbolFileWriter, AnExtensionWithoutAFormatWritesNothing) {
  Save save;
  std::string name = save.path("OUT.XYZ");
  EXPECT_FALSE(save.write(name));
  ASSERT_EQ(save.messages.texts().size(), 1u);
  EXPECT_NE(save.messages.texts()[0].find("File Structure for .XYZ files"), std::string::npos);
  EXPECT_TRUE(save.set.changed);
  EXPECT_EQ(save.fileNames(), (std::vector<std::string>{"SYMBOLS.INI"}));
}

TEST(SymbolFileWriter, AWriteThatFailsHalfWayLeavesTheOldFilesAsTheyWere) {
  Save save;
  save.config.writeBin = true;
  for (int i = 0; i < 100; ++i) {
    save.set.append(symbol("VBSW", std::vector<SymbolAction>(200, SymbolAction{2, 10, 20})));
  }
  const std::string oldText = "old text\r\n" + std::string(5000, 'x');
  const std::string oldBinary(3000, '\x7F');
  save.temp.write("OPEN.SYM", oldText);
  save.temp.write("OPEN.BIN", oldBinary);
  const std::string open = save.path("OPEN.SYM");

  for (std::string failing : {"OPEN.SYM", "OPEN.BIN"}) {
    // About half of what the file would hold: some 570 kB of text, 290 kB of copy.
    FailingFileSystem files(failing, failing == "OPEN.SYM" ? 280000 : 140000);
    std::string name = open;
    save.messages.clear();
    EXPECT_FALSE(save.write(name, open, files));
    EXPECT_EQ(save.temp.read("OPEN.SYM"), oldText);
    EXPECT_EQ(save.temp.read("OPEN.BIN"), oldBinary);
    EXPECT_TRUE(save.set.changed);
    // The backup was made before writing began; no temporary file is left behind.
    EXPECT_EQ(save.fileNames(),
              (std::vector<std::string>{"OPEN.BAK", "OPEN.BIN", "OPEN.SYM", "SYMBOLS.INI"}));
    ASSERT_EQ(save.messages.texts().size(), 1u);
    EXPECT_EQ(save.messages.texts()[0],
              "Saving " + save.path(failing) +
                  " failed: the file cannot be written (No space left on device).\n"
                  "The file on disk has not been changed.");
  }

  // With room enough the same save goes through.
  FailingFileSystem roomy("OPEN.SYM", 1 << 30);
  std::string name = open;
  EXPECT_TRUE(save.write(name, open, roomy));
  EXPECT_GT(save.temp.read("OPEN.SYM").size(), 500000u);
  EXPECT_EQ(save.temp.read("OPEN.BAK"), oldText);
  EXPECT_FALSE(save.set.changed);
}

TEST(SymbolFileWriter, AFileThatCannotBeCreatedIsReportedWithItsName) {
  Save save;
  std::string name = (save.temp.path() / "no such folder" / "OUT.SYM").string();
  EXPECT_FALSE(save.write(name));
  ASSERT_EQ(save.messages.texts().size(), 1u);
  EXPECT_TRUE(save.messages.texts()[0].starts_with("Saving " + name +
                                                   " failed: the file cannot be created ("));
  EXPECT_TRUE(save.set.changed);
}

TEST(SymbolFileWriter, AFailedBackupStopsTheSave) {
  Save save;
  save.temp.write("OPEN.SYM", "old");
  const std::string open = save.path("OPEN.SYM");
  FailingFileSystem files("OPEN.BAK", 1);
  std::string name = open;
  EXPECT_FALSE(save.write(name, open, files));
  EXPECT_EQ(save.temp.read("OPEN.SYM"), "old");
  EXPECT_EQ(save.messages.texts(),
            (std::vector<std::string>{"No Back Up of " + open +
                                      " could be made: " + save.path("OPEN.BAK") +
                                      " cannot be written (No space left on device).\n"
                                      "Nothing has been saved."}));
  EXPECT_EQ(save.fileNames(), (std::vector<std::string>{"OPEN.SYM", "SYMBOLS.INI"}));
  EXPECT_TRUE(save.set.changed);
}

}  // namespace
}  // namespace quorn
