"""The sample models: loads and supports balance, sizes are those of real structures, the documents
are current."""
import json
import pathlib

import numpy as np

import building
import footbridge
import isolated
import piledraft
import plate
import portal
import solidbar
from check_support import near
from document import document_text
from frame3d import Frame
from modes import mass_matrix

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
    if kinds != {"POINT", "UNIFORM", "LINEAR", "PATCH"}:
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


def modes_in_order(sample, task):
    """Modes are orthogonal and in order; the modal mass is that of the shape."""
    frame = Frame(sample["model"])
    cases = [n for n, c in sample["model"]["cases"].items() if c["task"] == task]
    found = [sample["results"][n] for n in cases]
    shapes = []
    for result in found:
        shape = np.zeros(frame.size)
        for node, row in frame.row.items():
            moved = result["displacement"][node]
            shape[row : row + 6] = moved["disp"] + moved["rotn"]
        shapes.append(shape)
    products = np.array(shapes) @ mass_matrix(frame) @ np.array(shapes).T
    wanted = np.diag([result["modal_mass"] for result in found])
    near("products of modes", products, wanted, 1e-8)
    frequencies = [result["frequency"] for result in found]
    if frequencies != sorted(frequencies):
        raise AssertionError(f"frequencies are {frequencies}")
    return frequencies


def building_sample():
    """Building: balance, floors that move as one, sway below h / 500, orthogonal modes."""
    sample = building.sample()
    balance(sample)
    sway = 0.0
    for case in (4, 5):
        moved = sample["results"][case]["displacement"]
        primary, corner = moved[47], moved[41]
        arm = 7.2 * 2
        near("corner", corner["disp"][1], primary["disp"][1] - arm * primary["rotn"][2], 1e-9, 1e-3)
        sway = max(sway, max(abs(v) for v in corner["disp"][:2]))
    if not 0.001 < sway < building.LEVELS[-1] / 500:
        raise AssertionError(f"the roof sways by {sway} m")
    live = building.LIVE * building.XS[-1] * building.YS[-1] * len(building.FLOORS)
    near("panels and line loads", sample["results"][3]["total_force"][2], -live)
    if not 0.5 < modes_in_order(sample, 2)[0] < 2.0:
        raise AssertionError("the first mode is out of range")
    current("building", sample)


def isolated_sample():
    """Isolated frame: bearings carry all, the first mode is that of a rigid body on bearings."""
    sample = isolated.sample()
    balance(sample)
    for case in (1, 2, 3):
        result = sample["results"][case]
        forces = sum(f[:3] for f in result["tables"]["spring_force"].values())
        near("bearings", forces, result["total_force"], 1e-8)
    frequencies = modes_in_order(sample, 2)
    mass = sample["results"][4]["mass"]
    rigid = np.sqrt(4 * isolated.BEARING[0] / mass) / (2 * np.pi)
    near("first mode", frequencies[0], rigid, 0.05)
    current("isolated", sample)


def plate_sample():
    """Plate strips: supports balance loads and moments; stresses add up to forces and moments."""
    sample = plate.sample()
    balance(sample)
    t = plate.THICKNESS
    for result in sample["results"].values():
        for n, rows in result["tables"]["element_2d_stress"].items():
            forces = result["tables"]["element_2d_force"][n]
            for stress, force in zip(np.array(rows), forces):
                bottom, middle, top = stress[:6], stress[6:12], stress[12:]
                near("N", (bottom + 4 * middle + top)[:2] * t / 6, force[:2], 1e-9, 1e6)
                near("M", (top - bottom)[:2] * t**2 / 12, force[3:5], 1e-9, 1e6)
                near("Q", middle[5] * t / 1.5, force[6], 1e-9, 1e6)
    current("plate", sample)


def volume(points):
    """Signed, by the order of the nodes."""
    p = np.array(points)
    corners = {8: (0, 1, 3, 4), 6: (0, 1, 2, 3), 4: (0, 1, 2, 3), 5: (0, 1, 3, 4)}[len(p)]
    a, b, c, d = p[list(corners)]
    share = {8: 1, 6: 1 / 2, 4: 1 / 6, 5: 1 / 3}[len(p)]
    return share * np.dot(np.cross(b - a, c - a), d - a)


def solidbar_sample():
    """Bar of solids: the elements fill it, none is inside out; stress times area is the pull."""
    sample = solidbar.sample()
    balance(sample)
    at = solidbar.nodes()
    volumes = [volume([at[n] for n in t]) for _, t in solidbar.elements().values()]
    if min(volumes) <= 0.0:
        raise AssertionError(f"volumes are {volumes}")
    near("volume", sum(volumes), solidbar.AREA * solidbar.LENGTH)
    current("solidbar", sample)


def piledraft_sample():
    """Piled raft: no results; the document is current."""
    current("piledraft", piledraft.sample())


def leaves(schema, path=()):
    """(path, values) of each place of the schema that takes one of several words."""
    if "enum" in schema:
        yield path, schema["enum"]
    for key, part in schema.get("properties", {}).items():
        yield from leaves(part, path + (key,))
    if "items" in schema:
        yield from leaves(schema["items"], path)
    for part in schema.get("anyOf", []) + schema.get("oneOf", []):
        yield from leaves(part, path)


def used(value, path=()):
    """(path, word) of each text in a document, and (path, None) of each key."""
    if isinstance(value, dict):
        for key, part in value.items():
            yield path + (key,), None
            yield from used(part, path + (key,))
    elif isinstance(value, list):
        for part in value:
            yield from used(part, path)
    elif isinstance(value, str):
        yield path, value


# what says the kind of a record
KINDS = ("type", "model")
# words that are the default, and so are left out of documents
DEFAULTS = {
    ("materials", "elastic_isotropic"),
    ("axes", "cartesian"),
    ("spring_properties", "general"),
    ("load_curves", "factor"),
}


def coverage():
    """Every section of documents, and every kind of each record, occurs in some sample."""
    with open(EXAMPLES.parent / "docs" / "model.schema.json", encoding="utf-8") as file:
        schema = json.load(file)
    seen = set()
    for path in sorted(EXAMPLES.glob("*.json")):
        with open(path, encoding="utf-8") as file:
            seen |= set(used(json.load(file)))
    missing = [k for k in schema["properties"] if ((k,), None) not in seen]
    for path, words in leaves(schema):
        if path[-1] in KINDS and len(path) == 2:
            default = {word for section, word in DEFAULTS if section == path[0]}
            unseen = [w for w in words if (path, w) not in seen and w not in default]
            missing += [f"{path[0]} {word}" for word in unseen]
    if set(missing) & NOT_IN_SAMPLES != NOT_IN_SAMPLES:
        raise AssertionError("something that is said to be in no sample is in one")
    missing = [m for m in missing if m not in NOT_IN_SAMPLES]
    if missing:
        raise AssertionError(f"in no sample: {', '.join(missing)}")


# heads that say nothing of a model, and kinds that no sample needs
NOT_IN_SAMPLES = {
    "beam_loads trilinear",  # some formats stop at it
    "program",
    "units",
    "history",
    "members wall",
    "members generic_3d",
    "members void_cutter",
}

CHECKS = (
    portal_sample,
    footbridge_sample,
    building_sample,
    isolated_sample,
    plate_sample,
    solidbar_sample,
    piledraft_sample,
    coverage,
)
