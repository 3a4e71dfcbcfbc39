"""Strips of a concrete slab in cylindrical bending, by the closed form of the plate.

A slab of 6 m between two walls, endless along them: three strips of 1 m, meshed with four-node,
eight-node and three-node elements, whose sides cannot turn about x or move along y. The south strip
has nodes from 1 and elements from 1, the middle one from 101, the north one from 201. Along x a
strip is a beam of the stiffness D = E t^3 / (12 (1 - nu^2)); across it the curvature is 0, so that
My = nu Mx but for temperature.
"""
import pathlib

import numpy as np

from document import write_document

SPAN, WIDTH, THICKNESS, CELLS = 6.0, 1.0, 0.25, 6
E, NU, DENSITY, ALPHA, GRAVITY = 33e9, 0.2, 2500.0, 10e-6, 9.80665
D = E * THICKNESS**3 / (12 * (1 - NU**2))
PRESSURE, PULL, GRADIENT, WARM = 8000.0, 150e3, 12.0, 20.0
CELL = SPAN / CELLS
# strip: first number less 1, y of its middle, type of element
STRIPS = ((0, 0.0, "quad4"), (100, 2.0, "quad8"), (200, 4.0, "tri3"))
CORNERS = ((-1, -1), (1, -1), (1, 1), (-1, 1))


def grid(step):
    """Offsets of a strip's nodes in x and y: a column of nodes every `step` cells, south first."""
    out = []
    for i in range(int(CELLS / step) + 1):
        mid = step < 1 and i % 2
        rows = (-0.5, 0.5) if step == 1 or mid else (-0.5, 0.0, 0.5)
        out += [(i * step * CELL, row * WIDTH) for row in rows]
    return out


def strip_nodes(strip):
    base, middle, kind = strip
    places = grid(0.5 if kind == "quad8" else 1)
    return {base + k: (x, middle + y, 0.0) for k, (x, y) in enumerate(places, 1)}


def strip_elements(strip):
    """Node lists; corners run round from the south-west."""
    base, _, kind = strip
    out = []
    for i in range(CELLS):
        if kind == "quad8":
            a = base + 5 * i + 1
            out.append([a, a + 5, a + 7, a + 2, a + 3, a + 6, a + 4, a + 1])
        else:
            a = base + 2 * i + 1
            quad = [a, a + 2, a + 3, a + 1]
            out += [quad] if kind == "quad4" else [quad[:3], [quad[0], quad[2], quad[3]]]
    return {base + k: nodes for k, nodes in enumerate(out, 1)}


NODES = {n: p for strip in STRIPS for n, p in strip_nodes(strip).items()}
ELEMENTS = {n: (s[2], t) for s in STRIPS for n, t in strip_elements(s).items()}


class Field:
    """The closed form of one load: deflection, slope dw/dx and displacement u at x, and forces per
    length."""

    def __init__(self, displacement, forces, load=(0.0, 0.0, 0.0)):
        self.displacement = displacement  # x -> u, w, dw/dx
        self.forces = forces  # x -> Nx, Ny, Mx, My, Qx
        self.load = load  # on a whole strip


def pressed(p):
    """Pressure p downwards on a simple span: w = -p x (L^3 - 2 L x^2 + x^3) / (24 D)."""

    def displacement(x):
        w = -p * x * (SPAN**3 - 2 * SPAN * x**2 + x**3) / (24 * D)
        slope = -p * (SPAN**3 - 6 * SPAN * x**2 + 4 * x**3) / (24 * D)
        return 0.0, w, slope

    def forces(x):
        moment = -p * x * (SPAN - x) / 2
        return 0.0, 0.0, moment, NU * moment, -p * (SPAN - 2 * x) / 2

    return Field(displacement, forces, (0.0, 0.0, -p * SPAN * WIDTH))


def pulled(p):
    """A pull p per length at the east end, no strain across."""
    strain = p * (1 - NU**2) / (E * THICKNESS)
    return Field(
        lambda x: (strain * x, 0.0, 0.0),
        lambda x: (p, NU * p, 0.0, 0.0, 0.0),
        (p * WIDTH, 0.0, 0.0),
    )


def warmed(t):
    """Uniform warming: free along x, held across."""
    across = -E * THICKNESS * ALPHA * t
    return Field(
        lambda x: ((1 + NU) * ALPHA * t * x, 0.0, 0.0), lambda x: (0.0, across, 0.0, 0.0, 0.0)
    )


def sunny(t):
    """The top warmer than the bottom by t: it arches freely along x, and is held flat across."""
    bend = (1 + NU) * ALPHA * t / THICKNESS  # -w''
    across = -E * THICKNESS**2 * ALPHA * t / 12
    return Field(
        lambda x: (0.0, bend * x * (SPAN - x) / 2, bend * (SPAN - 2 * x) / 2),
        lambda x: (0.0, 0.0, 0.0, across, 0.0),
    )


FIELDS = {
    1: pressed(DENSITY * GRAVITY * THICKNESS),
    2: pressed(PRESSURE),
    3: pulled(PULL),
    4: warmed(WARM),
    5: sunny(GRADIENT),
}


def positions(nodes):
    """x of the centre and of each node of an element."""
    corners = 3 if len(nodes) in (3, 6) else 4
    centre = sum(NODES[n][0] for n in nodes[:corners]) / corners
    return [centre] + [NODES[n][0] for n in nodes]


def force_row(field, x):
    nx, ny, mx, my, qx = field.forces(x)
    return [nx, ny, 0.0, mx, my, 0.0, qx, 0.0]


def stress_row(field, x):
    """Six stresses at the bottom, in the middle and on top; a moment is positive with tension on
    top."""
    nx, ny, mx, my, qx = field.forces(x)
    bend, shear = 6 / THICKNESS**2, 1.5 * qx / THICKNESS
    out = []
    for side in (-1.0, 0.0, 1.0):
        along, across = (n / THICKNESS + side * bend * m for n, m in ((nx, mx), (ny, my)))
        out += [along, across, 0.0, 0.0, 0.0, shear if side == 0.0 else 0.0]
    return out


def shape_integrals(count, function, start, length):
    """Integrals of each of 2 or 3 equally spaced Lagrange shape functions times function(x)."""
    s, weight = np.polynomial.legendre.leggauss(4)
    if count == 2:
        shapes = ((1 - s) / 2, (1 + s) / 2)
    else:
        shapes = (s * (s - 1) / 2, 1 - s**2, s * (s + 1) / 2)
    values = np.array([function(start + (1 + t) / 2 * length) for t in s])
    return [float(np.sum(weight * shape * values) * length / 2) for shape in shapes]


def reactions(strip, field):
    """Forces of the supports: shear and pull at the walls, and what holds the sides."""
    out = {n: np.zeros(6) for n in strip_nodes(strip)}
    quadratic = strip[2] == "quad8"
    for x, sign in ((0.0, -1.0), (SPAN, 1.0)):
        line = sorted((NODES[n][1], n) for n in out if NODES[n][0] == x)
        nx, _, _, _, qx = field.forces(x)
        for (_, n), share in zip(line, shape_integrals(len(line), lambda y: 1.0, 0.0, WIDTH)):
            out[n][2] += sign * share * qx
            out[n][0] += sign * share * nx if x == 0.0 else 0.0
    count = 3 if quadratic else 2
    for side in (-1.0, 1.0):
        y = strip[1] + side * WIDTH / 2
        line = sorted((NODES[n][0], n) for n in out if NODES[n][1] == y)
        for k in range(0, len(line) - 1, count - 1):
            piece, start = line[k : k + count], line[k][0]
            for place, sign, at in ((1, 1.0, 1), (3, -1.0, 3)):
                shares = shape_integrals(count, lambda x: field.forces(x)[place], start, CELL)
                for (_, n), share in zip(piece, shares):
                    out[n][at] += side * sign * share
    return out


def results(number):
    """Everything the document holds of a case."""
    field = FIELDS[number]
    displacement = {}
    for n, (x, _, _) in NODES.items():
        u, w, slope = field.displacement(x)
        displacement[n] = {"disp": [u, 0.0, w], "rotn": [0.0, -slope, 0.0]}
    held = {n: r for strip in STRIPS for n, r in reactions(strip, field).items()}
    tables = {
        key: {n: [row(field, x) for x in positions(nodes)] for n, (_, nodes) in ELEMENTS.items()}
        for key, row in (("element_2d_force", force_row), ("element_2d_stress", stress_row))
    }
    force, moment = load_totals(number)
    react = sum(held.values())
    arms = sum(np.cross(NODES[n], r[:3]) for n, r in held.items())
    return {
        "displacement": displacement,
        "reaction": {
            n: {"force": r[:3].tolist(), "moment": r[3:].tolist()} for n, r in held.items()
        },
        "force_noise": 1e-6,
        "total_force": force,
        "total_moment": moment,
        "total_react_force": react[:3].tolist(),
        "total_react_moment": (react[3:] + arms).tolist(),
        "tables": tables,
    }


def load_totals(number):
    """Sum of the loads of all strips, and their moment about the origin: pressure acts at the middle
    of a strip, pulls at its east end."""
    force, moment = np.zeros(3), np.zeros(3)
    for _, middle, _ in STRIPS:
        load = np.array(FIELDS[number].load)
        force += load
        moment += np.cross((SPAN if load[0] else SPAN / 2, middle, 0.0), load)
    return force.tolist(), moment.tolist()


def node_record(position):
    x = position[0]
    held = ["x"] * (x == 0.0) + ["y"] + ["z"] * (x in (0.0, SPAN)) + ["xx", "zz"]
    return {"position": list(position), "restraint": held}


def end_edges():
    """Elements of each kind at the east end, and the edge there."""
    ends = ((CELLS, 2), (100 + CELLS, 2), (200 + 2 * CELLS - 1, 2))
    return [(str(n), edge) for n, edge in ends]


def loads():
    edge = {"load_case": 3, "direction": "x", "values": [PULL, PULL]}
    return {
        "gravity_loads": {1: {"name": "Self weight", "load_case": 1, "factor": [0.0, 0.0, -1.0]}},
        "face_loads": {
            1: {
                "name": "Store",
                "load_case": 2,
                "entities": "all",
                "direction": "z",
                "type": "uniform",
                "values": [-PRESSURE, 0.0, 0.0, 0.0],
            }
        },
        "edge_loads": {
            k: {"name": "Pull"} | edge | {"entities": n, "edge": e}
            for k, (n, e) in enumerate(end_edges(), 1)
        },
        "face_thermal_loads": {
            1: {
                "name": "Summer",
                "load_case": 4,
                "entities": "all",
                "type": "uniform",
                "values": [WARM] + [0.0] * 7,
            },
            2: {
                "name": "Sun on top",
                "load_case": 5,
                "entities": "all",
                "type": "gradient",
                "values": [GRADIENT / 2, -GRADIENT / 2] + [0.0] * 6,
            },
        },
    }


CASES = ("Self weight", "Store", "Pull", "Summer", "Sun on top")


def model():
    concrete = {
        "name": "C30/37",
        "e": [E, 0.0, 0.0],
        "nu": [NU, 0.0, 0.0],
        "g": [E / (2 * (1 + NU)), 0.0, 0.0],
        "alpha": [ALPHA, 0.0, 0.0],
        "density": DENSITY,
    }
    material = {"type": "concrete", "grade": 1}
    plain = {
        "nodes": {n: node_record(p) for n, p in NODES.items()},
        "elements": {
            n: {"type": kind, "nodes": nodes, "property": 1, "group": 1 + n // 100}
            for n, (kind, nodes) in ELEMENTS.items()
        },
        "properties_2d": {
            1: {"name": "Slab", "type": "shell", "thickness": THICKNESS, "material": material}
        },
        "concrete_grades": {1: {"name": "C30/37", "analysis": concrete, "strength": 30e6}},
        "analysis_tasks": {1: {"name": "Static", "solution": "static", "analysed": True}},
    }
    return {
        "titles": {
            "job_title": "Archive, ground floor slab",
            "sub_title": "Strips in cylindrical bending, 6 m",
            "calc_heading": "Sample: results of 2D elements, by the closed form",
            "job_number": "1006",
            "initials": "VYN",
        },
        "design_codes": {"concrete": "EN 1992-1-1"},
        "plain": plain | loads(),
        "load_cases": dict(enumerate(CASES, 1)),
        "cases": {
            n: {"name": name, "task": 1, "description": f"L{n}"} for n, name in enumerate(CASES, 1)
        },
        "combinations": {
            1: {"name": "ULS", "description": "1.35A1 + 1.5A2 + 1.35A3"},
            2: {"name": "SLS, any", "description": "A1 + A2 + (0 or 1.0)A4 + (0 or 1.0)A5"},
        },
    }


def sample():
    """The model and its results."""
    return {"model": model(), "results": {n: results(n) for n in FIELDS}}


if __name__ == "__main__":
    write_document(sample(), pathlib.Path(__file__).resolve().parents[1] / "plate.json")
