"""A control room on rubber bearings, with what a time history of an earthquake needs.

Below node 1 to 4 the bases of the bearings, 11 to 14 the corners of the base grillage on top of them
(at the same places), 21 to 24 the roof; 31 is the middle of the roof that its corners follow. The
static and modal cases take stage 1: grillage, columns, roof and bearings. Everything else - dampers,
struts, a stay cable, a machine on its block of solids, a stair on a link - belongs to the explicit
dynamics task alone, has no results, and is not in that stage.
"""
import pathlib

from analysis import analyse
from document import write_document
from sections import from_description
from uniaxial import MATERIALS

SIDE, HEIGHT = 6.0, 3.6
CORNERS = ((0.0, 0.0), (SIDE, 0.0), (SIDE, SIDE), (0.0, SIDE))
PLANE_XY = 2101
STEEL = {"name": "Structural steel", "E": 210e9, "nu": 0.3, "density": 7850.0, "alpha": 12e-6}
SHAPES = (
    ("Column", "STD%RHS%200%200%10%10"),
    ("Grillage", "STD%I%400%300%12%20"),
    ("Roof", "STD%I%240%160%8%14"),
    ("Rod", "STD%C%24"),
)
BEARING = (0.9e6, 1.1e6, 600e6, 0.0, 0.0, 0.0)


def nodes():
    out = {}
    for k, (x, y) in enumerate(CORNERS, 1):
        out[k] = {"position": (x, y, 0.0), "restraint": ("X", "Y", "Z", "XX", "YY", "ZZ")}
        out[10 + k] = {"position": (x, y, 0.0), "mass": 1}
        out[20 + k] = {"position": (x, y, HEIGHT), "mass": 2}
    return out | {31: {"position": (SIDE / 2, SIDE / 2, HEIGHT)}}


def beam(first, last, section):
    return {"type": "BEAM", "nodes": (first, last), "section": section, "group": section}


def elements():
    out = {}
    for k in range(1, 5):
        after = k % 4 + 1
        out[k] = {"type": "SPRING", "nodes": (k, 10 + k), "section": 1, "group": 5}
        out[10 + k] = beam(10 + k, 10 + after, 2)
        out[20 + k] = beam(10 + k, 20 + k, 1)
        out[30 + k] = beam(20 + k, 20 + after, 3)
    return out


def dynamic_nodes():
    """The machine's block (41 on), its top, the stair, the mast."""
    block = {}
    for k, (x, y, z) in enumerate(
        (
            (2.0, 2.0, 0.0),
            (3.0, 2.0, 0.0),
            (3.0, 3.0, 0.0),
            (2.0, 3.0, 0.0),
            (2.0, 2.0, 0.8),
            (3.0, 2.0, 0.8),
            (3.0, 3.0, 0.8),
            (2.0, 3.0, 0.8),
            (4.0, 2.0, 0.0),
            (4.0, 3.0, 0.0),
            (2.5, 2.5, 1.4),
            (3.5, 1.4, 0.3),
        ),
        41,
    ):
        block[k] = {"position": [x, y, z]}
    others = {
        61: (-1.5, 0.0, 0.0),
        62: (-0.2, 0.0, 0.0),
        63: (3.0, -2.0, 0.0),
        64: (3.0, 0.0, 0.0),
        65: (3.0, 6.0, 0.0),
        66: (3.0, 6.0, 0.0),
        67: (3.0, 3.0, 9.0),
        68: (7.5, 6.0, 0.0),
        69: (2.0, 2.0, -0.01),
        70: (4.0, 2.0, -0.01),
        71: (4.0, 3.0, -0.01),
        72: (2.0, 3.0, -0.01),
    }
    held = (61, 63, 66, 68)
    out = block | {n: {"position": list(p)} for n, p in others.items()}
    for n in held:
        out[n]["restraint"] = ["x", "y", "z", "xx", "yy", "zz"]
    out[51] |= {"spring": 3, "damper": 2}
    return out


def dynamic_elements():
    kinds = (
        ("damper", [61, 11], 1),
        ("link", [62, 11], 1),
        ("spring", [61, 62], 2),
        ("strut", [64, 31], 4),
        ("rod", [65, 31], 4),
        ("bar", [67, 31], 4),
        ("tie", [67, 21], 4),
        ("cable", [67, 68], 1),
        ("cable", [67, 63], 2),
        ("spacer", [64, 65], 0),
        ("mass", [51], 3),
        ("brick8", [41, 42, 43, 44, 45, 46, 47, 48], 1),
        ("wedge6", [42, 46, 49, 43, 47, 50], 1),
        ("pyramid5", [45, 46, 47, 48, 51], 1),
        ("tetra4", [42, 49, 46, 52], 1),
        ("quad4", [69, 70, 71, 72], 1),
    )
    return {
        n: {"type": kind, "nodes": t, "group": 9} | ({"property": p} if p else {})
        for n, (kind, t, p) in enumerate(kinds, 101)
    }


def plain_records():
    steel = {"type": "steel", "grade": 1}
    return {
        "nodes": dynamic_nodes(),
        "elements": dynamic_elements(),
        "assemblies": {
            1: {
                "name": "Room",
                "node_1": 11,
                "node_2": 21,
                "node_3": 12,
                "entities": {"kind": "element", "list": "11 to 34"},
                "cuts": [0.25, 0.75],
            }
        },
        "properties_2d": {
            1: {"name": "Machine bed", "type": "shell", "thickness": 0.02, "material": steel}
        },
        "properties_3d": {1: {"name": "Block", "material": {"type": "concrete", "analysis": 2}}},
        "spring_properties": {
            2: {"name": "Bumper", "type": "translational", "curves": [1, 0, 0, 0, 0, 0]},
            3: {"name": "Machine mounts", "stiffness": [2e6, 2e6, 8e6, 0.0, 0.0, 0.0]},
            4: {"name": "Hinge", "type": "rotational", "stiffness": [0.0, 0.0, 0.0, 4e6, 0.0, 0.0]},
            5: {"name": "Stop", "type": "contact", "stiffness": [5e8, 0.0, 0.0, 0.0, 0.0, 0.0]},
            6: {"name": "Slider", "type": "friction", "stiffness": [0.0, 1e8, 1e8, 0.0, 0.0, 0.0]},
        },
        "damper_properties": {
            1: {"name": "Viscous damper", "coefficient": [250e3, 0.0, 0.0, 0.0, 0.0, 0.0]},
            2: {"name": "Machine mounts", "coefficient": [5e3, 5e3, 12e3, 0.0, 0.0, 0.0]},
        },
        "mass_properties": {
            3: {
                "name": "Generator",
                "mass": 2400.0,
                "inertia": [400.0, 500.0, 350.0, 0.0, 0.0, 0.0],
            }
        },
        "cable_properties": {
            1: {"name": "Stay 20 mm", "area": 2.4e-4, "e": 160e9, "density": 8100.0},
            2: {"name": "Stay by stiffness", "e": 38e6, "density": 1.95},
        },
        "link_properties": {1: {"name": "Stair foot", "link_type": 4095}},
        "materials": MATERIALS,
        "material_curves": {
            1: {"name": "Bumper", "points": [[-0.1, -9e5], [-0.05, 0.0], [0.05, 0.0], [0.1, 9e5]]},
            2: {"name": "Bearing in shear", "points": [[-0.2, -2e5], [0.0, 0.0], [0.2, 2e5]]},
        },
        "load_curves": {
            k: {"name": f"Ground motion {d}", "type": "acceleration", "points": points}
            for k, (d, points) in enumerate(
                (
                    (
                        "x",
                        [[0.0, 0.0], [0.4, 2.1], [0.8, -2.6], [1.2, 1.7], [1.6, -0.8], [2.0, 0.0]],
                    ),
                    ("y", [[0.0, 0.0], [0.5, -1.4], [0.9, 1.9], [1.4, -1.1], [2.0, 0.0]]),
                    ("z", [[0.0, 0.0], [0.3, 0.7], [0.6, -0.9], [1.0, 0.0]]),
                ),
                1,
            )
        }
        | {
            # recorded or prescribed in other terms, for further runs
            4: {
                "name": "Blast on the door",
                "type": "pressure",
                "points": [[0.0, 30e3], [0.02, 0.0]],
            },
            5: {
                "name": "Ground velocity x",
                "type": "velocity",
                "points": [[0.0, 0.0], [0.4, 0.42], [2.0, 0.0]],
            },
            6: {
                "name": "Ground displacement x",
                "type": "displacement",
                "points": [[0.0, 0.0], [0.4, 0.06], [2.0, 0.0]],
            },
            7: {
                "name": "Start of the machine",
                "type": "force",
                "points": [[0.0, 0.0], [1.0, 900.0]],
            },
            8: {"name": "Slow ramp", "type": "factor", "points": [[0.0, 0.0], [1.0, 1.0]]},
        },
        "lists": {
            4: {"name": "Static frame", "definition": {"kind": "element", "list": "1 to 34"}}
        },
        "analysis_tasks": {
            1: {"name": "Static", "solution": "static", "analysed": True, "stage": 1},
            2: {"name": "Modal", "solution": "modal", "analysed": True, "stage": 1},
            3: {
                "name": "Earthquake",
                "solution": "explicit",
                "explicit_dynamics": {
                    "load_cases": "1",
                    "end_time": 12.0,
                    "plot_interval": 0.1,
                    "history_interval": 0.01,
                    "history_nodes": "11 to 14 31",
                    "history_elements": "1 to 4 101",
                    "assemblies": "1",
                    "base_nodes": "1 to 4 61 63 66 68",
                    "damping": {"rayleigh": True, "alpha": 0.2, "beta": 0.0005},
                    "excitation": "curve_per_direction",
                    "excitation_curves": [1, 2, 3],
                    "beam_formulation": 2,
                },
            },
        },
        "stages": {1: {"name": "Linear frame", "elements": "1 to 34"}},
        "rigid_constraints": {
            1: {"name": "Roof", "primary_node": 31, "nodes": "21 to 24", "link_type": PLANE_XY},
            2: {"name": "Bed", "primary_node": 11, "nodes": "69 to 72", "link_type": 4095},
        },
        "joints": {
            1: {"name": "Door post", "node_1": 65, "node_2": 66, "freedoms": ["x", "y", "z"]},
            2: {
                "name": "Strut on the grillage",
                "node_1": 11,
                "node_2": 64,
                "freedoms": ["x", "y"],
            },
        },
        "constraint_equations": {
            1: {
                "name": "Edge of the grillage",
                "node": 64,
                "direction": "z",
                "terms": [
                    {"node": 11, "direction": "z", "factor": 0.5},
                    {"node": 12, "direction": "z", "factor": 0.5},
                ],
            }
        },
        "tied_interfaces": {
            1: {
                "name": "Block on its bed",
                "slave": {"kind": "node", "list": "41 to 44 49 50"},
                "master": {"kind": "element", "list": "116"},
            }
        },
    }


CASES = ("Self weight", "Machine and roof", "Wind")


def loads():
    return {
        "gravity": [
            {
                "case": 1,
                "list": "11 to 14 21 to 24 31 to 34",
                "nodes": "11 to 14 21 to 24",
                "factors": (0.0, 0.0, -1.0),
            }
        ],
        "beam": [
            {
                "case": 2,
                "list": "31 to 34",
                "type": "UNIFORM",
                "direction": "Z",
                "values": [-6000.0],
            },
            {
                "case": 2,
                "list": "11 to 14",
                "type": "UNIFORM",
                "direction": "Z",
                "values": [-20000.0],
            },
        ],
        "node": [
            {"case": 3, "list": "31", "direction": "X", "value": 18000.0},
            {"case": 3, "list": "31", "direction": "ZZ", "value": 9000.0},
        ],
    }


def model():
    shapes = {
        n: {"name": name, "description": d, "material": 1, "grade": 1} | from_description(d)
        for n, (name, d) in enumerate(SHAPES, 1)
    }
    frame_loads = loads()
    return {
        "titles": {
            "job_title": "Control room",
            "sub_title": "On rubber bearings, 6 m square",
            "calc_heading": "Sample: springs, dampers, links, explicit dynamics",
            "job_number": "1004",
            "initials": "VYN",
        },
        "steel_code": "EN 1993-1-1",
        "axes": {},
        "nodes": nodes(),
        "elements": elements(),
        "sections": shapes,
        "materials": {1: STEEL},
        "steel_grades": {1: {"name": "S355", "strength": 355e6, "material": STEEL}},
        "springs": {1: {"name": "Rubber bearing", "stiffness": BEARING}},
        "masses": {
            1: {"name": "Base slab, a quarter", "mass": 9000.0},
            2: {"name": "Roof, a quarter", "mass": 3500.0},
        },
        "ties": {"rigid": [{"primary": 31, "nodes": (21, 22, 23, 24), "type": PLANE_XY}]},
        "lists": {1: {"name": "Bearings", "kind": "ELEMENT", "definition": "1 to 4"}},
        "load_cases": dict(enumerate(CASES, 1)),
        "loads": frame_loads,
        "cases": {n: {"name": v, "task": 1, "description": f"L{n}"} for n, v in enumerate(CASES, 1)}
        | {3 + k: {"name": f"Mode {k}", "task": 2, "description": f"M{k}"} for k in range(1, 5)},
        "combinations": {1: {"name": "ULS", "description": "1.35A1 + 1.5A2 + (0 or 1.5)A3"}},
        "plain": plain_records(),
    }


def sample():
    """The model and its results."""
    return analyse(model())


if __name__ == "__main__":
    write_document(sample(), pathlib.Path(__file__).resolve().parents[1] / "isolated.json")
