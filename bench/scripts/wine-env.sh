# Shell functions of ./run and ./test: packages, the project's own Wine prefix, a screen of its own.
# Source it with `root` set to the project's folder and `me` to the name to speak under. `scale` is
# the system's scaling in percent: screen and prefix are made for it.
# shellcheck shell=bash disable=SC2034,SC2154

build_packages=(cmake ninja-build g++ g++-mingw-w64-x86-64-posix googletest)
wine_packages=(wine wine64 xvfb imagemagick fonts-dejavu-core)
wine=
xvfb_id=
scale=100

say() { printf '%s: %s\n' "$me" "$*"; }

fail() {
    printf '%s: %s\n' "$me" "$*" >&2
    exit 1
}

# need_packages PACKAGE...: installs those that are missing; needs no network when none is.
need_packages() {
    local package missing=() as_root=()
    command -v dpkg-query >/dev/null || fail "this needs Debian's package tools"
    for package in "$@"; do
        [[ $(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null) == installed ]] ||
            missing+=("$package")
    done
    ((${#missing[@]})) || return 0
    ((EUID == 0)) || as_root=(sudo)
    say "installing ${missing[*]}"
    if ! "${as_root[@]}" apt-get -qq update >"$root/build/apt.log" 2>&1 ||
        ! "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -qq install -y \
            --no-install-recommends "${missing[@]}" >>"$root/build/apt.log" 2>&1; then
        fail "these packages can't be installed: ${missing[*]} (see build/apt.log)"
    fi
}

# build_windows TARGET...: configures the windows preset if need be and builds.
build_windows() {
    local log=$root/build/windows-build.log
    # Each time: packages that came later change what can be built.
    (cd "$root" && cmake --preset windows) >"$log" 2>&1 ||
        fail "the Windows programs can't be configured (see build/windows-build.log)"
    [[ -f $root/build/windows/Orvo.exe ]] || say "building the Windows programs"
    cmake --build "$root/build/windows" --target "$@" >"$log" 2>&1 ||
        fail "the Windows programs can't be built (see build/windows-build.log)"
}

# One script at a time may use the prefix: programs of two would meet on its screen.
lock_wine() {
    mkdir -p "$root/build"
    exec 9>"$root/build/wine.lock"
    flock -n 9 || fail "another ./run or ./test is using Wine"
}

# screen_size: as large as windows of that scaling need.
screen_size() { echo "$((1280 * scale / 100))x$((800 * scale / 100))"; }

# start_screen: a screen of our own.
start_screen() {
    local number_file
    number_file=$(mktemp)
    # Opened by the shell, so that it is there before the server writes to it.
    Xvfb -displayfd 8 -screen 0 "$(screen_size)x24" -nolisten tcp 8>"$number_file" 9>&- \
        >/dev/null 2>&1 &
    xvfb_id=$!
    for _ in {1..100}; do
        [[ -s $number_file ]] && break
        sleep 0.1
    done
    DISPLAY=:$(<"$number_file")
    rm -f "$number_file"
    [[ $DISPLAY != : ]] || fail "Xvfb does not start"
    export DISPLAY
}

# set_up_wine: after it, run_wine starts programs on a desktop that has a task bar. The desktop
# comes from the prefix, so that standard input and output of the programs stay ours.
set_up_wine() {
    export WINEPREFIX=$root/build/wine WINEARCH=win64 WINEDEBUG=-all
    ((scale == 100)) || WINEPREFIX+=-$scale
    wine=$(command -v wine64 || true)
    [[ $wine ]] || wine=/usr/lib/wine/wine64
    [[ -x $wine ]] || fail "there is no wine64"
    export WINEDLLOVERRIDES="mscoree,mshtml=;hid,setupapi=n,b"
    [[ -f $WINEPREFIX/ready ]] && return
    say "making the Wine prefix ${WINEPREFIX#"$root"/}"
    rm -rf "$WINEPREFIX"
    if ! run_wine wineboot -i >/dev/null 2>&1 ||
        ! run_wine reg add 'HKCU\Software\Wine\Explorer' /v Desktop /d shell /f >/dev/null 2>&1 ||
        ! run_wine reg add 'HKCU\Software\Wine\Explorer\Desktops' /v shell /d "$(screen_size)" \
            /f >/dev/null 2>&1 ||
        ! run_wine reg add 'HKCU\Control Panel\Desktop' /v LogPixels /t REG_DWORD \
            /d "$((96 * scale / 100))" /f >/dev/null 2>&1; then
        fail "the Wine prefix ${WINEPREFIX#"$root"/} can't be made"
    fi
    wineserver -w
    touch "$WINEPREFIX/ready"
}

# The lock isn't handed on: Wine's server outlives the program.
run_wine() { "$wine" "$@" 9>&-; }

# wine_path PATH: as a Windows program wants it.
wine_path() {
    local path=Z:$1
    printf '%s' "${path//\//\\}"
}

# stop_wine_and_screen: ends what the two above have started and nothing else.
stop_wine_and_screen() {
    [[ -z $wine ]] || wineserver -k 2>/dev/null || true
    [[ -z $xvfb_id ]] || kill "$xvfb_id" 2>/dev/null || true
}
