"""Runs the analysis cases of a model: static ones by their loads ("1.35L1 + 1.5L2"), modal ones by
their mode ("M3")."""
import re

import numpy as np

from frame3d import Frame
from modes import mass_matrix, solve_modes
from statics import solve_static

TERM = re.compile(r"\s*([+-]?)\s*(\d*\.?\d*)\s*L(\d+)")


def load_factors(description):
    """{load case: factor} of a description such as "1.0L1 + 0.5L2"."""
    factors, at = {}, 0
    while at < len(description.rstrip()):
        term = TERM.match(description, at)
        if not term:
            raise ValueError(f"{description!r} is not a sum of load cases")
        sign, factor, case = term.groups()
        value = float(factor or 1.0) * (-1.0 if sign == "-" else 1.0)
        factors[int(case)] = factors.get(int(case), 0.0) + value
        at = term.end()
    return factors


def mass_totals(frame):
    """Mass of the whole model and its centre, supports included."""
    mass = np.diag(mass_matrix(frame))[[row for row in frame.row.values()]]
    positions = np.array([frame.position(node) for node in frame.row])
    return {"mass": float(mass.sum()), "centre_of_mass": (mass @ positions / mass.sum()).tolist()}


def analyse(model):
    """The model with its results by analysis case: {"model": ..., "results": {case: ...}}."""
    frame = Frame(model)
    numbers = {
        n: int(c["description"][1:])
        for n, c in model["cases"].items()
        if c["description"].startswith("M")
    }
    modes = solve_modes(frame, max(numbers.values())) if numbers else []
    results = {}
    for number, case in model["cases"].items():
        if number in numbers:
            results[number] = (
                {"mode": numbers[number]} | mass_totals(frame) | modes[numbers[number] - 1]
            )
        else:
            results[number] = solve_static(frame, load_factors(case["description"]))
    return {"model": model, "results": results}
