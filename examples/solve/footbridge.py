"""A half-through steel truss footbridge of 30 m: ten panels, 3.2 m between the trusses, 1.8 m deep;
twelve natural modes.

Panel point i = 0 to 10 lies at x = 3 i. Its nodes are 1 + i on the left bottom chord (y = 0), 21 +
i on the right one (y = 3.2), 81 + i in the middle of the cross girder, and for i = 1 to 9 40 + i
and 60 + i on the top chords.
"""
import pathlib

from analysis import analyse
from document import write_document
from sections import from_description

PANELS, PANEL, WIDTH, DEPTH = 10, 3.0, 3.2, 1.8
CHORD, POST, DIAGONAL, GIRDER, PLAN = range(1, 6)
SHAPES = (
    ("Chord", "STD%RHS%180%180%10%10"),
    ("Post", "STD%RHS%160%160%8%8"),
    ("Diagonal", "STD%CHS%88.9%5"),
    ("Cross girder", "STD%I%240%160%8%14"),
    ("Plan bracing", "STD%CHS%76.1%4"),
)
DECK, PARAPET = 120.0, 75.0  # kg/m2, kg/m of each side
CROWD = 2000.0 + 120000.0 / (PANELS * PANEL + 30.0)  # N/m2, for a loaded length of 30 m
LEFT, RIGHT, MIDDLE = 1, 21, 81
TOPS = ((LEFT, 40), (RIGHT, 60))


def nodes():
    out = {}
    for i in range(PANELS + 1):
        x, end = PANEL * i, i in (0, PANELS)
        out[LEFT + i] = {"position": (x, 0.0, 0.0), "mass": 2 if end else 1}
        out[RIGHT + i] = {"position": (x, WIDTH, 0.0), "mass": 2 if end else 1}
        out[MIDDLE + i] = {"position": (x, WIDTH / 2, 0.0), "mass": 4 if end else 3}
        if not end:
            out[40 + i] = {"position": (x, 0.0, DEPTH)}
            out[60 + i] = {"position": (x, WIDTH, DEPTH)}
    # one fixed bearing, one guided across, one guided along, one free
    for node, restraint in ((1, "XYZ"), (21, "XZ"), (11, "YZ"), (31, "Z")):
        out[node]["restraint"] = tuple(restraint)
    return dict(sorted(out.items()))


def masses():
    """Deck and parapets at the panel points: a quarter of the deck at each edge, half in the
    middle."""
    strip = DECK * PANEL * WIDTH
    edge, middle = strip / 4 + PARAPET * PANEL, strip / 2
    # the strip of deck rolls with its girder; along the bridge it hangs on the next girders and
    # cannot pitch
    inertia = (middle * (WIDTH / 2) ** 2 / 12, 0.0, 0.0, 0.0, 0.0, 0.0)
    return {
        1: {"name": "Edge", "mass": edge},
        2: {"name": "Edge, end", "mass": edge / 2},
        3: {"name": "Deck", "mass": middle, "inertia": inertia},
        4: {"name": "Deck, end", "mass": middle / 2, "inertia": tuple(v / 2 for v in inertia)},
    }


def truss(bottom, top):
    """(first node, last node, section, element type, group) of one truss."""
    last = PANELS - 1
    out = [(bottom + i, bottom + i + 1, CHORD, "BEAM", 1) for i in range(PANELS)]
    out += [(bottom, top + 1, CHORD, "BEAM", 2)]
    out += [(top + i, top + i + 1, CHORD, "BEAM", 2) for i in range(1, last)]
    out += [(top + last, bottom + PANELS, CHORD, "BEAM", 2)]
    out += [(bottom + i, top + i, POST, "BEAM", 3) for i in range(1, PANELS)]
    half = PANELS // 2
    # diagonals fall towards mid-span, so that they are in tension under weight
    out += [(top + i, bottom + i + 1, DIAGONAL, "BAR", 4) for i in range(1, half)]
    out += [(top + i + 1, bottom + i, DIAGONAL, "BAR", 4) for i in range(half, last)]
    return out


def deck():
    """Cross girders in two halves, and bracing in plan from the middle of each to the chords at the
    next."""
    out = []
    for i in range(PANELS + 1):
        out += [
            (LEFT + i, MIDDLE + i, GIRDER, "BEAM", 5),
            (MIDDLE + i, RIGHT + i, GIRDER, "BEAM", 5),
        ]
    for i in range(PANELS):
        out += [(MIDDLE + i, side + i + 1, PLAN, "BAR", 6) for side in (LEFT, RIGHT)]
    return out


def elements():
    parts = truss(*TOPS[0]) + truss(*TOPS[1]) + deck()
    return {
        n: {"type": kind, "nodes": (first, last), "section": section, "group": group}
        for n, (first, last, section, kind, group) in enumerate(parts, 1)
    }


def text(numbers):
    return " ".join(str(n) for n in numbers)


def girder_list(all_elements, inner, side=None):
    """List of the halves of cross girders: inner ones or those at the ends, of both sides or of
    one."""
    chosen = []
    for number, element in all_elements.items():
        end = element["nodes"][0] in (LEFT, LEFT + PANELS, MIDDLE, MIDDLE + PANELS)
        left = element["nodes"][0] < MIDDLE
        if element["group"] == 5 and end != inner and side in (None, "left" if left else "right"):
            chosen.append(number)
    return text(chosen)


def crowd(case, all_elements, side=None):
    """The crowd on the deck as line loads of the cross girders."""
    loads = ((True, CROWD * PANEL), (False, CROWD * PANEL / 2))
    return [
        {
            "case": case,
            "list": girder_list(all_elements, inner, side),
            "type": "UNIFORM",
            "direction": "Z",
            "values": [-w],
        }
        for inner, w in loads
    ]


def loads(all_elements):
    chords = (n for n, e in all_elements.items() if e["group"] in (1, 2))
    wind = text(
        n
        for n in chords
        if all(nodes()[end]["position"][1] == 0.0 for end in all_elements[n]["nodes"])
    )
    return {
        "gravity": [
            {
                "case": 1,
                "list": "all",
                "nodes": "all",
                "factors": (0.0, 0.0, -1.0),
                "name": "Self weight",
            }
        ],
        "beam": crowd(2, all_elements)
        + crowd(3, all_elements, "left")
        + [
            {
                "case": 4,
                "list": wind,
                "type": "UNIFORM",
                "direction": "Y",
                "values": [600.0],
                "name": "Wind on the left truss",
            }
        ],
        "thermal": [
            {"case": 5, "list": "all", "type": "UNIFORM", "values": [30.0], "name": "Summer"}
        ],
    }


LOAD_CASES = ("Self weight", "Crowd", "Crowd on the left half", "Wind", "Temperature")


def cases():
    """Self weight, the twelve modes, and the variable loads."""
    out = {1: {"name": "Self weight", "task": 1, "description": "1.0L1"}}
    out |= {k + 1: {"name": f"Mode {k}", "task": 2, "description": f"M{k}"} for k in range(1, 13)}
    return out | {
        12 + k: {"name": LOAD_CASES[k - 1], "task": 1, "description": f"1.0L{k}"}
        for k in range(2, len(LOAD_CASES) + 1)
    }


COMBINATIONS = {
    1: {"name": "ULS crowd", "description": "1.35A1 + 1.35A14"},
    2: {"name": "ULS wind", "description": "1.35A1 + (1.35A14 or 1.35A15) + (0 or 0.45)A16"},
    3: {"name": "SLS", "description": "A1 + A14"},
    4: {"name": "ULS all", "description": "C1 or C2"},
}

VIEWS = {
    1: {
        "name": "Deck under the crowd",
        "data": ["nodes", "displacements"],
        "nodes": "list 1",
        "cases": "A14",
    },
    2: {
        "name": "Bearings",
        "data": ["reactions"],
        "nodes": "1 11 21 31",
        "cases": "A1 A14 to A17 C1",
    },
}

STEEL = {"name": "Structural steel", "E": 210e9, "nu": 0.3, "density": 7850.0, "alpha": 12e-6}


def sections():
    return {
        n: {"name": name, "description": d, "material": 1, "grade": 1} | from_description(d)
        for n, (name, d) in enumerate(SHAPES, 1)
    }


def model():
    all_elements = elements()
    return {
        "titles": {
            "job_title": "Mill Lane footbridge",
            "sub_title": "Half-through truss, 30 m",
            "calc_heading": "Sample: natural modes",
            "job_number": "1002",
            "initials": "VYN",
        },
        "steel_code": "EN 1993-1-1",
        "axes": {},
        "nodes": nodes(),
        "elements": all_elements,
        "members": {},
        "sections": sections(),
        "materials": {1: STEEL},
        "steel_grades": {1: {"name": "S355", "strength": 355e6, "material": STEEL}},
        "springs": {},
        "masses": masses(),
        "lists": {
            1: {"name": "Deck", "kind": "NODE", "definition": "1 to 11 21 to 31 81 to 91"},
            2: {"name": "Top chords", "kind": "NODE", "definition": "41 to 49 61 to 69"},
        },
        "load_cases": dict(enumerate(LOAD_CASES, 1)),
        "loads": loads(all_elements),
        "tasks": {
            1: {"name": "Static", "solution": "STATIC"},
            2: {"name": "Modal", "solution": "MODAL"},
        },
        "cases": cases(),
        "combinations": COMBINATIONS,
        "plain": {"views": VIEWS},
    }


def sample():
    """The model and its results."""
    return analyse(model())


if __name__ == "__main__":
    write_document(sample(), pathlib.Path(__file__).resolve().parents[1] / "footbridge.json")
