#include "RatioTable.h"

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <exception>
#include <iterator>
#include <ostream>

namespace bench {

namespace {

class CWorkBenchmark : public Benchmark {
 public:
  CWorkBenchmark(const std::string& name, Work work) : Benchmark(name.c_str()), m_work(std::move(work)) {}

  void Run(benchmark::State& state) override {
    try {
      m_work(state);
    } catch (const std::exception& error) {
      state.SkipWithError(error.what());
    }
  }

 private:
  Work m_work;
};

Benchmark* Register(const std::string& name, const Work& work) {
  // The registry takes ownership, which the linter cannot see.
  // NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDeleteLeaks)
  return benchmark::internal::RegisterBenchmarkInternal(new CWorkBenchmark(name, work));
}

/// The number with three significant digits.
std::string NumberText(double number) {
  char text[32];
  const int decimals = number >= 100 ? 0 : number >= 10 ? 1 : 2;
  std::snprintf(text, sizeof text, "%.*f", decimals, number);
  return text;
}

/// Nanoseconds or bytes in a suitable unit.
std::string ValueText(double value, bool isBytes) {
  constexpr const char* timeUnits[] = {" ns", " µs", " ms", " s"};
  constexpr const char* byteUnits[] = {" B", " kB", " MB", " GB"};
  std::size_t unit = 0;
  for (; value >= 1000 && unit + 1 < std::size(timeUnits); ++unit) value /= 1000;
  return NumberText(value) + (isBytes ? byteUnits : timeUnits)[unit];
}

std::string GoalText(const Goal& goal) {
  switch (goal.kind) {
    case Goal::Kind::AtMost: return "≤ " + NumberText(goal.bound);
    case Goal::Kind::TimesAsFast: return "≥ " + NumberText(goal.bound) + " times as fast";
    default: return "–";
  }
}

std::string RatioText(const Goal& goal, double ratio) {
  return goal.kind == Goal::Kind::TimesAsFast ? NumberText(1 / ratio) + " times as fast" : NumberText(ratio);
}

std::string MetText(const Goal& goal, double ratio) {
  if (goal.kind == Goal::Kind::None) return "–";
  const bool isMet = goal.kind == Goal::Kind::AtMost ? ratio <= goal.bound : 1 / ratio >= goal.bound;
  return isMet ? "yes" : "no";
}

/// Nanoseconds by the clock that the benchmark uses.
double TimeOf(const benchmark::BenchmarkReporter::Run& run) {
  const double seconds = run.run_name.time_type.empty() ? run.cpu_accumulated_time : run.real_accumulated_time;
  return seconds * 1e9 / static_cast<double>(run.iterations);
}

}  // namespace

CRatioTable::Pair CRatioTable::AddPair(Row row, const Work& ours, const Work& other) {
  const std::string ourName = row.name + "/ours";
  const std::string otherName = row.name + "/other";
  m_rows.push_back({std::move(row), {ourName}, {otherName}, {}});
  return {Register(ourName, ours), Register(otherName, other)};
}

std::vector<Benchmark*> CRatioTable::AddSpread(Row row, const std::vector<std::pair<std::string, Work>>& sizes) {
  std::vector<std::string> names;
  std::vector<std::string> sizeTexts;
  std::vector<Benchmark*> benchmarks;
  for (const auto& [size, work] : sizes) {
    names.push_back(row.name + "/" + size);
    sizeTexts.push_back(size);
    benchmarks.push_back(Register(names.back(), work));
  }
  m_rows.push_back({std::move(row), names, names, sizeTexts});
  return benchmarks;
}

bool CRatioTable::ReportContext(const Context& /*context*/) { return true; }

void CRatioTable::ReportRuns(const std::vector<Run>& runs) {
  for (const Run& run : runs) {
    const std::string& name = run.run_name.function_name;
    if (run.error_occurred) {
      GetErrorStream() << name << ": " << run.error_message << '\n';
      m_hasFailed = true;
    } else if (run.run_type == Run::RT_Iteration) {
      Results& results = m_results[name];
      const auto fields = run.counters.find(kFields);
      const auto bytes = run.counters.find(kBytes);
      results.isBytes = bytes != run.counters.end();
      results.values.push_back(results.isBytes
                                   ? bytes->second.value
                                   : TimeOf(run) / (fields != run.counters.end() ? fields->second.value : 1));
    }
  }
  // Without this, nothing would be visible until the end. Runs of other types are Google Benchmark's own medians.
  if (!runs.empty() && runs.front().run_type == Run::RT_Iteration) {
    GetErrorStream() << "    " << runs.front().run_name.function_name << '\n' << std::flush;
  }
}

void CRatioTable::Finalize() {
  PrintRatios();
  PrintSizes();
}

bool CRatioTable::IsMeasured(const RowBenchmarks& row) const {
  const auto isMeasured = [&](const std::string& name) { return m_results.count(name) != 0; };
  return std::all_of(row.ours.begin(), row.ours.end(), isMeasured) &&
         std::all_of(row.others.begin(), row.others.end(), isMeasured);
}

double CRatioTable::Median(const std::string& benchmark) const {
  std::vector<double> values = m_results.at(benchmark).values;
  const auto middle = std::next(values.begin(), static_cast<std::ptrdiff_t>(values.size() / 2));
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

std::string CRatioTable::MedianText(const std::string& benchmark) const {
  return ValueText(Median(benchmark), m_results.at(benchmark).isBytes);
}

void CRatioTable::PrintRatios() {
  GetOutputStream() << "| what | against | ours | other | ratio | goal | met? |\n"
                       "|---|---|--:|--:|--:|--:|---|\n";
  for (const RowBenchmarks& row : m_rows) {
    if (IsMeasured(row)) PrintRatio(row);
  }
}

void CRatioTable::PrintRatio(const RowBenchmarks& row) {
  const auto isLess = [&](const std::string& one, const std::string& other) { return Median(one) < Median(other); };
  const std::string& ours = *std::max_element(row.ours.begin(), row.ours.end(), isLess);
  const std::string& other = *std::min_element(row.others.begin(), row.others.end(), isLess);
  const double ratio = Median(ours) / Median(other);
  const Goal& goal = row.row.goal;
  GetOutputStream() << "| " << row.row.what << " | " << row.row.against << " | " << MedianText(ours) << " | "
                    << MedianText(other) << " | " << RatioText(goal, ratio) << " | " << GoalText(goal) << " | "
                    << MetText(goal, ratio) << " |\n";
}

void CRatioTable::PrintSizes() {
  const std::vector<std::string>* head = nullptr;  // of the table that the row before is in
  for (const RowBenchmarks& row : m_rows) {
    if (row.sizes.empty() || !IsMeasured(row)) continue;
    if (head == nullptr || *head != row.sizes) PrintSizesHead(row.sizes);
    head = &row.sizes;
    std::ostream& out = GetOutputStream();
    out << "| " << row.row.what << " |";
    for (const std::string& benchmark : row.ours) out << ' ' << MedianText(benchmark) << " |";
    out << '\n';
  }
}

void CRatioTable::PrintSizesHead(const std::vector<std::string>& sizes) {
  std::ostream& out = GetOutputStream();
  out << "\n| what |";
  for (const std::string& size : sizes) out << ' ' << size << " |";
  out << "\n|---|";
  for (std::size_t i = 0; i < sizes.size(); ++i) out << "--:|";
  out << '\n';
}

}  // namespace bench
