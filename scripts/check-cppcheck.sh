#!/usr/bin/env bash
# Fails when cppcheck has something to say about the library, its stand-ins or the command; what it is wrong about stands
# in cppcheck-suppressions.txt.
set -euo pipefail
cd "$(dirname "$0")/.."

cppcheck --std=c++20 --language=c++ --enable=warning,performance,portability --inconclusive --error-exitcode=1 --quiet \
  --suppressions-list=scripts/cppcheck-suppressions.txt -j "$(nproc)" \
  -DVIF_API= -DZO_API= -D__linux__ -D__GNUC__=12 -Iinclude -Ihost -Ifield -Ireaders -Ivif -Itestsuite \
  field readers vif testsuite host/BaseUtilities host/TestUtilities host/ZorvenLog host/msxml cli
