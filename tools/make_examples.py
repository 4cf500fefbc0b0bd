#!/usr/bin/env python3
"""Writes the example flow tests from tables of published figures.

tools/make_examples.py HEADS.csv HEADS_META.csv FOLDER

HEADS.csv has one line for each lift: id, head, source_url, pressure_inh2o, lift_in, intake_cfm,
exhaust_cfm. HEADS_META.csv has one line for each head: id, head, intake_valve_in,
exhaust_valve_in, intake_port_cc, exhaust_port_cc, bore_in, notes. What a table does not tell stays
at the stored default of the program.
"""
import csv
import decimal
import pathlib
import sys

D = decimal.Decimal
ROWS = range(16, 31)
INCH = D("25.4")
CUBIC_FOOT = D("0.02831684659")

# The stored defaults of a sheet; lengths in inches.
DEFAULTS = {
    "Text102_0": "", "Text102_1": "203", "Text102_3": "2.02", "Text102_4": "0.342",
    "Text102_6": "1.55", "Text102_8": "5.37", "Text102_10": "No",
    "Text104_0": "4.11", "Text104_1": "75", "Text104_3": "1.6", "Text104_4": "0.342",
    "Text104_6": "1.28", "Text104_8": "2.88",
    "Text106_0": "0.4", "Text106_1": "0.4", "Text106_2": "1.215", "Text106_3": "1.37",
    "Text106_6": "1", "Text112_6": "4.00",
    "Text108_0": "0.4", "Text108_1": "0.4", "Text108_2": "2.17", "Text108_3": "1.34",
    "Text108_6": "1", "Text108_7": "28", "Text108_8": "28",
    "Text110_5": "9.0", "Text110_6": "700", "Text110_8": "1.0",
    "Text202_4": "52", "Text202_5": "0.045", "Text204_4": "42", "Text204_5": "0.065",
}
# Places that the program shows of a length in metric units.
METRIC_PLACES = {"Text112_6": 4, "Text202_5": 4, "Text204_5": 4}
LENGTHS = ("Text102_3 Text102_4 Text102_6 Text102_8 Text104_0 Text104_3 Text104_4 Text104_6 "
           "Text104_8 Text106_0 Text106_1 Text106_2 Text106_3 Text108_0 Text108_1 Text108_2 "
           "Text108_3 Text112_6 Text202_5 Text204_5").split()

# No comma may stand in these texts: the program reads the first one as a decimal mark.
DIMENSIONS = ("fixture bore; stems; throats; port lengths; port widths and heights and corners; "
              "seats; engine bore; compression ratio; Max Lift; exhaust pipe")
NOT_MEASURED = ("Swirl and floating depression are not given and stand at zero. Every figure that "
                "hangs on a default says nothing about this head.")
JEEP_CASTINGS = ("The page names castings 2686 (87-90); 7120 (91-95); 0630 (96-99) and 0331 "
                 "(00-01) before its tables. The heading of this table is lost: which casting it "
                 "is stays unknown.")
JEEP_KNOWN = ("Known: flow at the lifts of the source; valve diameters 1.91 and 1.5 in as the page "
              "gives them for the stock head in general.")
JEEP_UNKNOWN = f"Unknown and left at the stored defaults: test pressure; port volumes; {DIMENSIONS}."
BMW_KNOWN = ("Known: flow at lifts of 1 to 12 mm rounded to 5 cfm by the source; test pressure 28 "
             "in of water; intake port 100 cc; two intake and two exhaust valves by the head's "
             "name. The source is the parts library of a simulator and not a bench.")
BMW_UNKNOWN = ("Unknown and left at the stored defaults: valve diameters; exhaust port volume; "
               f"{DIMENSIONS}.")


def jeep(number):
    # The short address of the page, which needs no title behind it.
    return {"id": f"A{4 + number}", "file": f"jeep_4l_stock_table_{number}.dat",
            "source": "https://www.scribd.com/doc/15418414 (jeep engine and cam)",
            "part": f"Jeep 4.0L stock iron head - table {number}",
            "comment": [f"Table {number} of the page.", JEEP_CASTINGS, JEEP_KNOWN, JEEP_UNKNOWN]}


EXAMPLES = [
    jeep(1), jeep(2), jeep(3),
    {"id": "C3", "file": "bmw_m52b28.dat", "part": "BMW M52B28 four-valve head", "four_valves": True,
     "comment": ["The lifts of the source are whole millimetres; here they are rounded to "
                 "thousandths of an inch.", BMW_KNOWN, BMW_UNKNOWN]},
    {"id": "C3", "file": "bmw_m52b28_metric.dat", "part": "BMW M52B28 four-valve head - metric",
     "four_valves": True, "metric": True,
     "comment": ["A test in metric units: set the box Metric of Main before loading it. Lifts and "
                 "lengths are millimetres; flow is cubic metres per minute (source: cfm).",
                 BMW_KNOWN, BMW_UNKNOWN]},
]


def plain(number):
    """A number as a user would type it."""
    text = f"{number:f}"
    return text.rstrip("0").rstrip(".") if "." in text else text


def shown(number, places):
    """A number as the program shows it: rounded half away from zero, with one decimal at least."""
    text = f"{number.quantize(D(1).scaleb(-places), decimal.ROUND_HALF_UP):f}"
    whole, decimals = text.split(".")
    return whole + "." + (decimals.rstrip("0") or "0")


def lift_of(row, example):
    millimetres = D(row["lift_in"]) * INCH
    if example.get("metric"):
        return plain(millimetres.quantize(D(1)))
    if example["id"] == "C3":  # its inches were rounded from whole millimetres
        return plain((millimetres.quantize(D(1)) / INCH * 1000).quantize(D(1)))
    return plain(D(row["lift_in"]) * 1000)


def flow_of(text, example):
    return shown(D(text) * CUBIC_FOOT, 4) if example.get("metric") else plain(D(text))


def cells_of(example, rows, head):
    cells = dict(DEFAULTS)
    cells["Text102_0"] = example["part"]
    for key, column in (("Text102_1", "intake_port_cc"), ("Text104_1", "exhaust_port_cc"),
                        ("Text102_3", "intake_valve_in"), ("Text104_3", "exhaust_valve_in"),
                        ("Text112_6", "bore_in")):
        if head[column]:
            cells[key] = plain(D(head[column]))
    if rows[0]["pressure_inh2o"]:
        cells["Text108_7"] = plain(D(rows[0]["pressure_inh2o"]))
    if example.get("four_valves"):
        cells["Text106_6"] = cells["Text108_6"] = "2"
    if example.get("metric"):
        for key in LENGTHS:
            cells[key] = shown(D(cells[key]) * INCH, METRIC_PLACES.get(key, 3))
        cells["Text110_6"] = shown(D(cells["Text110_6"]) * INCH / 1000, 3)
    for number in ROWS:
        for column in ("101", "106", "107", "207", "210", "211"):
            cells[f"Text{column}_{number}"] = "0"
    for number, row in enumerate(rows, start=17):
        cells[f"Text101_{number}"] = lift_of(row, example)
        cells[f"Text106_{number}"] = flow_of(row["intake_cfm"], example)
        cells[f"Text107_{number}"] = flow_of(row["exhaust_cfm"], example)
    return cells


def keys_in_order():
    """The records of a .dat file in the order in which the program writes them."""
    def header(column):
        return [key for key in DEFAULTS if key.startswith(f"Text{column}_")]

    def lifts(*columns):
        return [f"Text{column}_{row}" for row in ROWS for column in columns]

    return (lifts(101) + header(102) + header(104) + header(106) + header(112) + lifts(106)
            + lifts(107) + header(108) + header(110) + header(202) + header(204)
            + lifts(207, 210, 211))


def text_of(example, rows, head):
    cells = cells_of(example, rows, head)
    source = example.get("source", rows[0]["source_url"])
    comment = [f"Source: {source}", *example["comment"], NOT_MEASURED]
    if any("," in line for line in [example["part"], *comment]):
        sys.exit(f"make_examples.py: a comma in the texts of {example['file']}")
    lines = [f"{key} = {cells[key]}" for key in keys_in_order()]
    lines.append("Comments = " + "\r\n".join(comment))
    return "\r\n".join(lines) + "\r\n"


def read_table(path):
    with open(path, newline="", encoding="utf-8") as file:
        return list(csv.DictReader(file))


def main():
    if len(sys.argv) != 4:
        sys.exit("usage: tools/make_examples.py HEADS.csv HEADS_META.csv FOLDER")
    lifts, heads = read_table(sys.argv[1]), {head["id"]: head for head in read_table(sys.argv[2])}
    folder = pathlib.Path(sys.argv[3])
    for example in EXAMPLES:
        rows = [row for row in lifts if row["id"] == example["id"]]
        text = text_of(example, rows, heads[example["id"]])
        (folder / example["file"]).write_bytes(text.encode())
        print(f"{example['file']}: {len(rows)} lifts")
    # The average of a side without any flow is 0 / 0, which the program reports as an error.
    made = {example["id"] for example in EXAMPLES}
    for head in heads.keys() - made:
        print(f"{heads[head]['head']}: left out, it has no exhaust flow")


if __name__ == "__main__":
    main()
