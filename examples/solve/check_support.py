"""What the checks share: one steel member on supports, its solution, and the test of a figure."""
import numpy as np

from frame3d import Frame
from loads import case_loads
from statics import solve_static

E, NU, ALPHA, DENSITY = 210e9, 0.3, 12e-6, 7850.0
AREA, IYY, IZZ, TORSION = 0.06, 4.5e-4, 2.0e-4, 4.695e-4
SPAN = 10.0
FIXED = ("X", "Y", "Z", "XX", "YY", "ZZ")
PINNED, ROLLER = ("X", "Y", "Z", "XX"), ("Y", "Z")


def near(what, got, wanted, relative=1e-9, scale=None):
    """Fail with a clear line unless got (number or array) is what is wanted."""
    got, wanted = np.asarray(got, dtype=float), np.asarray(wanted, dtype=float)
    scale = max(np.abs(wanted).max() if scale is None else scale, 1e-300)
    if got.shape != wanted.shape or not np.all(np.abs(got - wanted) <= relative * scale):
        raise AssertionError(f"{what}: got {got.tolist()}, expected {wanted.tolist()}")


def model(points, elements, restraints, **loads):
    """A model with one rectangular steel section; elements as (ends, further keys)."""
    nodes = {
        k + 1: {"position": p, "restraint": r} for k, (p, r) in enumerate(zip(points, restraints))
    }
    return {
        "nodes": nodes,
        "elements": {
            k + 1: {"type": "BEAM", "nodes": e[0], "section": 1} | e[1]
            for k, e in enumerate(elements)
        },
        "sections": {1: {"material": 1, "A": AREA, "Iyy": IYY, "Izz": IZZ, "J": TORSION}},
        "materials": {1: {"E": E, "nu": NU, "density": DENSITY, "alpha": ALPHA}},
        "axes": {},
        "springs": {},
        "masses": {},
        "loads": {
            kind: [{"case": 1, "list": "all"} | load for load in records]
            for kind, records in loads.items()
        },
    }


def member(first, second, end=(SPAN, 0.0, 0.0), element=None, **loads):
    """One member from the origin to `end`, solved; its frame and results."""
    frame = Frame(
        model(((0.0, 0.0, 0.0), end), [((1, 2), element or {})], (first, second), **loads)
    )
    return frame, solve_static(frame, {1: 1.0})


def uniform(value, direction="Z", **more):
    return {"type": "UNIFORM", "direction": direction, "values": [value]} | more


def internal_forces(frame, result, number, x):
    """Force and moment of an element at x from the results at end 1 and the span loads before x."""
    points, pieces = case_loads(frame, {1: 1.0}).spans[number]
    force = np.array(result["elements"][number]["force"][0])
    moment = np.array(result["elements"][number]["moment"][0]) + np.cross(force, (x, 0.0, 0.0))
    lumps = [(x - a, load) for a, load in points if a < x]
    for a, b, first, last in pieces:
        if a < x:
            run = min(b, x) - a
            rise = (last - first) * run / (b - a)
            # the piece before the cut as a rectangle and a triangle
            lumps += [(x - a - run / 2, first * run), (x - a - run * 2 / 3, rise * run / 2)]
    for arm, load in lumps:
        force = force - load[:3]
        moment = moment - load[3:] + np.cross((arm, 0.0, 0.0), load[:3])
    return force, moment
