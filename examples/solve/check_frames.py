"""Frames against textbook formulas, and what must hold for any frame: balance, the rule of signs,
reciprocity."""
import numpy as np

from check_support import (
    E,
    FIXED,
    IYY,
    NU,
    PINNED,
    SPAN,
    TORSION,
    internal_forces,
    model,
    near,
    uniform,
)
from frame3d import DIRECTIONS, Frame
from modes import rigid_motions
from statics import solve_static

HEIGHT = 6.0
PLANE_PIN = ("X", "Y", "Z", "XX", "ZZ")


def plane_portal(base, **loads):
    """Fixed or pinned portal in the x-z plane, stiff along its members; the beam is twice as stiff
    as the columns."""
    points = ((0.0, 0.0, 0.0), (0.0, 0.0, HEIGHT), (SPAN, 0.0, HEIGHT), (SPAN, 0.0, 0.0))
    data = model(
        points,
        [((1, 2), {}), ((2, 3), {"section": 2}), ((3, 4), {})],
        (base, (), (), base),
        **loads,
    )
    data["sections"][2] = data["sections"][1] | {"Iyy": 2 * IYY, "A": 1e5}
    data["sections"][1] = data["sections"][1] | {"A": 1e5}
    return solve_static(Frame(data), {1: 1.0})


def portal_sway():
    """Portal under a push at the eaves: P h/2 (3k+1)/(6k+1) at the feet, 3k/(6k+1) at the top, and
    its sway."""
    push, k = 1000.0, 2 * HEIGHT / SPAN
    result = plane_portal(FIXED, node=[{"list": "2", "direction": "X", "value": push}])
    foot = push * HEIGHT / 2 * (3 * k + 1) / (6 * k + 1)
    top = push * HEIGHT / 2 * 3 * k / (6 * k + 1)
    near("feet", [result["reaction"][n]["moment"][1] for n in (1, 4)], (-foot, -foot), 1e-6)
    near("knees", [m[1] for m in result["elements"][2]["moment"]], (-top, top), 1e-6)
    sway = push * HEIGHT**3 * (2 + 3 * k) / (12 * E * IYY * (1 + 6 * k))
    near("sway", [result["displacement"][n]["disp"][0] for n in (2, 3)], (sway, sway), 1e-6)


def portal_thrust():
    """Pinned portal under a uniform load on the beam: thrust w L^2 / (4 h (2k + 3))."""
    w, k = 2000.0, 2 * HEIGHT / SPAN
    result = plane_portal(PLANE_PIN, beam=[uniform(-w) | {"list": "2"}])
    thrust = w * SPAN**2 / (4 * HEIGHT * (2 * k + 3))
    near("thrust", [result["reaction"][n]["force"][0] for n in (1, 4)], (thrust, -thrust), 1e-6)
    near("knee", [m[1] for m in result["elements"][2]["moment"]], [thrust * HEIGHT] * 2, 1e-6)


def bent_cantilever():
    """Cantilever with a right-angled bend, load square to its plane: bending of both arms and
    torsion of the first."""
    a, b, load = 4.0, 3.0, 1000.0
    points = ((0.0, 0.0, 0.0), (a, 0.0, 0.0), (a, b, 0.0))
    data = model(
        points,
        [((1, 2), {}), ((2, 3), {})],
        (FIXED, (), ()),
        node=[{"list": "3", "direction": "Z", "value": -load}],
    )
    result = solve_static(Frame(data), {1: 1.0})
    bending = (a**3 + b**3) / (3 * E * IYY)
    twist = b**2 * a / (E / (2 * (1 + NU)) * TORSION)
    near("tip", result["displacement"][3]["disp"], (0.0, 0.0, -load * (bending + twist)))
    near("torque", result["elements"][1]["moment"][0], (-load * b, load * a, 0.0))


def inclined_support():
    """A beam whose far roller runs on a plane at 30 degrees: the reaction stands square to it."""
    w = 1000.0
    data = model(
        ((0.0, 0.0, 0.0), (SPAN, 0.0, 0.0)),
        [((1, 2), {})],
        (PINNED, ("Y", "Z")),
        beam=[uniform(-w)],
    )
    c, s = np.cos(np.pi / 6), np.sin(np.pi / 6)
    data["axes"] = {3: {"x_axis": (c, 0.0, s), "xy_plane": (0.0, 1.0, 0.0)}}
    data["nodes"][2]["axis"] = 3
    result = solve_static(Frame(data), {1: 1.0})
    lift = w * SPAN / 2
    near("far reaction", result["reaction"][2]["force"], (-lift * s / c, 0.0, lift))
    near(
        "runs along the plane",
        np.dot(result["displacement"][2]["disp"], (-s, 0.0, c)),
        0.0,
        scale=1.0,
    )


def spring_support():
    """A beam with a spring under its far end: half the load goes through it; springs count as
    support."""
    w, k = 1000.0, 2e6
    data = model(
        ((0.0, 0.0, 0.0), (SPAN, 0.0, 0.0)), [((1, 2), {})], (PINNED, ("Y",)), beam=[uniform(-w)]
    )
    data["springs"] = {4: {"stiffness": (0.0, 0.0, k, 0.0, 0.0, 0.0)}}
    data["nodes"][2]["spring"] = 4
    result = solve_static(Frame(data), {1: 1.0})
    near("spring", result["spring"][2]["force"], (0.0, 0.0, w * SPAN / 2))
    near("sinks", result["displacement"][2]["disp"][2], -w * SPAN / 2 / k)
    near("total", result["total_react_force"], (0.0, 0.0, w * SPAN))


def random_frame(seed):
    """A tangled space frame with every feature of an element and every kind of load."""
    rng = np.random.default_rng(seed)
    points = rng.uniform(-5.0, 5.0, (9, 3))
    pairs = [(k, k + 1) for k in range(1, 9)] + [(1, 4), (2, 7), (3, 9), (5, 8)]
    elements = [(pair, {"angle": float(rng.uniform(-90, 90))}) for pair in pairs]
    elements[2][1]["connect"] = ("FFFFRR", "FFFFFF")
    elements[4][1]["connect"], elements[4][1]["connect_stiffness"] = ("FFFFFF", "FFKFKF"), {
        (2, "YY"): 1e6,
        (2, "Z"): 1e8,
    }
    elements[6][1]["offset"] = {"x1": 0.2, "x2": -0.3, "y": 0.1, "z": -0.25}
    elements[9][1]["type"] = "BAR"
    loads = {
        "node": [
            {"list": "4 6", "axis": 2, "direction": d, "value": float(rng.uniform(-9e3, 9e3))}
            for d in DIRECTIONS
        ],
        "beam": [
            uniform(-2000.0, projected=True),
            uniform(900.0, "Y", axis=-1),
            {
                "type": "POINT",
                "direction": "YY",
                "axis": 2,
                "positions": [0.3],
                "values": [4e3],
                "list": "1 to 9",
            },
            {
                "type": "TRILINEAR",
                "direction": "X",
                "positions": [0.1, 0.2, 0.5, 0.9],
                "values": [1e3, 3e3, -2e3, 5e2],
            },
        ],
        "gravity": [{"factors": (0.1, 0.2, -1.0)}],
        "axial": [{"type": "FORCE", "value": 4e4, "z_offset": 0.1, "list": "1 3 7 10"}],
        "thermal": [{"type": "UNIFORM", "values": [20.0]}],
        "distortion": [
            {"axis": -1, "direction": "Y", "position": 0.4, "value": 2e-4, "list": "1 to 6"}
        ],
        "settlement": [{"list": "1", "axis": -1, "direction": "Z", "value": -0.002}],
        "displacement": [{"list": "5", "direction": "X", "value": 0.001}],
    }
    data = model(points.tolist(), elements, (FIXED,) + ((),) * 7 + (("X", "Y", "Z"),), **loads)
    data["axes"] = {2: {"x_axis": (1.0, 2.0, 0.5), "xy_plane": (-1.0, 1.0, 0.3)}}
    data["nodes"][1]["axis"] = 2
    data["springs"] = {1: {"stiffness": (1e6, 2e6, 3e6, 1e5, 2e5, 3e5)}}
    data["nodes"][7] |= {"axis": 2, "spring": 1, "mass": 1}
    data["masses"] = {1: {"mass": 1500.0}}
    return data


def balance():
    """Supports balance the loads of random space frames, and each element balances its own."""
    for seed in range(5):
        frame = Frame(random_frame(seed))
        result = solve_static(frame, {1: 1.0})
        for kind, scale in (("force", 1e5), ("moment", 1e6)):
            near(
                f"{kind} balance",
                result[f"total_react_{kind}"],
                -np.array(result[f"total_{kind}"]),
                1e-8,
                scale,
            )
        for number, beam in frame.beams.items():
            force, moment = internal_forces(frame, result, number, beam.length)
            near(
                f"element {number}, force at end 2",
                result["elements"][number]["force"][1],
                force,
                1e-8,
                1e5,
            )
            near(
                f"element {number}, moment at end 2",
                result["elements"][number]["moment"][1],
                moment,
                1e-8,
                1e5,
            )


def node_balance():
    """At a free node without load the forces of its elements cancel."""
    data = random_frame(11)
    data["loads"] = {kind: data["loads"][kind] for kind in ("axial", "distortion")}
    for records in data["loads"].values():
        for record in records:
            record["list"] = "1"
    frame = Frame(data)
    result = solve_static(frame, {1: 1.0})
    for node in (3, 6):
        total = np.zeros(3)
        for number, beam in frame.beams.items():
            for side, sign in ((0, 1.0), (1, -1.0)):
                if beam.nodes[side] == node:
                    total += sign * beam.axes.T @ result["elements"][number]["force"][side]
        near(f"node {node}", total, np.zeros(3), 1e-8, 1e4)


def reciprocity():
    """Betti: the work of one load on the displacements of another is the same either way round."""
    data = random_frame(3)
    data["loads"] = {
        "node": [
            {"case": 1, "list": "3", "direction": "Y", "value": 1000.0},
            {"case": 2, "list": "8", "direction": "XX", "value": 1000.0},
        ]
    }
    frame = Frame(data)
    first, second = solve_static(frame, {1: 1.0}), solve_static(frame, {2: 1.0})
    near(
        "reciprocity",
        first["displacement"][8]["rotn"][0],
        second["displacement"][3]["disp"][1],
        1e-8,
    )


def rigid_motion():
    """Moving or turning a frame as a whole strains none of its elements."""
    frame = Frame(random_frame(7))
    forces = frame.stiffness @ frame.turn @ rigid_motions(frame)
    near("forces", forces, np.zeros_like(forces), 1e-9, np.abs(frame.stiffness).max())


def superposition():
    """Factors of load cases multiply and add, settlements and applied displacements included."""
    data = random_frame(6)
    for kind, case in (("gravity", 2), ("thermal", 2), ("displacement", 1), ("settlement", 2)):
        for record in data["loads"][kind]:
            record["case"] = case
    frame = Frame(data)
    # both with the freedom that the first case prescribes, as it is prescribed in the sum
    one, both = solve_static(frame, {1: 1.0}), solve_static(frame, {1: 1.0, 2: 1.0})
    more = solve_static(frame, {1: 1.0, 2: 2.0})
    for node in (4, 5, 8):
        a, b, c = (np.array(r["displacement"][node]["disp"]) for r in (one, both, more))
        near(f"node {node}", c - a, 2 * (b - a), 1e-7)


CHECKS = (
    portal_sway,
    portal_thrust,
    bent_cantilever,
    inclined_support,
    spring_support,
    balance,
    node_balance,
    reciprocity,
    rigid_motion,
    superposition,
)
