#!/usr/bin/env bash
# The demo's tests, run by CTest (examples/CMakeLists.txt):
#
#   demo_test.sh import FILE SAG [pmi]   the host imports FILE; its summary must agree with what
#                                        OpenCASCADE itself reports (occt_reference), the .glb
#                                        must pass the Khronos validator, and no shared-memory
#                                        object may be left
#   demo_test.sh bad-input               missing, unreadable, truncated and unsupported files, a
#                                        translator that dies or is stopped mid-import
#
# Environment: HOST, TRANSLATOR, REFERENCE (programs), GLTF_CHECKS (tests/gltf with its npm
# packages), WORK (a scratch folder), BEARING (a model that takes long to tessellate finely).
set -euo pipefail

fail() { echo "FAILED: $*" >&2; exit 1; }

# The library's shared-memory objects (named by UUIDs) that exist now.
shm_objects() {
  find /dev/shm -maxdepth 1 -type f -regextype posix-extended \
    -regex '.*/[0-9a-f]{8}-[0-9a-f]{4}-[0-9a-f]{4}-[0-9a-f]{4}-[0-9a-f]{12}' -printf '%f\n' 2>/dev/null | sort
}

# Fails when objects appeared since `before` and stay: other programs' objects come and go
# within moments, a leftover stays.
check_no_leftover() {
  local before=$1 appeared
  appeared=$(comm -13 "$before" <(shm_objects))
  [ -z "$appeared" ] && return 0
  sleep 2
  appeared=$(comm -12 <(echo "$appeared") <(shm_objects))
  [ -z "$appeared" ] || fail "shared-memory objects left behind: $appeared"
}

# The number before `label` (singular or plural) in the host's summary line `line`, without
# thousands separators.
count() {
  local line=$1 label=$2
  echo "$line" | tr -d ',' | grep -oE "[0-9]+ $label" | head -1 | cut -d' ' -f1
}

import_test() {
  local file=$1 sag=$2 pmi=${3:-}
  local name before summary reference
  name=$(basename "${file%.*}")
  before="$WORK/$name.shm"
  shm_objects > "$before"
  reference=$("$REFERENCE" "$file" "$sag")
  echo "OpenCASCADE: $reference"
  "$HOST" --translator "$TRANSLATOR" --sag "$sag" --output "$WORK/$name.glb" "$file" | tee "$WORK/$name.txt"
  summary=$(cat "$WORK/$name.txt")

  local geometry faces triangles
  geometry=$(echo "$summary" | grep '^  geometry')
  faces=$(count "$geometry" face)
  triangles=$(count "$geometry" triangle)
  [ "faces=$faces triangles=$triangles" = "$(echo "$reference" | grep -oE 'faces=[0-9]+ triangles=[0-9]+')" ] ||
    fail "$name: host received $faces faces and $triangles triangles; OpenCASCADE: $reference"
  if [ -n "$pmi" ]; then
    local line datums dimensions tolerances
    line=$(echo "$summary" | grep '^  PMI') || fail "$name: no PMI in the summary"
    datums=$(count "$line" datum)
    dimensions=$(count "$line" dimension)
    tolerances=$(count "$line" 'geometric tolerance')
    [ "datums=$datums dimensions=$dimensions tolerances=$tolerances" = \
      "$(echo "$reference" | grep -oE 'datums=.*')" ] ||
      fail "$name: host received $datums datums, $dimensions dimensions, $tolerances tolerances; OpenCASCADE: $reference"
  fi
  node "$GLTF_CHECKS/validate.mjs" "$WORK/$name.glb"
  check_no_leftover "$before"
}

# Runs the host on `file` and expects exit status `status` with `message` on standard error.
expect_failure() {
  local file=$1 status=$2 message=$3 got=0
  "$HOST" --translator "$TRANSLATOR" --no-glb "$file" > /dev/null 2> "$WORK/stderr.txt" || got=$?
  [ "$got" = "$status" ] || fail "$file: exit status $got, expected $status ($(cat "$WORK/stderr.txt"))"
  grep -qF "$message" "$WORK/stderr.txt" || fail "$file: expected '$message', got: $(cat "$WORK/stderr.txt")"
  echo "$file: status $got, $(cat "$WORK/stderr.txt")"
}

# Starts the host on a model that takes long to tessellate, sends `signal` to the translator once
# it tessellates, and expects exit status `status` with `message`.
expect_stopped() {
  local signal=$1 status=$2 message=$3 got=0 pid=""
  : > "$WORK/progress.txt"
  "$HOST" --translator "$TRANSLATOR" --verbose --no-glb --sag 0.00002 "$BEARING" > /dev/null 2> "$WORK/progress.txt" &
  local host=$!
  for _ in $(seq 600); do
    grep -q 'stage tessellation' "$WORK/progress.txt" && break
    sleep 0.1
  done
  pid=$(grep -oE 'pid [0-9]+' "$WORK/progress.txt" | cut -d' ' -f2)
  [ -n "$pid" ] && grep -q 'stage tessellation' "$WORK/progress.txt" || { kill "$host"; fail "the import never reached its tessellation"; }
  kill "-$signal" "$pid"
  wait "$host" || got=$?
  [ "$got" = "$status" ] || fail "translator sent $signal: host exit status $got, expected $status ($(cat "$WORK/progress.txt"))"
  grep -qF "$message" "$WORK/progress.txt" || fail "translator sent $signal: expected '$message', got: $(cat "$WORK/progress.txt")"
  echo "translator sent $signal: host status $got, $(grep -F "$message" "$WORK/progress.txt")"
}

bad_input_test() {
  local before="$WORK/bad.shm"
  shm_objects > "$before"
  expect_failure "$WORK/no_such_model.stp" 3 "File not found: $WORK/no_such_model.stp"
  echo "This is a text file, not a STEP file." > "$WORK/text.stp"
  expect_failure "$WORK/text.stp" 3 "Cannot read STEP file $WORK/text.stp"
  head -c 200000 "$BUNDLED" > "$WORK/truncated.stp"
  expect_failure "$WORK/truncated.stp" 3 "unexpected end of file"
  echo "solid" > "$WORK/model.stl"
  expect_failure "$WORK/model.stl" 3 "Unsupported file format '.stl'"
  local got=0
  "$HOST" --translator /bin/false --no-glb "$BUNDLED" 2> "$WORK/stderr.txt" || got=$?
  [ "$got" = 5 ] && grep -qF "The translator exited with status 1 before its result" "$WORK/stderr.txt" ||
    fail "a translator that exits at once: status $got, $(cat "$WORK/stderr.txt")"
  expect_stopped KILL 5 "The translator was killed by signal 9 (Killed) before its result"
  expect_stopped TERM 4 "Import interrupted"
  check_no_leftover "$before"
}

mkdir -p "$WORK"
case "${1:-}" in
  import) shift; import_test "$@" ;;
  bad-input) bad_input_test ;;
  *) echo "usage: demo_test.sh import FILE SAG [pmi] | bad-input" >&2; exit 2 ;;
esac
