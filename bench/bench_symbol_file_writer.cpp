// Writing a Current Set: the time per symbol must not grow with the size of the set.

#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <random>
#include <string>

#include "files/symbol_file_writer.h"
#include "model/keys.h"

namespace quorn {
namespace {

namespace fs = std::filesystem;

constexpr int kActionsPerSymbol = 200;

// Symbols of 200 actions: lines and the odd run of moves, tapping points and a spindle point;
// one symbol in ten has an "SP" end condition, so both passes have work.
CurrentSet makeSet(int count) {
  CurrentSet set;
  set.reset(count);
  for (int number = 1; number <= count; ++number) {
    SymbolRecord symbol;
    setOldKey(symbol, number % 10 == 0 ? "VBSP" : "VB**");
    setNewKey(symbol, "VBSW");
    symbol.scaleFactor = "100";
    symbol.mirrorType = "1";
    symbol.flowArrow = "0";
    symbol.dimensions = "1";
    symbol.orientation = "2";
    for (int a = 1; a <= kActionsPerSymbol; ++a) {
      const std::int16_t code = a == 1 || a == kActionsPerSymbol || a % 17 < 3 ? 1
                                : a % 29 == 0                                  ? 3
                                : a == kActionsPerSymbol - 1                   ? 6
                                                                               : 2;
      symbol.actions.push_back({code, static_cast<std::int16_t>(a * 37 % 3000),
                                static_cast<std::int16_t>(a * 53 % 1500)});
    }
    set.append(std::move(symbol));
  }
  return set;
}

// Takes the bytes and forgets them: measures the records alone.
class DiscardingFile : public OutputFile {
 public:
  bool write(std::string_view bytes) override {
    benchmark::DoNotOptimize(bytes.data());
    written += bytes.size();
    return true;
  }
  bool finish() override { return true; }
  bool commit() override { return true; }
  const std::string& problem() const override { return problem_; }
  std::size_t written = 0;

 private:
  std::string problem_;
};

void setCounters(benchmark::State& state, int symbols, std::size_t bytes) {
  state.counters["per_symbol"] = benchmark::Counter(
      symbols, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * bytes));
}

void BM_WriteSymbolSetInMemory(benchmark::State& state) {
  const int count = static_cast<int>(state.range(0));
  CurrentSet set = makeSet(count);
  const SymbolFileText text;
  FormatStructure format;
  format.id = "QUORN_ASCII";
  std::size_t bytes = 0;
  for (auto _ : state) {
    DiscardingFile textFile;
    DiscardingFile binaryFile;
    benchmark::DoNotOptimize(writeSymbolSet(set, text, format, 2, textFile, &binaryFile));
    bytes = textFile.written + binaryFile.written;
  }
  setCounters(state, count, bytes);
}
BENCHMARK(BM_WriteSymbolSetInMemory)
    ->Arg(100)
    ->Arg(1000)
    ->Arg(32767)
    ->Unit(benchmark::kMillisecond);

// A folder of its own with the settings the writer loads its format from.
struct BenchDirectory {
  fs::path path;
  BenchDirectory() {
    std::random_device seed;
    path = fs::temp_directory_path() / ("quorn-bench-" + std::to_string(seed()));
    fs::create_directories(path);
    std::ofstream(path / "SYMBOLS.INI")
        << "[File Formats]\r\nEXTENSION SYM, Quorn ASCII symbol file\r\nID Quorn_ASCII\r\n"
           "Headlines 0\r\nLeadlines 0\r\n[End]\r\n";
  }
  ~BenchDirectory() {
    std::error_code ignored;
    fs::remove_all(path, ignored);
  }
};

class SilentMessages : public Messages {
 public:
  Answer ask(const Message&) override { return Answer::Ok; }
};

void BM_WriteSymbolFileToDisk(benchmark::State& state) {
  const int count = static_cast<int>(state.range(0));
  CurrentSet set = makeSet(count);
  const BenchDirectory directory;
  const WorkingDirectory workingDirectory(directory.path);
  Configuration config;
  config.writeBin = true;
  config.binFormat = 2;
  SilentMessages messages;
  const std::string target = (directory.path / "BENCH.SYM").string();
  for (auto _ : state) {
    std::string fileName = target;
    if (!writeSymbolFile(workingDirectory, fileName, target, set, SymbolFileText{}, config,
                         messages)) {
      state.SkipWithError("the save failed");
      break;
    }
  }
  std::error_code ignored;
  setCounters(state, count,
              static_cast<std::size_t>(fs::file_size(target, ignored) +
                                       fs::file_size(directory.path / "BENCH.BIN", ignored)));
}
BENCHMARK(BM_WriteSymbolFileToDisk)->Arg(100)->Arg(1000)->Arg(32767)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace quorn

BENCHMARK_MAIN();
