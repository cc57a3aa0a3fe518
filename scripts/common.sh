# SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
# SPDX-License-Identifier: MIT

# Functions of the commands. Source it from the top folder.

# install_packages PACKAGE...: installs what is missing, on Debian and its relatives.
install_packages() {
    local missing=() package
    for package in "$@"; do
        dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'ok installed' ||
            missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return
    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        as_root=(sudo)
        command -v sudo >/dev/null || {
            echo "Please install as root: apt-get install ${missing[*]}" >&2
            exit 1
        }
    fi
    echo "Installing ${missing[*]}" >&2
    "${as_root[@]}" apt-get update -qq
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

build_packages=(
    cmake
    fonts-dejavu-core
    fonts-wqy-microhei # for Chinese
    g++
    libxml2-dev
    librsvg2-bin # for the window's icon
    ninja-build
    qtbase5-dev
    qttranslations5-l10n # for Qt's own dialogs
    qttools5-dev
    qttools5-dev-tools
)

packaging_packages=(
    dpkg-dev
    file
)

# build PRESET [TARGET...]: configures, since the presets or CI may have changed, and builds what has
# changed.
build() {
    local preset=$1
    shift
    mkdir -p build
    cmake --preset "$preset" >build/configure.log 2>&1 || {
        cat build/configure.log >&2
        exit 1
    }
    cmake --build --preset "$preset" ${@:+--target "$@"}
}
