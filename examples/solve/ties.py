"""Constraints of a frame: freedoms that follow others exactly, as the matrix that gives all freedoms
from those that follow none.

A model's "ties" hold rigid constraints {"primary", "nodes", "type"}, joints {"nodes", "freedoms"} and
equations {"node", "direction", "terms"}; all in global axes.
"""
import numpy as np

DIRECTIONS = ("X", "Y", "Z", "XX", "YY", "ZZ")
# bit of a link type: freedom that follows, freedom that is followed, and the component of the arm
# from the primary node (with its sign) that goes with it
LINK_BITS = (
    (0, 0, None, 1.0),
    (0, 4, 2, 1.0),
    (0, 5, 1, -1.0),
    (3, 3, None, 1.0),
    (1, 1, None, 1.0),
    (1, 5, 0, 1.0),
    (1, 3, 2, -1.0),
    (4, 4, None, 1.0),
    (2, 2, None, 1.0),
    (2, 3, 1, 1.0),
    (2, 4, 0, -1.0),
    (5, 5, None, 1.0),
)


def rigid_rows(frame, rigid):
    """{freedom: {freedom it follows: factor}} of a rigid constraint; a freedom without its own
    direct bit stays free."""
    out = {}
    primary = frame.row[rigid["primary"]]
    for node in rigid["nodes"]:
        arm = frame.position(node) - frame.position(rigid["primary"])
        for bit, (follows, leads, component, sign) in enumerate(LINK_BITS):
            if rigid["type"] >> bit & 1:
                factor = sign * (1.0 if component is None else arm[component])
                out.setdefault(frame.row[node] + follows, {})[primary + leads] = factor
    return out


def tie_rows(frame):
    out, ties_ = {}, frame.model["ties"]
    for rigid in ties_.get("rigid", ()):
        out |= rigid_rows(frame, rigid)
    for joint in ties_.get("joint", ()):
        first, second = (frame.row[n] for n in joint["nodes"])
        for direction in joint["freedoms"]:
            k = DIRECTIONS.index(direction)
            out[second + k] = {first + k: 1.0}
    for equation in ties_.get("equation", ()):
        row = frame.row[equation["node"]] + DIRECTIONS.index(equation["direction"])
        out[row] = {frame.row[n] + DIRECTIONS.index(d): f for n, d, f in equation["terms"]}
    return out


def ties(frame):
    """All freedoms from those that follow none; columns of the others are 0. Freedoms of a chain
    follow the first of it."""
    tie = np.eye(frame.size)
    if not frame.model.get("ties"):
        return tie
    rows = tie_rows(frame)
    led = [leader for terms in rows.values() for leader in terms]
    if frame.restrained[list(rows)].any() or frame.restrained[led].any():
        raise ValueError("a restrained freedom is part of a constraint")
    if any(frame.model["nodes"][n].get("axis") for n in frame.model["nodes"]):
        raise ValueError("constraints need nodes in global axes")
    follow = np.zeros_like(tie)
    for row, terms in rows.items():
        tie[row, row] = 0.0
        for leader, factor in terms.items():
            follow[row, leader] = factor
    out = tie
    for _ in range(4):
        out = tie + follow @ out
    return out
