"""Static cases: displacements, reactions, spring and element end forces, totals.

Element forces follow the positive-face rule in element axes: F(x) and M(x) are what the part beyond
x does to the part before it. Tension is positive, dMyy/dx = Fz, dMzz/dx = -Fy, and a beam that sags
under a load along -z has a negative Myy. Node results are in global axes. Reactions are what a
support does to the structure. An applied displacement of a free node is held by a constraint force.
Ground springs, reactions and constraint forces together balance the loads.
"""
import numpy as np

from loads import case_loads


class Mechanism(ValueError):
    """The structure is not held."""


def factorise(frame, matrix, free):
    """Cholesky factor of a symmetric matrix over the free freedoms, or Mechanism naming a node that
    can move."""
    scale = 1 / np.sqrt(np.diag(matrix))
    try:
        factor = np.linalg.cholesky(matrix * np.outer(scale, scale))
    except np.linalg.LinAlgError:
        raise Mechanism("the structure is a mechanism") from None
    weakest = int(np.argmin(np.diag(factor)))
    if factor[weakest, weakest] < 1e-6:
        node = [n for n, row in frame.row.items() if row <= free[weakest] < row + 6][0]
        raise Mechanism(f"the structure is a mechanism at node {node}")
    return factor / scale[:, None]


def displacements(frame, nodal, prescribed):
    """Displacements in the axes of the nodes under nodal forces, with some freedoms prescribed, the
    supports held."""
    stiffness = frame.tied(frame.stiffness + np.diag(frame.ground))
    nodal = frame.tie.T @ nodal
    u = np.zeros(frame.size)
    held = frame.restrained | frame.idle()
    for row, value in prescribed.items():
        held[row] = True
        u[row] = value
    free = np.flatnonzero(~held)
    if not len(free):
        return frame.tie @ u
    factor = factorise(frame, stiffness[np.ix_(free, free)], free)
    right = nodal[free] - stiffness[free] @ u
    u[free] = np.linalg.solve(factor.T, np.linalg.solve(factor, right))
    return frame.tie @ u


def end_forces(beam, ends, fixed_end):
    """Force and moment at the two ends by the positive-face rule, from the displacements of the
    flexible ends."""
    q = beam.stiffness @ ends + fixed_end
    return np.array((-q[0:3], q[6:9])), np.array((-q[3:6], q[9:12]))


def element_results(frame, u_global, fixed):
    out = {}
    for number, beam in frame.beams.items():
        ends = beam.end_displacements(u_global[frame.rows(beam)], fixed[number])
        force, moment = end_forces(beam, ends, fixed[number])
        turned = [(beam.axes.T @ ends[i : i + 3]).tolist() for i in (0, 3, 6, 9)]
        out[number] = {
            "force": force.tolist(),
            "moment": moment.tolist(),
            "disp": [turned[0], turned[2]],
            "rotn": [turned[1], turned[3]],
        }
    return out


def total(frame, nodal):
    """Sum of nodal forces (global axes), and their moment about the origin."""
    force, moment = np.zeros(3), np.zeros(3)
    for node, row in frame.row.items():
        force += nodal[row : row + 3]
        moment += nodal[row + 3 : row + 6] + np.cross(frame.position(node), nodal[row : row + 3])
    return force.tolist(), moment.tolist()


def vectors(frame, rows, first, second, values):
    """{node: {first: [x, y, z], second: [...]}} of the nodes that own one of the rows (a mask)."""
    out = {}
    for node, row in frame.row.items():
        if rows[row : row + 6].any():
            out[node] = {
                first: values[row : row + 3].tolist(),
                second: values[row + 3 : row + 6].tolist(),
            }
    return out


def solve_static(frame, factors):
    """Results of a static analysis case, given as {load case: factor}, as plain lists and dicts."""
    loads = case_loads(frame, factors)
    applied = loads.nodal.copy()
    for number, beam in frame.beams.items():
        applied[frame.rows(beam)] += beam.nodal_load(loads.fixed[number])
    u = displacements(frame, frame.turn @ applied, loads.settled | loads.moved)
    u_global = frame.turn.T @ u
    spring = -frame.ground * u
    held = frame.stiffness @ u - spring - frame.turn @ applied
    moved = np.zeros(frame.size, dtype=bool)
    moved[list(loads.moved)] = True
    parts = {
        "reaction": np.where(frame.restrained, held, 0.0),
        "constraint": np.where(moved, held, 0.0),
        "spring": spring,
    }
    parts = {name: frame.turn.T @ values for name, values in parts.items()}
    everywhere = np.ones(frame.size, dtype=bool)
    result = {
        "displacement": vectors(frame, everywhere, "disp", "rotn", u_global),
        "reaction": vectors(frame, frame.restrained, "force", "moment", parts["reaction"]),
        "constraint": vectors(frame, moved, "force", "moment", parts["constraint"]),
        "spring": vectors(frame, frame.ground > 0, "force", "moment", parts["spring"]),
        "elements": element_results(frame, u_global, loads.fixed),
    }
    if frame.springs:
        forces = {n: s.force(u_global[frame.rows(s)]) for n, s in frame.springs.items()}
        result["tables"] = {"spring_force": {n: np.tile(f, 2) for n, f in forces.items()}}
    # what rounding may leave of forces that cancel
    products = np.abs(frame.stiffness) @ np.abs(u)
    result["force_noise"] = float(64 * np.finfo(float).eps * products.max())
    result["total_force"], result["total_moment"] = total(frame, applied)
    result["total_react_force"], result["total_react_moment"] = total(frame, sum(parts.values()))
    return result
