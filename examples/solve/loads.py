"""Loads of one load case, as nodal forces, prescribed displacements and the fixed-end forces of
each element.

Span loads use the exact shape functions of the beam (with shear, when it has shear areas), so that
fixed-end forces are exact. Strains that come with no force (temperature, prestress, distortion) are
given as the displacements of end 2 of a beam that is held at end 1 only; holding both ends then
takes minus stiffness times these displacements.
"""
import numpy as np

from frame3d import DIRECTIONS, PLANE_XY, PLANE_XZ, SIGN_XZ
from lists import expand

GRAVITY = 9.80665
NUM_VALUES = {"POINT": 1, "UNIFORM": 1, "LINEAR": 2, "PATCH": 2, "TRILINEAR": 4}
GAUSS = tuple(zip(*np.polynomial.legendre.leggauss(3)))


def shapes(beam, x, phi):
    """Deflection and rotation of one plane of bending at x for unit (v1, slope1, v2, slope2)."""
    ll, s = beam.length, x / beam.length
    deflection = (
        1 - 3 * s**2 + 2 * s**3 + phi * (1 - s),
        ll * (s - 2 * s**2 + s**3 + phi / 2 * (s - s**2)),
        3 * s**2 - 2 * s**3 + phi * s,
        ll * (s**3 - s**2 - phi / 2 * (s - s**2)),
    )
    rotation = (
        6 / ll * (s**2 - s),
        1 - 4 * s + 3 * s**2 + phi * (1 - s),
        6 / ll * (s - s**2),
        3 * s**2 - 2 * s + phi * s,
    )
    return np.array(deflection) / (1 + phi), np.array(rotation) / (1 + phi)


def fixed_end(beam, x, load):
    """Fixed-end forces of a force and moment (six local components) at x."""
    s = x / beam.length
    out = np.zeros(12)
    out[[0, 6]] = load[0] * np.array((1 - s, s))
    out[[3, 9]] = load[3] * np.array((1 - s, s))
    deflection, rotation = shapes(beam, x, beam.phi_xy)
    out[list(PLANE_XY)] = deflection * load[1] + rotation * load[5]
    deflection, rotation = shapes(beam, x, beam.phi_xz)
    out[list(PLANE_XZ)] = SIGN_XZ * (deflection * load[2] - rotation * load[4])
    return -out


def fixed_end_piece(beam, piece):
    """The same for a load that varies linearly from `first` at a to `last` at b."""
    a, b, first, last = piece
    total = np.zeros(12)
    for point, weight in GAUSS:
        t = (1 + point) / 2
        total += weight * (b - a) / 2 * fixed_end(beam, a + t * (b - a), (1 - t) * first + t * last)
    return total


def local_direction(frame, beam, load):
    """Local components (six) of a unit load in the load's direction; a projected load is reduced to
    the true length."""
    kind = DIRECTIONS.index(load["direction"])
    axis = load.get("axis", 0)
    unit = np.eye(3)[kind % 3] if axis == -1 else beam.axes @ frame.axes(axis)[kind % 3]
    if load.get("projected", False):
        unit = unit * np.hypot(unit[1], unit[2])
    out = np.zeros(6)
    out[kind // 3 * 3 : kind // 3 * 3 + 3] = unit
    if beam.axial_only and out[3] != 0.0:
        raise ValueError(f"element {beam.number}: a bar cannot carry a torque")
    return out


def positions(beam, load):
    """Positions of a beam load in metres from end 1 of the flexible part."""
    given = zip(load.get("positions", ()), load.get("fraction", (True,) * 4))
    out = [p * beam.length if is_fraction else p for p, is_fraction in given]
    if any(x < 0 or x > beam.length * (1 + 1e-12) for x in out) or out != sorted(out):
        raise ValueError(f"element {beam.number}: load positions {out} are off the element")
    return out


def span_pieces(frame, beam, load):
    """A beam load as (points, pieces) in local axes; a trilinear load is three pieces through four
    points."""
    unit = local_direction(frame, beam, load)
    at = positions(beam, load)
    values = [v * unit for v in load["values"]]
    if len(values) != NUM_VALUES[load["type"]]:
        raise ValueError(f"a {load['type']} beam load has {NUM_VALUES[load['type']]} values")
    if load["type"] == "POINT":
        return [(at[0], values[0])], []
    if load["type"] in ("UNIFORM", "LINEAR"):
        return [], [(0.0, beam.length, values[0], values[-1])]
    return [], [(at[k], at[k + 1], values[k], values[k + 1]) for k in range(len(values) - 1)]


def free_end(beam, axial_strain, curvature_y, curvature_z):
    """Displacements of the ends, end 1 held, of a beam with a uniform strain and d(rotation)/dx
    about y and z."""
    ll = beam.length
    out = np.zeros(12)
    out[6] = axial_strain * ll
    out[7], out[11] = curvature_z * ll**2 / 2, curvature_z * ll
    out[8], out[10] = -curvature_y * ll**2 / 2, curvature_y * ll
    return out


def prestress(_frame, beam, load):
    """A force P is the tension in the element when its ends are held; offsets place it away from
    the centroid."""
    force = load["value"]
    if load["type"] == "STRAIN":
        force *= beam.ea
    elif load["type"] == "LACK_OF_FIT":
        force *= beam.ea / beam.length
    elif load["type"] != "FORCE":
        raise ValueError(f"axial load of type {load['type']!r}")
    about_y = -force * load.get("z_offset", 0.0) / beam.eiyy
    about_z = force * load.get("y_offset", 0.0) / beam.eizz
    return free_end(beam, -force / beam.ea, about_y, about_z)


def temperature(_frame, beam, load):
    """Uniform, or a gradient in y or z by the temperatures at two distances from the centroid and a
    uniform part."""
    alpha = beam.material["alpha"]
    if load["type"] == "UNIFORM":
        return free_end(beam, alpha * load["values"][0], 0.0, 0.0)
    (low, high), (t_low, t_high) = load["positions"], load["values"]
    gradient = (t_high - t_low) / (high - low)
    centre = alpha * (t_low - gradient * low + load.get("uniform_part", 0.0))
    if load["type"] == "GRADIENT_Z":
        return free_end(beam, centre, alpha * gradient, 0.0)
    if load["type"] == "GRADIENT_Y":
        return free_end(beam, centre, 0.0, -alpha * gradient)
    raise ValueError(f"thermal load of type {load['type']!r}")


def distortion(frame, beam, load):
    """A jump at a position: the part beyond it is moved by the value in the direction against the
    part before it."""
    jump = load["value"] * local_direction(frame, beam, load)
    (x,) = positions(
        beam, {"positions": [load["position"]], "fraction": [load.get("fraction", True)]}
    )
    out = np.zeros(12)
    out[6:9] = jump[:3] + np.cross(jump[3:], (beam.length - x, 0.0, 0.0))
    out[9:] = jump[3:]
    return out


FORCE_FREE = {"axial": prestress, "thermal": temperature, "distortion": distortion}


class CaseLoads:
    """Everything one load case (or a sum of load cases with factors) does to a frame."""

    def __init__(self, frame):
        self.nodal = np.zeros(frame.size)  # global axes
        self.fixed = {n: np.zeros(12) for n in frame.beams}  # fixed-end forces, local axes
        self.spans = {n: ([], []) for n in frame.beams}  # points and pieces, local axes
        self.settled = {}  # row of a restrained freedom -> displacement, axes of the node
        self.moved = (
            {}
        )  # row of a freedom moved by an applied displacement -> displacement, axes of the node


def add_span(out, beam, factor, points, pieces):
    for x, value in points:
        out.fixed[beam.number] += factor * fixed_end(beam, x, value)
        out.spans[beam.number][0].append((x, factor * value))
    for a, b, first, last in pieces:
        if b > a:
            piece = (a, b, factor * first, factor * last)
            out.fixed[beam.number] += fixed_end_piece(beam, piece)
            out.spans[beam.number][1].append(piece)


def add_gravity(frame, out, load, factor):
    """Weight of the listed elements, and of the nodal masses at the listed nodes."""
    pull = factor * GRAVITY * np.array(load["factors"], dtype=float)
    for number in expand(load["list"], frame.beams):
        beam = frame.beams[number]
        weight = np.zeros(6)
        weight[:3] = beam.axes @ pull * beam.material["density"] * beam.section["A"]
        add_span(out, beam, 1.0, [], [(0.0, beam.length, weight, weight)])
    for number in expand(load.get("nodes", "all"), frame.row):
        mass = frame.model["nodes"][number].get("mass", 0)
        if mass:
            row = frame.row[number]
            out.nodal[row : row + 3] += pull * frame.model["masses"][mass]["mass"]


def add_node_load(frame, out, load, factor):
    kind = DIRECTIONS.index(load["direction"])
    for number in expand(load["list"], frame.row):
        row, axis = frame.row[number], load.get("axis", 0)
        axes = frame.axes(frame.model["nodes"][number].get("axis", 0) if axis == -1 else axis)
        at = row + kind // 3 * 3
        out.nodal[at : at + 3] += factor * load["value"] * axes[kind % 3]


def add_displacement(frame, target, load, factor, on_support):
    """Settlements act on restrained freedoms, applied displacements on free ones; both in the axes
    of the node."""
    for number in expand(load["list"], frame.row):
        row = frame.row[number] + DIRECTIONS.index(load["direction"])
        if load.get("axis", 0) not in (-1, frame.model["nodes"][number].get("axis", 0)):
            raise ValueError(f"node {number}: a displacement must be given in the axes of the node")
        if frame.restrained[row] != on_support:
            raise ValueError(
                f"node {number}: {load['direction']} is {'free' if on_support else 'restrained'}"
            )
        target[row] = target.get(row, 0.0) + factor * load["value"]


def add_case(frame, out, case, factor):
    """Add one load case of the model, times a factor."""
    loads = {
        kind: [r for r in records if r["case"] == case]
        for kind, records in frame.model["loads"].items()
    }
    for load in loads.get("node", ()):
        add_node_load(frame, out, load, factor)
    for load in loads.get("settlement", ()):
        add_displacement(frame, out.settled, load, factor, True)
    for load in loads.get("displacement", ()):
        add_displacement(frame, out.moved, load, factor, False)
    for load in loads.get("gravity", ()):
        add_gravity(frame, out, load, factor)
    for load in loads.get("beam", ()):
        for number in expand(load["list"], frame.beams):
            add_span(
                out, frame.beams[number], factor, *span_pieces(frame, frame.beams[number], load)
            )
    for kind, rule in FORCE_FREE.items():
        for load in loads.get(kind, ()):
            for number in expand(load["list"], frame.beams):
                beam = frame.beams[number]
                out.fixed[number] -= factor * beam.stiffness @ rule(frame, beam, load)


def case_loads(frame, factors):
    """The loads of {load case: factor}."""
    out = CaseLoads(frame)
    for case, factor in factors.items():
        if factor != 0.0:
            add_case(frame, out, case, factor)
    return out
