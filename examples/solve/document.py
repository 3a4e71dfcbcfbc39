"""A model and its results as a model document (docs/model-document.md): the one place that knows
its keys."""
import json

import numpy as np

from frame3d import DIRECTIONS

# figures smaller than this part of the largest of their kind in a case are rounding, and are
# written as 0
NOISE = 1e-11
MODE_NOISE = 1e-9  # of mode shapes, whose close neighbours mix


def record(number, **values):
    """A numbered record; what is None, 0, "" or empty has its default and is left out."""
    return {"number": number} | {
        key: value for key, value in values.items() if value not in (None, 0, 0.0, "", [], {})
    }


def lower(names):
    return [name.lower() for name in names]


def node(n, v):
    position = list(map(float, v["position"]))
    links = {key: v.get(key) for key in ("axis", "spring", "mass")}
    return record(
        n,
        position=position,
        axis=links["axis"],
        restraint=lower(v.get("restraint", ())),
        spring=links["spring"],
        mass=links["mass"],
    )


def connection(v, end):
    """The released and sprung directions of an end."""
    codes = v.get("connect", ("FFFFFF", "FFFFFF"))[end - 1]
    released = [d.lower() for d, code in zip(DIRECTIONS, codes) if code == "R"]
    sprung = [d for d, code in zip(DIRECTIONS, codes) if code == "K"]
    springs = [
        {"direction": d.lower(), "stiffness": v["connect_stiffness"][end, d]} for d in sprung
    ]
    return {key: value for key, value in (("released", released), ("springs", springs)) if value}


def element(n, v):
    return record(
        n,
        type=v["type"].lower(),
        nodes=list(v["nodes"]),
        property=v["section"],
        group=v.get("group"),
        orientation_node=v.get("orientation_node"),
        orientation_angle=v.get("angle"),
        offset=v.get("offset"),
        parent_member=v.get("member"),
        release_1=connection(v, 1),
        release_2=connection(v, 2),
    )


def member(n, v):
    kind = v["element_type"].lower()
    return record(
        n,
        name=v["name"],
        type=v["type"].lower(),
        topology=v["topology"],
        property=v["section"],
        group=v["group"],
        orientation_node=v.get("orientation_node"),
        orientation_angle=v.get("angle"),
        element_type=kind if kind != "beam" else None,
        release_1=connection(v, 1),
        release_2=connection(v, 2),
    )


def axis(n, v):
    vectors = {key: list(map(float, v[key])) for key in ("origin", "x_axis", "xy_plane")}
    return record(n, name=v["name"], **vectors)


def section(n, v):
    family = v.get("family", "steel")
    material = {"type": family, "grade": v["grade"], "analysis": v["material"]}
    return record(
        n, name=v["name"], components=[{"description": v["description"], "material": material}]
    )


def elastic(v):
    """Properties of an isotropic material; directions beyond the first are not used."""
    shear = v["E"] / (2 * (1 + v["nu"]))
    triples = {
        key: [value, 0.0, 0.0]
        for key, value in (("e", v["E"]), ("nu", v["nu"]), ("g", shear), ("alpha", v["alpha"]))
    }
    return {"name": v["name"]} | triples | {"density": v["density"]}


def grade(n, v):
    return record(n, name=v["name"], analysis=elastic(v["material"]), strength=v["strength"])


def mass(n, v):
    return record(n, name=v["name"], mass=v["mass"], inertia=list(v.get("inertia", ())))


def saved_list(n, v):
    return record(
        n, name=v["name"], definition={"kind": v["kind"].lower(), "list": v["definition"]}
    )


def load(n, v, **values):
    """The keys that all loads share, then their own."""
    entities = v["list"] if "factors" not in v or v["list"] != "all" else None
    shared = {
        "name": v.get("name"),
        "load_case": v["case"],
        "entities": entities,
        "axis": v.get("axis"),
    }
    return record(
        n, **shared, direction=v["direction"].lower() if "direction" in v else None, **values
    )


def node_load(n, v):
    return load(n, v, value=v["value"])


def place(position, fraction, value):
    """A place along an element; at the start, as a fraction, by default."""
    out = {"position": position} if position else {}
    return out | ({} if fraction else {"fraction": False}) | {"value": value}


def beam_load(n, v):
    values = v["values"]
    positions = v.get("positions", (0.0, 1.0)[: len(values)])
    fractions = v.get("fraction", (True,) * len(values))
    points = [place(*point) for point in zip(positions, fractions, values)]
    return load(n, v, type=v["type"].lower(), projected=v.get("projected"), points=points)


def distortion(n, v):
    return load(n, v, point=place(v["position"], v.get("fraction", True), v["value"]))


def axial_load(n, v):
    offset = [v.get("y_offset", 0.0), v.get("z_offset", 0.0)]
    return load(
        n, v, type=v["type"].lower(), value=v["value"], offset=offset if any(offset) else None
    )


def thermal_load(n, v):
    points = list(zip(v.get("positions", (0.0, 0.0)), (v["values"] * 2)[:2]))
    part = v.get("uniform_part")
    return load(
        n,
        v,
        type=v["type"].lower(),
        point_1=list(points[0]),
        point_2=list(points[1]),
        uniform_part=part,
    )


def gravity_load(n, v):
    return load(n, v, factor=list(v["factors"]), nodes=v["nodes"] if v["nodes"] != "all" else None)


def task(n, v):
    return record(n, name=v["name"], solution=v["solution"].lower(), analysed=True)


def plain(n, v):
    return record(n, **v)


# section of the document, where the records of a frame stand in the model, and how one is written;
# in document order. What is no matter of the frame solver stands in the model's "plain" records by
# section, as the document has it.
SECTIONS = (
    ("nodes", lambda m: m.get("nodes", {}), node),
    ("elements", lambda m: m.get("elements", {}), element),
    ("members", lambda m: m.get("members", {}), member),
    ("assemblies", None, plain),
    ("axes", lambda m: m.get("axes", {}), axis),
    ("grid_planes", None, plain),
    ("sections", lambda m: m.get("sections", {}), section),
    ("properties_2d", None, plain),
    ("properties_3d", None, plain),
    (
        "spring_properties",
        lambda m: m.get("springs", {}),
        lambda n, v: record(n, name=v["name"], stiffness=list(v["stiffness"])),
    ),
    ("damper_properties", None, plain),
    ("mass_properties", lambda m: m.get("masses", {}), mass),
    ("cable_properties", None, plain),
    ("link_properties", None, plain),
    ("materials", lambda m: m.get("materials", {}), lambda n, v: record(n, **elastic(v))),
    ("concrete_grades", None, plain),
    ("steel_grades", lambda m: m.get("steel_grades", {}), grade),
    ("frp_grades", None, plain),
    ("aluminium_grades", None, plain),
    ("glass_grades", None, plain),
    ("timber_grades", None, plain),
    ("fabric_grades", None, plain),
    ("rebar_grades", None, plain),
    ("material_curves", None, plain),
    ("load_curves", None, plain),
    ("lists", lambda m: m.get("lists", {}), saved_list),
    ("load_cases", lambda m: m.get("load_cases", {}), lambda n, v: record(n, name=v)),
    ("analysis_tasks", lambda m: m.get("tasks", {}), task),
    ("analysis_cases", lambda m: m.get("cases", {}), plain),
    ("combination_cases", lambda m: m.get("combinations", {}), plain),
    ("stages", None, plain),
    ("node_loads", lambda m: numbered(m, "node"), node_load),
    ("settlements", lambda m: numbered(m, "settlement"), node_load),
    ("applied_displacements", lambda m: numbered(m, "displacement"), node_load),
    ("beam_loads", lambda m: numbered(m, "beam"), beam_load),
    ("beam_distortions", lambda m: numbered(m, "distortion"), distortion),
    ("axial_loads", lambda m: numbered(m, "axial"), axial_load),
    ("beam_thermal_loads", lambda m: numbered(m, "thermal"), thermal_load),
    ("face_loads", None, plain),
    ("edge_loads", None, plain),
    ("in_plane_loads", None, plain),
    ("face_thermal_loads", None, plain),
    ("gravity_loads", lambda m: numbered(m, "gravity"), gravity_load),
    ("rigid_constraints", None, plain),
    ("joints", None, plain),
    ("constraint_equations", None, plain),
    ("tied_interfaces", None, plain),
    ("soil_profiles", None, plain),
    ("soil_zones", None, plain),
    ("soil_curves", None, plain),
    ("pile_soil_properties", None, plain),
    ("pile_soil_curves", None, plain),
    ("soil_loads", None, plain),
    ("views", None, plain),
)
HEADS = ("location", "currency", "design_codes", "units", "settings", "history")


def section_records(model, key, records, write):
    """The records of a section in the order of their numbers."""
    out = {n: write(n, v) for n, v in records(model).items()} if records else {}
    extra = model.get("plain", {}).get(key, {})
    if set(out) & set(extra):
        raise ValueError(f"{key}: numbers used twice")
    out |= {n: plain(n, v) for n, v in extra.items()}
    return [out[n] for n in (sorted(out) if extra else out)]


# table of results, where it stands in the results of a case, and its keys
TABLES = (
    ("node_displacement", "displacement", ("disp", "rotn")),
    ("node_reaction", "reaction", ("force", "moment")),
    ("node_constraint_force", "constraint", ("force", "moment")),
    ("node_spring_force", "spring", ("force", "moment")),
    ("element_1d_displacement", "elements", ("disp", "rotn")),
    ("element_1d_force", "elements", ("force", "moment")),
)

# key of a case's global figures, and where it stands in the results of a case
GLOBAL = (
    ("force", "total_force"),
    ("moment", "total_moment"),
    ("reaction_force", "total_react_force"),
    ("reaction_moment", "total_react_moment"),
    ("mode", "mode"),
    ("frequency", "frequency"),
    ("modal_mass", "modal_mass"),
    ("modal_stiffness", "modal_stiffness"),
    ("effective_mass", "effective_mass"),
    ("rotational_effective_mass", "rotational_effective_mass"),
    ("mass", "mass"),
    ("centre_of_mass", "centre_of_mass"),
)


def numbered(model, kind):
    """The loads of a kind, numbered from 1."""
    return dict(enumerate(model.get("loads", {}).get(kind, ()), 1))


def clean(values, noise=0.0):
    """Without rounding noise, and without negative zeros."""
    limit = max(NOISE * np.abs(values).max(), noise)
    return np.where(np.abs(values) <= limit, 0.0, values) + 0.0


def table_rows(table, keys, results):
    """Rows of an entity number and its figures: at each position the three of the first key, then
    those of the second."""
    parts = [
        np.array([np.reshape(figures[key], (-1, 3)) for figures in table.values()]) for key in keys
    ]
    if "force" in keys:
        noise = results["force_noise"]
    else:
        share = MODE_NOISE if "mode" in results else NOISE
        noise = share * max(np.abs(part).max() for part in parts)
    rows = np.concatenate([clean(part, noise) for part in parts], axis=2)
    return [[n] + row.ravel().tolist() for n, row in zip(table, rows)]


def global_figures(results):
    """Figures of the case as a whole; moments are as exact as forces at an arm of 30 m."""
    out = {}
    for key, name in GLOBAL:
        value = results.get(name)
        if isinstance(value, list):
            arm = 30.0 if name.endswith("moment") else 1.0
            value = clean(np.array(value), arm * results.get("force_noise", 0.0)).tolist()
        if value is not None:
            out[key] = value
    return out


def one_line(value):
    return json.dumps(value, ensure_ascii=False, separators=(",", ":"), allow_nan=False)


def lines(values):
    """A list with each item on a line of its own."""
    return "[\n" + ",\n".join(values) + "\n]"


def case_text(number, results):
    parts = [f'{{"case": {number}', f'"global": {one_line(global_figures(results))}']
    for key, name, figures in TABLES:
        if results.get(name):
            rows = table_rows(results[name], figures, results)
            parts.append(f'"{key}": {lines(one_line(row) for row in rows)}')
    for key, rows in results.get("tables", {}).items():
        limit = NOISE * max(np.abs(row).max() for row in rows.values())
        rows = ([n] + clean(np.ravel(row), limit).tolist() for n, row in rows.items())
        parts.append(f'"{key}": {lines(one_line(row) for row in rows)}')
    return ",\n".join(parts) + "}"


def document_text(sample):
    """The whole document."""
    model, results = sample["model"], sample["results"]
    parts = ['"version": 1', f'"titles": {one_line(model["titles"])}']
    heads = {"design_codes": {"steel": model["steel_code"]} if "steel_code" in model else None}
    for key in HEADS:
        value = model.get(key, heads.get(key))
        if value is not None:
            parts.append(f'"{key}": {one_line(value)}')
    for key, records, write in SECTIONS:
        rows = section_records(model, key, records, write)
        if rows:
            parts.append(f'"{key}": {lines(one_line(row) for row in rows)}')
    if results:
        texts = lines(case_text(n, r) for n, r in results.items())
        parts.append(f'"results": {texts}')
    return "{\n" + ",\n".join(parts) + "\n}\n"


def write_document(sample, path):
    with open(path, "w", encoding="utf-8") as file:
        file.write(document_text(sample))
