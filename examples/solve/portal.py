"""A workshop hall: three pitched-roof portals of 24 m at 6 m, with every kind of load on members.

Frame f = 1, 2, 3 stands at y = 0, 6, 12 and has the nodes 10 f + k: 1 west base, 2 west eaves, 3
end of the west haunch, 4 west purlin, 5 ridge, 6 east purlin, 7 end of the east haunch, 8 east
eaves, 9 east base. Its elements are numbered the same way: 1 west column, 2 to 4 west rafter, 5 to
7 east rafter, 8 east column.
"""
import pathlib

from analysis import analyse
from document import write_document
from sections import from_description

SPAN, EAVES, SLOPE, SPACING = 24.0, 6.0, 1 / 6, 6.0
STATIONS = (0.0, 0.0, 2.4, 6.0, 12.0, 18.0, 21.6, 24.0, 24.0)
COLUMN, RAFTER, HAUNCH, EAVES_BEAM, PURLIN, BRACE, ROD = range(1, 8)
SHAPES = (
    ("Column", "STD%I%457%190%9%14.5"),
    ("Rafter", "STD%I%406%178%8%13"),
    ("Haunch", "STD%I%650%178%8%13"),
    ("Eaves beam", "STD%CH%200%75%8.5%11.5"),
    ("Purlin", "STD%RHS%150%100%5%5"),
    ("Bracing", "STD%CHS%114.3%5"),
    ("Tie rod", "STD%C%32"),
)
PINNED = ("FFFFRR", "FFFFRR")
LINES = (2, 4, 5, 6, 8)  # eaves, purlin, ridge, purlin, eaves


def nodes():
    out = {}
    for frame in (1, 2, 3):
        for k, x in enumerate(STATIONS, 1):
            height = 0.0 if k in (1, 9) else EAVES + SLOPE * min(x, SPAN - x)
            out[10 * frame + k] = {"position": (x, SPACING * (frame - 1), round(height, 6))}
        for base in (10 * frame + 1, 10 * frame + 9):
            soft = frame == 3
            out[base]["restraint"] = ("X", "Y", "ZZ") if soft else ("X", "Y", "Z", "ZZ")
            out[base] |= {"spring": 1} if soft else {}
    return out


def beam(first, last, section, group, member, **more):
    return {
        "type": "BEAM",
        "nodes": (first, last),
        "section": section,
        "group": group,
        "member": member,
    } | more


def frame_elements(frame):
    """Columns and rafters; the haunches are deeper rafters flush at the top, set back from the
    column's axis."""
    n, m = 10 * frame, 4 * (frame - 1)
    drop = -(0.650 - 0.406) / 2
    out = {
        1: beam(n + 1, n + 2, COLUMN, 1, m + 1),
        2: beam(n + 2, n + 3, HAUNCH, 2, m + 2, offset={"x1": 0.25, "z": drop}),
        7: beam(n + 7, n + 8, HAUNCH, 2, m + 3, offset={"x2": -0.25, "z": drop}),
        8: beam(n + 9, n + 8, COLUMN, 1, m + 4),
    }
    out |= {k: beam(n + k, n + k + 1, RAFTER, 2, m + (2 if k < 5 else 3)) for k in (3, 4, 5, 6)}
    return {n + k: out[k] for k in sorted(out)}


def longitudinal_elements():
    """Eaves beams, purlins and ridge of the two bays: purlins stand square to the roof, the east
    eaves beam is mirrored."""
    out = {}
    for bay in (1, 2):
        for place, k in enumerate(LINES):
            first, last = 10 * bay + k, 10 * bay + 10 + k
            element = beam(
                first, last, EAVES_BEAM if k in (2, 8) else PURLIN, 3, 13 + place, connect=PINNED
            )
            if k in (4, 6):
                element["orientation_node"] = 10 * bay + (2 if k == 4 else 5)
            if k == 8:
                element["angle"] = 180.0
            if k in (2, 8) and bay == 2:
                # the splice at the middle frame is bolted and gives a little
                element["connect"] = ("FFFFKR", "FFFFRR")
                element["connect_stiffness"] = {(1, "YY"): 4.0e5}
            out[41 + 5 * (bay - 1) + place] = element
    return out


def bracing_elements():
    """Crosses in the walls and diagonals in the roof of the first bay; the tie rod of the middle
    frame."""
    walls = ((11, 22), (21, 12), (19, 28), (29, 18))
    roof = ((12, 24), (14, 25), (18, 26), (16, 25))
    out = {
        51 + k: beam(a, b, BRACE, 4, 18 + k, type="BAR") for k, (a, b) in enumerate(walls + roof)
    }
    out[59] = beam(22, 28, ROD, 4, 26, type="TIE")
    return out


def elements():
    out = {}
    for frame in (1, 2, 3):
        out |= frame_elements(frame)
    return out | longitudinal_elements() | bracing_elements()


def members(all_elements):
    """One member for each column, half rafter, line of beams, and rod, along the nodes of its
    elements."""
    out = {}
    for element in all_elements.values():
        number, (first, last) = element["member"], element["nodes"]
        if number in out:
            out[number]["topology"].append(last)
        else:
            out[number] = member(number, element, [first, last])
    return dict(sorted(out.items()))


def member(number, element, topology):
    """A member as its first element is; rafters begin with their haunch."""
    column, section = element["section"] == COLUMN, element["section"]
    kind = "COLUMN" if column else "BEAM" if element["type"] == "BEAM" else "GENERIC_1D"
    shared = ("group", "angle", "orientation_node", "connect")
    return {key: element[key] for key in shared if key in element} | {
        "name": member_name(number),
        "type": kind,
        "element_type": element["type"],
        "section": RAFTER if section == HAUNCH else section,
        "topology": topology,
    }


def member_name(number):
    if number <= 12:
        frame, part = divmod(number - 1, 4)
        parts = ("west column", "west rafter", "east rafter", "east column")
        return f"Frame {frame + 1}, {parts[part]}"
    if number <= 17:
        return ("West eaves beam", "West purlin", "Ridge beam", "East purlin", "East eaves beam")[
            number - 13
        ]
    return "Tie rod" if number == 26 else f"Brace {number - 17}"


def span(case, elements_, kind, direction, *values, **more):
    return {
        "case": case,
        "list": elements_,
        "type": kind,
        "direction": direction,
        "values": list(values),
    } | more


def roof_and_wall_loads():
    """Cladding (case 2), snow with a drift behind the parapet (3), wind from the west (4)."""
    ends, middle = "12 to 17 32 to 37", "22 to 27"
    drift = {"positions": [0.0, 0.6], "fraction": [True] * 2, "projected": True}
    tray = {"positions": [0.8, 3.0], "fraction": [False] * 2}
    suction = {"axis": 1}
    return [
        span(2, ends, "UNIFORM", "Z", -900.0, name="Roof cladding, end frames"),
        span(2, middle, "UNIFORM", "Z", -1800.0, name="Roof cladding, middle frame"),
        span(2, "11 18 31 38", "UNIFORM", "Z", -450.0, name="Wall cladding, end frames"),
        span(2, "21 28", "UNIFORM", "Z", -900.0, name="Wall cladding, middle frame"),
        span(2, "23", "PATCH", "Z", -1200.0, -600.0, **tray, name="Cable trays"),
        span(3, ends, "UNIFORM", "Z", -1800.0, projected=True, name="Snow, end frames"),
        span(3, middle, "UNIFORM", "Z", -3600.0, projected=True, name="Snow, middle frame"),
        span(
            3, "13 23 33", "PATCH", "Z", -1500.0, 0.0, **drift, name="Drift at the parapet"
        ),
        span(4, "11 31", "LINEAR", "X", 1500.0, 1850.0, name="Wind on the west wall, end frames"),
        span(4, "21", "LINEAR", "X", 3000.0, 3700.0, name="Wind on the west wall, middle frame"),
        span(
            4, "18 38", "UNIFORM", "Z", -700.0, axis=-1, name="Suction on the east wall, end frames"
        ),
        span(
            4, "28", "UNIFORM", "Z", -1400.0, axis=-1, name="Suction on the east wall, middle frame"
        ),
        span(
            4,
            "12 to 14 32 to 34",
            "UNIFORM",
            "Z",
            1200.0,
            **suction,
            name="Suction on the west slope, end frames",
        ),
        span(
            4,
            "22 to 24",
            "UNIFORM",
            "Z",
            2400.0,
            **suction,
            name="Suction on the west slope, middle frame",
        ),
        span(
            4,
            "15 to 17 35 to 37",
            "UNIFORM",
            "Z",
            750.0,
            axis=-1,
            name="Suction on the east slope, end frames",
        ),
        span(
            4,
            "25 to 27",
            "UNIFORM",
            "Z",
            1500.0,
            axis=-1,
            name="Suction on the east slope, middle frame",
        ),
    ]


def service_loads():
    """A hoist under the middle rafter, and a crane bracket on a column (case 5)."""
    return [
        span(5, "24", "POINT", "Z", -12000.0, positions=[0.4], fraction=[True], name="Hoist"),
        span(
            5, "21", "POINT", "Z", -15000.0, positions=[4.2], fraction=[False], name="Crane bracket"
        ),
        span(
            5,
            "21",
            "POINT",
            "YY",
            6000.0,
            axis=-1,
            positions=[4.2],
            fraction=[False],
            name="Bracket moment",
        ),
        span(5, "27", "UNIFORM", "XX", 80.0, axis=-1, name="Lights on arms"),
    ]


def node_load(case, nodes_, direction, value, **more):
    return {"case": case, "list": nodes_, "direction": direction, "value": value} | more


def loads():
    return {
        "node": [
            node_load(4, "12 18", "Y", 4000.0, name="Wind on the gable, eaves"),
            node_load(4, "15", "Y", 6000.0, name="Wind on the gable, ridge"),
            node_load(5, "25", "Z", -8000.0, name="Vent on the ridge"),
            node_load(5, "28", "XX", 2000.0, name="Door rail, moment"),
            node_load(5, "28", "X", 1500.0, axis=1, name="Door rail, along the slope"),
        ],
        "settlement": [node_load(6, "29", "Z", -0.012), node_load(6, "19", "X", 0.004)],
        "displacement": [node_load(7, "35", "Y", 0.006)],
        "gravity": [
            {
                "case": 1,
                "list": "all",
                "nodes": "all",
                "factors": (0.0, 0.0, -1.0),
                "name": "Self weight",
            }
        ],
        "beam": roof_and_wall_loads() + service_loads(),
        "distortion": [
            {
                "case": 10,
                "list": "24",
                "axis": -1,
                "direction": "YY",
                "position": 0.5,
                "value": 0.003,
                "name": "Kinked splice",
            },
            {
                "case": 10,
                "list": "46",
                "axis": -1,
                "direction": "X",
                "position": 3.0,
                "fraction": False,
                "value": 0.002,
                "name": "Shim",
            },
        ],
        "axial": [
            {
                "case": 8,
                "list": "59",
                "type": "FORCE",
                "value": 40000.0,
                "name": "Turnbuckle of the tie rod",
            },
            {
                "case": 8,
                "list": "53 54",
                "type": "STRAIN",
                "value": 0.00015,
                "name": "East bracing pulled tight",
            },
            {
                "case": 8,
                "list": "51 52",
                "type": "LACK_OF_FIT",
                "value": 0.0012,
                "name": "West bracing made short",
            },
            {
                "case": 8,
                "list": "24 25",
                "type": "FORCE",
                "value": -60000.0,
                "z_offset": -0.35,
                "y_offset": 0.0,
                "name": "Tendon under the ridge",
            },
        ],
        "thermal": [
            {"case": 9, "list": "all", "type": "UNIFORM", "values": [25.0], "name": "Summer"},
            {
                "case": 9,
                "list": "12 to 14 22 to 24 32 to 34",
                "type": "GRADIENT_Z",
                "positions": [-0.203, 0.203],
                "values": [0.0, 18.0],
                "uniform_part": 2.0,
                "name": "Sun on the west slope",
            },
            {
                "case": 9,
                "list": "11 18",
                "type": "GRADIENT_Y",
                "positions": [-0.095, 0.095],
                "values": [10.0, 0.0],
                "name": "Sun on the south gable",
            },
        ],
    }


LOAD_CASES = (
    "Self weight",
    "Cladding and services",
    "Snow",
    "Wind from the west",
    "Hoist and brackets",
    "Settlement of bases",
    "Plumbing of frame 3",
    "Prestress",
    "Temperature",
    "Erection tolerances",
)


def cases():
    """One static case for each load case, and two sums."""
    single = {
        n: {"name": name, "task": 1, "description": f"1.0L{n}"}
        for n, name in enumerate(LOAD_CASES, 1)
    }
    return single | {
        11: {"name": "Permanent", "task": 1, "description": "1.0L1 + 1.0L2"},
        12: {"name": "In service", "task": 1, "description": "1.0L1 + 1.0L2 + 0.5L3 + 1.0L8"},
    }


COMBINATIONS = {
    1: {"name": "ULS snow", "description": "1.35A11 + 1.5A3"},
    2: {"name": "ULS hoist", "description": "1.35A11 + 1.5A3 + (0 or 1.05)A5"},
    3: {"name": "ULS wind", "description": "(1.0 or 1.35)A11 + A8 + 1.5A4"},
    4: {"name": "ULS leading", "description": "1.35A11 + (1.5A3 or 1.5A5 or 0.9A9)"},
    5: {"name": "ULS all", "description": "C1 or C2 or C3 or C4"},
    6: {"name": "ULS settled", "description": "A6 + C5max"},
    7: {"name": "SLS", "description": "A11 + A3 + 0.6A4"},
}


def sections():
    """Properties from the shapes; steel grade 1, analysis material 1."""
    return {
        n: {"name": name, "description": d, "material": 1, "grade": 1} | from_description(d)
        for n, (name, d) in enumerate(SHAPES, 1)
    }


STEEL = {"name": "Structural steel", "E": 210e9, "nu": 0.3, "density": 7850.0, "alpha": 12e-6}


def model():
    all_elements = elements()
    return {
        "titles": {
            "job_title": "Workshop hall",
            "sub_title": "Pitched-roof portals, 24 m",
            "calc_heading": "Sample: every kind of load on members",
            "job_number": "1001",
            "initials": "VYN",
        },
        "location": {
            "country": "United Kingdom",
            "abbreviation": "UK",
            "north": 12.5,
            "elevation": 85.0,
            "latitude": 53.8,
            "longitude": -1.55,
        },
        "currency": "GBP",
        "steel_code": "EN 1993-1-1",
        "axes": {
            1: {
                "name": "West slope",
                "x_axis": (6.0, 0.0, 1.0),
                "xy_plane": (0.0, 1.0, 0.0),
                "origin": (0.0, 0.0, EAVES),
            }
        },
        "nodes": nodes(),
        "elements": all_elements,
        "members": members(all_elements),
        "sections": sections(),
        "materials": {1: STEEL},
        "steel_grades": {1: {"name": "S355", "strength": 355e6, "material": STEEL}},
        "springs": {1: {"name": "Soft ground", "stiffness": (0.0, 0.0, 60e6, 0.0, 6e6, 0.0)}},
        "masses": {},
        "lists": {
            1: {"name": "Columns", "kind": "ELEMENT", "definition": "11 18 21 28 31 38"},
            2: {"name": "Rafters", "kind": "ELEMENT", "definition": "12 to 17 22 to 27 32 to 37"},
            3: {"name": "Bases", "kind": "NODE", "definition": "11 19 to 39 step 10 21 31"},
            4: {"name": "Middle frame", "kind": "MEMBER", "definition": "5 to 8 26"},
            5: {"name": "Ultimate", "kind": "CASE", "definition": "C1 to C6"},
        },
        "load_cases": dict(enumerate(LOAD_CASES, 1)),
        "loads": loads(),
        "tasks": {1: {"name": "Static", "solution": "STATIC"}},
        "cases": cases(),
        "combinations": COMBINATIONS,
    }


def sample():
    """The model and its results."""
    return analyse(model())


if __name__ == "__main__":
    write_document(sample(), pathlib.Path(__file__).resolve().parents[1] / "portal.json")
