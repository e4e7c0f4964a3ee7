// The command as a whole process, compared with xmllint on the same file.
#include "ChildProcess.h"
#include "Samples.h"
#include "Subjects.h"

#include <string>
#include <vector>

namespace bench {

namespace {

using Command = std::vector<std::string>;

/// Runs a command on an XML VIF repeatedly. The file is the last argument.
Work OnComponents(const Command& command, std::size_t components) {
  return [=](benchmark::State& state) {
    const CTempFile file(XmlVif(components), ".xml");
    Command onFile = command;
    onFile.push_back(file.Path().string());
    while (state.KeepRunning()) state.SetIterationTime(SecondsOf(onFile));
  };
}

void AddRow(CRatioTable& table, const Row& row, std::size_t components) {
  const Command list = {BENCH_VIF_COMMAND, "list", "--format", "json"};
  const Command lint = {BENCH_XMLLINT, "--noout", "--schema", BENCH_SCHEMA};
  const CRatioTable::Pair pair = table.AddPair(row, OnComponents(list, components), OnComponents(lint, components));
  pair.ours->UseManualTime();
  pair.other->UseManualTime();
}

}  // namespace

void AddWholeProcess(CRatioTable& table) {
  const std::string lint("`xmllint --noout --schema` of the same file");
  AddRow(table, {"process/2", "`vif list --format json` of the two-port laptop", lint, AtMost(1)}, 2);
  AddRow(table, {"process/200", "`vif list --format json` of 200 components", lint, AtMost(1)}, 200);
}

}  // namespace bench
