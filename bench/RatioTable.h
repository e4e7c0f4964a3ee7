// The table of ratios: its rows are run by Google Benchmark, and it prints their results.
#pragma once

#include <benchmark/benchmark.h>

#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace bench {

using Work = std::function<void(benchmark::State&)>;
using Benchmark = benchmark::internal::Benchmark;

/// What a ratio should be.
struct Goal {
  enum class Kind { None, AtMost, TimesAsFast };

  Kind kind = Kind::None;
  double bound = 0;
};

/// For ratios of ours to the other.
constexpr Goal AtMost(double ratio) { return {Goal::Kind::AtMost, ratio}; }

/// For the inverse ratio, of the other to ours.
constexpr Goal AtLeastTimesAsFast(double ratio) { return {Goal::Kind::TimesAsFast, ratio}; }

/// The texts of a row.
struct Row {
  std::string name;  ///< what filters match
  std::string what;
  std::string against;
  Goal goal;
};

/// A benchmark that sets this counter measures the time per field, for so many fields.
constexpr const char* kFields = "fields";

/// A benchmark that sets this counter measures so many bytes instead of time.
constexpr const char* kBytes = "bytes";

/// Takes part in a run as its reporter. A benchmark measures CPU time unless it is set to use another clock, and the
/// median of its repetitions counts. A benchmark fails if its work throws.
class CRatioTable : public benchmark::BenchmarkReporter {
 public:
  struct Pair {
    Benchmark* ours;
    Benchmark* other;
  };

  /// Adds a row that compares two benchmarks, which the caller may adjust.
  Pair AddPair(Row row, const Work& ours, const Work& other);

  /// Adds a row that compares the largest result of the sizes with the smallest, and a row in a table of sizes. The
  /// caller may adjust the benchmarks.
  std::vector<Benchmark*> AddSpread(Row row, const std::vector<std::pair<std::string, Work>>& sizes);

  bool ReportContext(const Context& context) override;
  void ReportRuns(const std::vector<Run>& runs) override;

  /// Prints the rows that were measured.
  void Finalize() override;

  bool HasFailed() const { return m_hasFailed; }

 private:
  /// A row with the names of its benchmarks. If a side has several, the largest of ours and the smallest of the others
  /// count.
  struct RowBenchmarks {
    Row row;
    std::vector<std::string> ours;
    std::vector<std::string> others;
    std::vector<std::string> sizes;  // empty unless the row is a spread
  };

  struct Results {
    std::vector<double> values;  // nanoseconds or bytes
    bool isBytes = false;
  };

  bool IsMeasured(const RowBenchmarks& row) const;
  double Median(const std::string& benchmark) const;
  std::string MedianText(const std::string& benchmark) const;
  void PrintRatios();
  void PrintRatio(const RowBenchmarks& row);
  void PrintSizes();
  void PrintSizesHead(const std::vector<std::string>& sizes);

  std::vector<RowBenchmarks> m_rows;
  std::map<std::string, Results> m_results;
  bool m_hasFailed = false;
};

}  // namespace bench
