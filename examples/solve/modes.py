"""Natural modes with lumped masses: half of each element at each of its nodes, and the nodal
masses.

Freedoms without mass are condensed out (exactly), the rest is reduced by the Cholesky factor of the
mass matrix to an ordinary symmetric eigenproblem. Mode shapes are scaled so that the largest
displacement component is 1.
"""
import math

import numpy as np

from statics import factorise, vectors


def mass_matrix(frame):
    """Lumped mass matrix in global axes."""
    mass = np.zeros((frame.size, frame.size))
    for beam in frame.beams.values():
        for node in beam.nodes:
            at = frame.row[node] + np.arange(3)
            mass[at, at] += beam.mass() / 2
    for number, node in frame.model["nodes"].items():
        if node.get("mass", 0):
            lump = frame.model["masses"][node["mass"]]
            at = frame.row[number] + np.arange(3)
            mass[at, at] += lump["mass"]
            mass[np.ix_(at + 3, at + 3)] += inertia_matrix(lump.get("inertia", (0.0,) * 6))
    return mass


def inertia_matrix(inertia):
    """From (xx, yy, zz, xy, yz, zx), the products being the positive integrals of xy, yz and zx."""
    xx, yy, zz, xy, yz, zx = inertia
    return np.array(((xx, -xy, -zx), (-xy, yy, -yz), (-zx, -yz, zz)))


def rigid_motions(frame):
    """Six columns: unit translations along, and unit rotations about, the global axes at the
    origin."""
    out = np.zeros((frame.size, 6))
    for node, row in frame.row.items():
        x, y, z = frame.position(node)
        out[row : row + 6] = np.eye(6)
        out[row : row + 3, 3:] = ((0.0, z, -y), (-z, 0.0, x), (y, -x, 0.0))
    return out


def reduced_problem(frame):
    """Stiffness and mass of the freedoms with mass, and the matrix that gives all freedoms from
    them (nodal axes)."""
    stiffness = frame.tied(frame.stiffness + np.diag(frame.ground))
    mass = frame.tied(frame.turn @ mass_matrix(frame) @ frame.turn.T)
    free = np.flatnonzero(~(frame.restrained | frame.idle()))
    factorise(frame, stiffness[np.ix_(free, free)], free)
    heavy = mass[free].any(axis=1)
    kept, light = free[heavy], free[~heavy]
    expand = np.zeros((frame.size, len(kept)))
    expand[kept, np.arange(len(kept))] = 1.0
    if len(light):
        expand[light] = -np.linalg.solve(
            stiffness[np.ix_(light, light)], stiffness[np.ix_(light, kept)]
        )
    condensed = expand.T @ stiffness @ expand
    return (condensed + condensed.T) / 2, mass[np.ix_(kept, kept)], frame.tie @ expand


def eigenpairs(stiffness, mass):
    """Ascending eigenvalues and eigenvectors (columns, unit modal mass)."""
    lower = np.linalg.cholesky(mass)
    half = np.linalg.solve(lower, stiffness)
    square = np.linalg.solve(lower, half.T)
    values, vectors_ = np.linalg.eigh((square + square.T) / 2)
    return values, np.linalg.solve(lower.T, vectors_)


def solve_modes(frame, count):
    """The first `count` modes, as plain lists and dicts."""
    stiffness, mass, expand = reduced_problem(frame)
    values, shapes = eigenpairs(stiffness, mass)
    if count > len(values):
        raise ValueError(f"{count} modes asked for, the frame has {len(values)} freedoms with mass")
    pull = mass_matrix(frame) @ rigid_motions(frame)
    return [mode_results(frame, values[k], shapes[:, k], mass, expand, pull) for k in range(count)]


def largest_component(shape):
    """The displacement of largest size, with its sign; of a mode that only turns, the rotation of
    largest size.

    Where several are as large but for rounding, as in a skew-symmetric mode, the first gives the
    sign.
    """
    parts = shape.reshape(-1, 6)
    moves, turns = parts[:, :3].ravel(), parts[:, 3:].ravel()
    values = moves if np.abs(moves).max() > 1e-9 * np.abs(turns).max() else turns
    largest = np.abs(values).max()
    return np.copysign(largest, values[np.argmax(np.abs(values) >= (1 - 1e-6) * largest)])


def mode_results(frame, value, shape, mass, expand, pull):
    full = frame.turn.T @ expand @ shape
    largest = largest_component(full)
    shape, full = shape / largest, full / largest
    modal_mass = float(shape @ mass @ shape)
    effective = (full @ pull) ** 2 / modal_mass
    everywhere = np.ones(frame.size, dtype=bool)
    return {
        "frequency": math.sqrt(value) / (2 * math.pi),
        "modal_mass": modal_mass,
        "modal_stiffness": float(value) * modal_mass,
        "effective_mass": effective[:3].tolist(),
        "rotational_effective_mass": effective[3:].tolist(),
        "displacement": vectors(frame, everywhere, "disp", "rotn", full),
    }
