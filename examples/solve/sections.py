"""Properties of standard section shapes, from their dimensions in mm, as SI values about the
centroid.

Depth lies along the local z axis and width along the local y axis, so that Iyy is the major axis of
an upright I. Thin open shapes have the torsion constant sum(b t^3) / 3 of their plates, closed ones
Bredt's 4 Am^2 / integral(ds / t).
"""
import math


def rectangle(depth, width):
    """Solid rectangle; torsion constant by Roark's formula."""
    a, b = max(depth, width), min(depth, width)
    torsion = a * b**3 * (1 / 3 - 0.21 * (b / a) * (1 - (b / a) ** 4 / 12))
    return depth * width, width * depth**3 / 12, depth * width**3 / 12, torsion


def hollow_box(depth, width, web, flange):
    """Rectangular tube with two webs and two flanges; square corners."""
    inner_depth, inner_width = depth - 2 * flange, width - 2 * web
    area = depth * width - inner_depth * inner_width
    iyy = (width * depth**3 - inner_width * inner_depth**3) / 12
    izz = (depth * width**3 - inner_depth * inner_width**3) / 12
    mid_depth, mid_width = depth - flange, width - web
    torsion = 4 * (mid_depth * mid_width) ** 2 / (2 * mid_depth / web + 2 * mid_width / flange)
    return area, iyy, izz, torsion


def solid_round(diameter):
    second_moment = math.pi * diameter**4 / 64
    return math.pi * diameter**2 / 4, second_moment, second_moment, 2 * second_moment


def tube(diameter, wall):
    inner = diameter - 2 * wall
    second_moment = math.pi * (diameter**4 - inner**4) / 64
    torsion = math.pi * (diameter - wall) ** 3 * wall / 4
    return math.pi * (diameter**2 - inner**2) / 4, second_moment, second_moment, torsion


def plain_i(depth, width, web, flange):
    """Doubly symmetric I of three plates, no root radii."""
    clear = depth - 2 * flange
    area = 2 * width * flange + clear * web
    iyy = (width * depth**3 - (width - web) * clear**3) / 12
    izz = (2 * flange * width**3 + clear * web**3) / 12
    return area, iyy, izz, (2 * width * flange**3 + clear * web**3) / 3


def channel(depth, width, web, flange):
    """Channel of three plates; the second moment about z is taken about its own centroid."""
    clear = depth - 2 * flange
    area = 2 * width * flange + clear * web
    iyy = (width * depth**3 - (width - web) * clear**3) / 12
    centroid = (2 * width * flange * width / 2 + clear * web * web / 2) / area
    about_back = (2 * flange * width**3 + clear * web**3) / 3
    return (
        area,
        iyy,
        about_back - area * centroid**2,
        (2 * width * flange**3 + clear * web**3) / 3,
    )


SHAPES = {
    "R": rectangle,
    "RHS": hollow_box,
    "C": solid_round,
    "CHS": tube,
    "I": plain_i,
    "CH": channel,
}


def from_description(description):
    """Area, second moments and torsion constant (m2, m4) of "STD%I%450%190%9%14" (mm) or
    "EXP%A%Iyy%Izz%J%Ky%Kz" (SI)."""
    names = ("A", "Iyy", "Izz", "J")
    family, *words = description.split("%")
    if family == "EXP":
        return dict(zip(names, (float(w) for w in words)))
    if family != "STD" or words[0] not in SHAPES:
        raise ValueError(f"no section shape for {description!r}")
    return dict(zip(names, SHAPES[words[0]](*(float(w) / 1000 for w in words[1:]))))
