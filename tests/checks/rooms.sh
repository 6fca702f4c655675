#!/usr/bin/env bash
# Fails on an include that runs upward through the rooms of src/, and on Windows headers outside the
# adapters and peers. The list is the order of the rooms, the lowest first: a room may include only
# from itself and from rooms before it. An adapter may use only its own port or model and base.
set -eu
cd "$(dirname "$0")/../.."

rooms=(base platform toolkit config simlink/channel simlink/actions simlink/devices ui ui/profiles
    panels/multi panels/radio panels/switch panels/bip core app)
adapters='platform/win32|platform/virtual|toolkit/win32'

# Sets `room` to the room of a path relative to src/.
room_of() {
    local first=${1%%/*} rest=${1#*/}
    room=$first
    case $1 in
        panels/* | simlink/* | ui/profiles/* | platform/win32/* | platform/virtual/* | toolkit/win32/*) room+=/${rest%%/*} ;;
    esac
}

allowed() {  # ROOM INCLUDED_ROOM
    [[ $1 == "$2" || $1 == app ]] && return 0
    case $1 in
        platform/*) [[ $2 == platform || $2 == base ]]; return ;;
        toolkit/*) [[ $2 == toolkit || $2 == base ]]; return ;;
    esac
    [[ $2 =~ ^($adapters)$ ]] && return 1
    # A panel knows nothing of another panel.
    [[ $1 == panels/* && $2 == panels/* ]] && return 1
    local lower
    for lower in "${rooms[@]}"; do
        [[ $lower == "$1" ]] && return 1
        [[ $lower == "$2" ]] && return 0
    done
    return 1
}

bad=0
declare -A verdicts
while IFS=: read -r file include; do
    file=${file#src/}
    include=${include#*\"}
    include=${include%%\"*}
    room_of "$file"
    pair=$room
    room_of "$include"
    pair+=" $room"
    if [[ -z ${verdicts[$pair]:-} ]]; then
        # shellcheck disable=SC2086
        allowed $pair && verdicts[$pair]=fine || verdicts[$pair]=bad
    fi
    [[ ${verdicts[$pair]} == fine ]] && continue
    echo "src/$file includes $include: that room is not below its own" >&2
    bad=1
done < <(grep -r --include='*.h' --include='*.cpp' -E '^#include "' src)

# Every <...h> is the system's: the language's own headers have no ending.
if grep -rnE '^#include <.*\.h>' src | grep -vE '^src/(platform/win32|toolkit/win32|app)/'; then
    echo "headers of the system outside the adapters and peers (above)" >&2
    bad=1
fi
exit $bad
