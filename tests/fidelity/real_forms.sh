#!/bin/sh
# real_forms.sh COMMAND FOLDER N: every N-th form of the applications in a folder; 77 (a skip) when there is no folder.
if [ ! -d "$2" ]; then
  echo "skipped: there are no applications in $2"
  exit 77
fi
exec "$1" --sample "$3" "$2"
