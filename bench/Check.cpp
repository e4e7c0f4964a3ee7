// Checking and reporting on files: the commands beside `vif list`, and what one line costs in files of different sizes.
#include "ChildProcess.h"
#include "Samples.h"
#include "Subjects.h"

#include <analysis/Check.h>

#include <stdexcept>
#include <string>
#include <vector>

namespace bench {

namespace {

/// Runs a command on the two-port laptop repeatedly, from the start of the process to its end.
Work OnLaptop(std::vector<std::string> command) {
  command.push_back(TwoPortLaptop().string());
  return [command](benchmark::State& state) {
    while (state.KeepRunning()) state.SetIterationTime(SecondsOf(command));
  };
}

/// A text VIF of that many lines, each of which declares something else. So a file of any size has the same kinds of
/// fields, and the same share of mistakes.
std::string PdosOfLines(std::size_t lines) {
  std::string content;
  for (std::size_t pdo = 1; lines >= 4; ++pdo, lines -= 4) {
    const std::string number = std::to_string(pdo);
    content.append("Src_PDO_Supply_Type").append(number).append(": 0 ; Fixed\n");
    content.append("Src_PDO_Voltage").append(number).append(": ").append(std::to_string(100 + pdo % 200)).append("\n");
    content.append("Src_PDO_Max_Current").append(number).append(": 300 ; 3000 mA\n");
    content.append("Src_PDO_Peak_Current").append(number).append(": 0\n");
  }
  return content;
}

Work TimePerLine(std::size_t lines) {
  return [lines](benchmark::State& state) {
    const CTempFile file(PdosOfLines(lines), ".txt");
    state.counters[kFields] = static_cast<double>(lines);
    if (vifanalysis::CheckFile(file.Path()).empty()) throw std::runtime_error("nothing was checked");
    while (state.KeepRunning()) benchmark::DoNotOptimize(vifanalysis::CheckFile(file.Path()));
  };
}

}  // namespace

void AddCheck(CRatioTable& table) {
  const CRatioTable::Pair pair =
      table.AddPair({"check/process", "`vif check` of the two-port laptop", "`vif list` of the same file", AtMost(1.5)},
                    OnLaptop({BENCH_VIF_COMMAND, "check"}), OnLaptop({BENCH_VIF_COMMAND, "list"}));
  const CRatioTable::Pair report = table.AddPair(
      {"report/process", "`vif report` of the two-port laptop", "`vif list` of the same file", AtMost(3.0)},
      OnLaptop({BENCH_VIF_COMMAND, "report"}), OnLaptop({BENCH_VIF_COMMAND, "list"}));
  for (const CRatioTable::Pair& processes : {pair, report}) {
    processes.ours->UseManualTime();
    processes.other->UseManualTime();
  }
  table.AddSpread({"check/growth", "time per line, checking text VIFs of 1,000 to 100,000 lines",
                   "least of these sizes", AtMost(1.5)},
                  {{"1,000", TimePerLine(1'000)}, {"10,000", TimePerLine(10'000)}, {"100,000", TimePerLine(100'000)}});
}

}  // namespace bench
