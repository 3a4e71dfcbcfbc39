"""Natural modes against closed forms, and orthogonality and effective masses of a space frame."""
import numpy as np

from check_frames import random_frame
from check_support import AREA, DENSITY, E, FIXED, IYY, IZZ, NU, SPAN, TORSION, model, near
from frame3d import Frame
from modes import mass_matrix, rigid_motions, solve_modes

IN_PLANE = ("Y", "XX", "ZZ")


def line(parts, first, last, between=IN_PLANE):
    """A straight member of equal parts along x, moving in the x-z plane alone unless told
    otherwise."""
    points = [(SPAN * k / parts, 0.0, 0.0) for k in range(parts + 1)]
    restraints = [first] + [between] * (parts - 1) + [last]
    return model(points, [((k + 1, k + 2), {}) for k in range(parts)], restraints)


def beam_frequency(root, second_moment=IYY):
    return root**2 / (2 * np.pi * SPAN**2) * np.sqrt(E * second_moment / (DENSITY * AREA))


def simple_beam():
    """Simple beam: (n pi / L)^2 sqrt(E I / m); modal mass half the mass of the beam."""
    frame = Frame(
        line(24, ("X", "Y", "Z", "XX", "ZZ"), ("X", "Y", "Z", "XX", "ZZ"), ("X",) + IN_PLANE)
    )
    modes = solve_modes(frame, 4)
    near(
        "frequencies",
        [m["frequency"] for m in modes],
        [beam_frequency(n * np.pi) for n in (1, 2, 3, 4)],
        2e-4,
    )
    near("modal mass", modes[0]["modal_mass"], DENSITY * AREA * SPAN / 2, 1e-9)
    near(
        "effective mass",
        modes[0]["effective_mass"][2],
        8 / np.pi**2 * DENSITY * AREA * SPAN,
        4e-3,
    )
    near("no effective mass", modes[1]["effective_mass"], np.zeros(3), 1e-9, DENSITY * AREA * SPAN)
    near("middle", modes[0]["displacement"][13]["disp"], (0.0, 0.0, 1.0), 1e-9)
    near(
        "stiffness",
        modes[0]["modal_stiffness"],
        modes[0]["modal_mass"] * (2 * np.pi * modes[0]["frequency"]) ** 2,
    )


def cantilever():
    """Cantilever: 1.8751 and 4.6941; the weak plane alike."""
    for between, second_moment in ((IN_PLANE, IYY), (("X", "Z", "XX", "YY"), IZZ)):
        frame = Frame(line(40, FIXED, between, between))
        modes = solve_modes(frame, 2)
        wanted = [beam_frequency(root, second_moment) for root in (1.8751040687, 4.6940911330)]
        near("frequencies", [m["frequency"] for m in modes], wanted, 1.5e-3)


def rod():
    """Rod along its length: (2n - 1) / 4 L sqrt(E / density)."""
    held = ("Y", "Z", "XX", "YY", "ZZ")
    modes = solve_modes(Frame(line(40, FIXED, held, held)), 2)
    near(
        "frequencies",
        [m["frequency"] for m in modes],
        np.array((1, 3)) / (4 * SPAN) * np.sqrt(E / DENSITY),
        1e-3,
    )


def tip_mass():
    """Massless cantilever with a lump: sqrt(3 E I / m L^3) both ways, sqrt(G J / L I) in torsion,
    sqrt(E A / m L)."""
    data = line(1, FIXED, ())
    data["materials"][1]["density"] = 0.0
    data["masses"] = {1: {"mass": 5e4, "inertia": (2e4, 0.0, 0.0, 0.0, 0.0, 0.0)}}
    data["nodes"][2]["mass"] = 1
    modes = solve_modes(Frame(data), 4)
    stiffness = np.array(
        (
            3 * E * IZZ / SPAN**3,
            3 * E * IYY / SPAN**3,
            E / (2 * (1 + NU)) * TORSION / SPAN,
            E * AREA / SPAN,
        )
    )
    wanted = np.sqrt(stiffness / (5e4, 5e4, 2e4, 5e4)) / (2 * np.pi)
    near("frequencies", [m["frequency"] for m in modes], np.sort(wanted), 1e-9)


def space_frame():
    """Modes of a space frame: orthogonal to mass and stiffness; effective masses of all modes add
    up to the mass."""
    data = random_frame(4)
    data["masses"] = {1: {"mass": 1500.0, "inertia": (30.0, 40.0, 50.0, 5.0, -4.0, 3.0)}}
    data["nodes"][9]["restraint"] = ()
    frame = Frame(data)
    free = np.flatnonzero(~frame.restrained)
    mass = mass_matrix(frame)
    modes = solve_modes(frame, 3 * 8 + 3)
    shapes = np.array(
        [
            [v for n in frame.row for k in ("disp", "rotn") for v in m["displacement"][n][k]]
            for m in modes
        ]
    )
    modal = np.array([m["modal_mass"] for m in modes])
    scaled = shapes / np.sqrt(modal)[:, None]
    near("orthogonal to mass", scaled @ mass @ scaled.T, np.eye(len(modes)), 1e-8)
    stiffness = frame.turn.T @ (frame.stiffness + np.diag(frame.ground)) @ frame.turn
    squares = np.array([(2 * np.pi * m["frequency"]) ** 2 for m in modes])
    near("orthogonal to stiffness", scaled @ stiffness @ scaled.T, np.diag(squares), 1e-8)
    near(
        "largest component",
        np.abs(shapes.reshape(len(modes), -1, 6)[:, :, :3]).max(axis=(1, 2)),
        np.ones(len(modes)),
    )
    rigid = rigid_motions(frame)[free]
    total = np.diag(rigid.T @ mass[np.ix_(free, free)] @ rigid)
    effective = sum(np.array(m["effective_mass"] + m["rotational_effective_mass"]) for m in modes)
    near("effective masses", effective, total, 1e-8)


def bars_in_a_truss():
    """Freedoms that nothing stiffens (rotations between bars) are held, with and without mass."""
    points = ((-3.0, 0.0, 4.0), (3.0, 0.0, 4.0), (0.0, 0.0, 0.0))
    elements = [((1, 3), {"type": "BAR"}), ((2, 3), {"type": "BAR"})]
    data = model(points, elements, (("X", "Y", "Z"), ("X", "Y", "Z"), ("Y",)))
    modes = solve_modes(Frame(data), 2)
    stiffness = 2 * E * AREA / 5.0 * np.array((0.36, 0.64))
    near(
        "frequencies",
        [m["frequency"] for m in modes],
        np.sqrt(stiffness / (DENSITY * AREA * 5.0)) / (2 * np.pi),
    )


CHECKS = (simple_beam, cantilever, rod, tip_mass, space_frame, bars_in_a_truss)
