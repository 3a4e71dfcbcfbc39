"""Closed forms for single members whose loads are strains or displacements."""
import numpy as np

from check_support import ALPHA, AREA, E, FIXED, IYY, IZZ, PINNED, ROLLER, SPAN, member, near


def temperature():
    """Held bar: -E A alpha T; gradient g in z between fixed ends: E I alpha g (hot top, tension
    below)."""
    t = 25.0
    _, result = member(FIXED, FIXED, thermal=[{"type": "UNIFORM", "values": [t]}])
    near("held bar", [f[0] for f in result["elements"][1]["force"]], [-E * AREA * ALPHA * t] * 2)
    _, result = member(FIXED, (), thermal=[{"type": "UNIFORM", "values": [t]}])
    near("free bar", result["displacement"][2]["disp"], (ALPHA * t * SPAN, 0.0, 0.0))
    top = {"positions": [-0.15, 0.15], "values": [5.0, 20.0], "uniform_part": 2.5}
    gradient, mean = 15.0 / 0.3, 15.0
    _, result = member(FIXED, FIXED, thermal=[{"type": "GRADIENT_Z"} | top])
    near(
        "gradient z, fixed",
        result["elements"][1]["moment"],
        [(0.0, -E * IYY * ALPHA * gradient, 0.0)] * 2,
    )
    near("mean, fixed", result["elements"][1]["force"][0][0], -E * AREA * ALPHA * mean)
    _, result = member(FIXED, (), thermal=[{"type": "GRADIENT_Z"} | top])
    near(
        "hot top bends down",
        result["displacement"][2]["disp"][2],
        -ALPHA * gradient * SPAN**2 / 2,
    )
    _, result = member(FIXED, (), thermal=[{"type": "GRADIENT_Y"} | top])
    near(
        "hot +y bends to -y",
        result["displacement"][2]["disp"][1],
        -ALPHA * gradient * SPAN**2 / 2,
    )
    near(
        "stress-free",
        result["elements"][1]["moment"],
        np.zeros((2, 3)),
        scale=E * IZZ * ALPHA * gradient,
    )


def prestress():
    """Tension P between held ends, by force, strain or lack of fit; an offset adds P z about y and
    -P y about z."""
    force = 50e3
    for kind, value in (
        ("FORCE", force),
        ("STRAIN", force / (E * AREA)),
        ("LACK_OF_FIT", force * SPAN / (E * AREA)),
    ):
        _, result = member(FIXED, FIXED, axial=[{"type": kind, "value": value}])
        near(f"{kind}, held", result["elements"][1]["force"], [(force, 0.0, 0.0)] * 2)
        _, result = member(FIXED, (), axial=[{"type": kind, "value": value}])
        near(
            f"{kind}, free",
            result["displacement"][2]["disp"],
            (-force * SPAN / (E * AREA), 0.0, 0.0),
        )
    tendon = {"type": "FORCE", "value": force, "y_offset": 0.05, "z_offset": -0.12}
    _, result = member(FIXED, FIXED, axial=[tendon])
    near("tendon, held", result["elements"][1]["moment"], [(0.0, -force * 0.12, -force * 0.05)] * 2)
    _, result = member(PINNED, ROLLER, axial=[tendon | {"y_offset": 0.0}])
    slope = force * 0.12 * SPAN / (2 * E * IYY)
    near(
        "tendon, simple beam",
        [result["displacement"][n]["rotn"][1] for n in (1, 2)],
        (-slope, slope),
    )


def distortion():
    """A kink of theta in a simple beam turns the ends by theta b / L and theta a / L; a fixed step
    needs 12 E I d / L^3."""
    theta, a = 0.002, 4.0
    kink = {"axis": -1, "direction": "YY", "position": a, "fraction": False, "value": theta}
    _, result = member(PINNED, ROLLER, distortion=[kink])
    turned = [result["displacement"][n]["rotn"][1] for n in (1, 2)]
    near("kink", turned, (-theta * (SPAN - a) / SPAN, theta * a / SPAN))
    _, result = member(FIXED, FIXED, distortion=[kink | {"direction": "Z", "value": 0.003}])
    near("step", result["elements"][1]["force"][0][2], -12 * E * IYY * 0.003 / SPAN**3)
    near(
        "step moments",
        [m[1] for m in result["elements"][1]["moment"]],
        np.array((1, -1)) * 6 * E * IYY * 0.003 / SPAN**2,
    )


def settlement():
    """A fixed end that sinks by d: 6 E I d / L^2 and 12 E I d / L^3."""
    d = 0.01
    load = {"list": "2", "direction": "Z", "value": -d}
    _, result = member(FIXED, FIXED, settlement=[load])
    near("settled", result["displacement"][2]["disp"], (0.0, 0.0, -d))
    near(
        "settlement moments",
        [m[1] for m in result["elements"][1]["moment"]],
        np.array((1, -1)) * 6 * E * IYY * d / SPAN**2,
    )
    near(
        "settlement reactions",
        [result["reaction"][n]["force"][2] for n in (1, 2)],
        np.array((1, -1)) * 12 * E * IYY * d / SPAN**3,
    )
    _, result = member(FIXED, (), displacement=[load])
    near("pulled tip", result["constraint"][2]["force"][2], -3 * E * IYY * d / SPAN**3)
    near("pulled root", result["reaction"][1]["force"][2], 3 * E * IYY * d / SPAN**3)


CHECKS = (temperature, prestress, distortion, settlement)
