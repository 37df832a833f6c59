#!/usr/bin/env python3
"""Runs the programs of a build folder as a shop would and prints, for each, its time, its most memory and its goal.

    bench/programas.py [FOLDER]          measures; FOLDER is build/ci unless another is given
    bench/programas.py --humo [FOLDER]   the small sizes alone, to see that all of it runs
"""
import os
import resource
import subprocess
import sys
import tempfile
import time

PROVEEDORES = 20_000


def peak_of_children():
    return resource.getrusage(resource.RUSAGE_CHILDREN).ru_maxrss // 1024


def measure(name, goal, command, repetitions=1):
    """The best of `repetitions`. Each program runs in a child of its own, so that the peak is this program's."""
    times = []
    reader, writer = os.pipe()
    child = os.fork()
    if child == 0:
        for _ in range(repetitions):
            start = time.monotonic()
            done = subprocess.run(command, stdout=subprocess.DEVNULL)
            times.append(time.monotonic() - start)
            if done.returncode != 0:
                os._exit(1)
        os.write(writer, f"{min(times)} {peak_of_children()}".encode())
        os._exit(0)
    os.close(writer)
    if os.waitpid(child, 0)[1] != 0:
        sys.exit(f"{' '.join(command)} failed")
    seconds, peak = os.read(reader, 200).decode().split()
    os.close(reader)
    print(f"| {name} | {float(seconds):.2f} s | {peak} MB | {goal} |", flush=True)


def crea(folder, data, size):
    return [f"{folder}/bin/crear-tienda", "--datos", data, "--tamano", size, "--reemplazar"]


def listado(folder, data, *words):
    return [f"{folder}/bin/listados-lote", "--datos", data, *words]


def fill_with_suppliers(folder, data):
    """An empty shop with PROVEEDORES suppliers."""
    subprocess.run([f"{folder}/bin/crear-tienda", "--vacia", "--datos", data], check=True, stdout=subprocess.DEVNULL)
    statements = os.path.join(data, "altas.sql")
    with open(statements, "w", encoding="utf-8") as file:
        for code in range(1, PROVEEDORES + 1):
            file.write("insert into proveedores (codigo, codigocliente, nombre, direccion, cp, telefono, nif, borrar) values "
                       f"({code}, 'P{code}', 'Distribuciones Núñez {code}', 'Calle Mayor {code}', '46001', '963000000', 'B46000000', 0)\n")
    subprocess.run(listado(folder, data, "--escribir", "--sql-fichero", statements), check=True, stdout=subprocess.DEVNULL)


def main():
    words = sys.argv[1:]
    smoke = "--humo" in words
    folder = next((w for w in words if w != "--humo"), "build/ci")
    print("| program | time | memory | goal |\n|---|---|---|---|")
    with tempfile.TemporaryDirectory() as data:
        sizes = [("dia", "")] if smoke else [("mes", ""), ("anio", "under 60 s"), ("cadena", "under 600 s")]
        for size, goal in sizes:
            measure(f"crear-tienda --tamano {size}", goal, crea(folder, f"{data}/{size}", size))
    with tempfile.TemporaryDirectory() as data:
        fill_with_suppliers(folder, data)
        measure(f"listados-lote, {PROVEEDORES} rows in JSON", "under 0.3 s", listado(folder, data, "cmd_Generales10"), 1 if smoke else 5)
        measure(f"listados-lote, {PROVEEDORES} rows in CSV", "under 0.3 s",
                listado(folder, data, "cmd_Generales10", "--formato", "csv"), 1 if smoke else 5)


main()
