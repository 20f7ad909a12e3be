# What fuzz/run and fuzz/short share. Sourced from the project's root, after scripts/common.sh.

finds=build/fuzz/corpus
crashes=build/fuzz/crashes
# Where targets write files of their own; memory is twenty times as fast as a disk.
scratch=/dev/shm
[ -w "$scratch" ] || scratch=${TMPDIR:-/tmp}

# Debian's log4cxx gives its rolling policy back under the size of its base class. Reports name lines by addr2line where
# there is no llvm-symbolizer.
export ASAN_OPTIONS=new_delete_type_mismatch=0:detect_leaks=1:detect_stack_use_after_return=1:allow_addr2line=1
export UBSAN_OPTIONS=print_stacktrace=1:allow_addr2line=1
export LC_ALL=C.UTF-8

# fuzz_target TARGET ARGUMENT...: a target's program with what every run of it has. An input may take 10 s and 1 GiB.
fuzz_target() {
    local target=$1
    shift
    mkdir -p "$crashes"
    TMPDIR=$scratch "build/fuzz/bin/fuzz_$target" -artifact_prefix="$crashes/$target-" -timeout=10 \
        -rss_limit_mb=1024 -dict="fuzz/dictionaries/$target" "$@"
}

all_targets() { ls fuzz/corpus; }
