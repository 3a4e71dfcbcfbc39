"""The sample models: loads and supports balance, sizes are those of real structures, the documents
are current."""
import json
import pathlib

import numpy as np

import footbridge
import portal
from check_support import near
from document import document_text

EXAMPLES = pathlib.Path(__file__).resolve().parent.parent


def balance(sample):
    for number, result in sample["results"].items():
        if "total_force" in result:
            for kind, arm in (("force", 1.0), ("moment", 30.0)):
                against = -np.array(result[f"total_{kind}"])
                left = np.abs(result[f"total_react_{kind}"] - against).max()
                if left > 1e-11 * np.abs(against).max() + arm * result["force_noise"]:
                    raise AssertionError(f"case {number}: {left} of the {kind} is not balanced")


def same(path, got, wanted):
    """Compare two documents; figures may differ by rounding of the largest in their row."""
    if isinstance(wanted, dict) and isinstance(got, dict):
        if list(got) != list(wanted):
            raise AssertionError(f"{path}: keys {list(got)}, expected {list(wanted)}")
        for key in wanted:
            same(f"{path}.{key}", got[key], wanted[key])
    elif isinstance(wanted, float):
        near(path, got, wanted, 1e-6, max(abs(wanted), 1e-3))
    elif is_row(wanted) and is_row(got):
        same(path, got[0], wanted[0])
        near(path, got[1:], wanted[1:], 1e-6, max(np.abs(wanted[1:]).max(), 1e-3))
    elif isinstance(wanted, list) and isinstance(got, list) and len(got) == len(wanted):
        for k, pair in enumerate(zip(got, wanted)):
            same(f"{path}[{k}]", *pair)
    elif got != wanted:
        raise AssertionError(f"{path}: {got!r}, expected {wanted!r}")


def is_row(value):
    """A row of results: the number of an entity and its figures."""
    figures = value[1:] if isinstance(value, list) else []
    return len(figures) > 0 and all(isinstance(v, float) for v in figures)


def current(name, sample):
    """The document in examples/ is the one that its script writes."""
    with open(EXAMPLES / f"{name}.json", encoding="utf-8") as file:
        same(name, json.load(file), json.loads(document_text(sample)))


def portal_sample():
    """Portal: balance, sag under snow below span / 200, tie rod in tension in service; the document
    is current."""
    sample = portal.sample()
    balance(sample)
    results = sample["results"]
    sag = -sum(results[case]["displacement"][25]["disp"][2] for case in (11, 3))
    if not 0.02 < sag < portal.SPAN / 200:
        raise AssertionError(f"the ridge sinks by {sag} m")
    pull = results[12]["elements"][59]["force"][0][0]
    if not 50e3 < pull < 0.0008 * 355e6:
        raise AssertionError(f"the tie rod carries {pull} N")
    kinds = {load["type"] for load in sample["model"]["loads"]["beam"]}
    if kinds != {"POINT", "UNIFORM", "LINEAR", "PATCH", "TRILINEAR"}:
        raise AssertionError(f"beam loads are {kinds}")
    current("portal", sample)


def footbridge_sample():
    """Footbridge: balance, sag below span / 500, first modes from 2 to 8 Hz; the document is
    current."""
    sample = footbridge.sample()
    balance(sample)
    results = sample["results"]
    near("weight", results[1]["total_force"][2], -results[2]["mass"] * 9.80665)
    sag = -results[14]["displacement"][86]["disp"][2]
    if not 0.02 < sag < 30.0 / 500:
        raise AssertionError(f"the deck sinks by {sag} m")
    modes = [results[case] for case in range(2, 14)]
    frequencies = [mode["frequency"] for mode in modes]
    if [mode["mode"] for mode in modes] != list(range(1, 13)) or frequencies != sorted(frequencies):
        raise AssertionError("the modes are out of order")
    if not 2.0 < frequencies[0] < frequencies[3] < 8.0:
        raise AssertionError(f"frequencies are {frequencies}")
    current("footbridge", sample)


CHECKS = (portal_sample, footbridge_sample)
