#!/usr/bin/env bash
# Packs the newest logs of each host.
set -euo pipefail

readonly target=${1:-/var/tmp/logs} # where the archives go
hosts=(alpha beta gamma)

pack() {
    local host=$1 count=0
    for file in "$target/$host"/*.log; do
        if [ -s "$file" ]; then
            gzip -9 --keep "$file" && count=$((count + 1))
        else
            echo "empty: $file" >&2
        fi
    done
    printf '%s packed %d files\n' "$host" "$count"
}

for host in "${hosts[@]}"; do
    case $host in
        alpha | beta) pack "$host" ;;
        *) echo 'not packed: '"$host" ;;
    esac
done
while read -r line; do export LAST="$line"; done <<< "$(ls "$target")"
exit 0
