#!/usr/bin/env bash
# Fails when cppcheck reports something about the library, the host's stand-ins, the command or its manual;
# cppcheck-suppressions.txt lists its false positives.
set -euo pipefail
cd "$(dirname "$0")/.."

cppcheck --std=c++20 --language=c++ --enable=warning,performance,portability --inconclusive --error-exitcode=1 --quiet \
  --suppressions-list=scripts/cppcheck-suppressions.txt -j "$(nproc)" \
  -DVIF_API= -DVIF_ANALYSIS_API= -DZO_API= -D__linux__ -D__GNUC__=12 -I. -Iinclude -Ihost -Ifield -Ireaders -Ivif -Itestsuite \
  -Ianalysis \
  field readers vif testsuite host/BaseUtilities host/TestUtilities host/ZorvenLog host/msxml host/libxml2 \
  host/xmlfile analysis cli manual
