#!/usr/bin/env python3
"""lee_xlsx.py FILE: what stands in a workbook, as another program reads it: the first sheet, then a line for each cell, then the
other sheets, each under its name."""
import sys

from openpyxl import load_workbook


def describe(cell):
    value = cell.value.isoformat() if cell.is_date else cell.value
    bold = "bold" if cell.font.bold else ""
    return "\t".join([cell.coordinate, type(cell.value).__name__, str(value), cell.number_format, bold])


def print_cells(sheet):
    for row in sheet.iter_rows():
        for cell in row:
            if cell.value is not None:
                print(describe(cell))


def main():
    book = load_workbook(sys.argv[1], data_only=True)
    sheet = book.worksheets[0]
    print("sheet", book.sheetnames, sheet.freeze_panes, sheet.print_title_rows, sheet.page_setup.orientation, sheet.page_setup.paperSize, sep="\t")
    print("title", book.properties.title, sep="\t")
    print("levels", *[sheet.row_dimensions[row].outlineLevel for row in range(1, sheet.max_row + 1)], sep="\t")
    print_cells(sheet)
    for other in book.worksheets[1:]:
        print("other", other.title, other.freeze_panes, sep="\t")
        print_cells(other)


main()
