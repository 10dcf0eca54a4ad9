#!/usr/bin/env bash
# Builds Ballhaven, puts its program folder at dist/Ballhaven and starts it there.
#
#   ./run.sh            builds and starts
#   ./run.sh --mended   makes a new folder a mended one, which keeps the dates of today: for who begins now
#   ./run.sh --sample   puts sample games into the folder first, unless it has data already (goes with --mended)
#   ./run.sh --build    builds and fills the folder, and starts nothing (goes with both)
#
# The data lie in the program folder. A rebuild replaces the executables there and nothing else.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
source scripts/packages.sh

sample=no
mended=no
start=yes
for argument in "$@"; do
    case $argument in
        --sample) sample=yes ;;
        --mended) mended=yes ;;
        --build) start=no ;;
        *)
            sed -n '2,7s/^# \{0,1\}//p' run.sh
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

folder=dist/Ballhaven
new_folder=no
[[ -d $folder ]] || new_folder=yes
mkdir -p "$folder"

# Puts a built file into the folder. A running program keeps the file that it was started from: the new one is put beside
# it and takes its name.
put_there() {
    local name=${1##*/}
    if ! cmp -s "$1" "$folder/$name"; then
        cp "$1" "$folder/.$name.new"
        mv -f "$folder/.$name.new" "$folder/$name"
    fi
}
put_there build/release/ballhaven
put_there build/release/ballhaven-data
if [[ -e docs/ballhaven-data.1 ]]; then
    put_there docs/ballhaven-data.1
fi

has_data() {
    compgen -G "$folder/LOTTOSYS" || compgen -G "$folder/*.CDB"
} >/dev/null
is_mended() {
    [[ $(head -c 64 "$folder/LOTTOSYS" 2>/dev/null | tail -c 1) == M ]]
}

if [[ $mended == yes ]] && has_data && ! is_mended; then
    echo "Ballhaven: $folder has data already, which stay as they are. This mends it, and says what becomes different:" >&2
    echo "  $folder/ballhaven-data mend" >&2
    exit 1
fi
if [[ $mended == no && $new_folder == yes ]]; then
    echo "Ballhaven: $folder is an ordinary folder: a date after 18 May 2011 does not last in it; $folder/ballhaven-data mend makes it one for the draws of today."
fi
if [[ $sample == yes ]] && has_data; then
    echo "Ballhaven: $folder has data already, which stay as they are; no sample games were put there."
elif [[ $sample == yes && $mended == yes ]]; then
    build/release/tools/ballhaven_sample --mended "$folder"
elif [[ $sample == yes ]]; then
    build/release/tools/ballhaven_sample "$folder"
elif [[ $mended == yes ]] && ! has_data; then
    build/release/tools/ballhaven_mended "$folder"
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
