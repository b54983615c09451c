#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Runs a command with a home of its own, made anew: no settings, recovery copies
# or caches of an earlier run or of the user are seen, and none of them changed.
# The folder stays, to be looked at, until the next run.
#
#   scripts/with-home.sh FOLDER COMMAND [ARG ...]
set -eu

if [ $# -lt 2 ]; then
  echo "usage: $0 FOLDER COMMAND [ARG ...]" >&2
  exit 2
fi

home=$1
shift
rm -rf "$home"
mkdir -p "$home"/config "$home"/data "$home"/cache "$home"/state
mkdir -m 700 "$home/runtime"
export HOME=$home
export XDG_CONFIG_HOME=$home/config XDG_DATA_HOME=$home/data XDG_CACHE_HOME=$home/cache
export XDG_STATE_HOME=$home/state XDG_RUNTIME_DIR=$home/runtime
exec "$@"
