"""A silo on a piled raft in layered clay: input for the piled-raft analysis, no results.

The raft has eight-node, six-node, four-node and three-node shells; a pile stands under each of its
columns' nodes, in two lengths. Nodes 1 to 25 are a grid of 5 by 5 at 2.5 m, 31 on the mid-sides of
the one eight-node and the two six-node shells, 101 on and 201 on the middles and toes of the piles.
"""
import pathlib

from document import write_document

PITCH, MIDDLE_LEVEL, TOE = 2.5, -9.0, -18.0
PILED = (1, 3, 5, 11, 13, 15, 21, 23, 25)


def grid_nodes():
    return {5 * j + i + 1: [PITCH * i, PITCH * j, 0.0] for j in range(5) for i in range(5)}


def halves(nodes, *pairs):
    return [[(a + b) / 2 for a, b in zip(nodes[p], nodes[q])] for p, q in pairs]


def nodes_and_elements():
    """The south-west cells are an eight-node shell and two six-node triangles; two cells in the
    north-east are split into triangles."""
    at = grid_nodes()
    middles = halves(at, (1, 2), (2, 7), (6, 7), (1, 6), (2, 3), (3, 8), (7, 8), (2, 8))
    places = at | dict(enumerate(middles, 31))
    shells = [("quad8", [1, 2, 7, 6, 31, 32, 33, 34])]
    shells += [("tri6", [2, 3, 8, 35, 36, 38]), ("tri6", [2, 8, 7, 38, 37, 32])]
    for j in range(4):
        for i in range(4):
            a = 5 * j + i + 1
            if a in (1, 2):
                continue
            if a in (18, 19):
                shells += [("tri3", [a, a + 1, a + 6]), ("tri3", [a, a + 6, a + 5])]
            else:
                shells.append(("quad4", [a, a + 1, a + 6, a + 5]))
    elements = {
        n: {"type": kind, "nodes": t, "property": 2 if n > 16 else 1, "group": 1}
        for n, (kind, t) in enumerate(shells, 1)
    }
    for k, head in enumerate(PILED, 1):
        x, y, _ = at[head]
        places[100 + k], places[200 + k] = [x, y, MIDDLE_LEVEL], [x, y, TOE]
        section = 2 if head == 13 else 1
        for n, (a, b) in ((100, (head, 100 + k)), (200, (100 + k, 200 + k))):
            elements[n + k] = {"type": "beam", "nodes": [a, b], "property": section, "group": 2}
    return {n: {"position": p} for n, p in sorted(places.items())}, elements


def grade(name, e, nu, density, strength):
    analysis = {"name": name, "e": [e, 0.0, 0.0], "nu": [nu, 0.0, 0.0], "density": density}
    analysis |= {"g": [e / (2 * (1 + nu)), 0.0, 0.0], "alpha": [10e-6, 0.0, 0.0]}
    return {1: {"name": name, "analysis": analysis, "strength": strength}}


def face(case, name, kind, **more):
    return {"name": name, "load_case": case, "direction": "z", "type": kind} | more


def loads():
    cap = {"load_case": 4, "entities": "3"}
    return {
        "gravity_loads": {1: {"name": "Self weight", "load_case": 1, "factor": [0.0, 0.0, -1.0]}},
        "node_loads": {
            k: {"name": "Silo leg", "load_case": 2, "entities": str(n), "direction": "z"}
            | {"value": -650e3}
            for k, n in enumerate((7, 9, 17, 19), 1)
        },
        "face_loads": {
            1: face(2, "Plant", "uniform", entities="1 to 10", values=[-5e3, 0.0, 0.0, 0.0]),
            2: face(2, "Spill", "corners", entities="4", values=[-4e3, -4e3, -1e3, -1e3]),
            3: face(2, "Fill", "equation", entities="11 to 16", equation=[-2e3, -200.0, 0.0, 0.0]),
            4: face(2, "Jack", "point", entities="5", values=[-80e3, 0.0, 0.0, 0.0])
            | {"position": [0.25, -0.5]},
        },
        "edge_loads": {
            1: {"name": "Upstand", "load_case": 2, "entities": "1", "direction": "z", "edge": 1}
            | {"values": [-12e3, -12e3]}
        },
        "in_plane_loads": {
            1: cap | {"name": "Tendons", "type": "force", "value": -900e3, "offset": -0.2},
            2: cap | {"name": "Shrinkage", "type": "strain", "value": -0.0002},
            3: cap | {"name": "Closing joint", "type": "lack_of_fit", "value": 0.001},
        },
        "face_thermal_loads": {
            1: {"name": "Summer", "load_case": 5, "entities": "all", "type": "uniform"}
            | {"values": [15.0] + [0.0] * 7},
            2: {"name": "Warm grain", "load_case": 5, "entities": "4 5", "type": "gradient"}
            | {"values": [20.0, 0.0] + [0.0] * 6},
            3: {"name": "Burner", "load_case": 5, "entities": "6", "type": "general"}
            | {"values": [30.0, 30.0, 20.0, 20.0, 5.0, 5.0, 5.0, 5.0]},
        },
    }


def soil():
    clay = [
        {"top_level": 0.0, "e_top": 12e6, "e_bottom": 20e6, "nu": 0.45, "curve": 1},
        {"top_level": -6.0, "e_top": 30e6, "e_bottom": 60e6, "nu": 0.3, "curve": 1},
        {"top_level": -20.0, "e_top": 90e6, "e_bottom": 150e6, "nu": 0.2},
    ]
    soft = [dict(clay[0], e_top=8e6, e_bottom=14e6)] + clay[1:]
    return {
        "soil_profiles": {
            1: {"name": "Borehole 1", "layers": clay},
            2: {"name": "Borehole 2", "layers": soft},
        },
        "soil_zones": {
            1: {"name": "West", "profile": 1, "lower": [-20.0, -20.0], "upper": [5.0, 30.0]},
            2: {"name": "East", "profile": 2, "lower": [5.0, -20.0], "upper": [30.0, 30.0]},
        },
        "soil_curves": {
            1: {
                "name": "Stiff clay",
                "points": [[1e-5, 1.0], [1e-4, 0.8], [1e-3, 0.4], [1e-2, 0.1]],
            }
        },
        "pile_soil_properties": {
            1: {
                "name": "Bored pile 600",
                "base_curve": 1,
                "shaft_curve": 2,
                "base_area": 0.2827,
                "shaft_friction_limit": 70e3,
                "end_bearing_limit": 1.8e6,
            }
        },
        "pile_soil_curves": {
            1: {"name": "Base", "points": [[0.01, 150e3], [0.03, 350e3], [0.06, 500e3]]},
            2: {"name": "Shaft", "points": [[0.003, 400e3], [0.01, 900e3], [0.02, 1000e3]]},
        },
        "soil_loads": {
            1: {
                "name": "Lorry park",
                "case": 1,
                "centre": [18.0, 5.0, 0.0],
                "angle": 10.0,
                "width": [8.0, 20.0],
                "vertical": 15e3,
                "horizontal": [500.0, 0.0],
            }
        },
    }


def properties():
    concrete = {"type": "concrete", "grade": 1}
    families = ("frp", "aluminium", "glass", "timber", "fabric", "rebar")
    kinds = ("plane_stress", "plane_strain", "axisymmetric", "membrane", "plate", "curved_shell")
    spare = {
        k: {"name": f"{kind.replace('_', ' ').capitalize()}, {family}", "type": kind}
        | {"thickness": 0.02, "material": {"type": family, "grade": 1}}
        for k, (kind, family) in enumerate(zip(kinds, families), 3)
    }
    layers = [{"material": 1, "thickness": 0.3, "angle": 0.0}]
    layers.append({"material": 1, "thickness": 0.5, "angle": 90.0})
    piles = (("Bored pile 600", "STD%C%600"), ("Bored pile 750", "STD%C%750"))
    return {
        "sections": {
            n: {"name": name, "components": [{"description": d, "material": concrete}]}
            for n, (name, d) in enumerate(piles, 1)
        },
        "properties_2d": {
            1: {"name": "Raft", "type": "shell", "thickness": 0.8, "material": concrete},
            2: {"name": "Raft, two pours", "type": "shell", "thickness": 0.8, "layers": layers},
        }
        | spare,
        "materials": {1: grade("C32/40", 33e9, 0.2, 2500.0, 32e6)[1]["analysis"]},
        "concrete_grades": grade("C32/40", 33e9, 0.2, 2500.0, 32e6),
        "frp_grades": grade("Pultruded GFRP", 23e9, 0.28, 1800.0, 240e6),
        "aluminium_grades": grade("EN AW-6082 T6", 70e9, 0.3, 2700.0, 250e6),
        "glass_grades": grade("Heat-strengthened", 70e9, 0.23, 2500.0, 70e6),
        "timber_grades": grade("GL24h", 11.5e9, 0.3, 420.0, 24e6),
        "fabric_grades": grade("PVC polyester", 0.6e9, 0.3, 1100.0, 60e6),
        "rebar_grades": grade("B500B", 200e9, 0.3, 7850.0, 500e6),
    }


AXES = {
    1: {"name": "Silo", "type": "cylindrical", "origin": [5.0, 5.0, 0.0]},
    2: {"name": "Dome", "type": "spherical", "origin": [5.0, 5.0, 14.0]},
}
for each in AXES.values():
    each |= {"x_axis": [1.0, 0.0, 0.0], "xy_plane": [0.0, 1.0, 0.0]}
MEMBERS = {
    1: {"name": "Raft", "type": "generic_2d", "topology": [1, 5, 25, 21], "property": 1}
    | {"mesh_size": PITCH, "order": "linear"}
}
CASES = ("Self weight", "Silo", "Wind", "Tendons", "Temperature")


def model():
    nodes, elements = nodes_and_elements()
    wind = {
        5: {"name": "Wind", "load_case": 3, "entities": "7 9 17 19", "direction": "x"}
        | {"value": 40e3}
    }
    records = loads()
    records["node_loads"] |= wind
    task = {"name": "Raft on soil", "solution": "raft"}
    return {
        "titles": {
            "job_title": "Grain silo",
            "sub_title": "Piled raft, 10 m square",
            "calc_heading": "Sample: piled raft with soil data",
            "job_number": "1005",
            "initials": "VYN",
        },
        "design_codes": {"concrete": "EN 1992-1-1"},
        "settings": {"raft": {"rigid_level": -45.0, "max_e_ratio": 10.0, "poisson_ratio": 0.3}},
        "load_cases": dict(enumerate(CASES, 1)),
        "cases": {
            1: {"name": "Permanent", "task": 1, "description": "L1 + L2"},
            2: {"name": "With wind", "task": 1, "description": "L1 + L2 + L3"},
        },
        "combinations": {1: {"name": "ULS", "description": "1.35A1 or 1.35A2"}},
        "plain": {"axes": AXES, "members": MEMBERS}
        | {"nodes": nodes, "elements": elements, "analysis_tasks": {1: task}}
        | properties()
        | records
        | soil(),
    }


def sample():
    """The model; the solver knows no soil, so there are no results."""
    return {"model": model(), "results": {}}


if __name__ == "__main__":
    write_document(sample(), pathlib.Path(__file__).resolve().parents[1] / "piledraft.json")
