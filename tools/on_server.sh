#!/usr/bin/env bash
# Plays a command beside a PostgreSQL server that lives as long as it; libpq's own variables name the server, and
# QUILLMETRA_TEST_SERVER has the tests use it. Ends with 77 where no server is installed.
# Usage: tools/on_server.sh COMMAND [ARGUMENT...]
set -euo pipefail

if ! command -v pg_virtualenv >/dev/null || ! compgen -G '/usr/lib/postgresql/*/bin/postgres' >/dev/null; then
    echo "No server is installed (postgresql, postgresql-common): nothing is played on one"
    exit 77
fi

Folder=$(mktemp -d)
mkfifo "$Folder/end"
AsPlainUser=()
if ((EUID == 0)); then  # as whom no server runs
    chown -R postgres: "$Folder"
    AsPlainUser=(setpriv --reuid=postgres --regid=postgres --clear-groups)
fi

# A port at random: two that start at once would take the same free one. The server ends when the other end of the pipe does.
# shellcheck disable=SC2016
(cd -- "$Folder" && exec "${AsPlainUser[@]}" env HOME="$Folder" PGPORT=$((20000 + RANDOM % 12000)) pg_virtualenv -t sh -c '
    env | grep "^PG" >"$0/part" && mv "$0/part" "$0/names"
    read -r _ <"$0/end" || true' "$Folder" >"$Folder/log" 2>&1) &
Server=$!
EndServer() {
    if kill -0 "$Server" 2>/dev/null; then
        echo >"$Folder/end"
        wait "$Server" || true
    fi
    rm -rf -- "$Folder"
}
trap EndServer EXIT

for _ in {1..300}; do
    [[ -f $Folder/names ]] && break
    kill -0 "$Server" 2>/dev/null || break
    sleep 0.1
done
if [[ ! -f $Folder/names ]]; then
    cat "$Folder/log"
    exit 1
fi
while IFS='=' read -r Name Value; do
    case $Name in PGHOST | PGPORT | PGUSER | PGPASSWORD | PGDATABASE) export "$Name=$Value" ;; esac
done <"$Folder/names"
export QUILLMETRA_TEST_SERVER=1
"$@"
