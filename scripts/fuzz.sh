#!/usr/bin/env bash
# Runs all fuzzers, built by clang++ with sanitizers, and fails when one of them finds something.
#
#   scripts/fuzz.sh SECONDS    for SECONDS in all, shared evenly, with a fixed seed
#   scripts/fuzz.sh --long     each fuzzer for 10 million inputs or its share of 30 minutes, whichever ends first
#
# build/fuzz/corpus keeps inputs that reach new code for the next run; build/fuzz/findings keeps the inputs of
# findings and each fuzzer's log. To see what an input does: build/fuzz/fuzz/xml_reader_fuzzer FILE
set -euo pipefail
cd "$(dirname "$0")/.."
if [ "${1:-}" = --long ]; then
  seconds=1800
  runs=10000000
  seed=0  # a different one each time
elif [[ ${1:-} =~ ^[1-9][0-9]*$ ]]; then
  seconds=$1
  runs=-1
  seed=1
else
  echo "usage: scripts/fuzz.sh SECONDS|--long" >&2
  exit 2
fi

fuzzers=(text_reader xml_reader query name number format text_conversion rules c_interface command)
# Limits on the length of inputs, because long ones mostly just take longer. Those of the readers and the rules leave
# room for the examples with one component.
declare -A longest=([text_reader]=8192 [xml_reader]=12288 [query]=256 [name]=128 [number]=64 [format]=256
  [text_conversion]=256 [rules]=12288 [c_interface]=4096 [command]=2048)
cores=$(nproc)
rounds=$(((${#fuzzers[@]} + cores - 1) / cores))
share=$((seconds > rounds ? seconds / rounds : 1))
build=$PWD/build/fuzz  # absolute, because the command's fuzzer works in a directory of its own

scripts/build.sh fuzz
mkdir -p "$build/findings"
TMPDIR=$(mktemp -d)
export TMPDIR
trap 'rm -rf "$TMPDIR"' EXIT

# Nothing but an interrupt limits the time that reading a large corpus takes.
run_fuzzer() {
  local fuzzer=$1 name=${1%_reader}
  local seeds=("$build/corpus/$name" "fuzz/corpus/$name")
  [[ "$fuzzer" != *_reader && "$fuzzer" != rules ]] || seeds+=(examples/vif)
  mkdir -p "${seeds[0]}"
  timeout --signal=INT $((share + 5)) "$build/fuzz/${fuzzer}_fuzzer" "${seeds[@]}" \
    -dict="fuzz/dictionaries/$name.dict" -max_len="${longest[$fuzzer]}" -max_total_time="$share" -runs="$runs" -seed="$seed" \
    -timeout=10 -rss_limit_mb=2048 -artifact_prefix="$build/findings/$name-" -print_final_stats=1
}

print_row() { printf '%-16s %12s %8s %8s %9s\n' "$@"; }

# The last number after a word in a log.
number_after() { grep -oE "$1 [0-9]+" "$2" | tail -n 1 | grep -oE '[0-9]+$' || echo '?'; }

fuzz() {
  local fuzzer=$1 log=$build/findings/$1.log begin=$SECONDS findings=0 status=0
  run_fuzzer "$fuzzer" >"$log" 2>&1 || status=$?
  [ $status -eq 0 ] || [ $status -eq 124 ] || findings=1  # a fuzzer ends with its first finding; 124 means that the time was up
  print_row "$fuzzer" "$(number_after number_of_executed_units: "$log")" "$((SECONDS - begin)) s" \
    "$(number_after cov: "$log")" "$findings"
  [ $findings -eq 0 ] && return
  tail -n 60 "$log" >&2
  echo "The input of $fuzzer's finding is in $build/findings; see $log" >&2
  return 1
}

echo "==> Fuzzing, $share seconds each"
print_row fuzzer executions time edges findings
status=0
running=0
for fuzzer in "${fuzzers[@]}"; do
  if [ $running -eq "$cores" ]; then
    wait -n || status=1
    running=$((running - 1))
  fi
  fuzz "$fuzzer" &
  running=$((running + 1))
done
for ((; running > 0; running--)); do wait -n || status=1; done
exit $status
