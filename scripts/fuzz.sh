#!/usr/bin/env bash
# Feeds generated files to both readers, built by clang++ with sanitizers, and fails when one does not take them well.
#
#   scripts/fuzz.sh SECONDS    for each reader
#
# Files that reach something new are kept in build/fuzz/corpus for the next time, files that are not taken well are
# left in build/fuzz/findings. To see what one of them does: build/fuzz/fuzz/xml_reader_fuzzer FILE
set -euo pipefail
cd "$(dirname "$0")/.."
if ! [[ ${1:-} =~ ^[1-9][0-9]*$ ]]; then
  echo "usage: scripts/fuzz.sh SECONDS" >&2
  exit 2
fi
seconds=$1
build=build/fuzz

scripts/build.sh fuzz
mkdir -p "$build/findings"

# The lengths leave room for the examples with one component; longer files mostly take longer.
fuzz() {
  local form=$1 longest=$2
  local log=$build/findings/$form.log
  mkdir -p "$build/corpus/$form"
  echo "==> Fuzzing the $form reader for $seconds seconds"
  if "$build/fuzz/${form}_reader_fuzzer" "$build/corpus/$form" "fuzz/corpus/$form" examples/vif \
      -dict="fuzz/$form.dict" -max_len="$longest" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 \
      -artifact_prefix="$build/findings/$form-" -print_final_stats=1 >"$log" 2>&1; then
    grep -E 'DONE|number_of_executed_units|average_exec_per_sec' "$log"
  else
    tail -n 60 "$log" >&2
    echo "The $form reader does not take a file well that is in $build/findings; see $log" >&2
    return 1
  fi
}

# Side by side, as a fuzzer keeps one core busy.
status=0
fuzz text 8192 &
text=$!
fuzz xml 12288 || status=1
wait "$text" || status=1
exit $status
