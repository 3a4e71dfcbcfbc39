"""Space frames by the direct stiffness method: geometry, elements and the stiffness matrix of the
whole frame.

Units are SI. A node has six freedoms X, Y, Z, XX, YY, ZZ. The local x axis runs from end 1 to end
2; unless the member is vertical, z lies in the vertical plane through x and points up, and y = z
cross x; of a vertical member y is global Y made square to x, and z = x cross y. The orientation
angle then turns y towards z about x. An orientation node fixes the local x-y plane, on the +y side;
the angle is applied after it.
"""
import numpy as np

from ties import ties

DIRECTIONS = ("X", "Y", "Z", "XX", "YY", "ZZ")
AXIAL_ONLY = ("BAR", "ROD", "TIE", "STRUT")
VERTICAL_LIMIT = 1e-3


def local_axes(start, end, angle=0.0, orientation=None):
    """The local axes as the rows of a 3 by 3 matrix; angle in degrees, orientation the point of the
    orientation node."""
    x = np.subtract(end, start).astype(float)
    length = np.linalg.norm(x)
    if length == 0.0:
        raise ValueError("element of zero length")
    x /= length
    if orientation is not None:
        z = np.cross(x, np.subtract(orientation, start))
        if np.linalg.norm(z) < 1e-9 * length:
            raise ValueError("orientation node on the line of the element")
    elif np.hypot(x[0], x[1]) < VERTICAL_LIMIT:
        z = np.cross(x, (0.0, 1.0, 0.0))
    else:
        z = np.cross(x, np.cross((0.0, 0.0, 1.0), x))
    z /= np.linalg.norm(z)
    y = np.cross(z, x)
    c, s = np.cos(np.radians(angle)), np.sin(np.radians(angle))
    return np.array((x, c * y + s * z, c * z - s * y))


def user_axes(axis):
    """Axes of a cartesian user axis as rows, from its x axis and a vector in its x-y plane."""
    x = np.array(axis["x_axis"], dtype=float)
    z = np.cross(x, axis["xy_plane"])
    x /= np.linalg.norm(x)
    z /= np.linalg.norm(z)
    return np.array((x, np.cross(z, x), z))


def skew(r):
    """Matrix S with S a = r cross a."""
    return np.array(((0.0, -r[2], r[1]), (r[2], 0.0, -r[0]), (-r[1], r[0], 0.0)))


def bending(ei, length, phi):
    """4 by 4 stiffness of a beam in one plane for (v1, slope1, v2, slope2); phi = 12 EI / (shear
    stiffness L^2)."""
    ll = length * length
    full, half = 4 + phi, 2 - phi
    k = np.array(
        (
            (12, 6 * length, -12, 6 * length),
            (6 * length, full * ll, -6 * length, half * ll),
            (-12, -6 * length, 12, -6 * length),
            (6 * length, half * ll, -6 * length, full * ll),
        )
    )
    return k * ei / (length**3 * (1 + phi))


# freedoms of the two planes of bending; a positive rotation about y is a negative slope dw/dx
PLANE_XY, SIGN_XY = (1, 5, 7, 11), np.array((1.0, 1.0, 1.0, 1.0))
PLANE_XZ, SIGN_XZ = (2, 4, 8, 10), np.array((1.0, -1.0, 1.0, -1.0))


class Beam:
    """One two-node element. Ends are where the flexible part begins, which rigid offsets tie to the
    nodes."""

    def __init__(self, number, element, model):
        nodes = model["nodes"]
        self.number = number
        self.nodes = tuple(element["nodes"])
        self.section = model["sections"][element["section"]]
        self.material = model["materials"][self.section["material"]]
        self.axial_only = element["type"] in AXIAL_ONLY
        if not self.axial_only and element["type"] != "BEAM":
            raise ValueError(f"element {number}: {element['type']} is not a frame element")
        start, end = (np.array(nodes[n]["position"], dtype=float) for n in self.nodes)
        aim = element.get("orientation_node", 0)
        self.axes = local_axes(
            start, end, element.get("angle", 0.0), nodes[aim]["position"] if aim else None
        )
        self._place(start, end, element.get("offset", {}))
        self._stiffen()
        self._connect(element)

    def _place(self, start, end, offset):
        """Flexible length, and the matrix from nodal freedoms (global) to those of the ends
        (local)."""
        y, z = offset.get("y", 0.0), offset.get("z", 0.0)
        arms = ((offset.get("x1", 0.0), y, z), (offset.get("x2", 0.0), y, z))
        self.length = float(np.linalg.norm(end - start)) + arms[1][0] - arms[0][0]
        if self.length <= 0.0:
            raise ValueError(f"element {self.number}: offsets leave no length")
        self.to_ends = np.zeros((12, 12))
        for side, arm in enumerate(arms):
            at = slice(6 * side, 6 * side + 3)
            turn = slice(6 * side + 3, 6 * side + 6)
            self.to_ends[at, at] = self.to_ends[turn, turn] = self.axes
            self.to_ends[at, turn] = -skew(arm) @ self.axes

    def _stiffen(self):
        """Stiffness of the flexible part in local axes; shear areas are optional."""
        s, e, ll = self.section, self.material["E"], self.length
        g = e / (2 * (1 + self.material["nu"]))
        self.ea, self.eiyy, self.eizz = e * s["A"], e * s["Iyy"], e * s["Izz"]
        self.phi_xy = 12 * self.eizz / (g * s["Avy"] * ll**2) if s.get("Avy") else 0.0
        self.phi_xz = 12 * self.eiyy / (g * s["Avz"] * ll**2) if s.get("Avz") else 0.0
        k = self.stiffness = np.zeros((12, 12))
        pair = np.array(((1.0, -1.0), (-1.0, 1.0))) / ll
        k[np.ix_((0, 6), (0, 6))] = self.ea * pair
        k[np.ix_((3, 9), (3, 9))] = (0.0 if self.axial_only else g * s["J"]) * pair
        k[np.ix_(PLANE_XY, PLANE_XY)] = bending(self.eizz, ll, self.phi_xy)
        k[np.ix_(PLANE_XZ, PLANE_XZ)] = bending(self.eiyy, ll, self.phi_xz) * np.outer(
            SIGN_XZ, SIGN_XZ
        )

    def _connect(self, element):
        """Condense released and sprung end freedoms: ends = gather @ nodes + hinge @ (fixed-end
        forces)."""
        codes = (
            "FFFFRR" * 2 if self.axial_only else "".join(element.get("connect", ("F" * 6, "F" * 6)))
        )
        springs = element.get("connect_stiffness", {})
        loose = [i for i, code in enumerate(codes) if code != "F"]
        self.gather, self.hinge, self.connected = np.eye(12), np.zeros((12, 12)), self.stiffness
        if not loose:
            return
        springy = np.diag([springs.get((i // 6 + 1, DIRECTIONS[i % 6]), 0.0) for i in loose])
        core = self.stiffness[np.ix_(loose, loose)] + springy
        if np.linalg.cond(core) > 1e14:
            raise ValueError(f"element {self.number}: its end releases make it a mechanism")
        flexibility = np.linalg.inv(core)
        self.gather[loose] = -flexibility @ self.stiffness[loose]
        self.gather[np.ix_(loose, loose)] = flexibility @ springy
        self.hinge[np.ix_(loose, loose)] = -flexibility
        gap = self.gather[loose] - np.eye(12)[loose]
        self.connected = self.gather.T @ self.stiffness @ self.gather + gap.T @ springy @ gap

    def nodal_stiffness(self):
        """12 by 12, global axes, at the nodes."""
        return self.to_ends.T @ self.connected @ self.to_ends

    def nodal_load(self, fixed_end):
        """Nodal forces (global) that stand for the load whose fixed-end forces (local, at the ends)
        are given."""
        return -self.to_ends.T @ self.gather.T @ fixed_end

    def end_displacements(self, nodal, fixed_end):
        """Displacements of the flexible ends in local axes, beyond any release."""
        return self.gather @ self.to_ends @ nodal + self.hinge @ fixed_end

    def mass(self):
        return self.material["density"] * self.section["A"] * self.length


class Spring:
    """A spring between two nodes at the same place, with six stiffnesses in global axes."""

    def __init__(self, number, element, model):
        self.number = number
        self.nodes = tuple(element["nodes"])
        first, second = (model["nodes"][n]["position"] for n in self.nodes)
        if not np.allclose(first, second, rtol=0.0, atol=1e-9):
            raise ValueError(f"spring {number} has a length: its shear would not balance")
        self.values = np.array(model["springs"][element["section"]]["stiffness"], dtype=float)

    def nodal_stiffness(self):
        return np.kron(((1.0, -1.0), (-1.0, 1.0)), np.diag(self.values))

    def force(self, nodal):
        """Force and moment in the spring, tension positive."""
        return self.values * (nodal[6:] - nodal[:6])


class Frame:
    """The assembled frame: freedoms, restraints, ground springs and stiffness, in the axes of the
    nodes."""

    def __init__(self, model):
        self.model = model
        self.row = {n: 6 * k for k, n in enumerate(sorted(model["nodes"]))}
        self.size = 6 * len(self.row)
        parts = sorted(model["elements"].items())
        self.beams = {n: Beam(n, e, model) for n, e in parts if e["type"] != "SPRING"}
        self.springs = {n: Spring(n, e, model) for n, e in parts if e["type"] == "SPRING"}
        self.turn = np.eye(self.size)
        self.restrained = np.zeros(self.size, dtype=bool)
        self.ground = np.zeros(self.size)
        for number, node in model["nodes"].items():
            self._hold(number, node)
        self.stiffness = self._assemble()
        self.tie = ties(self)

    def _hold(self, number, node):
        """Axes, restraints and ground springs of one node."""
        row = self.row[number]
        axes = self.axes(node.get("axis", 0))
        for at in (row, row + 3):
            self.turn[at : at + 3, at : at + 3] = axes
        for direction in node.get("restraint", ()):
            self.restrained[row + DIRECTIONS.index(direction)] = True
        if node.get("spring", 0):
            self.ground[row : row + 6] = self.model["springs"][node["spring"]]["stiffness"]

    def _assemble(self):
        k = np.zeros((self.size, self.size))
        for beam in (self.beams | self.springs).values():
            rows = self.rows(beam)
            k[np.ix_(rows, rows)] += beam.nodal_stiffness()
        return self.turn @ k @ self.turn.T

    def axes(self, number):
        """Rows of a user axis; 0 is global."""
        return user_axes(self.model["axes"][number]) if number else np.eye(3)

    def rows(self, beam):
        return [self.row[n] + i for n in beam.nodes for i in range(6)]

    def position(self, node):
        return np.array(self.model["nodes"][node]["position"], dtype=float)

    def idle(self):
        """Freedoms that nothing stiffens (rotations where only bars meet); they are held."""
        diagonal = np.diag(self.tied(self.stiffness + np.diag(self.ground)))
        return diagonal <= 1e-12 * diagonal.max()

    def tied(self, matrix):
        """A stiffness or mass matrix over the freedoms that follow no other."""
        return self.tie.T @ matrix @ self.tie if self.model.get("ties") else matrix
