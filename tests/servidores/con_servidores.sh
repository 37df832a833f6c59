#!/usr/bin/env bash
# Runs a command beside a private PostgreSQL and a private MariaDB on loopback, and stops both when it ends. Returns its status.
# A server that does not start is a failure (status 125), never a reason to skip.
#
#   con_servidores.sh [--solo todos|postgresql|mariadb] COMMAND [ARGUMENT ...]
#
# The command finds the servers through an ODBC set-up of its own (ODBCINI, ODBCSYSINI) with these data sources:
#
#   KestranePgTienda, KestranePgListados      empty databases in UTF-8, of the user and password that the data source holds
#   KestraneMariaTienda, KestraneMariaListados
#   KestranePgCaido, KestraneMariaCaido       nobody listens there
#   KestraneSinControlador                    a driver that the machine does not know
#   KestraneSinBiblioteca                     a driver whose library is not there
#
# and in the environment KESTRANE_USUARIO and KESTRANE_CLAVE: a second user, whose password has every mark that ODBC minds. Each run
# has a folder and ports of its own, so that any number may go on at once. Root runs the servers as their packages' users.
set -euo pipefail

solo=todos
if [[ ${1:-} == --solo ]]; then
    solo=$2
    shift 2
fi
[[ $# -gt 0 && $solo =~ ^(todos|postgresql|mariadb)$ ]] || {
    echo "uso: con_servidores.sh [--solo todos|postgresql|mariadb] ORDEN [ARGUMENTO ...]" >&2
    exit 2
}

readonly usuario=kestrane
readonly clave=de_pruebas
readonly segundo=gerente
readonly segunda_clave='cla;ve}1 ñ'
# In memory where there is room: MariaDB waits for the disk at each definition, whatever it is told.
raiz=${TMPDIR:-/tmp}
if [[ -w /dev/shm && $(df --output=avail -k /dev/shm | tail -n 1) -gt 1048576 ]]; then
    raiz=/dev/shm
fi
carpeta=$(mktemp -d "$raiz/kestrane-servidores.XXXXXX")
chmod 755 "$carpeta"
pids=() # of the servers and, last, of the command

fallo() {
    echo "con_servidores: $1" >&2
    for registro in "$carpeta"/*.log; do
        [[ ! -s $registro ]] || { echo "--- $registro" >&2 && tail -n 60 "$registro" >&2; }
    done
    exit 125
}

# Servers refuse to run as root. setpriv makes way for the program, so that its process is the one to stop.
por_postgres=() por_mysql=()
if [[ $EUID -eq 0 ]]; then
    por_postgres=(setpriv --reuid=postgres --regid=postgres --init-groups)
    por_mysql=(setpriv --reuid=mysql --regid=mysql --init-groups)
fi

carpeta_de() {
    mkdir "$carpeta/$2"
    [[ $EUID -ne 0 ]] || chown "$1" "$carpeta/$2"
}

# A port that nobody listens on. Another run may take it before the server does: the start is then tried again.
puerto_libre() {
    local puerto
    while :; do
        puerto=$((20000 + (RANDOM * 32768 + RANDOM) % 12000))
        if ! (exec 3<>"/dev/tcp/127.0.0.1/$puerto") 2>/dev/null; then
            echo "$puerto"
            return
        fi
    done
}

# shellcheck disable=SC2317  # the trap calls it
para() {
    local estado=$?
    trap - EXIT
    for pid in "${pids[@]}"; do
        kill -QUIT "$pid" 2>/dev/null || true # PostgreSQL leaves at once
        [[ $pid == "${postgres_pid:-}" ]] || kill -KILL "$pid" 2>/dev/null || true
        wait "$pid" 2>/dev/null || true
    done
    rm -rf "$carpeta"
    exit "$estado"
}
trap para EXIT
trap 'exit 129' HUP
trap 'exit 130' INT
trap 'exit 143' TERM

# espera PID LOG SIGN: until the server writes SIGN to its log; fails when it ends before.
espera() {
    for _ in {1..1200}; do
        kill -0 "$1" 2>/dev/null || return 1
        ! grep -qs "$3" "$2" || return 0
        sleep 0.05
    done
    return 1
}

# Nothing here outlives the run, so nothing waits for the disk.
arranca_postgresql() {
    pg_bin=$(find /usr/lib/postgresql -maxdepth 2 -name bin 2>/dev/null | sort -V | tail -n 1)
    [[ -n $pg_bin ]] || fallo "no se encuentra PostgreSQL; instale el paquete postgresql"
    carpeta_de postgres pg
    "${por_postgres[@]}" "$pg_bin/initdb" -D "$carpeta/pg/datos" -U postgres --auth-local=trust --auth-host=scram-sha-256 -E UTF8 \
        --locale=C.UTF-8 --no-sync --no-instructions >"$carpeta/initdb.log" 2>&1 || fallo "initdb ha fallado"
    for _ in 1 2 3; do
        puerto_pg=$(puerto_libre)
        "${por_postgres[@]}" "$pg_bin/postgres" -D "$carpeta/pg/datos" -p "$puerto_pg" -c listen_addresses=127.0.0.1 \
            -c unix_socket_directories="$carpeta/pg" -c fsync=off -c synchronous_commit=off -c full_page_writes=off \
            -c shared_buffers=32MB -c max_connections=50 -c autovacuum=off >"$carpeta/postgres.log" 2>&1 &
        postgres_pid=$!
        if espera "$postgres_pid" "$carpeta/postgres.log" 'database system is ready to accept connections'; then
            pids+=("$postgres_pid")
            prepara_postgresql
            return
        fi
    done
    fallo "PostgreSQL no arranca"
}

prepara_postgresql() {
    "${por_postgres[@]}" "$pg_bin/psql" -q -v ON_ERROR_STOP=1 -h "$carpeta/pg" -p "$puerto_pg" -U postgres postgres \
        >"$carpeta/psql.log" 2>&1 <<SQL || fallo "no se han podido crear las bases de PostgreSQL"
create role $usuario login password '$clave';
create role $segundo login password '$segunda_clave';
create database tienda owner $usuario;
create database listados owner $usuario;
SQL
}

# A folder of its own for temporary tables: a server that starts clears away what it finds there, another one's too.
arranca_mariadb() {
    command -v mariadbd >/dev/null || fallo "no se encuentra MariaDB; instale el paquete mariadb-server"
    carpeta_de mysql maria
    "${por_mysql[@]}" mariadb-install-db --no-defaults --datadir="$carpeta/maria/datos" --auth-root-authentication-method=normal \
        --skip-test-db --skip-log-bin --tmpdir="$carpeta/maria" --innodb-flush-method=nosync >"$carpeta/install_db.log" 2>&1 ||
        fallo "mariadb-install-db ha fallado"
    local mariadbd_pid
    for _ in 1 2 3; do
        puerto_maria=$(puerto_libre)
        "${por_mysql[@]}" mariadbd --no-defaults --datadir="$carpeta/maria/datos" --socket="$carpeta/maria/s" --port="$puerto_maria" \
            --bind-address=127.0.0.1 --pid-file="$carpeta/maria/pid" --tmpdir="$carpeta/maria" --skip-log-bin --skip-name-resolve \
            --innodb-flush-method=nosync --innodb-flush-log-at-trx-commit=0 --innodb-buffer-pool-size=32M \
            --innodb-log-file-size=16M --skip-innodb-doublewrite --performance-schema=off >"$carpeta/mariadbd.log" 2>&1 &
        mariadbd_pid=$!
        if espera "$mariadbd_pid" "$carpeta/mariadbd.log" 'ready for connections'; then
            pids+=("$mariadbd_pid")
            prepara_mariadb
            return
        fi
    done
    fallo "MariaDB no arranca"
}

prepara_mariadb() {
    mariadb --no-defaults --default-character-set=utf8mb4 -S "$carpeta/maria/s" -u root >"$carpeta/mariadb.log" 2>&1 <<SQL ||
create user $usuario@'127.0.0.1' identified by '$clave';
create user $segundo@'127.0.0.1' identified by '$segunda_clave';
create database tienda character set utf8mb4;
create database listados character set utf8mb4;
grant all on tienda.* to $usuario@'127.0.0.1';
grant all on listados.* to $usuario@'127.0.0.1';
grant all on tienda.* to $segundo@'127.0.0.1';
SQL
        fallo "no se han podido crear las bases de MariaDB"
}

# Where the package registered its driver; the set-up of the machine is only read.
controlador() {
    odbcinst -q -d -n "$1" 2>/dev/null | sed -n 's/^Driver=//p' | grep . || fallo "no está el controlador ODBC \"$1\"; instale $2"
}

fuente() {
    printf '[%s]\nDriver = %s\nServername = 127.0.0.1\nServer = 127.0.0.1\nPort = %s\nDatabase = %s\n' "$1" "$2" "$3" "$4"
    printf 'Username = %s\nUser = %s\nPassword = %s\n\n' "$usuario" "$usuario" "$clave"
}

escribe_odbc() {
    local pg maria caido
    pg=$(controlador "PostgreSQL Unicode" odbc-postgresql)
    maria=$(controlador "MariaDB Unicode" odbc-mariadb)
    caido=$(puerto_libre)
    mkdir "$carpeta/odbc"
    printf '[PostgreSQL Unicode]\nDriver = %s\n\n[MariaDB Unicode]\nDriver = %s\n' "$pg" "$maria" >"$carpeta/odbc/odbcinst.ini"
    {
        fuente KestranePgTienda "PostgreSQL Unicode" "${puerto_pg:-$caido}" tienda
        fuente KestranePgListados "PostgreSQL Unicode" "${puerto_pg:-$caido}" listados
        fuente KestraneMariaTienda "MariaDB Unicode" "${puerto_maria:-$caido}" tienda
        fuente KestraneMariaListados "MariaDB Unicode" "${puerto_maria:-$caido}" listados
        fuente KestranePgCaido "PostgreSQL Unicode" "$caido" tienda
        fuente KestraneMariaCaido "MariaDB Unicode" "$caido" tienda
        fuente KestraneSinControlador "No Instalado" "$caido" tienda
        fuente KestraneSinBiblioteca /no/existe/libcontrolador.so "$caido" tienda
    } >"$carpeta/odbc/odbc.ini"
}

[[ $solo == mariadb ]] || arranca_postgresql
[[ $solo == postgresql ]] || arranca_mariadb
escribe_odbc

export ODBCINI=$carpeta/odbc/odbc.ini ODBCSYSINI=$carpeta/odbc
export KESTRANE_USUARIO=$segundo KESTRANE_CLAVE=$segunda_clave
"$@" <&0 & # in the background, so that a signal to this script is heard at once
pids+=($!)
estado=0
wait $! || estado=$?
exit "$estado"
