"""Analysis materials of a time history: one of each model, SI units."""

STEEL = {"e": [210e9, 0.0, 0.0], "nu": [0.3, 0.0, 0.0], "density": 7850.0}
CONCRETE = {"e": [33e9, 0.0, 0.0], "nu": [0.2, 0.0, 0.0], "density": 2500.0}
YIELD = {"yield_stress": 355e6, "tangent_modulus": 2.1e9}

# model, name, values
MODELS = (
    ("elastic_isotropic", "Concrete block", CONCRETE),
    ("elastic_plastic", "Yielding steel", STEEL | YIELD),
    (
        "elastic_orthotropic",
        "Cross-laminated timber",
        {"e": [11e9, 0.4e9, 0.4e9], "nu": [0.3, 0.3, 0.01], "g": [0.69e9, 0.05e9, 0.69e9]}
        | {"density": 480.0},
    ),
    ("fabric", "Awning", {"e": [0.6e9, 0.4e9, 0.0], "nu": [0.3, 0.3, 0.0], "density": 1100.0}),
    ("drucker_prager", "Dense sand", {"params": [1e3, 35.0, 5.0]}),
    ("mohr_coulomb", "Stiff clay", {"params": [40e3, 22.0, 0.0]}),
    ("concrete_ec2", "C30/37, nonlinear", CONCRETE | {"params": [30e6, 2.9e6]}),
    ("hysteretic_beam", "Hysteretic hinge", STEEL | YIELD),
    ("hysteretic_reinforcement", "B500, hysteretic", STEEL | {"yield_stress": 500e6}),
    ("plastic_kinematic", "Kinematic steel", STEEL | YIELD | {"hardening": 0.2}),
    ("park_ang_beam", "Damaged hinge", STEEL | YIELD),
    ("general_nonlinear_6dof", "Bearing, nonlinear", {"density": 1100.0, "curves": [2]}),
    ("seismic_isolator", "Bearing", {"density": 1100.0, "curves": [2]}),
    ("steel_ec3", "S355, nonlinear", STEEL | YIELD),
    ("uniaxial_elastic", "Bar, elastic", STEEL | {"params": [210e9]}),
    ("uniaxial_elastic_pp", "Bar, ideal", STEEL | {"params": [210e9, 0.0017]}),
    ("uniaxial_hardening", "Bar, hardening", STEEL | {"params": [210e9, 355e6, 1e9, 1e9]}),
    (
        "uniaxial_hysteretic",
        "Bar, hysteretic",
        {"params": [355e6, 0.0017, 420e6, 0.05, -355e6, -0.0017, -420e6, -0.05, 1.0, 1.0, 0, 0]},
    ),
    ("uniaxial_viscous", "Dashpot", {"params": [250e3, 0.3]}),
    ("uniaxial_concrete01", "Concrete, no tension", {"params": [-30e6, -0.002, -6e6, -0.0035]}),
    (
        "uniaxial_concrete02",
        "Concrete, tension",
        {"params": [-30e6, -0.002, -6e6, -0.0035, 0.1, 2.9e6, 1.5e9]},
    ),
    (
        "uniaxial_concrete03",
        "Concrete, tension softening",
        {"params": [-30e6, -0.002, -6e6, -0.0035, 0.1, 2.9e6, 1e-4, 1e6, 2, 0.002]},
    ),
    (
        "uniaxial_concrete04",
        "Concrete, Popovics",
        {"params": [-30e6, -0.002, -0.0035, 33e9, 2.9e6, 0.001]},
    ),
    ("uniaxial_steel01", "B500, bilinear", {"params": [500e6, 200e9, 0.01]}),
    ("uniaxial_steel02", "B500, smooth", {"params": [500e6, 200e9, 0.01, 18.0, 0.925, 0.15]}),
    (
        "uniaxial_reinforcing_steel",
        "B500, to fracture",
        {
            "params": [500e6, 600e6, 200e9, 6e9, 0.01, 0.09],
            "groups": [{"name": "-IsoHard", "values": [4.3, 0.01]}],
        },
    ),
    (
        "uniaxial_bar_slip",
        "Anchorage",
        {
            "params": [30e6, 500e6, 200e9, 600e6, 6e9, 0.016, 0.45, 4, 0.4, 0.4],
            "words": ["Strong"],
        },
    ),
    (
        "uniaxial_limit_state",
        "Column in shear",
        {
            "params": [80e3, 0.004, 95e3, 0.02, 20e3, 0.06]
            + [-80e3, -0.004, -95e3, -0.02, -20e3, -0.06, 0.8, 0.2, 0, 0, 0],
            "words": ["Shear"],
        },
    ),
)

MATERIALS = {
    n: {"name": name} | ({"model": model} if n > 2 else {}) | values
    for n, (model, name, values) in enumerate(MODELS, 2)
}
