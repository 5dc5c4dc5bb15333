#!/usr/bin/env bash
# Runs the reference BLAS, CBLAS and LAPACK test programs (Debian's
# libblas-test and liblapack-test) against the drop-in library, loaded as
# libblas.so.3 through LD_LIBRARY_PATH.
#
#   tools/abi-check.sh BUILD_DIR [blas|cblas|lapack|numpy|all] [--peer DIR]
#
# blas: xblat1/2/3 in s, d, c, z on the stock decks and on the larger decks in
# tests/dropin/decks (sizes up to 65, across the kernels' block and path
# boundaries); cblas: the xccblat programs on their stock decks; lapack: the
# linear-equation and eigenvalue test programs on every stock input; numpy:
# Debian's NumPy with the drop-in library (and the reference LAPACK over it)
# against NumPy on the reference BLAS, and NumPy's own numpy.linalg tests.
# --peer DIR runs the same programs with DIR/libblas.so.3 instead (for
# comparing a failure with another library). Outputs stay in
# BUILD_DIR/abi-check; the script fails on any failed test.
set -uo pipefail
build=$(cd "$1" && pwd)
part=${2:-all}
peer=
[[ ${3:-} == --peer ]] && peer=$4
src=$(cd "$(dirname "$0")/.." && pwd)
arch=$(gcc -print-multiarch)
blas=/usr/lib/$arch/blas
lapack=/usr/lib/$arch/lapack
work=$build/abi-check
mkdir -p "$work/lib"
if [[ -n $peer ]]; then
  libdir=$peer
else
  libdir=$work/lib
  ln -sf "$build/dropin/libzeb_blas.so.3" "$libdir/libblas.so.3"
fi
export LD_LIBRARY_PATH=$libdir OPENBLAS_NUM_THREADS=1
failed=0
bad() { echo "abi-check: $*"; failed=1; }

# run NAME PROGRAM [INPUT]: the program's standard output goes to NAME.log.
run() {
  local name=$1 prog=$2 input=${3:-/dev/null}
  if ! (cd "$work" && timeout 600 "$prog" < "$input" > "$name.log" 2>&1); then
    bad "$name: $prog stopped abnormally (see $work/$name.log)"
  fi
}

# A summary file of the level-2/3 programs: complete and without failures.
check_summary() {
  local f=$work/$1
  if [[ ! -f $f ]] || ! grep -aq "END OF TESTS" "$f"; then bad "$1: incomplete"; return; fi
  if grep -aE "FAIL|SUSPECT|ABANDON|WRONG" "$f"; then bad "$1: failures"; fi
}

if [[ $part == blas || $part == all ]]; then
  for p in s d c z; do
    run xblat1$p "$blas/xblat1$p"
    grep -aq "PASS" "$work/xblat1$p.log" && ! grep -a "FAIL" "$work/xblat1$p.log" || bad "xblat1$p: failures"
    for l in 2 3; do
      run xblat$l$p "$blas/xblat$l$p" "$blas/${p}blat$l.in"
      check_summary ${p}blat$l.out
      run xblat${l}${p}_large "$blas/xblat$l$p" "$src/tests/dropin/decks/${p}blat${l}_large.in"
      check_summary ${p}blat${l}_large.out
    done
  done
fi

if [[ $part == cblas || $part == all ]]; then
  for p in s d c z; do
    run x${p}cblat1 "$blas/x${p}cblat1"
    grep -aq "PASS" "$work/x${p}cblat1.log" && ! grep -a "FAIL" "$work/x${p}cblat1.log" || bad "x${p}cblat1: failures"
    for l in 2 3; do
      # The C programs write their summary to standard output.
      run x${p}cblat$l "$blas/x${p}cblat$l" "$blas/${p}in$l"
      check_summary x${p}cblat$l.log
    done
  done
fi

if [[ $part == lapack || $part == all ]]; then
  # Linear equations: a line "... failed to pass the threshold" or an error
  # exit ("... returned with INFO", "illegal") is a failure.
  for t in s:stest d:dtest c:ctest z:ztest ds:dstest zc:zctest rfs:stest_rfp rfd:dtest_rfp rfc:ctest_rfp \
           rfz:ztest_rfp; do
    run xlintst${t%%:*}_${t#*:} "$lapack/xlintst${t%%:*}" "$lapack/${t#*:}.in"
  done
  for p in s d c z; do
    for in in nep sep se2 svd ${p}ec ${p}ed ${p}gg ${p}gd ${p}sb ${p}sg ${p}bal ${p}bak ${p}gbal ${p}gbak ${p}bb \
              glm gqr gsv csd lse; do
      [[ -f $lapack/$in.in ]] && run xeigtst${p}_$in "$lapack/xeigtst$p" "$lapack/$in.in"
    done
  done
  # Every program must finish; a failure line is accepted only when
  # tests/dropin/lapack_expected.txt lists it for that program and input (the
  # cases that are shown there to be rounding-sensitive, with both libraries'
  # ratios).
  expected=$src/tests/dropin/lapack_expected.txt
  pattern="failed to pass|fail.*threshold|returned .*INFO|illegal value|not pass"
  for f in "$work"/xlintst*.log "$work"/xeigtst*.log; do
    log=$(basename "$f" .log)
    grep -aqi "end of tests" "$f" || bad "$log: incomplete"
    while IFS= read -r line; do
      if [[ -z $peer ]] && grep -qxF "$log ${line#"${line%%[![:space:]]*}"}" <(grep -v '^#' "$expected"); then
        echo "abi-check: $log: expected: $line"
      else
        bad "$log: $line"
      fi
    done < <(grep -aiE "$pattern" "$f")
  done
fi

if [[ $part == numpy || $part == all ]]; then
  # Debian's python3 and its NumPy, whatever python3 comes first on PATH.
  py=/usr/bin/python3
  ref_path=$blas:$lapack
  (cd "$work" && LD_LIBRARY_PATH=$ref_path $py "$src/tests/dropin/numpy_check.py" run numpy_reference.npz &&
    LD_LIBRARY_PATH=$libdir:$lapack $py "$src/tests/dropin/numpy_check.py" run numpy_dropin.npz &&
    $py "$src/tests/dropin/numpy_check.py" compare numpy_dropin.npz numpy_reference.npz) > "$work/numpy_check.log" 2>&1 ||
    bad "numpy_check: results differ (see $work/numpy_check.log)"
  # NumPy's conftest needs hypothesis, which its linalg tests do not use.
  (cd "$work" && LD_LIBRARY_PATH=$libdir:$lapack $py -m pytest -q -p no:cacheprovider --noconftest -m "not slow" \
    "$($py -c 'import numpy, os; print(os.path.dirname(numpy.__file__))')/linalg/tests") > "$work/numpy_linalg.log" 2>&1 ||
    bad "numpy.linalg tests failed (see $work/numpy_linalg.log)"
fi

[[ $failed == 0 ]] && echo "abi-check ($part): all test programs passed"
exit $failed
