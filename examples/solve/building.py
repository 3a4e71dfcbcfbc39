"""An office block of four storeys: steel frames, floors as load panels, a concrete wall in each
gable.

Floor s = 0 (ground) to 4 has the nodes 10 s + k: k = 1 to 6 at the columns, two by two from west to
east, south first, 7 at the east wall and 8 at the west one. Storey s has the columns and walls 10 s + k;
its floor the beams 100 + 10 s + 1 to 9 and the load panels 200 + 10 s + 1 and 2. The floor slabs span
from south to north and keep each floor in shape (rigid constraints). Loads act twice: on the load
panels as pressures, for programs that spread them (load cases 6 and 7, in no analysis case), and as
the line loads that follow, which the analysis cases take. Column loads stand for the wind.
"""
import pathlib

from analysis import analyse
from document import write_document
from sections import from_description

XS, YS, LEVELS = (0.0, 7.2, 14.4), (0.0, 7.5), (0.0, 4.2, 7.8, 11.4, 15.0)
WALL_LENGTH, FLOORS = 3.0, range(1, len(LEVELS))
DEAD, LIVE, WIND = 4000.0, 3000.0, 900.0  # Pa
PLANE_XY = 2101  # bits X-X, X-ZZ, Y-Y, Y-ZZ, ZZ-ZZ
COLUMN, MAIN, CROSS, WALL = 1, 2, 3, 4
STEEL = {"name": "Structural steel", "E": 210e9, "nu": 0.3, "density": 7850.0, "alpha": 12e-6}
CONCRETE = {"name": "C30/37", "E": 33e9, "nu": 0.2, "density": 2500.0, "alpha": 10e-6}
GRAVITY = 9.80665


def catalogue(name, description, area, iyy, izz, torsion):
    """A rolled profile by its tabulated properties, in cm."""
    values = {"A": area * 1e-4, "Iyy": iyy * 1e-8, "Izz": izz * 1e-8, "J": torsion * 1e-8}
    return {"name": name, "description": description, "material": 1, "grade": 1} | values


def sections():
    wall = "STD%R%3000%250"
    return {
        COLUMN: catalogue("Column", "CAT%UC%UC254x254x89", 113, 14300, 4860, 102),
        MAIN: catalogue("Main beam", "CAT%UB%UB457x191x67", 85.5, 29400, 1450, 37.1),
        CROSS: catalogue("Cross beam", "CAT%UB%UB356x171x51", 64.9, 14100, 968, 23.8),
        WALL: {"name": "Wall", "description": wall, "material": 2, "grade": 1}
        | {"family": "concrete"}
        | from_description(wall),
    }


def nodes():
    out = {}
    for s, level in enumerate(LEVELS):
        places = [(x, y) for x in XS for y in YS] + [(x, sum(YS) / 2) for x in XS[::-2]]
        for k, (x, y) in enumerate(places, 1):
            node = {"position": (x, y, level)}
            if s == 0:
                node["restraint"] = ("X", "Y", "Z") + (("XX", "YY") if k >= 7 else ()) + ("ZZ",)
            elif k <= 6:
                node["mass"] = 2 if k in (3, 4) else 1
            out[10 * s + k] = node
    return out


def floor_beams(s):
    """(first, last, section, offset) of a floor; cross beams of the gables end at the face of the wall."""
    n, half = 10 * s, WALL_LENGTH / 2
    plain = ((1, 3, MAIN), (3, 5, MAIN), (2, 4, MAIN), (4, 6, MAIN), (3, 4, CROSS))
    beams = [(n + a, n + b, section, {}) for a, b, section in plain]
    for south, wall, north in ((5, 7, 6), (1, 8, 2)):
        beams.append((n + south, n + wall, CROSS, {"x2": -half}))
        beams.append((n + wall, n + north, CROSS, {"x1": half}))
    return beams


def elements():
    out = {}
    for s in FLOORS:
        for k in range(1, 9):
            ends = (10 * s - 10 + k, 10 * s + k)
            out[10 * s + k] = part(ends, WALL if k >= 7 else COLUMN, 1, k)
            # of a column the web stands along x, of the wall the length along y
            out[10 * s + k]["angle"] = 90.0 if k >= 7 else 0.0
        for j, (a, b, section, offset) in enumerate(floor_beams(s), 1):
            out[100 + 10 * s + j] = part((a, b), section, 2, 100 + 10 * s + j)
            if offset:
                out[100 + 10 * s + j]["offset"] = offset
    return out


def part(ends, section, group, member):
    return {"type": "BEAM", "nodes": ends, "section": section, "group": group, "member": member}


def members(parts):
    out = {}
    for element in parts.values():
        m = element["member"]
        if m in out:
            out[m]["topology"].append(element["nodes"][1])
            continue
        out[m] = {
            "name": member_name(m),
            "type": "COLUMN" if m < 10 else "BEAM",
            "topology": list(element["nodes"]),
            "section": element["section"],
            "group": element["group"],
            "angle": element.get("angle"),
            "element_type": "BEAM",
        }
    return out


def member_name(m):
    if m < 10:
        return (
            ("East wall", "West wall")[m - 7]
            if m >= 7
            else f"Column {'ABC'[(m - 1) // 2]}{(m - 1) % 2 + 1}"
        )
    return f"Level {m % 100 // 10}, beam {m % 10}"


def panels():
    out = {}
    for s in FLOORS:
        for k in (0, 1):
            a = 10 * s + 2 * k + 1
            quad = [a, a + 2, a + 3, a + 1]
            panel = {"type": "quad4", "nodes": quad, "property": 1, "group": 3}
            out[200 + 10 * s + k + 1] = panel | {"parent_member": 200 + 10 * s + k + 1}
    return out


def slabs():
    out = {}
    for n, panel in panels().items():
        name = f"Level {n % 100 // 10}, slab {'west' if n % 10 == 1 else 'east'}"
        shared = {"property": 1, "group": 3, "order": "load_panel", "topology": panel["nodes"]}
        out[n] = {"name": name, "type": "slab"} | shared
    return out


def line(case, which, direction, value, name):
    return {
        "case": case,
        "list": " ".join(map(str, which)),
        "type": "UNIFORM",
        "direction": direction,
        "values": [value],
        "name": name,
    }


def loads():
    mains = [100 + 10 * s + j for s in FLOORS for j in (1, 2, 3, 4)]
    strip, bay = YS[-1] / 2, XS[1]
    west = [10 * s + k for s in FLOORS for k in (1, 2)]
    corners = [10 * s + k for s in FLOORS for k in (1, 5)]
    middle = [10 * s + 3 for s in FLOORS]
    return {
        "gravity": [
            {"case": 1, "list": "all", "nodes": "none", "factors": (0.0, 0.0, -1.0)}
            | {"name": "Self weight of the frames"}
        ],
        "beam": [
            line(2, mains, "Z", -DEAD * strip, "Slabs and finishes"),
            line(3, mains, "Z", -LIVE * strip, "Offices"),
            line(4, west, "X", WIND * strip, "Wind on the west gable"),
            line(5, corners, "Y", WIND * bay / 2, "Wind on the south face, corners"),
            line(5, middle, "Y", WIND * bay, "Wind on the south face, middle"),
        ],
    }


LOAD_CASES = (
    "Self weight",
    "Dead",
    "Live",
    "Wind x",
    "Wind y",
    "Dead on load panels",
    "Live on load panels",
)


def cases():
    out = {n: {"name": LOAD_CASES[n - 1], "task": 1, "description": f"L{n}"} for n in range(2, 6)}
    out[1] = {"name": "Permanent", "task": 1, "description": "L1 + L2"}
    out = {n: out[n] for n in (1, 3, 4, 5)}
    return out | {
        10 + k: {"name": f"Mode {k}", "task": 2, "description": f"M{k}"} for k in range(1, 7)
    }


COMBINATIONS = {
    1: {"name": "ULS gravity", "description": "1.35A1 + 1.5A3"},
    2: {"name": "ULS wind", "description": "1.35A1 + 1.05A3 + 1.5(A4 or A5)"},
    3: {"name": "ULS uplift", "description": "A1 + 1.5(A4 or A5)"},
    4: {"name": "ULS envelope", "description": "C1 or C2 or C3"},
    5: {"name": "SLS", "description": "A1 + A3 + (0 or 0.6)A4"},
}


def masses():
    """Dead load and 30 % of the live load on the floor round a column."""
    corner = (DEAD + 0.3 * LIVE) / GRAVITY * XS[1] / 2 * YS[1] / 2
    return {1: {"name": "Corner bay", "mass": corner}, 2: {"name": "Bay", "mass": 2 * corner}}


def plain_records():
    panel_load = {"direction": "z", "type": "uniform"}
    pressures = ((6, -DEAD, "Slabs and finishes"), (7, -LIVE, "Offices"))
    return {
        "elements": panels(),
        "members": slabs(),
        "assemblies": {
            1: {
                "name": "Tower",
                "node_1": 1,
                "node_2": 41,
                "node_3": 3,
                "entities": {"kind": "element", "list": "all"},
                "storeys": {"kind": "grid_plane", "list": "1 to 4"},
                "dim_y": 20.0,
                "dim_z": 20.0,
            }
        },
        "grid_planes": {
            s: {"name": f"Level {s}", "elevation": LEVELS[s], "storey": True} for s in FLOORS
        },
        "properties_2d": {1: {"name": "Floor panel", "type": "load_panel"}},
        "concrete_grades": {
            1: {
                "name": "C30/37",
                "analysis": {
                    "name": "C30/37",
                    "e": [33e9, 0.0, 0.0],
                    "nu": [0.2, 0.0, 0.0],
                    "g": [13.75e9, 0.0, 0.0],
                    "alpha": [10e-6, 0.0, 0.0],
                    "density": 2500.0,
                },
                "strength": 30e6,
            }
        },
        "rigid_constraints": {
            s: {
                "name": f"Level {s}",
                "primary_node": 10 * s + 7,
                "nodes": f"{10 * s + 1} to {10 * s + 6} {10 * s + 8}",
                "link_type": PLANE_XY,
            }
            for s in FLOORS
        },
        "face_loads": {
            k: {"name": name, "load_case": case, "values": [p, 0.0, 0.0, 0.0]}
            | panel_load
            | {"entities": " ".join(map(str, panels()))}
            for k, (case, p, name) in enumerate(pressures, 1)
        },
    }


def model():
    parts = elements()
    floors = [
        {
            "primary": 10 * s + 7,
            "nodes": (*range(10 * s + 1, 10 * s + 7), 10 * s + 8),
            "type": PLANE_XY,
        }
        for s in FLOORS
    ]
    return {
        "titles": {
            "job_title": "Station Road offices",
            "sub_title": "Four storeys, steel frames and concrete walls",
            "calc_heading": "Sample: storeys, panels, static and modal results",
            "job_number": "1003",
            "initials": "VYN",
        },
        "design_codes": {"steel": "EN 1993-1-1", "concrete": "EN 1992-1-1"},
        "axes": {},
        "nodes": nodes(),
        "elements": parts,
        "members": members(parts),
        "sections": sections(),
        "materials": {1: STEEL, 2: CONCRETE},
        "steel_grades": {1: {"name": "S355", "strength": 355e6, "material": STEEL}},
        "springs": {},
        "masses": masses(),
        "ties": {"rigid": floors},
        "lists": {
            1: {"name": "Columns", "kind": "MEMBER", "definition": "1 to 6"},
            2: {"name": "Roof", "kind": "NODE", "definition": "41 to 48"},
            3: {"name": "Ultimate", "kind": "CASE", "definition": "C1 to C4"},
        },
        "load_cases": dict(enumerate(LOAD_CASES, 1)),
        "loads": loads(),
        "tasks": {
            1: {"name": "Static", "solution": "STATIC"},
            2: {"name": "Modal", "solution": "MODAL"},
        },
        "cases": cases(),
        "combinations": COMBINATIONS,
        "plain": plain_records(),
    }


def sample():
    """The model and its results."""
    return analyse(model())


if __name__ == "__main__":
    write_document(sample(), pathlib.Path(__file__).resolve().parents[1] / "building.json")
