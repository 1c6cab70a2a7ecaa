// Reading symbol files of 100, 1000 and 32767 symbols of 200 actions each, against counting
// the lines of the same file (the work of a plain line count, the yardstick of the reader).

#include <benchmark/benchmark.h>

#include <cstring>
#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "config/settings.h"
#include "files/symbol_file.h"
#include "files/symbol_file_reader.h"
#include "model/symbol_collection.h"

namespace {

using quorn::Answer;
using quorn::Message;

class QuietMessages : public quorn::Messages {
 public:
  Answer ask(const Message&) override { return Answer::Ok; }
};

void appendField(std::string& line, int value) {
  const std::string text = std::to_string(value);
  line.append(8 - text.size(), ' ');
  line += text;
}

/// A Quorn_ASCII file of `symbols` symbols of 200 actions, with CRLF line ends.
std::string symbolFileContent(int symbols) {
  std::mt19937 random(7);
  std::uniform_int_distribution<int> coordinate(0, 3000);
  std::string content;
  content.reserve(static_cast<std::size_t>(symbols) * 51 * 112);
  std::string line;
  for (int number = 1; number <= symbols; ++number) {
    content += " 501  VBSW VB   SPSW      100       1       1       1";
    for (int field = 0; field < 5; ++field) content += "       0";
    content += "       0\r\n";
    for (int first = 1; first <= 200; first += 4) {
      line = " 502  ";
      for (int action = first; action < first + 4; ++action) {
        int code = 2;
        if (action == 1 || action == 200) code = 1;
        if (action % 40 == 0) code = 3;
        if (action == 100) code = 6;
        appendField(line, code);
        appendField(line, coordinate(random));
        appendField(line, coordinate(random));
      }
      line += "       0\r\n";
      content += line;
    }
  }
  content += " 999  ";
  for (int field = 0; field < 13; ++field) content += "       0";
  content += "\r\n";
  return content;
}

/// The generated files, kept in one temporary directory for the whole run.
class SymbolFiles {
 public:
  ~SymbolFiles() {
    std::error_code error;
    if (!directory_.empty()) std::filesystem::remove_all(directory_, error);
  }

  const std::filesystem::path& file(int symbols) {
    auto found = files_.find(symbols);
    if (found != files_.end()) return found->second;
    if (directory_.empty()) {
      directory_ = std::filesystem::temp_directory_path() /
                   ("quorn_bench_reader_" + std::to_string(std::random_device{}()));
      std::filesystem::create_directories(directory_);
    }
    const auto path = directory_ / ("SET" + std::to_string(symbols) + ".SYM");
    std::ofstream(path, std::ios::binary) << symbolFileContent(symbols);
    return files_.emplace(symbols, path).first->second;
  }

 private:
  std::filesystem::path directory_;
  std::map<int, std::filesystem::path> files_;
};

SymbolFiles& files() {
  static SymbolFiles instance;
  return instance;
}

void BM_ReadSymbolFile(benchmark::State& state) {
  const int symbols = static_cast<int>(state.range(0));
  const std::filesystem::path& path = files().file(symbols);
  quorn::FormatStructure format;
  format.extension = "SYM";
  format.id = "QUORN_ASCII";
  QuietMessages messages;
  for (auto _ : state) {
    auto set = std::make_unique<quorn::CurrentSet>();
    set->reset(symbols);
    quorn::SymbolFileText text;
    std::vector<std::string> labels;
    const bool read = quorn::readSymbolFile(path, format, *set, text, labels, messages);
    if (!read || set->count() != symbols) state.SkipWithError("the file was not read whole");
    benchmark::DoNotOptimize(set->symbol(symbols).actions.data());
    // Letting go of the set read is not part of reading.
    state.PauseTiming();
    set.reset();
    state.ResumeTiming();
  }
  const auto bytes = static_cast<std::int64_t>(std::filesystem::file_size(path));
  state.SetBytesProcessed(state.iterations() * bytes);
  state.SetItemsProcessed(state.iterations() * symbols);
}

// What a line count does: the file read in large pieces and its line ends counted.
void BM_CountLines(benchmark::State& state) {
  const int symbols = static_cast<int>(state.range(0));
  const std::filesystem::path& path = files().file(symbols);
  std::vector<char> buffer(std::size_t{1} << 17);
  for (auto _ : state) {
    std::ifstream in(path, std::ios::binary);
    std::size_t lines = 0;
    while (in.read(buffer.data(), static_cast<std::streamsize>(buffer.size())) || in.gcount() > 0) {
      const char* at = buffer.data();
      const char* end = at + in.gcount();
      while ((at = static_cast<const char*>(std::memchr(at, '\n', end - at))) != nullptr) {
        ++lines;
        ++at;
      }
    }
    benchmark::DoNotOptimize(lines);
  }
  const auto bytes = static_cast<std::int64_t>(std::filesystem::file_size(path));
  state.SetBytesProcessed(state.iterations() * bytes);
  state.SetItemsProcessed(state.iterations() * symbols);
}

BENCHMARK(BM_ReadSymbolFile)->Arg(100)->Arg(1000)->Arg(32767)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_CountLines)->Arg(100)->Arg(1000)->Arg(32767)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
