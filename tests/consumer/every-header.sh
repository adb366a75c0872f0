#!/usr/bin/env bash
# every-header.sh PREFIX FLAG...: a source that includes every installed header of the component and of the persistence
# service compiles where no toolkit is: none of them needs a header that was not installed.
set -euo pipefail
prefix=$1
shift
source=$(mktemp --suffix=.cpp)
trap 'rm -f "$source"' EXIT
(cd "$prefix/include" && find kobtraduction kobpersistence -name '*.h' | sort | sed 's/.*/#include <&>/') >"$source"
[ -s "$source" ]
g++ -std=c++20 -fsyntax-only -Wall -Wextra -Werror "$@" "$source"
