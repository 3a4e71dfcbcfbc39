CREATE TABLE 'model'
(
  job_number VARCHAR(10) NOT NULL PRIMARY KEY,
  initials VARCHAR(5),
  title VARCHAR(64) NOT NULL,
  subtitle VARCHAR(64),
  calculation_header VARCHAR(64),
  steel_code VARCHAR(32),
  concrete_code VARCHAR(32),
  notes VARCHAR(256)
);
INSERT INTO model VALUES('12/3', 'AB', 'Small model', 'All tables', 'Check', 'EN 1993', 'EN 1992', 'A note');
CREATE TABLE 'location'
(
  country VARCHAR(10) NOT NULL,
  north REAL,
  elevation REAL,
  latitude VARCHAR(10),
  longitude VARCHAR(10),
  currency VARCHAR(4)
);
INSERT INTO location VALUES('UK', 12.500000, 85.000000, 51.500000, -0.125000, 'GBP');
CREATE TABLE 'history'
(
  date VARCHAR(12),
  time VARCHAR(12),
  user VARCHAR(32),
  notes VARCHAR(64)
);
INSERT INTO history VALUES('2026-11-20', '10:11:12', 'ab', 'Made');
INSERT INTO history VALUES('2026-11-21', '09:08:07', '', 'Checked');
CREATE TABLE 'axis'
(
  axis INTEGER NOT NULL PRIMARY KEY,
  name VARCHAR(32) NOT NULL,
  type VARCHAR(12),
  origin_x REAL,
  origin_y REAL,
  origin_z REAL,
  xaxis_x REAL,
  xaxis_y REAL,
  xaxis_z REAL,
  yaxis_x REAL,
  yaxis_y REAL,
  yaxis_z REAL,
  zaxis_x REAL,
  zaxis_y REAL,
  zaxis_z REAL
);
INSERT INTO axis VALUES(2, 'Tower', 'CYLINDRICAL', 1.000000, 2.000000, 3.000000, 0.000000, 1.000000, 0.000000, -1.000000, 0.000000, 0.000000, 0.000000, -0.000000, 1.000000);
CREATE TABLE 'node'
(
  node INTEGER NOT NULL PRIMARY KEY,
  name VARCHAR(32),
  colour VARCHAR(10),
  position_x REAL,
  position_y REAL,
  position_z REAL,
  axis INTEGER,
  restraint VARCHAR(12),
  spring INTEGER,
  mass INTEGER,
  damper INTEGER
);
INSERT INTO node VALUES(1, 'Base', '#0080FF', 0.000000, 0.000000, 0.000000, 0, 'XYZXXYYZZ', 0, 0, 0);
INSERT INTO node VALUES(2, '', '#000000', 4.000000, 0.000000, 0.000000, 0, 'FREE', 0, 0, 0);
INSERT INTO node VALUES(3, '', '#000000', 4.000000, 3.000000, 0.000000, 2, 'ZYY', 1, 4, 5);
INSERT INTO node VALUES(4, '', '#000000', 0.000000, 3.000000, 0.000000, 0, 'FREE', 0, 0, 0);
INSERT INTO node VALUES(10, '', '#000000', 0.000000, 0.000000, 2.500000, 0, 'FREE', 0, 0, 0);
CREATE TABLE 'member'
(
  member INTEGER NOT NULL PRIMARY KEY,
  name VARCHAR(32),
  colour VARCHAR(10),
  type VARCHAR(12),
  prop_1d_id INTEGER,
  prop_2d_id INTEGER,
  prop_3d_id INTEGER,
  group_id INTEGER,
  topology VARCHAR(256),
  type_1d VARCHAR(12),
  type_2d VARCHAR(12),
  mesh_size REAL,
  orientation_angle REAL,
  dummy BOOLEAN,
  offset_x1 REAL,
  offset_x2 REAL,
  offset_y REAL,
  offset_z REAL,
  release_1 VARCHAR(12),
  release_2 VARCHAR(12),
  revit_id VARCHAR(48) NOT NULL
);
INSERT INTO member VALUES(1, 'Column', '#000000', 'COLUMN', 1, NULL, NULL, 7, '1 2', 'BEAM', NULL, 0.500000, 30.000000, FALSE, 0.000000, 0.000000, 0.000000, 0.000000, 'FFFFFF', 'FFFFRK', '5f-2');
INSERT INTO member VALUES(3, '', '#000000', 'SLAB', NULL, 1, NULL, 0, '1 2 3 4', NULL, 'QUADRATIC', 0.000000, 0.000000, TRUE, 0.000000, 0.000000, 0.000000, -0.125000, NULL, NULL, '');
CREATE TABLE 'element'
(
  element INTEGER NOT NULL PRIMARY KEY,
  name VARCHAR(32),
  colour VARCHAR(10),
  type VARCHAR(12),
  prop_1d_id INTEGER,
  prop_2d_id INTEGER,
  prop_3d_id INTEGER,
  group_id INTEGER,
  num_node INTEGER,
  node_1 INTEGER REFERENCES node(node),
  node_2 INTEGER REFERENCES node(node),
  node_3 INTEGER REFERENCES node(node),
  node_4 INTEGER REFERENCES node(node),
  node_5 INTEGER REFERENCES node(node),
  node_6 INTEGER REFERENCES node(node),
  node_7 INTEGER REFERENCES node(node),
  node_8 INTEGER REFERENCES node(node),
  orientation_angle REAL,
  dummy BOOLEAN,
  parent_member INTEGER REFERENCES member(member),
  member_type VARCHAR(12),
  offset_x1 REAL,
  offset_x2 REAL,
  offset_y REAL,
  offset_z REAL,
  release_1 VARCHAR(12),
  release_2 VARCHAR(12)
);
INSERT INTO element VALUES(1, 'Cantilever', '#FF0000', 'BEAM', 1, NULL, NULL, 7, 2, 1, 2, NULL, NULL, NULL, NULL, NULL, NULL, 0.000000, FALSE, 1, 'COLUMN', NULL, NULL, NULL, NULL, 'FFFFFF', 'FFFFFF');
INSERT INTO element VALUES(2, '', '#000000', 'QUAD4', NULL, 1, NULL, 0, 4, 1, 2, 3, 4, NULL, NULL, NULL, NULL, 0.000000, FALSE, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL);
INSERT INTO element VALUES(3, '', '#000000', 'SPRING', NULL, NULL, NULL, 0, 2, 3, 4, NULL, NULL, NULL, NULL, NULL, NULL, 0.000000, FALSE, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL);
INSERT INTO element VALUES(5, '', '#000000', 'TETRA4', NULL, NULL, 1, 0, 4, 1, 2, 4, 10, NULL, NULL, NULL, NULL, 0.000000, FALSE, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL);
INSERT INTO element VALUES(6, '', '#000000', 'BEAM', 2, NULL, NULL, 0, 2, 2, 3, NULL, NULL, NULL, NULL, NULL, NULL, 30.000000, TRUE, NULL, NULL, 0.125000, -0.250000, 0.000000, 0.500000, 'FFFFFF', 'FFFFRK');
INSERT INTO element VALUES(7, '', '#000000', 'BAR', 2, NULL, NULL, 0, 2, 3, 4, NULL, NULL, NULL, NULL, NULL, NULL, 0.000000, TRUE, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL);
CREATE TABLE 'assembly'
(
  assembly INTEGER NOT NULL PRIMARY KEY,
  name VARCHAR(32) NOT NULL,
  storey BOOLEAN,
  geometry VARCHAR(12),
  node_1 INTEGER REFERENCES node(node),
  node_2 INTEGER REFERENCES node(node),
  node_3 INTEGER REFERENCES node(node),
  internal VARCHAR(32),
  dim_y REAL,
  dim_z REAL
);
INSERT INTO assembly VALUES(1, 'Core', FALSE, 'LINE', 1, 2, NULL, '1', 3.000000, 4.000000);
CREATE TABLE 'section'
(
  section INTEGER NOT NULL PRIMARY KEY,
  name VARCHAR(32),
  colour VARCHAR(10),
  material VARCHAR(12),
  grade_id INTEGER,
  description VARCHAR(256),
  perimeter VARCHAR(256),
  pool INTEGER,
  area REAL,
  iyy REAL,
  izz REAL,
  j REAL,
  ky REAL,
  kz REAL,
  volume_per_length REAL
);
INSERT INTO section VALUES(1, 'Solid', '#000000', 'STEEL', 2, 'STD%R%400%200', '(-0.100000,-0.200000) (0.100000,-0.200000) (0.100000,0.200000) (-0.100000,0.200000)', 0, 0.080000, 0.001067, 0.000267, 0.000732, 0.833333, 0.833333, 0.080000);
INSERT INTO section VALUES(2, 'Values', '#000000', 'GENERIC', 0, 'EXP%0.01%0.0002%0.0003%0.0004%0.5%0.6', '', 0, 0.010000, 0.000200, 0.000300, 0.000400, 0.500000, 0.600000, 0.010000);
CREATE TABLE 'prop_2d'
(
  prop_2d INTEGER NOT NULL PRIMARY KEY,
  name VARCHAR(32),
  colour VARCHAR(10),
  material VARCHAR(12),
  grade_id INTEGER,
  description VARCHAR(256),
  thickness REAL
);
INSERT INTO prop_2d VALUES(1, 'Slab', '#000000', 'CONCRETE', 1, 'SHELL 0.25 m', 0.250000);
CREATE TABLE 'prop_3d'
(
  prop_3d INTEGER NOT NULL PRIMARY KEY,
  name VARCHAR(32),
  colour VARCHAR(10),
  material VARCHAR(12),
  grade_id INTEGER
);
INSERT INTO prop_3d VALUES(1, 'Soil', '#000000', 'GENERIC', 0);
CREATE TABLE 'list'
(
  list INTEGER NOT NULL PRIMARY KEY,
  name VARCHAR(32),
  type VARCHAR(32),
  description VARCHAR(256),
  expanded VARCHAR(256)
);
INSERT INTO list VALUES(1, 'Some', 'ELEMENT', '1 to 3 not 2', '1 3');
INSERT INTO list VALUES(2, 'Grid', 'GRID_PLANE', 'all', '1 3');
