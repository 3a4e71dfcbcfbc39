"""Closed forms for single members: span loads, offsets, releases, axes, sections."""
import math

import numpy as np

from check_support import (
    AREA,
    DENSITY,
    E,
    FIXED,
    IYY,
    IZZ,
    NU,
    PINNED,
    ROLLER,
    SPAN,
    TORSION,
    internal_forces,
    member,
    model,
    near,
    uniform,
)
from frame3d import Frame, local_axes
from sections import from_description
from statics import solve_static


def tip_load():
    """Cantilever: P L^3 / 3 E I about both axes, torsion T L / G J."""
    force, torque = 1000.0, 300.0
    loads = [
        {"list": "2", "direction": d, "value": v}
        for d, v in (("Z", -force), ("Y", force), ("XX", torque))
    ]
    _, result = member(FIXED, (), node=loads)
    disp, rotn = (result["displacement"][2][key] for key in ("disp", "rotn"))
    near(
        "tip deflection",
        disp,
        (0.0, force * SPAN**3 / (3 * E * IZZ), -force * SPAN**3 / (3 * E * IYY)),
    )
    twist = torque * SPAN / (E / (2 * (1 + NU)) * TORSION)
    near(
        "tip rotation",
        rotn,
        (twist, force * SPAN**2 / (2 * E * IYY), force * SPAN**2 / (2 * E * IZZ)),
    )
    near("root moment", result["elements"][1]["moment"][0], (torque, force * SPAN, force * SPAN))
    near("root force", result["elements"][1]["force"][0], (0.0, force, -force))
    near("reaction", result["reaction"][1]["force"], (0.0, -force, force))
    near("fixing moment", result["reaction"][1]["moment"], (-torque, -force * SPAN, -force * SPAN))


def fixed_uniform():
    """w L^2 / 12 at both ends, w L^2 / 24 sagging in the middle, w L / 2."""
    w = 5000.0
    frame, result = member(FIXED, FIXED, beam=[uniform(-w)])
    ends = result["elements"][1]
    near("fixed moments", [m[1] for m in ends["moment"]], (w * SPAN**2 / 12, w * SPAN**2 / 12))
    near("fixed shears", [f[2] for f in ends["force"]], (-w * SPAN / 2, w * SPAN / 2))
    near("mid-span", internal_forces(frame, result, 1, SPAN / 2)[1][1], -w * SPAN**2 / 24)
    _, result = member(FIXED, FIXED, beam=[uniform(w, "Y")])
    near(
        "fixed moments about z",
        [m[2] for m in result["elements"][1]["moment"]],
        [w * SPAN**2 / 12] * 2,
    )
    _, result = member(FIXED, FIXED, beam=[uniform(w, "XX")])
    near(
        "fixed torques",
        [m[0] for m in result["elements"][1]["moment"]],
        (w * SPAN / 2, -w * SPAN / 2),
    )


def fixed_point():
    """P a b^2 / L^2 and P a^2 b / L^2; a moment M is met by M b (2a - b) / L^2 and M a (2b - a) /
    L^2."""
    p, a = 1000.0, 3.0
    b = SPAN - a
    point = {
        "type": "POINT",
        "direction": "Z",
        "positions": [a],
        "fraction": [False],
        "values": [-p],
    }
    _, result = member(FIXED, FIXED, beam=[point])
    wanted = (p * a * b**2 / SPAN**2, p * a**2 * b / SPAN**2)
    near("point load", [m[1] for m in result["elements"][1]["moment"]], wanted)
    _, result = member(FIXED, FIXED, beam=[point | {"direction": "ZZ", "values": [p]}])
    wanted = (-p * b * (2 * a - b) / SPAN**2, p * a * (2 * b - a) / SPAN**2)
    near("point moment", [m[2] for m in result["elements"][1]["moment"]], wanted)
    near("point moment shear", result["elements"][1]["force"][0][1], -6 * p * a * b / SPAN**3)


def fixed_patch():
    """A patch against the integral of the point-load formula, summed finely; two ramps make one
    trilinear load."""
    a, b, w1, w2 = 2.0, 7.0, -3000.0, -1000.0
    patch = {
        "type": "PATCH",
        "direction": "Z",
        "positions": [0.2, 7.0],
        "fraction": [True, False],
        "values": [w1, w2],
    }
    _, result = member(FIXED, FIXED, beam=[patch])
    s, weight = np.polynomial.legendre.leggauss(8)
    x, weight = a + (s + 1) / 2 * (b - a), weight * (b - a) / 2
    w = -(w1 + (w2 - w1) * (x - a) / (b - a)) * weight
    wanted = (w @ (x * (SPAN - x) ** 2) / SPAN**2, w @ (x**2 * (SPAN - x)) / SPAN**2)
    near("patch", [m[1] for m in result["elements"][1]["moment"]], wanted)
    whole = {
        "type": "TRILINEAR",
        "direction": "Z",
        "positions": [1.0, 2.0, 6.0, 9.0],
        "fraction": [False] * 4,
    }
    _, whole = member(FIXED, FIXED, beam=[whole | {"values": [0.0, -800.0, -600.0, -100.0]}])
    parts = [(1.0, 2.0, 0.0, -800.0), (2.0, 6.0, -800.0, -600.0), (6.0, 9.0, -600.0, -100.0)]
    parts = [
        patch | {"positions": [p, q], "fraction": [False] * 2, "values": [v, u]}
        for p, q, v, u in parts
    ]
    _, parts = member(FIXED, FIXED, beam=parts)
    near("trilinear", whole["elements"][1]["moment"], parts["elements"][1]["moment"])
    near("trilinear total", whole["total_force"], (0.0, 0.0, -(400.0 + 2800.0 + 1050.0)))


def propped():
    """Fixed at end 1, propped at end 2: w L^2 / 8 and 3 w L / 8."""
    w = 2000.0
    frame, result = member(FIXED, ROLLER, beam=[uniform(-w)])
    near("propped moment", result["elements"][1]["moment"][0][1], w * SPAN**2 / 8)
    near("prop", result["reaction"][2]["force"], (0.0, 0.0, 3 * w * SPAN / 8))
    near(
        "field moment",
        internal_forces(frame, result, 1, 5 * SPAN / 8)[1][1],
        -9 * w * SPAN**2 / 128,
    )


def simple_linear():
    """Triangular load on a simple beam: w L / 6, w L / 3; w L^2 / (9 sqrt 3) at L / sqrt 3; end
    slopes."""
    w = 3000.0
    load = {"type": "LINEAR", "direction": "Z", "values": [0.0, -w]}
    frame, result = member(PINNED, ROLLER, beam=[load])
    near(
        "reactions",
        [result["reaction"][n]["force"][2] for n in (1, 2)],
        (w * SPAN / 6, w * SPAN / 3),
    )
    peak = internal_forces(frame, result, 1, SPAN / math.sqrt(3))
    near("peak moment", peak[1][1], -w * SPAN**2 / (9 * math.sqrt(3)))
    near("no shear at the peak", peak[0][2], 0.0, scale=w * SPAN)
    slopes = (7 * w * SPAN**3 / (360 * E * IYY), -8 * w * SPAN**3 / (360 * E * IYY))
    near("end slopes", [result["displacement"][n]["rotn"][1] for n in (1, 2)], slopes)


def inclined_projected():
    """Snow on a slope: per plan length, so q times the plan length in all; the moment is q (plan)^2
    / 8."""
    q, plan, rise = 1500.0, 8.0, 6.0
    frame, result = member(PINNED, ROLLER, (plan, 0.0, rise), beam=[uniform(-q, projected=True)])
    near("snow total", result["total_force"], (0.0, 0.0, -q * plan))
    near("snow reactions", [result["reaction"][n]["force"][2] for n in (1, 2)], [q * plan / 2] * 2)
    near("snow moment", internal_forces(frame, result, 1, 5.0)[1][1], -q * plan**2 / 8)
    near(
        "snow thrust",
        result["elements"][1]["force"],
        np.outer((-1, 1), (0.6, 0.0, 0.8)) * q * plan / 2,
        scale=q * plan,
    )
    frame, result = member(PINNED, ROLLER, (plan, 0.0, rise), beam=[uniform(-q)])
    near("load along the slope", result["total_force"], (0.0, 0.0, -q * 10.0))
    frame, result = member(PINNED, ROLLER, (plan, 0.0, rise), beam=[uniform(-q, axis=-1)])
    near("load in local z", result["total_force"], (q * 6.0, 0.0, -q * 8.0))


def releases():
    """Released ends of a fixed member: simple beam, propped beam; a sprung end between the two; a
    bar under its weight."""
    w = 2000.0
    _, result = member(FIXED, FIXED, element={"connect": ("FFFFRR", "FFFFRR")}, beam=[uniform(-w)])
    ends = result["elements"][1]
    near("pin-ended", ends["moment"], np.zeros((2, 3)), scale=w * SPAN**2)
    near(
        "pin-ended slopes",
        [r[1] for r in ends["rotn"]],
        np.array((1, -1)) * w * SPAN**3 / (24 * E * IYY),
    )
    _, result = member(FIXED, FIXED, element={"connect": ("FFFFFF", "FFFFRF")}, beam=[uniform(-w)])
    near("propped by release", result["elements"][1]["moment"][0][1], w * SPAN**2 / 8)
    k = 3 * E * IYY / SPAN
    sprung = {"connect": ("FFFFFF", "FFFFKF"), "connect_stiffness": {(2, "YY"): k}}
    _, result = member(FIXED, FIXED, element=sprung, beam=[uniform(-w)])
    # relaxing w L^2 / 12 through 4 E I / L in series with k, half of it carried over
    eased = w * SPAN**2 / 12 * k / (k + 4 * E * IYY / SPAN)
    near("sprung end", result["elements"][1]["moment"][1][1], eased)
    near(
        "sprung, far end",
        result["elements"][1]["moment"][0][1],
        w * SPAN**2 / 12 + (w * SPAN**2 / 12 - eased) / 2,
    )
    _, result = member(
        FIXED, FIXED, element={"type": "TIE"}, gravity=[{"factors": (0.0, 0.0, -1.0)}]
    )
    weight = DENSITY * AREA * SPAN * 9.80665
    near(
        "bar under its weight",
        result["elements"][1]["force"],
        [(0.0, 0.0, -weight / 2), (0.0, 0.0, weight / 2)],
    )
    near("weight", result["total_force"], (0.0, 0.0, -weight))


def offsets():
    """Rigid ends shorten the span; an eccentric member bends by force times eccentricity."""
    w, x1, x2 = 2000.0, 0.5, -1.5
    _, result = member(FIXED, FIXED, element={"offset": {"x1": x1, "x2": x2}}, beam=[uniform(-w)])
    clear = SPAN - 2.0
    near("clear span", [m[1] for m in result["elements"][1]["moment"]], [w * clear**2 / 12] * 2)
    near(
        "at the nodes",
        result["reaction"][2]["moment"][1],
        w * clear**2 / 12 + w * clear / 2 * 1.5,
    )
    ecc = {"offset": {"y": 0.1, "z": -0.2}}
    pull = 1000.0
    _, result = member(
        FIXED, (), element=ecc, node=[{"list": "2", "direction": "X", "value": pull}]
    )
    near("eccentric pull", result["elements"][1]["moment"][0], (0.0, pull * 0.2, pull * 0.1))
    wanted = (0.0, pull * 0.2 * SPAN / (E * IYY), pull * 0.1 * SPAN / (E * IZZ))
    near("tip of the eccentric pull", result["displacement"][2]["rotn"], wanted)


def shear_flexibility():
    """Cantilever with a shear area: P L^3 / 3 E I + P L / G Av; fixed ends under a triangular load
    stay in balance."""
    data = model(
        ((0.0, 0.0, 0.0), (2.0, 0.0, 0.0)),
        [((1, 2), {})],
        (FIXED, ()),
        node=[{"list": "2", "direction": "Z", "value": 1000.0}],
    )
    data["sections"][1] |= {"Avy": 0.05, "Avz": 0.05}
    result = solve_static(Frame(data), {1: 1.0})
    g = E / (2 * (1 + NU))
    near(
        "deep cantilever",
        result["displacement"][2]["disp"][2],
        1000.0 * 8 / (3 * E * IYY) + 1000.0 * 2 / (g * 0.05),
    )
    data["loads"] = {"beam": [{"case": 1, "list": "1"} | uniform(-1000.0)]}
    result = solve_static(Frame(data), {1: 1.0})
    wanted = -(1000.0 * 16 / (8 * E * IYY) + 1000.0 * 4 / (2 * g * 0.05))
    near("deep cantilever, uniform", result["displacement"][2]["disp"][2], wanted)
    data["loads"] = {"beam": [{"case": 1, "list": "1"} | uniform(1000.0, "YY")]}
    result = solve_static(Frame(data), {1: 1.0})
    near("uniform moment", result["displacement"][2]["rotn"][1], 1000.0 * 4 / (2 * E * IYY))


def axes():
    """Local axes of a horizontal, an inclined, a vertical and a turned member, and by an
    orientation node."""
    near("horizontal", local_axes((0, 0, 0), (5, 0, 0)), np.eye(3))
    near("inclined", local_axes((0, 0, 0), (8, 0, 6)), ((0.8, 0, 0.6), (0, 1, 0), (-0.6, 0, 0.8)))
    near("vertical up", local_axes((0, 0, 0), (0, 0, 3)), ((0, 0, 1), (0, 1, 0), (-1, 0, 0)))
    near("vertical down", local_axes((0, 0, 3), (0, 0, 0)), ((0, 0, -1), (0, 1, 0), (1, 0, 0)))
    near("turned by 90", local_axes((0, 0, 0), (5, 0, 0), 90.0), ((1, 0, 0), (0, 0, 1), (0, -1, 0)))
    near(
        "node above",
        local_axes((0, 0, 0), (5, 0, 0), 0.0, (1, 0, 7)),
        ((1, 0, 0), (0, 0, 1), (0, -1, 0)),
    )
    near("node above, turned", local_axes((0, 0, 0), (5, 0, 0), -90.0, (1, 0, 7)), np.eye(3))
    tip = [{"list": "2", "direction": "X", "value": 1000.0}]
    _, result = member(FIXED, (), (0.0, 0.0, SPAN), node=tip)
    near(
        "column in its depth",
        result["displacement"][2]["disp"][0],
        1000.0 * SPAN**3 / (3 * E * IYY),
    )
    _, result = member(FIXED, (), (0.0, 0.0, SPAN), {"angle": 90.0}, node=tip)
    near("column turned", result["displacement"][2]["disp"][0], 1000.0 * SPAN**3 / (3 * E * IZZ))


def mechanisms():
    """What is not held must be refused, not solved."""
    spinning = {"connect": ("FFFRFF", "FFFRFF")}
    for build, words in (
        (lambda: member(("X", "Y", "Z"), ("Y",)), "the structure is a mechanism"),
        (lambda: member(PINNED, ()), "the structure is a mechanism"),
        (
            lambda: member(FIXED, FIXED, element=spinning),
            "element 1: its end releases make it a mechanism",
        ),
    ):
        try:
            build()
        except ValueError as error:
            if not str(error).startswith(words):
                raise
            continue
        raise AssertionError(f"a mechanism was solved: {words}")


def section_shapes():
    """Standard shapes against hand calculations."""
    near(
        "rectangle",
        list(from_description("STD%R%300%200").values()),
        (0.06, 4.5e-4, 2e-4, 4.695e-4),
        1e-3,
        scale=None,
    )
    plates = from_description("STD%I%500%200%10%16")
    near("I area", plates["A"], 2 * 0.2 * 0.016 + 0.468 * 0.01)
    near(
        "I major",
        plates["Iyy"],
        2 * (0.2 * 0.016**3 / 12 + 0.0032 * 0.242**2) + 0.01 * 0.468**3 / 12,
    )
    near("I minor", plates["Izz"], 2 * 0.016 * 0.2**3 / 12 + 0.468 * 0.01**3 / 12)
    box = from_description("STD%RHS%200%100%8%8")
    near("box torsion", box["J"], 4 * (0.192 * 0.092) ** 2 * 0.008 / (2 * (0.192 + 0.092)))
    tube = from_description("STD%CHS%168.3%5")
    near("tube torsion", tube["J"], 2 * tube["Iyy"], 2e-3)
    channel = from_description("STD%CH%200%75%8.5%11.5")
    flange, web = 0.075 * 0.0115, 0.177 * 0.0085
    c = (2 * flange * 0.0375 + web * 0.00425) / (2 * flange + web)
    wanted = (
        2 * (0.0115 * 0.075**3 / 12 + flange * (0.0375 - c) ** 2)
        + 0.177 * 0.0085**3 / 12
        + web * (c - 0.00425) ** 2
    )
    near("channel minor", channel["Izz"], wanted)


CHECKS = (
    tip_load,
    fixed_uniform,
    fixed_point,
    fixed_patch,
    propped,
    simple_linear,
    inclined_projected,
    releases,
    offsets,
    shear_flexibility,
    axes,
    mechanisms,
    section_shapes,
)
