#!/usr/bin/env bash
# with_access_files.sh TARGET RUNS SEED...: the target with the genuine Access files among its seeds, where
# VELMAR_ACCESS_FIXTURES names their folder.
set -euo pipefail
folder=${VELMAR_ACCESS_FIXTURES:-}
exec "$@" ${folder:+"$folder"/*.mdb "$folder"/*.accdb}
