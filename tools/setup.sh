# Shared by run, test, bench and .ci/run: installs what is missing and builds a preset.
# Sourced, never started by itself; leaves the caller in the project's own folder.
# shellcheck shell=bash disable=SC2034

cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.." || exit 1

# Debian packages by purpose; the scripts use those that the caller names.
BuildPackages=(build-essential cmake ninja-build ccache qt6-base-dev qt6-svg-dev libqcustomplot-dev
               libsqlite3-dev libpq-dev libminizip-dev libexpat1-dev libxlsxwriter-dev
               fontconfig fonts-dejavu-core)
TestPackages=(libgtest-dev libgmock-dev xvfb poppler-utils unzip locales file desktop-file-utils
              appstream python3)
BenchPackages=(libbenchmark-dev)
WindowsPackages=(g++-mingw-w64-x86-64-posix mingw-w64-tools wine wine64 tcl dpkg-dev xz-utils googletest)
WindowsSetupPackages=(qt6-base-dev-tools nsis zip)
ServerPackages=(postgresql-common postgresql-15)
CheckPackages=(clang clang-format clang-tidy libclang-rt-14-dev git python3)

# Where the release build puts its programs.
ProgramFolder=build/release/bin

IsInstalled() {
    dpkg-query -W -f '${db:Status-Status}\n' "$1" 2>/dev/null | grep -qx installed
}

# InstallMissing PACKAGE...: touches the network only when a package is missing.
# Ends the script with the line to type when it may not install.
InstallMissing() {
    local Package Missing=() AsRoot=()
    if ! command -v dpkg-query apt-get >/dev/null; then
        echo "Not a Debian system: the packages needed go by these names there: $*" >&2
        return
    fi
    for Package in "$@"; do
        IsInstalled "$Package" || Missing+=("$Package")
    done
    if ((${#Missing[@]} == 0)); then
        return
    fi
    if ((EUID != 0)); then
        if ! command -v sudo >/dev/null; then
            echo "Packages are missing, and installing them needs root. As root, run:" >&2
            echo "apt-get update && apt-get install -y --no-install-recommends ${Missing[*]}" >&2
            exit 1
        fi
        AsRoot=(sudo)
    fi
    echo "Installing: ${Missing[*]}"
    "${AsRoot[@]}" apt-get -q update
    "${AsRoot[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get -q install -y --no-install-recommends "${Missing[@]}"
}

# Installs a server for the tests, which start their own: without a database that would run from then on.
InstallServer() {
    local Folder=/etc/postgresql-common/createcluster.d AsRoot=()
    ((EUID == 0)) || AsRoot=(sudo)
    if ! IsInstalled postgresql-15 && command -v dpkg-query "${AsRoot[@]}" >/dev/null; then
        "${AsRoot[@]}" mkdir -p "$Folder"
        echo 'create_main_cluster = false' | "${AsRoot[@]}" tee "$Folder/quillmetra.conf" >/dev/null
    fi
    InstallMissing "${ServerPackages[@]}"
}

# Configure PRESET [-DNAME=VALUE...]: the presets ask for Ninja; without it make serves. ccache where present.
Configure() {
    local Preset=$1 Generator=()
    shift
    if command -v ccache >/dev/null; then
        export CMAKE_CXX_COMPILER_LAUNCHER=ccache
    fi
    if ! command -v ninja >/dev/null; then
        Generator=(-G "Unix Makefiles")
    fi
    cmake --preset "$Preset" "${Generator[@]}" "$@"
}

# Build PRESET [TARGET...]: everything when no target is named.
Build() {
    local Preset=$1
    shift
    cmake --build --preset "$Preset" --parallel "$(nproc)" ${1+--target "$@"}
}

# RunTests PRESET [CTEST-OPTION...]
RunTests() {
    local Preset=$1
    shift
    ctest --preset "$Preset" --parallel "$(nproc)" "$@"
}
