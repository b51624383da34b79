#!/usr/bin/env python3
"""Makes a plant of 300 filters out of the six of examples/plant: large-plant.py FOLDER"""
import pathlib
import re
import sys

COUNT = 300
HALLS = ("Norte", "Sur", "Laminación", "Pintura", "Fundición", "Almacén")
EXAMPLE = pathlib.Path(__file__).resolve().parent.parent / "examples/plant"


def elements(text, name):
    return re.findall(rf"^ *<{name}>\n.*?^ *</{name}>\n", text, re.M | re.S)


def replaced(element, name, value):
    return re.sub(rf"(<{name}>)[^<]*(</{name}>)", rf"\g<1>{value}\g<2>", element, count=1)


def main():
    folder = pathlib.Path(sys.argv[1])
    (folder / "devices").mkdir(parents=True)
    example = (EXAMPLE / "main.xml").read_text(encoding="utf-8")
    devices = elements(example, "device")
    setups = {name: elements(example, name) for name in ("unitSetup", "viewSetup", "selection")}
    lists = {name: [] for name in ("device", *setups)}
    for number in range(1, COUNT + 1):
        device = devices[number % len(devices)]
        model = re.search(r"<driverId>(.*?)</driverId>", device).group(1)
        names = re.search(r"<name>(.*?)</name>", device).group(1)
        driver, name = f"zep-{number:03}", f"F{number:03}"
        device = replaced(replaced(replaced(device, "driverId", driver), "name", name), "number", number)
        lists["device"].append(replaced(device, "description", f"Nave {HALLS[(number - 1) // 50]}, celda {(number - 1) % 50 + 1}"))
        for kind, found in setups.items():
            lists[kind] += [replaced(setup, "driverId", driver).replace(f"{names}.", f"{name}.")
                            for setup in found if f"<driverId>{model}</driverId>" in setup]
        (folder / "devices" / f"{driver}.xml").write_bytes((EXAMPLE / "devices" / f"{model}.xml").read_bytes())
    body = "".join(f"  <{plural}>\n{''.join(lists[kind])}  </{plural}>\n"
                   for kind, plural in (("device", "devices"), ("unitSetup", "unitSetups"),
                                        ("viewSetup", "viewSetups"), ("selection", "selections")))
    text = f'<?xml version="1.0" encoding="UTF-8"?>\n<configuration>\n{body}</configuration>\n'
    (folder / "main.xml").write_bytes(text.encode("utf-8"))


main()
