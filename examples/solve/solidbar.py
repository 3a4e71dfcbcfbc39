"""A hanger bar of every kind of 3D element in plain tension, by the closed form.

A steel bar of 0.6 m along x, 40 mm wide and 60 mm deep, in six cells: bricks at both ends,
then two wedges, five tetrahedra and six pyramids to a node in the middle. Strain is the same
everywhere, which every element holds exactly: sigma = F / A, u = sigma x / E, and a contraction of
nu sigma / E across. Node 4 i + k is corner k (south bottom, north bottom, north top, south top) of
the plane x = 0.1 i.
"""
import pathlib

import numpy as np

from document import write_document

LENGTH, WIDTH, DEPTH, CELLS = 0.6, 0.040, 0.060, 6
E, NU, DENSITY = 210e9, 0.3, 7850.0
FORCE, STRETCH = 360e3, 0.0006
AREA, STEP = WIDTH * DEPTH, LENGTH / CELLS
CORNERS = ((0.0, 0.0), (WIDTH, 0.0), (WIDTH, DEPTH), (0.0, DEPTH))
MIDDLE = 4 * (CELLS + 1) + 1  # node in the middle of the pyramids


def nodes():
    out = {
        4 * i + k + 1: (round(i * STEP, 9), y, z)
        for i in range(CELLS + 1)
        for k, (y, z) in enumerate(CORNERS)
    }
    return out | {MIDDLE: (round(4.5 * STEP, 9), WIDTH / 2, DEPTH / 2)}


def elements():
    """Bricks in the cells 0, 1 and 5; wedges, tetrahedra and pyramids in the others. Base faces
    turn left about the way to the other nodes."""
    brick = [[4 * i + k for k in range(1, 9)] for i in range(CELLS)]

    def pick(cell, *corners):
        return [brick[cell][c - 1] for c in corners]

    out = [("brick8", brick[0]), ("brick8", brick[1])]
    out += [("wedge6", pick(2, 1, 2, 3, 5, 6, 7)), ("wedge6", pick(2, 1, 3, 4, 5, 7, 8))]
    out += [
        ("tetra4", pick(3, *c))
        for c in ((1, 2, 3, 6), (1, 3, 4, 8), (1, 6, 8, 5), (3, 8, 6, 7), (1, 3, 8, 6))
    ]
    faces = ((1, 2, 3, 4), (5, 8, 7, 6), (1, 5, 6, 2), (2, 6, 7, 3), (3, 7, 8, 4), (4, 8, 5, 1))
    out += [("pyramid5", pick(4, *c) + [MIDDLE]) for c in faces]
    out += [("brick8", brick[5])]
    return dict(enumerate(out, 1))


def restraint(position):
    """The plane x = 0 stays plane; one corner line is held across."""
    x, y, z = position
    if x:
        return []
    return ["x"] + ["y"] * (y == 0.0) + ["z"] * (z == 0.0)


def pulled_nodes():
    return [n for n, p in nodes().items() if p[0] == LENGTH]


def results(force, prescribed):
    """By the tension in the bar; with a prescribed stretch its own supports hold the far end."""
    stress = force / AREA
    strain = stress / E
    displacement = {
        n: {"disp": [strain * x, -NU * strain * y, -NU * strain * z], "rotn": [0.0] * 3}
        for n, (x, y, z) in nodes().items()
    }
    none = [0.0] * 3
    quarter = [force / 4, 0.0, 0.0]
    back = {n: {"force": [-force / 4, 0.0, 0.0], "moment": none} for n in range(1, 5)}
    far = {n: {"force": quarter, "moment": none} for n in pulled_nodes()}
    loaded = not prescribed
    rows = {
        n: [[stress, 0.0, 0.0, 0.0, 0.0, 0.0]] * (1 + len(t)) for n, (_, t) in elements().items()
    }
    pull, turn = total(far)
    return {
        "displacement": displacement,
        "reaction": back,
        "constraint": far if prescribed else {},
        "force_noise": 1e-9,
        "total_force": pull if loaded else none,
        "total_moment": turn if loaded else none,
        "total_react_force": [-v for v in pull] if loaded else none,
        "total_react_moment": [-v for v in turn] if loaded else none,
        "tables": {"element_3d_stress": rows},
    }


def total(forces):
    """Sum of nodal forces, and their moment about the origin."""
    force = sum(np.array(f["force"]) for f in forces.values())
    moment = sum(np.cross(nodes()[n], f["force"]) for n, f in forces.items())
    return force.tolist(), moment.tolist()


def model():
    steel = {
        "name": "S355",
        "e": [E, 0.0, 0.0],
        "nu": [NU, 0.0, 0.0],
        "g": [E / (2 * (1 + NU)), 0.0, 0.0],
        "alpha": [12e-6, 0.0, 0.0],
        "density": DENSITY,
    }
    far = " ".join(map(str, pulled_nodes()))
    end = {"direction": "x", "entities": far}
    plain = {
        "nodes": {n: {"position": list(p), "restraint": restraint(p)} for n, p in nodes().items()},
        "elements": {
            n: {"type": kind, "nodes": t, "property": 1} for n, (kind, t) in elements().items()
        },
        "properties_3d": {1: {"name": "Hanger", "material": {"type": "steel", "grade": 1}}},
        "steel_grades": {1: {"name": "S355", "analysis": steel, "strength": 355e6}},
        "analysis_tasks": {1: {"name": "Static", "solution": "static", "analysed": True}},
        "node_loads": {1: {"name": "Pull", "load_case": 1, "value": FORCE / 4} | end},
        "applied_displacements": {1: {"name": "Jack", "load_case": 2, "value": STRETCH} | end},
    }
    names = {1: "Pull", 2: "Stretched by a jack"}
    return {
        "titles": {
            "job_title": "Atrium hanger",
            "sub_title": "Bar of 60 x 40 mm in tension",
            "calc_heading": "Sample: results of 3D elements, by the closed form",
            "job_number": "1007",
            "initials": "VYN",
        },
        "steel_code": "EN 1993-1-1",
        "plain": plain,
        "load_cases": names,
        "cases": {n: {"name": v, "task": 1, "description": f"L{n}"} for n, v in names.items()},
        "combinations": {1: {"name": "ULS", "description": "1.35A1 or A2"}},
    }


def sample():
    """The model and its results."""
    solved = {1: results(FORCE, False), 2: results(E * AREA * STRETCH / LENGTH, True)}
    return {"model": model(), "results": solved}


if __name__ == "__main__":
    write_document(sample(), pathlib.Path(__file__).resolve().parents[1] / "solidbar.json")
