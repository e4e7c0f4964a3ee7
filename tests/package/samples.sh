# Runs the samples in the documents. Sourced by check-package.sh, whose variables and functions it uses.

# Where the samples are extracted to.
samples=$work/samples

# Writes all code blocks of the README, of CONTRIBUTING and of docs/ to $samples.
extract_samples() {
  python3 -B "$here/code_blocks.py" "$samples" "$sources"/{README,CONTRIBUTING}.md "$sources"/docs/*.md >"$work/blocks.txt"
  [ -s "$work/blocks.txt" ] || fail 'the documents have no samples'
}

# Prints the file name of the only sample in a language that contains a string.
sample_with() {
  local found
  mapfile -t found < <(grep -lF -- "$2" "$samples"/*."$1")
  [ ${#found[@]} -eq 1 ] || fail "${#found[@]} samples in $1 contain $2"
  echo "${found[0]}"
}

# Runs a program, which must exit with the given status and print the given text among other things.
expect_run() {
  local expected=$1 text=$2 status=0 said
  shift 2
  said=$("${run[@]}" "$@" 2>&1 | tr -d '\r'; exit "${PIPESTATUS[0]}") || status=$?
  [ "$status" = "$expected" ] || fail "'${*:2}' exited with $status: $said"
  [[ $said == *"$text"* ]] || fail "'${*:2}' printed: $said"
}

# Runs the README's program on a file that suits it, and on failures that it must handle.
check_sample_program() {
  local long
  long=$(printf 'x%.0s' {1..300})
  cp "$sources/examples/vif/gan-charger-65w.txt" "$work/charger.txt"
  cp "$sources/docs/invalid-port.xml" "$work"
  cd "$work"
  expect_run 0 $'PDO 2: 180 x 50 mV\n' "$1"
  expect_run 0 $'\nSrc_PDO_Max_Current=300' "$1" charger.txt
  expect_run 1 'VIF Does not exist. (name: missing.txt)' "$1" missing.txt
  expect_run 1 "$long" "$1" "$long.txt"
  expect_run 1 '' "$1" charger.txt '('
  expect_run 1 "Couldn't find field" "$1" charger.txt Snk_PDO_Voltage
  # Windows says only that COM is not initialised.
  expect_run 1 "$([ -n "$EMULATOR" ] || echo 'line ')" "$1" invalid-port.xml
}

# Builds the README's program that checks a file, and runs it.
check_analysis_sample() {
  compile "$1" -lVendorInfoFileAnalysis "${link[@]}" ${EMULATOR:+-lole32 -loleaut32} -o "$work/check$EXE" ||
    fail "$1 cannot be compiled"
  cp "$sources/docs/overrated-charger.txt" "$work"
  cd "$work"
  expect_run 0 'line 9: Component 1, Source PDO 2: the PDO is of 65 W' "./check$EXE" overrated-charger.txt
  expect_run 1 'there is no such file' "./check$EXE" missing.txt
}

# Builds the README's program with a CMake sample.
check_cmake_sample() {
  mkdir "$work/by-cmake"
  cp "$(sample_with cpp GetUniqueField)" "$work/by-cmake/my_tests.cpp"
  {
    printf 'cmake_minimum_required(VERSION 3.25)\nproject(Sample LANGUAGES CXX)\nadd_executable(my_tests my_tests.cpp)\n'
    cat "$1"
  } >"$work/by-cmake/CMakeLists.txt"
  cmake -S "$work/by-cmake" -B "$work/by-cmake/build" -G Ninja -DCMAKE_CXX_COMPILER="$CXX" -DCMAKE_PREFIX_PATH="$PREFIX" \
    -DCMAKE_CXX_FLAGS="${flags[*]}"
  cmake --build "$work/by-cmake/build"
  check_sample_program "$work/by-cmake/build/my_tests"
}

# Copies the sources' scripts to a tree where everything counts as built, with stand-ins for the build commands.
prepare_shell() {
  local tree=$work/tree tool
  mkdir -p "$tree/scripts" "$tree/build/release/cli" "$work/bin"
  cp "$sources"/{run.sh,test.sh,CMakePresets.json} "$tree"
  cp "$(sample_with cpp GetUniqueField)" "$tree/my_tests.cpp"
  ln -s "$sources/examples" "$sources/cmake" "$tree"
  ln -s "$PREFIX/bin/vif" "$tree/build/release/cli/vif"
  ln -s "$PREFIX/bin/vif" "$work/bin/vif"
  ln -s "$sources/examples/vif" "$tree/vifs"
  for tool in setup build; do
    [ -x "$sources/scripts/$tool.sh" ] || fail "there is no scripts/$tool.sh"
    printf '#!/bin/sh\n' >"$tree/scripts/$tool.sh"
  done
  mkdir "$tree/.ci"
  [ -f "$sources/.ci/run" ] || fail 'there is no .ci/run'
  printf '#!/bin/sh\n' >"$tree/.ci/run"
  cat >"$work/bin/cmake" <<END
#!/usr/bin/env bash
# Checks that a preset exists instead of configuring or building, and installs what is already built.
set -euo pipefail
case "\$*" in
  '--preset release') "$(command -v cmake)" --list-presets=configure | grep -qF '"release"' ;;
  '--build --preset release') "$(command -v cmake)" --list-presets=build | grep -qF '"release"' ;;
  '--install build/release --prefix /usr/local') "$(command -v cmake)" --install "$BUILD" --prefix "$work/usr-local" ;;
  *) echo "cmake \$*: unknown command" >&2; exit 2 ;;
esac
END
  cat >"$work/bin/ctest" <<END
#!/usr/bin/env bash
set -euo pipefail
[ "\$1 \$2" = '--preset release' ] && "$(command -v ctest)" --list-presets | grep -qF '"release"'
END
  printf '#!/bin/sh\nexec "%s" %s "$@"\n' "$CXX" "${flags[*]}" >"$work/bin/c++"
  chmod +x "$work"/bin/* "$tree"/scripts/*
}

# Runs a shell sample in that tree.
check_shell_sample() {
  cd "$work/tree"
  PATH=$work/bin:$PATH PKG_CONFIG_PATH=$lib/pkgconfig bash -euo pipefail "$1" >"$work/said.txt" 2>&1 ||
    fail "the sample $1 failed: $(cat "$work/said.txt")"
}

# Expects each line to begin with a command that has help.
check_usage_sample() {
  local program command rest
  while read -r program command rest; do
    [ "$program" = vif ] || fail "not a vif command: $program $command $rest"
    "${run[@]}" "$PREFIX/bin/vif$EXE" "$command" --help >"$work/help.txt" || fail "unknown command: $program $command"
  done <"$1"
}

check_sample() {
  case $1 in
    *.cpp)
      if grep -q 'analysis/Check.h' "$1"; then
        check_analysis_sample "$1"
        return
      fi
      compile "$1" "${link[@]}" ${EMULATOR:+-lole32 -loleaut32} -o "$work/sample$EXE" || fail "$1 does not compile"
      check_sample_program "$work/sample$EXE"
      ;;
    *.cmake)
      if grep -q find_package "$1"; then
        [ -n "$EMULATOR" ] || check_cmake_sample "$1"
      else
        grep -q '^add_subdirectory(VendorInfoFile)$' "$1" || fail "nothing checks $1"  # PartOfAnotherProject checks these
      fi
      ;;
    *.c) ;;  # check-languages.sh runs these
    *.python | *.output) ;;  # python/tests/test_documentation.py runs these
    *.sh) [ -n "$EMULATOR" ] || check_shell_sample "$1" ;;
    *.yaml) grep -qF 'vif check' "$1" || fail "$1 does not run vif" ;;  # DocumentedWorkflowRuns runs it
    *.gitattributes | *.gitconfig) ;;  # DiffInGit uses these
    *.text) check_usage_sample "$1" ;;
    *) fail "nothing checks samples such as $1" ;;
  esac
}

check_samples() {
  local sample
  extract_samples
  [ -n "$EMULATOR" ] || prepare_shell
  while read -r sample; do check_sample "$sample"; done <"$work/blocks.txt"
  [ -n "$EMULATOR" ] || [ -f "$work/usr-local/include/vendorinfofile/VendorInfoFile.h" ] || fail 'no sample has installed anything'
  [ -n "$EMULATOR" ] || [ -x "$work/tree/a.out" ] || fail 'no sample has compiled anything with pkg-config'
}
