#!/usr/bin/env bash
# Builds Ballhaven, puts its program folder at dist/Ballhaven and starts it there.
#
#   ./run.sh            builds and starts
#   ./run.sh --sample   puts sample games into the folder first, unless it has data already
#   ./run.sh --build    builds and fills the folder, and starts nothing (goes with --sample too)
#
# The data lie in the program folder. A rebuild replaces the executable there and nothing else.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
source scripts/packages.sh

sample=no
start=yes
for argument in "$@"; do
    case $argument in
        --sample) sample=yes ;;
        --build) start=no ;;
        *)
            sed -n '2,6s/^# \{0,1\}//p' run.sh
            [[ $argument == --help ]] && exit 0
            exit 2
            ;;
    esac
done

has_display() {
    [[ -n ${DISPLAY:-} || -n ${WAYLAND_DISPLAY:-} ]]
}

needed=("${run_packages[@]}")
if ! has_display; then
    needed+=(qt6-qpa-plugins)
elif [[ -z ${DISPLAY:-} ]]; then
    needed+=(qt6-wayland)
fi
need_packages "${needed[@]}"

cmake --preset release >/dev/null
cmake --build --preset release

# A running program keeps the file that it was started from: the new one is put beside it and takes its name.
folder=dist/Ballhaven
mkdir -p "$folder"
if ! cmp -s build/release/ballhaven "$folder/ballhaven"; then
    cp build/release/ballhaven "$folder/.ballhaven.new"
    mv -f "$folder/.ballhaven.new" "$folder/ballhaven"
fi

if [[ $sample == yes ]]; then
    if [[ -e $folder/LOTTOSYS ]]; then
        echo "Ballhaven: $folder has data already, which stay as they are; no sample games were put there."
    else
        build/release/tools/ballhaven_sample "$folder"
    fi
fi

if [[ $start == no ]]; then
    echo "Ballhaven is ready: $folder/ballhaven"
    exit 0
fi

if ! has_display && [[ -z ${QT_QPA_PLATFORM:-} ]]; then
    port=5900
    while (: <"/dev/tcp/127.0.0.1/$port") 2>/dev/null; do
        port=$((port + 1))
    done
    # The toolkit's VNC server listens at every address and asks for no password: the library keeps it to this machine.
    export QT_QPA_PLATFORM="vnc:port=$port:size=1024x768"
    export LD_PRELOAD=$PWD/build/release/tools/libballhaven_loopback.so
    echo "Ballhaven: this machine has no display, so the window is served over VNC, on the loopback address only."
    echo "Look at it with a VNC viewer at 127.0.0.1:$port; from another machine, first: ssh -L $port:127.0.0.1:$port HOST"
fi
exec "$folder/ballhaven"
