# shellcheck shell=bash
# What ./run, ./test and .ci/run share: messages, installing what is missing, configuring and building.
# To be sourced; leaves the shell in the root of the project.

set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
logs=$root/build/logs
mkdir -p "$logs"
cd "$root"

# A compiler cache needs a place to write to, also where there is no home folder.
[ -w "${HOME:-/nowhere}" ] || export CCACHE_DIR=$root/build/ccache
# What one clone has compiled another needn't compile again.
export CCACHE_BASEDIR=$root CCACHE_NOHASHDIR=1

# shellcheck disable=SC2034 # used by the scripts that source this one
build_packages=(cmake ninja-build g++ ccache rapidjson-dev libcli11-dev libssl-dev)
# shellcheck disable=SC2034
desktop_packages=(qtbase5-dev libqt5svg5-dev libqt5sql5-sqlite libqt5sql5-psql qttranslations5-l10n qttools5-dev libqwt-qt5-dev libzip-dev fonts-dejavu-core)
# shellcheck disable=SC2034
deb_packages=(dpkg-dev file gzip)
# shellcheck disable=SC2034
test_packages=(libgtest-dev libxlsxwriter-dev openssl parallel postgresql)

say() { printf '==> %s\n' "$*"; }

fail() {
    printf 'Stopped: %s\n' "$*" >&2
    exit 1
}

# quiet NAME COMMAND...: the output goes to a log, which is shown only on failure.
quiet() {
    local log=$logs/$1.log
    shift
    "$@" >"$log" 2>&1 </dev/null && return
    tail -n 60 "$log" >&2
    fail "'$*' failed; the whole log is ${log#"$root"/}"
}

as_root() {
    if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo -n "$@"; fi
}

can_install() {
    command -v apt-get >/dev/null || return
    [ "$(id -u)" -ne 0 ] || return 0
    command -v sudo >/dev/null || return
    # Only a person at a terminal can be asked for a password.
    if [ -t 0 ]; then sudo -v; else sudo -n true 2>/dev/null; fi
}

installed() { [ "$(dpkg-query -W -f '${db:Status-Status}' "$1" 2>/dev/null)" = installed ]; }

header() { echo "#include <$1>" | "${CXX:-c++}" -std=c++17 -E -x c++ - ; }

# cmake_runs LINE...: whether CMake gets through these lines of a project, our finders within reach.
cmake_runs() {
    local folder status=0
    folder=$(mktemp -d)
    printf '%s\n' 'cmake_minimum_required(VERSION 3.22)' 'project(probe LANGUAGES CXX)' \
        "list(APPEND CMAKE_MODULE_PATH \"$root/cmake\")" "$@" >"$folder/CMakeLists.txt"
    cmake -G Ninja -S "$folder" -B "$folder/build" || status=1
    rm -rf "$folder"
    return $status
}

# qt_file FOLDER PATTERN: what is loaded by name at run time; nothing that builds would miss it.
qt_file() {
    # shellcheck disable=SC2016 # the variables are CMake's
    cmake_runs 'find_package(Qt5 REQUIRED COMPONENTS Core)' \
        'get_target_property(qmake Qt5::qmake IMPORTED_LOCATION)' \
        "execute_process(COMMAND \${qmake} -query $1 OUTPUT_VARIABLE folder
            OUTPUT_STRIP_TRAILING_WHITESPACE)" \
        "file(GLOB found \"\${folder}/$2\")" \
        'if(NOT found)' 'message(FATAL_ERROR "no such file")' 'endif()'
}

font() {
    local folder
    for folder in /usr/share/fonts /usr/local/share/fonts ~/.fonts ~/.local/share/fonts; do
        [ -z "$(find -L "$folder" -name "$1" -print -quit)" ] || return 0
    done
    return 1
}

# Whether what a package carries can be used, whoever put it there.
usable() {
    case $1 in
        ninja-build) command -v ninja ;;
        rapidjson-dev) header rapidjson/document.h ;;
        libcli11-dev) header CLI/CLI.hpp ;;
        libssl-dev) header openssl/evp.h ;;
        libgtest-dev) header gtest/gtest.h ;;
        libxlsxwriter-dev) header xlsxwriter.h ;;
        qtbase5-dev) cmake_runs 'find_package(Qt5 5.15 REQUIRED COMPONENTS Core Gui PrintSupport Sql Test Widgets)' ;;
        libqt5svg5-dev) cmake_runs 'find_package(Qt5 REQUIRED COMPONENTS Svg)' ;;
        libqt5sql5-sqlite) qt_file QT_INSTALL_PLUGINS 'sqldrivers/*qsqlite*' ;;
        qttranslations5-l10n) qt_file QT_INSTALL_TRANSLATIONS qtbase_fr.qm ;;
        libqt5sql5-psql) qt_file QT_INSTALL_PLUGINS 'sqldrivers/*qsqlpsql*' ;;
        qttools5-dev) cmake_runs 'find_package(Qt5 REQUIRED COMPONENTS Core LinguistTools)' ;;
        postgresql) scripts/with-server true ;;
        libzip-dev) cmake_runs 'find_package(LibZip REQUIRED)' ;;
        libqwt-qt5-dev) cmake_runs 'find_package(Qwt 6.1 REQUIRED)' ;;
        fonts-dejavu-core) font DejaVuSans.ttf ;;
        dpkg-dev) command -v dpkg-shlibdeps ;;
        appstream) command -v appstreamcli ;;
        desktop-file-utils) command -v desktop-file-validate ;;
        libxml2-utils) command -v xmllint ;;
        *) command -v "$1" ;;
    esac >/dev/null 2>&1
}

# One dot for each package fetched or set up; everything goes to the log.
show_dots() {
    local line
    while IFS= read -r line; do
        printf '%s\n' "$line" >>"$logs/packages.log"
        case $line in Get:* | 'Setting up '*) printf . ;; esac
    done
}

apt_get() {
    as_root env LC_ALL=C DEBIAN_FRONTEND=noninteractive apt-get -y -o DPkg::Lock::Timeout=300 "$@" \
        2>&1 </dev/null | show_dots
}

# One source of several that can't be reached matters only if it alone has the packages.
apt_install() {
    : >"$logs/packages.log"
    apt_get update
    grep -qE '^(Hit|Get):' "$logs/packages.log" && apt_get install --no-install-recommends "$@"
}

# need PACKAGE...: installs those that are missing; where it can't, lists them and goes on if what
# they carry is there all the same.
need() {
    local package missing=() absent=()
    for package; do
        installed "$package" || missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0

    if can_install; then
        say "Installing ${missing[*]}"
        if apt_install "${missing[@]}" || apt_install "${missing[@]}"; then
            echo
            return
        fi
        echo
        tail -n 30 "$logs/packages.log" >&2
        say "apt-get could not install them; its last words stand above"
    fi

    say "Needed from outside the project (names as in Debian): ${missing[*]}"
    for package in "${missing[@]}"; do
        usable "$package" || absent+=("$package")
    done
    [ ${#absent[@]} -eq 0 ] ||
        fail "not found: ${absent[*]}. Install them (Debian, Ubuntu: apt-get install ${absent[*]}) and start again."
    say "All of it is there"
}

# build PRESET
build() {
    say "Building in build/$1"
    quiet "configure-$1" cmake --preset "$1"
    cmake --build --preset "$1" </dev/null || fail "the build in build/$1 failed; the messages stand above"
}
