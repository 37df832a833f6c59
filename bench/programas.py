#!/usr/bin/env python3
"""Runs the programs of a build folder as a shop would and prints, for each, its time, its most memory and its goal.

    bench/programas.py [FOLDER]          measures; FOLDER is build/ci unless another is given
    bench/programas.py --humo [FOLDER]   the small sizes alone, to see that all of it runs
"""
import os
import resource
import sqlite3
import subprocess
import sys
import tempfile
import time

PROVEEDORES = 20_000
PROVEEDORES_EN_PAPEL = 100_000


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


def fill_with_suppliers(folder, data, suppliers):
    """An empty shop with so many suppliers, written in one transaction."""
    subprocess.run([f"{folder}/bin/crear-tienda", "--vacia", "--datos", data], check=True, stdout=subprocess.DEVNULL)
    rows = ((code, f"P{code}", f"Distribuciones Núñez {code}", f"Calle Mayor {code}", "46001", "963000000", "B46000000", 0)
            for code in range(1, suppliers + 1))
    shop = sqlite3.connect(os.path.join(data, "TiendaKestrane.db"))
    with shop:
        shop.executemany("insert into proveedores (codigo, codigocliente, nombre, direccion, cp, telefono, nif, borrar) "
                         "values (?, ?, ?, ?, ?, ?, ?, ?)", rows)
    shop.close()


def till(folder, sizes):
    """The cash ticket by ticket: the rows grow with the period, the memory is not to."""
    for size, desde in sizes:
        with tempfile.TemporaryDirectory() as data:
            subprocess.run(crea(folder, f"{data}/datos", size), check=True, stdout=subprocess.DEVNULL)
            for name, since in (("a month", "2024-05-15"), ("a year", desde)):
                measure(f"listados-lote, cmd_Caja4 over {name} of `{size}`", "a year at most 1.3 times the memory of a month",
                        listado(folder, f"{data}/datos", "cmd_Caja4", "--desde", since, "--hasta", "2024-06-14"))


def menu(folder, program_folder):
    """The start of the desktop program without a screen, and its parts, as the last of several starts tells them."""
    os.environ["QT_QPA_PLATFORM"] = "offscreen"
    command = [f"{folder}/bin/kestrane_arranque_menu", program_folder]
    measure("listados, up to a menu that waits", "under 0.5 s", command, 5)
    print(f"|   its parts: {subprocess.run(command, check=True, capture_output=True, text=True).stdout.strip()} | | | |")


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
        subprocess.run(crea(folder, f"{data}/datos", "mes"), check=True, stdout=subprocess.DEVNULL)
        menu(folder, data)
    with tempfile.TemporaryDirectory() as data:
        fill_with_suppliers(folder, data, PROVEEDORES)
        measure(f"listados-lote, {PROVEEDORES} rows in JSON", "under 0.3 s", listado(folder, data, "cmd_Generales10"), 1 if smoke else 5)
        measure(f"listados-lote, {PROVEEDORES} rows in CSV", "under 0.3 s",
                listado(folder, data, "cmd_Generales10", "--formato", "csv"), 1 if smoke else 5)
    till(folder, [("dia", "2023-06-15")] if smoke else [("anio", "2023-06-15")])
    on_paper = 1_000 if smoke else PROVEEDORES_EN_PAPEL
    with tempfile.TemporaryDirectory() as data:
        fill_with_suppliers(folder, data, on_paper)
        for form, goal in (("xlsx", "under 5 s"), ("pdf", ""), ("html", "")):
            measure(f"listados-lote, {on_paper} rows in {form.upper()}", goal,
                    listado(folder, data, "cmd_Generales10", "--formato", form, "--salida", f"{data}/p.{form}"))


main()
