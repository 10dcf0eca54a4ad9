# What the scripts need from the system, and how they get it. Sourced by run.sh, test.sh and .ci/run.
# An entry "a|b" stands for one package that bears either name, by the age of the system.

build_packages=(g++ cmake ninja-build qt6-base-dev "qt6-svg-dev|libqt6svg6-dev"
    libcli11-dev libarchive-dev zlib1g-dev)
run_packages=("${build_packages[@]}" fonts-liberation)
test_packages=("${run_packages[@]}" libgtest-dev librapidcheck-dev xvfb openbox xdotool x11-utils x11-apps
    x11-session-utils x11-xserver-utils poppler-utils groff-base at-spi2-core gir1.2-atspi-2.0 python3-gi "dbus-daemon|dbus")
check_packages=("${test_packages[@]}" clang-format-14 clang-tidy-14 ccache)

is_installed() {
    [[ $(dpkg-query -W -f '${db:Status-Status}' "$1" 2>/dev/null) == installed ]]
}

# Whether one of the names of an entry is installed.
is_satisfied() {
    local name
    for name in ${1//|/ }; do
        if is_installed "$name"; then
            return 0
        fi
    done
    return 1
}

# The name under which apt knows an entry, the first one if it knows none.
known_name() {
    local name
    for name in ${1//|/ }; do
        if [[ -n $(apt-cache madison "$name" 2>/dev/null) ]]; then
            echo "$name"
            return
        fi
    done
    echo "${1%%|*}"
}

# Says in one line what is to be installed by hand, and why. The result is a failure.
ask_for_packages() {
    local reason=$1
    shift
    echo "Ballhaven: $reason. Please install by hand: ${*%%|*}" >&2
    return 1
}

# Runs a command as root: directly, or by sudo, which asks for a password only where somebody can type one.
as_root() {
    if [[ $EUID == 0 ]]; then
        "$@"
    elif [[ -t 0 ]]; then
        sudo "$@"
    else
        sudo -n "$@"
    fi
}

# Makes sure of the packages that are given, and installs what is missing. Fails, after one line that says what to do,
# where that cannot be.
need_packages() {
    local entry missing=() names=()
    if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
        for entry in c++ cmake ninja; do
            if ! command -v "$entry" >/dev/null; then
                ask_for_packages "this system has no apt-get" "$@"
                return 1
            fi
        done
        return 0
    fi

    for entry in "$@"; do
        if ! is_satisfied "$entry"; then
            missing+=("$entry")
        fi
    done
    if [[ ${#missing[@]} == 0 ]]; then
        return 0
    fi
    if [[ $EUID != 0 ]] && ! command -v sudo >/dev/null; then
        ask_for_packages "installing packages needs root, and there is no sudo" "${missing[@]}"
        return 1
    fi

    echo "Ballhaven: installing ${missing[*]%%|*}"
    if ! as_root apt-get update -q; then
        ask_for_packages "apt-get could not read its lists of packages" "${missing[@]}"
        return 1
    fi
    for entry in "${missing[@]}"; do
        names+=("$(known_name "$entry")")
    done
    if ! as_root env DEBIAN_FRONTEND=noninteractive apt-get install -q -y --no-install-recommends "${names[@]}"; then
        ask_for_packages "apt-get could not install the packages" "${names[@]}"
        return 1
    fi
}
