# What run, test and bench share: installing what is missing, configuring and building. Sourced from the project's root.

set -euo pipefail

say() { printf '\033[1m%s\033[0m\n' "$*"; }
die() { printf '%s\n' "$*" >&2; exit 1; }

wanted_packages() { grep -vE '^\s*(#|$)' scripts/packages.txt; }

missing_packages() {
    local package
    for package in $(wanted_packages); do
        [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null)" = installed ] || printf '%s ' "$package"
    done
}

# apt as root, by sudo if need be. Another apt that is running is waited for.
apt_as_root() {
    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || die "These packages are missing and can only be installed by root (there is no sudo): $(missing_packages)"
        as_root=(sudo)
    fi
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -o DPkg::Lock::Timeout=300 -q "$@"
}

install_missing() {
    command -v dpkg-query >/dev/null || die "This script knows Debian packages only; install by hand what scripts/packages.txt lists."
    local missing
    missing=$(missing_packages)
    [ -n "$missing" ] || return 0
    say "Installing: $missing"
    apt_as_root update || die "apt-get could not fetch the package lists (no network, or sudo refused). Missing: $missing"
    # shellcheck disable=SC2086  # one word a package
    apt_as_root install -y --no-install-recommends $missing || die "These packages could not be installed: $missing"
}

# From lock_build PRESET to unlock_build no other run of these scripts changes the preset's build folder.
lock_build() {
    exec 9>"build/$1.lock"
    flock -n 9 || { say "Waiting for another run that builds in build/$1"; flock 9; }
}
unlock_build() { exec 9>&-; }

# build PRESET [TARGET...]
build() {
    local preset=$1
    shift
    say "Building ($preset) in build/$preset"
    lock_build "$preset"
    cmake --preset "$preset" >"build/configure-$preset.log" 2>&1 || { cat "build/configure-$preset.log" >&2; die "Configuring failed."; }
    cmake --build "build/$preset" ${@:+--target "$@"}
    unlock_build
}

# Starts an X server of our own where there is no display, on a number that it chooses itself.
# Without -noreset it would start afresh, refusing clients meanwhile, whenever the last one leaves.
need_display() {
    [ -z "${DISPLAY:-}" ] || return 0
    local pipe
    pipe=$(mktemp -u "${TMPDIR:-/tmp}/vantor-display.XXXXXX")
    mkfifo -m 600 "$pipe"
    Xvfb -displayfd 3 -screen 0 1600x1000x24 -dpi 96 -nolisten tcp -noreset 3>"$pipe" 2>/dev/null &
    XVFB_PID=$!
    DISPLAY=":$(timeout 20 head -n 1 "$pipe" || true)"
    rm -f "$pipe"
    [ "$DISPLAY" != ":" ] || die "Xvfb did not start."
    export DISPLAY
}

stop_display() { [ -z "${XVFB_PID:-}" ] || kill "$XVFB_PID" 2>/dev/null || true; }

mkdir -p build
